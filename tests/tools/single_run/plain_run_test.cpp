// Runs from beginning to end: what is done, skipped, refused.

#include "tests/tools/single_run/run_fixture.h"

namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class PlainRun : public RunFixture {};

TEST_F(PlainRun, a_run_leaves_a_finished_batch_and_says_so_in_its_last_line) {
    const program_result outcome = run();
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_THAT(
        last_line(outcome.output),
        StartsWith("model.skp is converted: 2 triangles, 0 materials and 0 lamps in " + here / "batch" + " after "));
    EXPECT_THAT(here.read("batch/batch_file.txt"), EndsWith("END;\r\n"));
    EXPECT_EQ(here.read("batch/geometry.qlm"), here.read("model.skp"));
    EXPECT_FALSE(here.has("batch/tessaline-run.json.part"));
    EXPECT_EQ(report()["status"], 0);
    EXPECT_EQ(report()["skipped"], false);
    EXPECT_EQ(report()["counts"]["triangles"], 2);
    EXPECT_EQ(report()["model"]["bytes"], here.read("model.skp").size());
    EXPECT_GT(report()["peak_memory_bytes"], 1000000);
    EXPECT_THAT(names_here(), ElementsAre("batch", "model.skp"));
}

TEST_F(PlainRun, folders_above_the_batch_are_made_too) {
    EXPECT_EQ(run_program(start_of({here / "model.skp", here / "a/b/c/"})).status, 0);
    EXPECT_TRUE(here.has("a/b/c/tessaline-run.json"));
}

TEST_F(PlainRun, folders_above_a_batch_that_fails_go_with_it) {
    here.write("model.skp", "no model");
    EXPECT_EQ(run_program(start_of({here / "model.skp", here / "a/b/c"})).status, 3);
    EXPECT_FALSE(here.has("a"));
}

TEST_F(PlainRun, the_same_run_again_is_skipped_and_changes_nothing) {
    ASSERT_EQ(run().status, 0);
    here.write("batch/note.txt", "still there");
    const program_result again = run_with({"--json", here / "again.json"});
    EXPECT_EQ(again.status, 0);
    EXPECT_EQ(last_line(again.output),
              "model.skp was converted before, and nothing has changed since: " + here / "batch" + " stays as it is.");
    EXPECT_TRUE(here.has("batch/note.txt"));
    const auto json = nlohmann::json::parse(here.read("again.json"));
    EXPECT_EQ(json["skipped"], true);
    EXPECT_EQ(json["counts"]["triangles"], 2);
}

TEST_F(PlainRun, a_batch_whose_stream_was_deleted_is_converted_again) {
    ASSERT_EQ(run().status, 0);
    std::filesystem::remove(here / "batch/batch_file.txt");
    EXPECT_EQ(run_with({"--json", here / "again.json"}).status, 0);
    EXPECT_EQ(nlohmann::json::parse(here.read("again.json"))["skipped"], false);
    EXPECT_THAT(here.read("batch/batch_file.txt"), EndsWith("END;\r\n"));
}

TEST_F(PlainRun, a_setting_that_the_converter_keeps_for_later_runs_ends_with_its_run) {
    EXPECT_EQ(run_with({"--option", "ivl_dialog_x=7"}).status, 0);
    EXPECT_FALSE(here.has("home/.config"));
    EXPECT_FALSE(here.has("batch/tessaline-run.settings"));
}

TEST_F(PlainRun, force_converts_a_finished_batch_again) {
    ASSERT_EQ(run().status, 0);
    here.write("batch/note.txt", "of the old batch");
    EXPECT_EQ(run_with({"--force"}).status, 0);
    EXPECT_FALSE(here.has("batch/note.txt"));
    EXPECT_THAT(names_here(), ElementsAre("batch", "model.skp"));
}

