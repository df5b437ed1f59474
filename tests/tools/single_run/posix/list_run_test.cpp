// Lists of models, run with GNU parallel, and the table of what became of them.

#include "tests/tools/single_run/posix/started_program.h"
#include "tests/tools/single_run/run_fixture.h"

#include <algorithm>

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;
using testing::StartsWith;

class ListRun : public RunFixture {
protected:
    // A model that can be opened, at that place below the folder "models".
    void put_listed_model(const std::string& place) const {
        here.write("models/" + place, here.read("model.skp"));
        add_to_list(place);
    }
    void put_refused_model(const std::string& place) const {
        here.write("models/" + place, "no model");
        add_to_list(place);
    }
    void add_to_list(const std::string& place) const {
        here.write("list", here.read("list") + here / ("models/" + place) + "\n");
    }

    program_start start_list(std::vector<std::string> options) const {
        options.insert(options.begin(), {"--list", here / "list"});
        options.push_back(here / "out");
        return start_of(std::move(options));
    }
    program_result run_list(std::vector<std::string> options = {}) const {
        return run_program(start_list(std::move(options)));
    }
    program_result run_table() const { return run_program(start_of({"--table", here / "list", here / "out"})); }

    nlohmann::json report_of(const std::string& place) const {
        return nlohmann::json::parse(here.read("out/tessaline-list/reports/" + place + ".json"), nullptr, false);
    }
    // How many runs the job log names.
    std::ptrdiff_t jobs_logged() const {
        const std::string log = here.read("out/tessaline-list/jobs.log");
        return std::count(log.begin(), log.end(), '\n') - 1; // its head
    }
};

TEST_F(ListRun, each_batch_goes_to_the_place_of_its_model_below_the_common_folder) {
    put_listed_model("a/x.skp");
    put_listed_model("b/c/y.skp");
    const program_result seen = run_list();
    EXPECT_EQ(seen.status, 0);
    EXPECT_EQ(last_line(seen.errors), "tessaline-run: All models are done.");
    EXPECT_TRUE(here.has("out/a/x.skp/tessaline-run.json"));
    EXPECT_TRUE(here.has("out/b/c/y.skp/tessaline-run.json"));
    EXPECT_EQ(report_of("b/c/y.skp")["status"], 0);
}

TEST_F(ListRun, the_table_names_each_model_and_the_status_is_the_highest) {
    put_listed_model("x.skp");
    put_refused_model("bad.skp");
    add_to_list("none.skp");
    const program_result seen = run_list();
    EXPECT_EQ(seen.status, 3);
    EXPECT_EQ(last_line(seen.errors), "tessaline-run: Not all models are done; the table tells why.");
    // Of two triangles, in the order of the list; the seconds and the memory are what they are.
    EXPECT_THAT(seen.output, MatchesRegex("status   seconds       MiB  triangles findings  model\n"
                                          "     0 +[0-9.]+ +[0-9.]+ +2 +0  x.skp\n"
                                          "     3 +[0-9.]+ +[0-9.]+ +- +0  bad.skp: [^\n]*not a SketchUp model.\n"
                                          "     3 +[0-9.]+ +[0-9.]+ +- +0  none.skp: [^\n]*No such file or directory.\n"
                                          "3 models, 1 done, 2 not done\n"));
    EXPECT_EQ(here.read("out/tessaline-list/table.txt"), seen.output);
    EXPECT_THAT(here.read("out/tessaline-list/table.csv"),
                AllOf(StartsWith("model,status,seconds,"), HasSubstr("\nx.skp,0,"), HasSubstr("\nbad.skp,3,")));
    EXPECT_FALSE(here.has("out/bad.skp"));
}

TEST_F(ListRun, names_that_mean_something_to_a_shell_or_to_parallel_reach_the_run_as_they_are) {
    const std::vector<std::string> names = {"a b.skp",  "it's.skp", "$HOME.skp", "{}.skp", "{1} {#}.skp",
                                            "日本.skp", "-x.skp",   "a&b;c.skp", "*.skp",  "100 %.skp"};
    for (const std::string& name : names)
        put_listed_model(name);
    EXPECT_EQ(run_list().status, 0);
    for (const std::string& name : names)
        EXPECT_TRUE(here.has("out/" + name + "/tessaline-run.json")) << name;
}

