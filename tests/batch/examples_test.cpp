// What a run makes of the examples.

#include "tests/batch/batch_runner.h"
#include "tests/support/run_program.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::string folder_of_example(const std::string& name) {
    return std::string(TESSALINE_SOURCE_DIR) + "/examples/" + name;
}

// The model that the example's program writes, and what a parent puts beside it: what the golden files do not hold anew
// must stay as it is.
void put_example(batch& b, const std::string& name) {
    const std::string program = std::string(EXAMPLE_PROGRAMS) + "/example_" + name + PROGRAM_ENDING;
    ASSERT_EQ(run_program({program, {b / "geometry.qlm"}}).status, 0);
    b.expect_file("geometry.qlm", b.read("geometry.qlm"));
    const files_by_name golden = files_below(folder_of_example(name) + "/expected");
    for (const auto& [inside, bytes] : files_below(folder_of_example(name) + "/parent")) {
        b.put(inside, bytes);
        if (!golden.contains(inside))
            b.expect_file(inside, bytes);
    }
}

// What stands behind the model on the command line.
std::vector<std::string> arguments_of(const std::string& name) {
    std::istringstream text(text_of_file(folder_of_example(name) + "/arguments"));
    std::vector<std::string> words;
    for (std::string word; text >> word;)
        words.push_back(word);
    return words;
}

class ExamplesBatch : public testing::TestWithParam<std::string> {};

TEST_P(ExamplesBatch, becomes_what_lies_beside_it) {
    batch b;
    put_example(b, GetParam());
    const program_result outcome = b.run(arguments_of(GetParam()));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    expect_batch(b, "examples/" + GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, ExamplesBatch, testing::Values("garden", "room", "stages"),
                         [](const testing::TestParamInfo<std::string>& one) { return one.param; });

TEST(ExampleRoom, has_a_lamp_of_every_type) {
    batch b;
    put_example(b, "room");
    b.run();
    std::set<std::string> types;
    for (const auto& [name, text] : b.files())
        if (name.starts_with("ZynBatch_Lights/")) {
            const std::size_t start = text.find("\r\ntype;") + 7;
            types.insert(text.substr(start, text.find("\r\n", start) - start));
        }
    EXPECT_EQ(types, (std::set<std::string>{"bulb", "bulb_glow", "linear_glow", "rect", "rect_glow", "round_glow",
                                            "spot", "spot_beams", "spot_glow"}));
}

} // namespace