TEST_F(PlainRun, another_model_file_or_setting_converts_a_finished_batch_again) {
    const std::string view = here.write("zyn_view.txt", "");
    const auto is_skipped = [this](std::vector<std::string> options) {
        options.insert(options.end(), {"--json", here / "report.json"});
        EXPECT_EQ(run_with(options).status, 0);
        return nlohmann::json::parse(here.read("report.json"))["skipped"].get<bool>();
    };
    EXPECT_FALSE(is_skipped({}));
    put_model(3);
    EXPECT_FALSE(is_skipped({}));
    EXPECT_EQ(report()["counts"]["triangles"], 6);
    EXPECT_FALSE(is_skipped({"--with", view}));
    here.write("zyn_view.txt", "# another\n");
    EXPECT_FALSE(is_skipped({"--with", view}));
    EXPECT_FALSE(is_skipped({"--with", view, "--option", "ivl_resx=300"}));
    EXPECT_FALSE(is_skipped({"--with", view, "--option", "ivl_resx=301"}));
    EXPECT_TRUE(is_skipped({"--with", view, "--option", "ivl_resx=301"}));
}

TEST_F(PlainRun, a_finished_batch_that_was_moved_is_converted_again_as_it_names_its_folder) {
    ASSERT_EQ(run().status, 0);
    std::filesystem::rename(here / "batch", here / "moved");
    EXPECT_EQ(run_program(start_of({"--json", here / "r.json", here / "model.skp", here / "moved"})).status, 0);
    EXPECT_EQ(nlohmann::json::parse(here.read("r.json"))["skipped"], false);
}

TEST_F(PlainRun, settings_stand_behind_those_of_the_parents_file_and_win) {
    const std::string options = here.write("option_globals.txt", "ivl_resx;800\nivl_resy;600");
    ASSERT_EQ(run_with({"--with", options, "--option", "ivl_resx=640", "--option", "bvl_show_bulbs=true"}).status, 0);
    const std::string written = here.read("batch/option_globals.txt");
    EXPECT_THAT(written, HasSubstr("ivl_resx; 640\r\n"));
    EXPECT_THAT(written, HasSubstr("ivl_resy; 600\r\n"));
    EXPECT_THAT(written, HasSubstr("bvl_show_bulbs; 1\r\n"));
    EXPECT_EQ(report()["options"]["ivl_resx"], "640");
    EXPECT_EQ(report()["files"][0]["name"], "option_globals.txt");
    EXPECT_EQ(report()["files"][0]["bytes"], 25); // 13 with the line end, and 12
}

TEST_F(PlainRun, a_damaged_model_is_refused_in_the_words_of_the_reader_and_leaves_no_folder) {
    here.write("model.skp", "this is no model");
    const program_result outcome = run_with({"--json", here / "report.json"});
    EXPECT_EQ(outcome.status, 3);
    EXPECT_EQ(last_line(outcome.errors),
              "tessaline-run: " + here / "model.skp" + " cannot be opened: offset 0, header: not a SketchUp model.");
    EXPECT_FALSE(here.has("batch"));
    EXPECT_EQ(nlohmann::json::parse(here.read("report.json"))["status"], 3);
}

TEST_F(PlainRun, a_missing_model_is_refused_before_there_is_a_folder) {
    std::filesystem::remove(here / "model.skp");
    EXPECT_EQ(run().status, 3);
    EXPECT_FALSE(here.has("batch"));
}

TEST_F(PlainRun, a_batch_that_was_finished_comes_back_byte_for_byte_when_its_next_run_fails) {
    ASSERT_EQ(run().status, 0);
    const auto before = files_in("batch");
    here.write("model.skp", "no longer a model");
    EXPECT_EQ(run().status, 3);
    EXPECT_EQ(files_in("batch"), before);
    EXPECT_THAT(names_here(), ElementsAre("batch", "model.skp"));
}

TEST_F(PlainRun, half_a_stream_is_no_sound_batch_and_leaves_no_folder) {
    put_stand_in("half");
    const program_result outcome = run();
    EXPECT_EQ(outcome.status, 5);
    EXPECT_THAT(last_line(outcome.errors), StartsWith("tessaline-run: The batch is not sound: "));
    EXPECT_FALSE(here.has("batch"));
}

TEST_F(PlainRun, a_converter_that_ends_with_a_status_of_its_own_has_made_no_sound_batch) {
    put_stand_in("status");
    const program_result outcome = run();
    EXPECT_EQ(outcome.status, 5);
    EXPECT_EQ(outcome.errors, "tessaline: a bell\\x07\n"
                              "tessaline-run: The converter ended with status 3, which it never does.\n");
    EXPECT_FALSE(here.has("batch"));
}