TEST_F(ListRun, finished_batches_are_skipped_the_next_time) {
    put_listed_model("x.skp");
    ASSERT_EQ(run_list().status, 0);
    EXPECT_EQ(report_of("x.skp")["skipped"], false);
    const program_result seen = run_list();
    EXPECT_EQ(seen.status, 0);
    EXPECT_EQ(report_of("x.skp")["skipped"], true);
    EXPECT_THAT(seen.output, MatchesRegex(".*\n     0 +[0-9.]+ +[0-9.]+ +2 +0  x.skp\n.*"));
}

TEST_F(ListRun, options_of_a_single_run_go_to_each) {
    put_listed_model("x.skp");
    put_listed_model("y.skp");
    const std::string settings = here.write("{1} of all/option_globals.txt", "\r\n");
    ASSERT_EQ(run_list({"--with", settings}).status, 0);
    EXPECT_TRUE(here.has("out/x.skp/option_globals.txt"));
    EXPECT_TRUE(here.has("out/y.skp/option_globals.txt"));
    ASSERT_EQ(run_list({"--with", settings, "--force"}).status, 0);
    EXPECT_EQ(report_of("y.skp")["skipped"], false);
}

TEST_F(ListRun, a_part_of_the_list_is_counted_from_1_and_leaves_the_table_alone) {
    for (const char* name : {"1.skp", "2.skp", "3.skp", "4.skp"})
        put_listed_model(name);
    const program_result seen = run_list({"--models", "2-3"});
    EXPECT_EQ(seen.status, 0);
    EXPECT_THAT(seen.output, AllOf(HasSubstr("2.skp\n"), HasSubstr("3.skp\n"), HasSubstr("\n2 models, 2 done")));
    EXPECT_FALSE(here.has("out/1.skp"));
    EXPECT_TRUE(here.has("out/2.skp"));
    EXPECT_FALSE(here.has("out/4.skp"));
    EXPECT_FALSE(here.has("out/tessaline-list/table.csv"));
    EXPECT_EQ(run_list({"--models", "4-9"}).status, 0); // as far as the list goes
    EXPECT_TRUE(here.has("out/4.skp"));
    EXPECT_EQ(run_list({"--models", "5-9"}).status, 2);
}

TEST_F(ListRun, resuming_leaves_alone_what_the_job_log_calls_done_and_runs_the_others) {
    put_listed_model("x.skp");
    put_refused_model("bad.skp");
    ASSERT_EQ(run_list().status, 3);
    ASSERT_EQ(jobs_logged(), 2);
    here.write("models/bad.skp", here.read("model.skp"));
    EXPECT_EQ(run_list({"--resume"}).status, 0);
    EXPECT_EQ(jobs_logged(), 3);                     // the one that failed once more
    EXPECT_EQ(report_of("x.skp")["skipped"], false); // no run has looked at it again
}

TEST_F(ListRun, there_is_nothing_to_resume_for_another_list_or_other_options) {
    put_listed_model("x.skp");
    EXPECT_EQ(run_list({"--resume"}).status, 2);
    ASSERT_EQ(run_list().status, 0);
    EXPECT_EQ(run_list({"--resume", "--force"}).status, 2);
    put_listed_model("y.skp");
    const program_result seen = run_list({"--resume"});
    EXPECT_EQ(seen.status, 2);
    EXPECT_THAT(seen.errors, HasSubstr("There is nothing to resume"));
}

TEST_F(ListRun, a_model_that_fails_is_tried_as_often_as_it_is_said) {
    put_refused_model("bad.skp");
    const auto times = [this](std::vector<std::string> options) {
        const std::string errors = run_list(std::move(options)).errors;
        std::size_t count = 0;
        for (std::size_t at = errors.find("cannot be opened"); at != std::string::npos;
             at = errors.find("cannot be opened", at + 1))
            ++count;
        return count;
    };
    EXPECT_EQ(times({}), 1U);
    EXPECT_EQ(times({"--tries", "3"}), 3U);
}

TEST_F(ListRun, without_gnu_parallel_it_is_refused_in_words) {
    put_listed_model("x.skp");
    here.write("other/parallel", "#!/bin/sh\necho parallel of another kind\n");
    std::filesystem::permissions(here / "other/parallel", std::filesystem::perms::owner_all);
    for (const std::string& path : {std::string(), here.name(), here / "other"}) {
        program_start start = start_list({});
        start.environment.emplace_back("PATH", path);
        const program_result seen = run_program(start);
        EXPECT_EQ(seen.status, 2);
        EXPECT_EQ(seen.errors, "tessaline-run: GNU parallel is not installed; a list is run with it (Debian: package "
                               "parallel).\n");
        EXPECT_FALSE(here.has("out"));
    }
}

