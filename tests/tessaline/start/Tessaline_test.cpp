// How a run starts: whole runs from a command line.

#include "tests/support/shown_to_user.h"
#include "tests/tessaline/run_fixture.h"

#include "platform/platform.h"
#include "tessaline/state/application.h"
#include "tests/support/answering_desktop.h"

namespace {

using sketchup::model_builder;

class StartUp : public run_fixture {
protected:
    std::string saved_model(const std::string& inside) {
        model_builder m;
        return save(m, inside);
    }

    // What a run with that command line tells the user.
    static std::string told_by(const std::string& command_line) {
        return shown_to_user([&] {
            EXPECT_FALSE(theApp.InitInstance(command_line)); // there is no message loop to enter
        });
    }
};

TEST_F(StartUp, the_application_starts_with_the_values_that_parents_rely_on) {
    const CTessalineApp app;
    EXPECT_EQ(app.xml_options.switches, (std::array<bool, 7>{true, true, true, true, false, true, true}));
    EXPECT_EQ(app.extract_mode, "Tessaline");
    EXPECT_EQ(app.lights_folder, "ZynBatch_Lights");
    EXPECT_EQ(app.materials_folder, "ZynBatch_Materials");
    EXPECT_EQ(app.textures_folder, "Batch_SketchUp_Textures");
    EXPECT_EQ(app.images_folder, "");
    EXPECT_FALSE(app.color_by_layer);
    EXPECT_FALSE(app.is_doing_animation);
}

TEST_F(StartUp, the_folder_of_the_program_is_known_with_a_separator_at_its_end) {
    told_by("tessaline " + saved_model("geometry.qlm"));
    const std::string program = platform::program_path();
    EXPECT_EQ(theApp.program_folder, program.substr(0, program.find_last_of(platform::path_separator) + 1));
}

TEST_F(StartUp, one_quoted_path_in_a_folder_with_a_blank_writes_the_stream_beside_it_over_an_old_one) {
    const std::string model = saved_model("a b/geometry.qlm");
    batch.write("a b/batch_file.txt", "old");
    told_by("tessaline \"" + model + "\"");
    EXPECT_EQ(theApp.input_path, model);
    EXPECT_EQ(theApp.output_path, batch / "a b/batch_file.txt");
    EXPECT_THAT(batch.read("a b/batch_file.txt"), testing::EndsWith("END;\r\n"));
}

TEST_F(StartUp, one_unquoted_model_word_does_the_same) {
    const std::string model = saved_model("geometry.qlm");
    told_by("tessaline " + model);
    EXPECT_EQ(theApp.input_path, model);
    EXPECT_EQ(theApp.output_path, batch / "batch_file.txt");
    EXPECT_THAT(batch.read("batch_file.txt"), testing::EndsWith("END;\r\n"));
}

TEST_F(StartUp, two_words_are_model_and_stream) {
    const std::string model = saved_model("house.skp");
    told_by("tessaline " + model + ' ' + batch / "out.txt");
    EXPECT_THAT(batch.read("out.txt"), testing::EndsWith("END;\r\n"));
    EXPECT_EQ(theApp.output_folder, batch.name());
    EXPECT_EQ(theApp.batch_folder, batch.name());
}

TEST_F(StartUp, switches_reach_the_application) {
    const std::string model = saved_model("house.skp");
    told_by("tessaline \"" + model + "\" \"" + batch / "out.txt" +
            "\" -load_all_layers -incl_edge_lines -incl_views -all_atts -is_animation -progress 77");
    EXPECT_TRUE(theApp.load_all_layers);
    EXPECT_TRUE(theApp.incl_edge_lines);
    EXPECT_TRUE(theApp.incl_views);
    EXPECT_TRUE(theApp.is_doing_animation);
    EXPECT_EQ(theApp.progress_argument, "77");
    EXPECT_THAT(batch.read("out.txt"), testing::HasSubstr("LYNM;Layer0\r\n"));
}

TEST_F(StartUp, doubled_separators_of_both_paths_are_folded) {
    saved_model("house.skp");
    told_by("tessaline " + batch / "/house.skp " + batch / "/out.txt");
    EXPECT_EQ(theApp.input_path, batch / "house.skp");
    EXPECT_EQ(theApp.output_path, batch / "out.txt");
}

TEST_F(StartUp, a_model_word_of_another_name_removes_its_own_input) {
    const std::string model = saved_model("house.qlm");
    const std::string told = told_by("tessaline " + model);
    EXPECT_FALSE(batch.has("house.qlm"));
    EXPECT_THAT(told, testing::HasSubstr("Could not find input filename " + model + "."));
}

TEST_F(StartUp, a_missing_input_is_reported_and_nothing_is_written_or_deleted) {
    batch.write("out.txt", "old");
    const trace_capture trace;
    const std::string told = told_by("tessaline " + batch / "missing.skp " + batch / "out.txt");
    EXPECT_THAT(told, testing::StartsWith("Tessaline - Tessaline conversion Error: Could not find input filename " +
                                          batch / "missing.skp."));
    EXPECT_THAT(trace.text_without_line_numbers(),
                testing::EndsWith("Tessaline(#): CTessalineApp::InitInstance():: *** ERROR: Could not find input "
                                  "filename " +
                                  batch / "missing.skp" + ".\n"));
    EXPECT_EQ(batch.read("out.txt"), "old");
}

TEST_F(StartUp, a_name_that_the_system_does_not_take_is_called_too_long) {
    const std::string longest = "/" + std::string(platform::longest_name - 1, 'a');
    const std::string told = told_by("tessaline " + longest + " " + batch / "out.txt");
    EXPECT_THAT(told, testing::HasSubstr("Could not find input filename " + longest + "."));
    EXPECT_THAT(told, testing::Not(testing::HasSubstr("characters")));
    EXPECT_THAT(told_by("tessaline " + longest + "a " + batch / "out.txt"),
                testing::HasSubstr(std::string("Its name has ") + std::to_string(platform::longest_name + 1) +
                                   " characters, more than the " + std::to_string(platform::longest_name) +
                                   " that the system takes."));
}

TEST_F(StartUp, a_missing_model_with_its_stream_as_the_second_path_leaves_that) {
    batch.write("batch_file.txt", "old");
    const std::string told = told_by("tessaline " + batch / "geometry.qlm" + ' ' + batch / "batch_file.txt");
    EXPECT_THAT(told, testing::HasSubstr("Could not find input filename " + batch / "geometry.qlm" + "."));
    EXPECT_EQ(batch.read("batch_file.txt"), "old");
}

TEST_F(StartUp, a_missing_model_as_one_unquoted_word_deletes_the_stream_beside_it) {
    batch.write("batch_file.txt", "old");
    const std::string told = told_by("tessaline " + batch / "geometry.qlm");
    EXPECT_THAT(told, testing::HasSubstr("Could not find input filename " + batch / "geometry.qlm" + "."));
    EXPECT_FALSE(batch.has("batch_file.txt"));
}

TEST_F(StartUp, an_unknown_output_is_reported) {
    theApp.input_path = saved_model("house.skp");
    const trace_capture trace;
    answering_desktop desktop;
    EXPECT_FALSE(theApp.paths_are_usable());
    ASSERT_EQ(desktop.shown.size(), 1u);
    EXPECT_EQ(desktop.shown[0].caption, "Tessaline - Error");
    EXPECT_EQ(trace.text_without_line_numbers(), "Tessaline(#): CTessalineApp::InitInstance():: *** ERROR: Could not "
                                                 "parse output filename passed to SKP conversion routine.\n");
}

TEST_F(StartUp, the_marker_in_the_temporary_folder_shows_the_command_line_and_both_paths) {
    const std::string model = saved_model("geometry.qlm");
    const with_temporary_folder temporary(batch / "tmp");
    batch.write("tmp/qlw_show_command_line", "");
    const std::string line = "tessaline \"" + model + "\"";
    const std::string told = told_by("  " + line + " ");
    const std::size_t first = told.find("TEMP/qlw_show_command_line found: " + line);
    const std::size_t second = told.find("sin: " + model);
    const std::size_t third = told.find("sout: " + batch / "batch_file.txt");
    EXPECT_LT(first, second);
    EXPECT_LT(second, third);
    EXPECT_NE(third, std::string::npos) << told;
    EXPECT_TRUE(batch.has("batch_file.txt")); // the run goes on
}

TEST_F(StartUp, a_progress_argument_has_no_visible_effect) {
    const std::string model = saved_model("house.skp");
    told_by("tessaline " + model + ' ' + batch / "plain.txt");
    told_by("tessaline " + model + ' ' + batch / "with.txt -progress 12");
    EXPECT_EQ(batch.read("plain.txt"), batch.read("with.txt"));
}

} // namespace