TEST_F(PlainRun, a_run_beyond_its_seconds_is_ended_and_leaves_no_folder) {
    put_stand_in("wait");
    const program_result outcome = run_with({"--seconds", "1", "--json", here / "report.json"});
    EXPECT_EQ(outcome.status, 7);
    EXPECT_EQ(last_line(outcome.errors), "tessaline-run: The run was not done after 1 seconds.");
    EXPECT_FALSE(here.has("batch"));
    EXPECT_EQ(nlohmann::json::parse(here.read("report.json"))["status"], 7);
}

TEST_F(PlainRun, a_folder_with_files_of_somebody_else_is_refused_and_kept) {
    here.write("batch/letter.txt", "dear reader");
    const program_result outcome = run_with({"--force"});
    EXPECT_EQ(outcome.status, 4);
    EXPECT_EQ(last_line(outcome.errors),
              "tessaline-run: " + here / "batch" + " exists, is not empty and holds no tessaline-run.json.");
    EXPECT_EQ(here.read("batch/letter.txt"), "dear reader");
}

TEST_F(PlainRun, a_report_of_somebody_else_makes_no_finished_batch) {
    here.write("batch/tessaline-run.json", "{\"program\":\"another\"}");
    EXPECT_EQ(run_with({"--force"}).status, 4);
    EXPECT_EQ(here.read("batch/tessaline-run.json"), "{\"program\":\"another\"}");
}

TEST_F(PlainRun, an_empty_folder_is_taken_and_left_empty_by_a_run_that_fails) {
    here.make_folder("batch");
    here.write("model.skp", "no model");
    EXPECT_EQ(run().status, 3);
    EXPECT_TRUE(here.has("batch"));
    EXPECT_TRUE(files_in("batch").empty());
    put_model(1);
    EXPECT_EQ(run().status, 0);
}

TEST_F(PlainRun, a_file_in_place_of_the_folder_is_refused) {
    here.write("batch", "a file");
    EXPECT_EQ(run().status, 4);
    EXPECT_EQ(here.read("batch"), "a file");
}

TEST_F(PlainRun, a_model_or_file_inside_the_batch_folder_is_refused_before_anything_is_moved) {
    ASSERT_EQ(run().status, 0);
    const auto before = files_in("batch");
    EXPECT_EQ(run_program(start_of({"--force", here / "batch/geometry.qlm", here / "batch"})).status, 2);
    EXPECT_EQ(run_with({"--force", "--with", here / "batch/batch_file.txt"}).status, 2);
    EXPECT_EQ(run_with({"--force", "--json", here / "batch/tessaline-run.json"}).status, 2);
    EXPECT_EQ(files_in("batch"), before);
}

TEST_F(PlainRun, a_report_never_replaces_what_the_run_reads) {
    const std::string view = here.write("zyn_view.txt", "a view");
    const std::string model = here.read("model.skp");
    EXPECT_EQ(run_with({"--json", here / "model.skp"}).status, 2);
    EXPECT_EQ(run_with({"--json", here / "home/../model.skp"}).status, 2);
    EXPECT_EQ(run_with({"--with", view, "--json", view}).status, 2);
    EXPECT_EQ(run_with({"--json", here / "batch"}).status, 2);
    EXPECT_EQ(here.read("model.skp"), model);
    EXPECT_EQ(here.read("zyn_view.txt"), "a view");
    EXPECT_FALSE(here.has("batch"));
}

TEST_F(PlainRun, an_old_report_is_replaced_whole_and_nothing_stays_beside_it) {
    here.write("report.json", "old");
    here.write("model.skp", "no model");
    EXPECT_EQ(run_with({"--json", here / "report.json"}).status, 3);
    EXPECT_EQ(nlohmann::json::parse(here.read("report.json"))["status"], 3);
    EXPECT_THAT(names_here(), ElementsAre("model.skp", "report.json"));
}

