// What the parent's list of scattered components adds to the stream.

#include "tests/batch/batch_runner.h"

#include <gtest/gtest.h>

namespace {

using namespace sketchup;

// A name in quotation marks is found; one of another case, one that the model lacks, and a comment add nothing. Nor
// does one with a blank outside its marks: in front, the first mark opens nothing, and the name ends at its separator;
// behind, the last mark closes nothing, and the name takes the rest of the line.
TEST(SkatterBatch, plain_components_are_walked_at_the_places_that_the_list_gives) {
    batch b;
    model_builder m;
    m.component("Stone; \"grey\"").square(10);
    b.put_model(m);
    b.put("skatter_insts.txt", "# group;layer;id;definition;matrix\r\n"
                               "\"a;b\";layer;1;\"Stone; \"\"grey\"\"\";1;0;0;0;0;1;0;0;0;0;1;0;0;0;0;1\r\n"
                               "a;layer;2;pebble;1;0;0;0;0;1;0;0;0;0;1;0;40;0;0;1\r\n"
                               "a;layer;3;stone; \"grey\";1;0;0;0;0;1;0;0;0;0;1;0;60;0;0;1\r\n"
                               "#a;layer;4;\"Stone; \"\"grey\"\"\";1;0;0;0;0;1;0;0;0;0;1;0;80;0;0;1\r\n"
                               "a;layer;5; \"Stone; \"\"grey\"\"\";1;0;0;0;0;1;0;0;0;0;1;0;90;0;0;1\r\n"
                               "a;layer;6;\"Stone; \"\"grey\"\"\" ;1;0;0;0;0;1;0;0;0;0;1;0;100;0;0;1\r\n"
                               "a;layer;7;\"Stone; \"\"grey\"\"\";1;0;0;0;0;1;0;0;0;0;1;0;20;0;0;1");
    expect_run(b, "scattered_components");
}

TEST(SkatterBatch, a_list_beside_a_model_without_components_adds_nothing) {
    batch b;
    model_builder m;
    m.root().square(10);
    b.put_model(m);
    b.put("skatter_insts.txt", "a;b;c;pebble;1;0;0;0;0;1;0;0;0;0;1;0;0;0;0;1\r\n");
    EXPECT_EQ(b.run().errors, quiet_errors);
    const std::string golden = text_of_file(TESSALINE_SOURCE_DIR "/tests/batch/one_square/expected/batch_file.txt");
    EXPECT_EQ(b.read("batch_file.txt"), golden);
}

} // namespace
