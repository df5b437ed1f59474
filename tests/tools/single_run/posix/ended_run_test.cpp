// Runs that are ended in the middle, by signals to them and to the converter.

#include "tests/tools/single_run/posix/started_program.h"
#include "tests/tools/single_run/run_fixture.h"
#include "tools/single_run/batch_place.h"

#include "platform/child_process.h"

#include <cstdint>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class EndedRun : public RunFixture {
protected:
    // A run whose converter waits.
    std::unique_ptr<started_program> waiting_run(std::vector<std::string> options = {}) {
        put_stand_in("wait");
        auto run = std::make_unique<started_program>(start_with(std::move(options)));
        EXPECT_TRUE(comes_true([this] { return here.has("batch/waiting"); }));
        return run;
    }
    void put_converter_back() { put_program("tessaline", "tessaline"); }
};

class SignalToRun : public EndedRun, public testing::WithParamInterface<std::pair<int, const char*>> {};

TEST_P(SignalToRun, ends_it_with_status_6_and_leaves_no_folder) {
    const auto run = waiting_run();
    const auto [number, name] = GetParam();
    run->send(number);
    EXPECT_EQ(run->wait(), 6);
    EXPECT_EQ(last_line(run->errors()), "tessaline-run: The run was ended by " + std::string(name) + ".");
    EXPECT_FALSE(here.has("batch"));
}

TEST_P(SignalToRun, ends_the_converter_and_brings_the_finished_batch_back) {
    ASSERT_EQ(RunFixture::run().status, 0);
    const auto before = files_in("batch");
    const auto run = waiting_run({"--force"});
    const std::vector<pid_t> converter = run->children();
    ASSERT_EQ(converter.size(), 1u);
    run->send(GetParam().first);
    EXPECT_EQ(run->wait(), 6);
    EXPECT_FALSE(is_running(converter[0]));
    EXPECT_EQ(files_in("batch"), before);
    EXPECT_FALSE(here.has("batch.tessaline-run.before"));
}

INSTANTIATE_TEST_SUITE_P(All, SignalToRun,
                         testing::Values(std::pair(SIGTERM, "SIGTERM"), std::pair(SIGINT, "SIGINT"),
                                         std::pair(SIGHUP, "SIGHUP"), std::pair(SIGQUIT, "SIGQUIT"),
                                         std::pair(SIGXCPU, "SIGXCPU")),
                         [](const auto& tested) { return std::string(tested.param.second); });

TEST_F(EndedRun, a_signal_while_the_model_is_copied_ends_the_run_and_leaves_no_folder) {
    std::filesystem::resize_file(here / "model.skp", std::uintmax_t{1} << 33U); // takes seconds to be copied
    started_program run(start_with({}));
    ASSERT_TRUE(comes_true([this] {
        std::error_code not_there;
        const std::uintmax_t size = std::filesystem::file_size(here / "batch/geometry.qlm", not_there);
        return !not_there && size > 0;
    }));
    run.send(SIGTERM);
    EXPECT_EQ(run.wait(), 6);
    EXPECT_FALSE(here.has("batch"));
}

TEST_F(EndedRun, a_signal_while_the_batch_is_checked_ends_the_run_and_leaves_no_folder) {
    put_stand_in("wait", "batch-check");
    started_program run(start_with({}));
    ASSERT_TRUE(comes_true([this] { return here.has("batch/waiting"); }));
    const std::vector<pid_t> checker = run.children();
    ASSERT_EQ(checker.size(), 1u);
    run.send(SIGTERM);
    EXPECT_EQ(run.wait(), 6);
    EXPECT_FALSE(is_running(checker[0]));
    EXPECT_FALSE(here.has("batch"));
}

TEST_F(EndedRun, further_signals_do_not_keep_a_run_from_clearing_its_folder) {
    ASSERT_EQ(RunFixture::run().status, 0);
    const auto before = files_in("batch");
    const auto run = waiting_run({"--force"});
    for (const int number : {SIGTERM, SIGINT, SIGHUP, SIGTERM})
        run->send(number);
    EXPECT_EQ(run->wait(), 6);
    EXPECT_EQ(files_in("batch"), before);
    EXPECT_FALSE(here.has("batch.tessaline-run.before"));
}

