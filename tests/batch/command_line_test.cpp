// How the program is started, and how it ends when it cannot work.

#include "tessaline/start/usage.h"
#include "tests/batch/batch_runner.h"

#include <gtest/gtest.h>

namespace {

using namespace sketchup;

void put_square(batch& b, const std::string& inside = "geometry.qlm") {
    model_builder m;
    m.root().square(10);
    b.put_model(m, inside);
}

void expect_quiet_end(const program_result& outcome) {
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, quiet_errors);
}

TEST(CommandLineBatch, a_single_word_is_a_model_whose_stream_is_its_neighbour) {
    batch b;
    put_square(b);
    expect_quiet_end(b.run_with({b / "geometry.qlm"}));
    expect_batch(b, "one_square");
}

TEST(CommandLineBatch, a_single_name_in_quotation_marks_has_the_same_stream) {
    batch b("a blank");
    put_square(b);
    expect_quiet_end(b.run_with({b / "geometry.qlm"}));
    expect_batch(b, "one_square");
}

TEST(CommandLineBatch, names_may_be_relative_to_the_current_folder) {
    batch b;
    put_square(b);
    expect_quiet_end(b.run_with({"batch/geometry.qlm"}, b.surrounding().name()));
    expect_batch(b, "one_square");
}

TEST(CommandLineBatch, a_bare_name_is_a_model_of_the_current_folder) {
    batch b;
    put_square(b);
    expect_quiet_end(b.run_with({"geometry.qlm"}));
    expect_batch(b, "one_square");
}

TEST(CommandLineBatch, a_second_name_is_that_of_the_stream) {
    batch b;
    put_square(b, "house.skp");
    expect_quiet_end(b.run_with({b / "house.skp", b / "batch_file.txt"}));
    expect_batch(b, "one_square");
}

TEST(CommandLineBatch, everything_but_the_stream_goes_to_the_folder_of_the_model) {
    batch b;
    put_square(b);
    b.put("streams/old.txt", "an old stream");
    expect_quiet_end(b.run_with({b / "geometry.qlm", b / "streams/old.txt"}));
    std::set<std::string> folders = folders_of_every_run();
    folders.insert("streams");
    expect_batch(b, "stream_elsewhere", folders);
}

TEST(CommandLineBatch, switches_without_effect_change_nothing) {
    batch b;
    put_square(b);
    expect_quiet_end(b.run_with({b / "geometry.qlm", b / "batch_file.txt", "-load_all_layers", "-incl_edge_lines",
                                 "-incl_views", "-all_atts", "-progress", "4711"}));
    expect_batch(b, "one_square");
}

// A debugging aid: an empty file of that name in the temporary folder.
TEST(CommandLineBatch, a_marker_file_makes_a_run_show_what_it_was_passed) {
    batch b;
    put_square(b);
    b.surrounding().write("tmp/qlw_show_command_line", "");
    const std::string model = b / "geometry.qlm";
    const std::string stream = b / "batch_file.txt";
    const program_result outcome = b.run_with({model, stream, "-is_animation"});
    EXPECT_EQ(outcome.errors, "TEMP/qlw_show_command_line found: " + tested_program() + " " + model + " " + stream +
                                  " -is_animation\nsin: " + model + "\nsout: " + stream + "\n" +
                                  std::string(quiet_errors));
    EXPECT_TRUE(b.has("batch_file.txt"));
}

TEST(CommandLineBatch, a_file_that_is_no_model_leaves_no_stream_and_no_word) {
    for (const std::string_view bytes : {"", "no model", "\xFF\xFE\xFF\x0E"}) {
        batch b;
        b.put("geometry.qlm", bytes);
        b.put("batch_file.txt", "an old stream");
        b.put("option_globals.txt", "ivl_resx;800\n");
        expect_quiet_end(b.run());
        const files_by_name expected = {{"geometry.qlm", std::string(bytes)}, {"option_globals.txt", "ivl_resx;800\n"}};
        EXPECT_EQ(b.files(), expected);
        EXPECT_EQ(b.folders(), std::set<std::string>());
    }
}

TEST(CommandLineBatch, a_model_cut_short_leaves_no_stream_and_no_word) {
    batch whole;
    put_square(whole);
    const std::string bytes = whole.read("geometry.qlm");
    batch b;
    b.put("geometry.qlm", std::string_view(bytes).substr(0, bytes.size() / 2));
    b.put("batch_file.txt", "an old stream");
    expect_quiet_end(b.run());
    EXPECT_FALSE(b.has("batch_file.txt"));
    EXPECT_EQ(b.folders(), std::set<std::string>());
}

TEST(CommandLineBatch, a_model_that_is_not_there_is_named) {
    batch b;
    const program_result outcome = b.run_with({b / "house.skp", b / "batch_file.txt"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_NE(outcome.errors.find("Could not find input filename " + b / "house.skp" + ".\n"), std::string::npos)
        << outcome.errors;
    EXPECT_EQ(b.files(), files_by_name());
}

TEST(CommandLineBatch, help_is_printed_and_nothing_is_touched) {
    batch b;
    put_square(b);
    b.put("batch_file.txt", "an old stream");
    const files_by_name before = b.files();
    const program_result outcome = b.run_with({"--help"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, usage_text);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(b.files(), before);
}

TEST(CommandLineBatch, the_version_is_printed_and_nothing_is_touched) {
    batch b;
    b.put("batch_file.txt", "an old stream");
    const program_result outcome = b.run_with({"--version"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "Tessaline " TESSALINE_VERSION "\n");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(b.read("batch_file.txt"), "an old stream");
}

} // namespace