TEST_F(PlainRun, a_batch_folder_is_named_without_dots) {
    here.make_folder("inner");
    const program_result outcome = run_program(start_of({here / "model.skp", here / "inner/.././batch"}));
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(report()["folder"], here / "batch");
    EXPECT_THAT(run().output, HasSubstr("nothing has changed since"));
    EXPECT_EQ(run_program(start_of({here / "model.skp", here / "inner/.."})).status, 2);
}

TEST_F(PlainRun, what_makes_no_sense_has_status_2_and_one_line) {
    const std::string twice = here.write("twice/zyn_view.txt", "");
    const std::string view = here.write("zyn_view.txt", "");
    const std::vector<std::vector<std::string>> all = {
        {"--option", "no_such_setting=1"},
        {"--option", "no\nsuch\nsetting=1"},
        {"--option", "ivl_resx=wide"},
        {"--option", "ivl_resx"},
        {"--seconds", "0"},
        {"--memory", "much"},
        {"--progress", "smoke"},
        {"--with", here / "missing.txt"},
        {"--with", here / "home"},
        {"--with", view, "--with", twice},
        {"one_more_argument"},
    };
    for (const auto& options : all) {
        const program_result outcome = run_with(options);
        EXPECT_EQ(outcome.status, 2) << testing::PrintToString(options);
        EXPECT_THAT(outcome.errors, StartsWith("tessaline-run: "));
        EXPECT_EQ(outcome.errors.find('\n'), outcome.errors.size() - 1) << outcome.errors;
        EXPECT_FALSE(here.has("batch"));
    }
}

TEST_F(PlainRun, a_file_with_a_name_of_the_run_itself_is_refused) {
    for (const char* name :
         {"geometry.qlm", "batch_file.txt", "tessaline-run.json", "tessaline-run.json.part", "tessaline-run.settings"})
        EXPECT_EQ(run_with({"--with", here.write(std::string("p/") + name, "")}).status, 2) << name;
    EXPECT_FALSE(here.has("batch"));
}

TEST_F(PlainRun, names_that_differ_in_case_are_one_where_the_system_takes_them_so) {
    const std::string own = here.write("p/GEOMETRY.QLM", "");
    const std::string view = here.write("zyn_view.txt", "");
    const std::string twice = here.write("p/ZYN_view.txt", "");
    const int expected = platform::has_drive_letters ? 2 : 0;
    EXPECT_EQ(run_with({"--with", view, "--with", twice}).status, expected);
    EXPECT_EQ(run_with({"--with", own}).status, expected);
}

TEST_F(PlainRun, an_end_of_a_line_in_the_name_of_the_batch_folder_is_refused) {
    for (const char* name : {"a\rb", "a\nb"}) {
        EXPECT_EQ(run_program(start_of({here / "model.skp", here / name})).status, 2);
        EXPECT_FALSE(here.has(name));
    }
}

TEST_F(PlainRun, progress_is_told_in_lines_of_the_open_job_description) {
    put_model(150);
    const program_result outcome = run_with({"--progress", "openjd"});
    ASSERT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, StartsWith("openjd_status: copying the model\n"
                                           "openjd_progress: 0\n"
                                           "openjd_status: converting the model\n"
                                           "openjd_progress: 5\n"));
    EXPECT_THAT(outcome.output, HasSubstr("\nopenjd_progress: 61\n")); // 66 of 100 on the way from 5 to 90
    EXPECT_THAT(outcome.output, HasSubstr("\nopenjd_status: checking the batch\n"
                                          "openjd_progress: 90\n"
                                          "openjd_progress: 100\n"
                                          "openjd_status: model.skp is converted: 300 triangles, "));
}

TEST_F(PlainRun, a_program_that_is_missing_beside_the_run_is_named) {
    std::filesystem::remove(here / (std::string("bin/batch-check") + PROGRAM_ENDING));
    const program_result outcome = run();
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(last_line(outcome.errors), "tessaline-run: The program batch-check is missing beside this one.");
}

TEST_F(PlainRun, a_report_that_cannot_be_written_ends_the_run_before_it_begins) {
    EXPECT_EQ(run_with({"--json", here / "no/such/folder.json"}).status, 4);
    EXPECT_FALSE(here.has("batch"));
}

} // namespace