TEST_F(EndedRun, a_request_to_end_stops_neither_the_last_step_nor_the_clearing) {
    const platform::end_requests noted;
    const run_clock clock(std::nullopt);
    batch_place finished(here / "finished");
    batch_place abandoned(here / "abandoned");
    ASSERT_EQ(finished.claim(clock), "");
    ASSERT_EQ(abandoned.claim(clock), "");
    here.write("abandoned/Plants/half", "of something");
    raise(SIGTERM);
    EXPECT_EQ(clock.must_stop(), stop_reason::request);
    EXPECT_EQ(finished.finish("the report"), "");
    EXPECT_EQ(here.read("finished/tessaline-run.json"), "the report");
    EXPECT_EQ(abandoned.abandon(), "");
    EXPECT_FALSE(here.has("abandoned"));
}

TEST_F(EndedRun, a_signal_that_is_ignored_when_a_run_starts_does_not_end_it) {
    put_stand_in("wait");
    program_start start = start_with({});
    start.arguments.insert(start.arguments.begin(), {"-c", "trap '' HUP; exec \"$@\"", "sh", start.program});
    start.program = "/bin/sh";
    started_program run(start);
    ASSERT_TRUE(comes_true([this] { return here.has("batch/waiting"); }));
    run.send(SIGHUP);
    run.send(SIGTERM);
    EXPECT_EQ(run.wait(), 6);
    EXPECT_THAT(run.errors(), HasSubstr("ended by SIGTERM"));
}

TEST_F(EndedRun, what_a_killed_run_leaves_is_known_by_its_mark_and_cleared_by_the_next) {
    auto run = waiting_run();
    const std::vector<pid_t> converter = run->children();
    ASSERT_EQ(converter.size(), 1u);
    run->send(SIGKILL);
    EXPECT_EQ(run->wait(), -1);
    EXPECT_TRUE(comes_true([&] { return !is_running(converter[0]); })); // it ends with the run
    EXPECT_TRUE(here.has("batch/tessaline-run.json.part"));
    EXPECT_TRUE(here.has("batch/left_behind"));
    put_converter_back();
    const program_result next = RunFixture::run();
    EXPECT_EQ(next.status, 0) << next.errors;
    EXPECT_FALSE(here.has("batch/left_behind"));
    EXPECT_EQ(report()["counts"]["triangles"], 2);
}

TEST_F(EndedRun, what_a_killed_run_had_put_aside_comes_back_with_the_next_even_if_that_fails) {
    ASSERT_EQ(RunFixture::run().status, 0);
    const auto before = files_in("batch");
    {
        const auto run = waiting_run({"--force"});
        run->send(SIGKILL);
        EXPECT_EQ(run->wait(), -1);
    }
    EXPECT_TRUE(here.has("batch.tessaline-run.before"));
    put_converter_back();
    here.write("model.skp", "no longer a model");
    EXPECT_EQ(RunFixture::run().status, 3);
    EXPECT_EQ(files_in("batch"), before);
    EXPECT_FALSE(here.has("batch.tessaline-run.before"));
}

TEST_F(EndedRun, what_a_killed_run_had_put_aside_is_skipped_by_the_same_run_as_before) {
    ASSERT_EQ(RunFixture::run().status, 0);
    {
        const auto run = waiting_run({"--force"});
        run->send(SIGKILL);
        EXPECT_EQ(run->wait(), -1);
    }
    const program_result again = RunFixture::run(); // its converter would wait
    EXPECT_EQ(again.status, 0);
    EXPECT_THAT(again.output, HasSubstr("nothing has changed since"));
}

TEST_F(EndedRun, a_killed_converter_ends_the_run_with_status_6_and_leaves_no_folder) {
    const auto run = waiting_run();
    const std::vector<pid_t> converter = run->children();
    ASSERT_EQ(converter.size(), 1u);
    kill(converter[0], SIGKILL);
    EXPECT_EQ(run->wait(), 6);
    EXPECT_EQ(last_line(run->errors()), "tessaline-run: The converter was ended by SIGKILL.");
    EXPECT_FALSE(here.has("batch"));
}