TEST_F(ListRun, settings_of_parallel_of_the_user_change_nothing) {
    put_listed_model("x.skp");
    program_start start = start_list({});
    start.environment.emplace_back("PARALLEL", "--dry-run");
    here.write("home/.parallel/config", "--dry-run\n");
    EXPECT_EQ(run_program(start).status, 0);
}

TEST_F(ListRun, an_output_folder_that_cannot_be_made_is_status_4) {
    put_listed_model("x.skp");
    here.write("out", "a file");
    const program_result seen = run_list();
    EXPECT_EQ(seen.status, 4);
    EXPECT_THAT(seen.errors, HasSubstr("cannot be written"));
}

TEST_F(ListRun, options_that_no_run_takes_are_refused_before_any_begins) {
    put_listed_model("x.skp");
    const program_result seen = run_list({"--option", "nosuch=1"});
    EXPECT_EQ(seen.status, 2);
    EXPECT_EQ(seen.errors, "tessaline-run: there is no setting nosuch\n");
    EXPECT_EQ(run_list({"--memory", "much"}).status, 2);
    EXPECT_FALSE(here.has("out"));
}

TEST_F(ListRun, the_command_may_stand_behind_its_options) {
    put_listed_model("x.skp");
    const program_result seen =
        run_program(start_of({"--force", "--jobs", "1", "--list", here / "list", "--tries", "2", here / "out"}));
    EXPECT_EQ(seen.status, 0) << seen.errors;
    EXPECT_TRUE(here.has("out/x.skp/tessaline-run.json"));
    EXPECT_EQ(run_program(start_of({"--root", here / "models", "--count", here / "list"})).output, "1\n");
}

TEST_F(ListRun, a_word_that_is_the_value_of_an_option_is_no_command) {
    const program_result seen = run_with({"--with", "--list"});
    EXPECT_EQ(seen.status, 2);
    EXPECT_THAT(seen.errors, StartsWith("tessaline-run: "));
}

TEST_F(ListRun, a_list_is_never_replaced_by_what_its_run_makes) {
    put_listed_model("x.skp");
    ASSERT_EQ(run_list().status, 0);
    const std::string text = here.read("list");
    for (const char* name : {"jobs", "jobs.log", "table.csv", "table.txt", "reports/list"}) {
        const std::string list = here.write("out/tessaline-list/" + std::string(name), text);
        EXPECT_EQ(run_program(start_of({"--list", list, here / "out"})).status, 2) << name;
        EXPECT_EQ(text_of_file(list), text) << name;
    }
}

TEST_F(ListRun, a_request_to_end_ends_all_runs_and_leaves_no_batch) {
    put_listed_model("x.skp");
    put_listed_model("y.skp");
    put_stand_in("wait");
    started_program run(start_list({"--jobs", "2"}));
    ASSERT_TRUE(comes_true([this] { return here.has("out/x.skp/waiting") && here.has("out/y.skp/waiting"); }));
    run.send(SIGTERM);
    EXPECT_EQ(run.wait(), 6);
    EXPECT_THAT(last_line(run.errors()), StartsWith("tessaline-run: Ended by SIGTERM"));
    EXPECT_FALSE(here.has("out/x.skp"));
    EXPECT_FALSE(here.has("out/y.skp"));
}

TEST_F(ListRun, a_table_or_a_count_that_standard_output_refuses_is_status_4) {
    put_listed_model("x.skp");
    ASSERT_EQ(run_list().status, 0);
    const std::vector<std::vector<std::string>> command_lines = {{"--table", here / "list", here / "out"},
                                                                 {"--count", here / "list"}};
    for (const std::vector<std::string>& words : command_lines) {
        program_start start = start_of(words);
        start.arguments.insert(start.arguments.begin(), {"-c", "exec \"$@\" >/dev/full", "sh", start.program});
        start.program = "/bin/sh";
        const program_result seen = run_program(start);
        EXPECT_EQ(seen.status, 4) << words[0];
        EXPECT_EQ(last_line(seen.errors), "tessaline-run: Standard output does not take what is to be printed.");
    }
}

