// What the user is told in the course of a run.

#include "tests/support/environment.h"
#include "tests/tessaline/start/run_messages_fixture.h"

namespace {

using sketchup::model_builder;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(RunMessages, an_ordinary_run_shows_none) {
    model_builder m;
    add_ground_plane(m);
    save(m);
    batch.write("option_globals.txt", "");
    EXPECT_THAT(messages_of_run(), IsEmpty());
}

TEST_F(RunMessages, an_unwritable_home_is_no_reason_for_one) {
    model_builder m;
    save(m);
    const std::string file = batch.write("file", ""); // no folder can be made inside
    const with_environment home("HOME", file + "/home");
    const with_settings_folder profile(file + "/home/config");
    EXPECT_THAT(messages_of_run(), IsEmpty());
    EXPECT_THAT(batch.read("batch_file.txt"), testing::EndsWith("END;\r\n"));
}

TEST_F(RunMessages, a_model_that_asks_for_what_cannot_be_ends_the_work_with_one_message) {
    model_builder m;
    const sketchup::index edited = m.material("Edited", {200, 100, 50, 255});
    m.attribute({sketchup::entity_kind::material, edited}, "Vellane_material", "ORNZyn Material Settings_chunk-1",
                sketchup::text("[ORNZyn"));
    m.element(m.root().square(10)).material = edited;
    save(m);
    const std::string message = "a chunk of an edited material has a number below 0";
    EXPECT_THAT(messages_of_run(), ElementsAre(message));
    EXPECT_THAT(capture.text_without_line_numbers(),
                testing::EndsWith("Tessaline(#): CTessalineApp::run_conversion():: *** ERROR: " + message + "\n"));
    EXPECT_FALSE(SUIsValid(open_model));
}

TEST_F(RunMessages, an_abandoned_reading_keeps_what_its_stream_has_gathered) {
    SketchUpReader broken_off;
    broken_off.stream.open((batch / "batch_file.txt").c_str(), "Tessaline");
    broken_off.stream.write_pass();
    broken_off.abandon_reading();
    EXPECT_EQ(batch.read("batch_file.txt"), "#;\r\nPASS;0\r\n#;\r\n");
    EXPECT_FALSE(broken_off.stream.is_open());
}

} // namespace