TEST_F(EndedRun, a_converter_that_crashes_is_named_with_its_signal) {
    put_stand_in("crash");
    const program_result outcome = RunFixture::run();
    EXPECT_EQ(outcome.status, 6);
    EXPECT_EQ(last_line(outcome.errors), "tessaline-run: The converter was ended by SIGABRT.");
    EXPECT_FALSE(here.has("batch"));
}

TEST_F(EndedRun, a_checker_that_cannot_be_started_is_told_in_the_words_of_the_system) {
    std::filesystem::remove(here / "bin/batch-check"); // else the file of the build would be written to
    here.write("bin/batch-check", "no program");
    const program_result outcome = RunFixture::run();
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(last_line(outcome.errors), "tessaline-run: The checker cannot be started: Permission denied.");
    EXPECT_FALSE(here.has("batch"));
}

TEST_F(EndedRun, a_second_run_on_the_same_folder_is_refused_while_the_first_goes_on) {
    const auto first = waiting_run();
    const program_result second = run_with({"--force"});
    EXPECT_EQ(second.status, 4);
    EXPECT_EQ(last_line(second.errors), "tessaline-run: " + here / "batch" + " is in use by another run.");
    EXPECT_TRUE(here.has("batch/waiting"));
    first->send(SIGTERM);
    EXPECT_EQ(first->wait(), 6);
}

TEST_F(EndedRun, a_second_run_is_refused_too_while_the_first_replaces_a_finished_batch) {
    ASSERT_EQ(RunFixture::run().status, 0);
    const auto before = files_in("batch");
    const auto first = waiting_run({"--force"});
    EXPECT_EQ(run_with({"--force"}).status, 4);
    EXPECT_EQ(RunFixture::run().status, 4);
    first->send(SIGTERM);
    EXPECT_EQ(first->wait(), 6);
    EXPECT_EQ(files_in("batch"), before);
}

// The calls are spread over all that a run makes from its first step to its last, and whatever they meet must hold.
TEST_F(EndedRun, at_whatever_call_to_the_system_a_run_is_killed_the_finished_batch_is_found_again) {
    put_model(50);
    ASSERT_EQ(RunFixture::run().status, 0);
    const program_start start = start_with({"--force"});
    const std::size_t all = started_program(start, 0, how_watched::traced).run_for_calls(SIZE_MAX);
    ASSERT_GT(all, 100u);
    constexpr std::size_t moments = 40;
    for (std::size_t moment = 0; moment < moments; ++moment) {
        started_program(start, 0, how_watched::traced).run_for_calls(all * moment / moments);
        const bool is_there = here.has("batch/tessaline-run.json");
        EXPECT_TRUE(is_there || here.has("batch.tessaline-run.before/tessaline-run.json")) << moment;
        EXPECT_EQ(RunFixture::run().status, 0) << moment;
        EXPECT_EQ(report()["counts"]["triangles"], 100) << moment;
        EXPECT_FALSE(here.has("batch/tessaline-run.json.part")) << moment;
        EXPECT_FALSE(here.has("batch.tessaline-run.before")) << moment;
    }
}

TEST_F(EndedRun, of_runs_on_one_folder_at_once_one_at_least_is_done_and_the_others_are_refused) {
    std::vector<std::unique_ptr<started_program>> runs;
    for (int i = 0; i < 4; ++i)
        runs.push_back(std::make_unique<started_program>(start_with({"--force"})));
    int done = 0;
    for (const auto& one : runs) {
        const int status = one->wait();
        EXPECT_TRUE(status == 0 || status == 4) << status;
        done += status == 0 ? 1 : 0;
    }
    EXPECT_GT(done, 0);
    EXPECT_EQ(report()["counts"]["triangles"], 2);
    EXPECT_FALSE(here.has("batch.tessaline-run.before"));
}

} // namespace