TEST_F(ListRun, a_model_whose_run_has_left_no_report_counts_as_failed) {
    put_listed_model("x.skp");
    put_listed_model("y.skp");
    ASSERT_EQ(run_list().status, 0);
    std::filesystem::remove(here / "out/tessaline-list/reports/y.skp.json");
    const program_result seen = run_table();
    EXPECT_EQ(seen.status, 6);
    EXPECT_THAT(seen.output, HasSubstr("y.skp: its run has left no report\n2 models, 1 done, 1 not done\n"));
    EXPECT_EQ(here.read("out/tessaline-list/table.txt"), seen.output);
}

TEST_F(ListRun, a_report_of_an_earlier_run_does_not_speak_for_one_that_has_not_begun) {
    put_listed_model("x.skp");
    put_listed_model("y.skp");
    ASSERT_EQ(run_list().status, 0);
    put_stand_in("wait");
    started_program run(start_list({"--force", "--jobs", "1"}));
    ASSERT_TRUE(comes_true([this] { return here.has("out/x.skp/waiting"); }));
    run.send(SIGTERM);
    EXPECT_EQ(run.wait(), 6);
    const program_result seen = run_table();
    EXPECT_EQ(seen.status, 6);
    EXPECT_THAT(seen.output, HasSubstr("y.skp: its run has left no report\n"));
}

TEST_F(ListRun, the_models_of_a_list_are_counted_each_once) {
    put_listed_model("x.skp");
    put_listed_model("y.skp");
    add_to_list("../models/x.skp");
    const program_result seen = run_program(start_of({"--count", here / "list"}));
    EXPECT_EQ(seen.status, 0);
    EXPECT_EQ(seen.output, "2\n");
}

TEST_F(ListRun, a_list_that_cannot_be_worked_on_is_status_2_and_says_why) {
    const auto errors_of = [this](std::vector<std::string> arguments) {
        const program_result seen = run_program(start_of(std::move(arguments)));
        EXPECT_EQ(seen.status, 2);
        EXPECT_EQ(seen.output, "");
        return seen.errors;
    };
    EXPECT_THAT(errors_of({"--list", here / "list", here / "out"}), HasSubstr("cannot be read"));
    EXPECT_THAT(errors_of({"--table", here / "list", here / "out"}), HasSubstr("cannot be read"));
    EXPECT_EQ(errors_of({"--count", here / "no\nlist"}),
              "tessaline-run: The list " + here / "no\\x0alist" + " cannot be read.\n");
    EXPECT_THAT(errors_of({"--count", here / "list"}), HasSubstr("cannot be read"));
    put_listed_model("x.skp");
    EXPECT_THAT(errors_of({"--list", here / "list", "--root", here / "out", here / "out"}),
                HasSubstr("models/x.skp does not lie below"));
    EXPECT_FALSE(here.has("out"));
}

TEST_F(ListRun, command_lines_that_make_no_sense_are_answered_with_the_usage) {
    put_listed_model("x.skp");
    const std::string list = here / "list";
    const std::string out = here / "out";
    const std::vector<std::vector<std::string>> command_lines = {
        {"--list"},
        {"--list", list},
        {"--list", "", out},
        {"--list", list, out, out},
        {"--list", list, "--root"},
        {"--list", list, out, "--with"},
        {"--list", list, "--models", "0-2", out},
        {"--list", list, "--models", "3-2", out},
        {"--list", list, "--models", "2", out},
        {"--list", list, "--models", "1-2x", out},
        {"--list", list, "--jobs", "0", out},
        {"--list", list, "--jobs", "%", out},
        {"--list", list, "--jobs", "+1", out},
        {"--list", list, "--tries", "-1", out},
        {"--list", list, "--models", "1-2", "--resume", out},
        {"--table", list},
        {"--count", list, out},
    };
    for (const std::vector<std::string>& words : command_lines) {
        const program_result seen = run_program(start_of(words));
        EXPECT_EQ(seen.status, 2) << testing::PrintToString(words);
        EXPECT_THAT(seen.errors, StartsWith("usage: tessaline-run ")) << testing::PrintToString(words);
        EXPECT_FALSE(here.has("out"));
    }
    EXPECT_EQ(run_list({"--json", "x"}).errors, "tessaline-run: unknown option --json\n");
    EXPECT_EQ(run_list({"--js\non"}).errors, "tessaline-run: unknown option --js\\x0aon\n");
    EXPECT_EQ(run_program(start_of({"--table", list, "--jobs", "1", out})).errors,
              "tessaline-run: unknown option --jobs\n");
}

} // namespace
