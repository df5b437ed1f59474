#include "platform/child_process.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <fstream>
#include <string>
#include <thread>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using platform::child_end;
using platform::child_fate;
using platform::child_start;

struct seen_child {
    child_end end;
    std::string output;
    std::string errors;
};

seen_child run(child_start start) {
    seen_child seen;
    start.on_output = [&seen](std::string_view bytes) { seen.output += bytes; };
    start.on_errors = [&seen](std::string_view bytes) { seen.errors += bytes; };
    seen.end = platform::run_child(start);
    return seen;
}

child_start shell(const std::string& script) {
    return {"/bin/sh", {"-c", script}};
}

// While it lives, the signal is not ignored: whoever runs the tests may do that, as a shell does for what it starts in
// the background.
class heard_signal {
public:
    explicit heard_signal(int signal_number) : number(signal_number), before(std::signal(signal_number, SIG_DFL)) {}
    heard_signal(const heard_signal&) = delete;
    heard_signal& operator=(const heard_signal&) = delete;
    ~heard_signal() { std::signal(number, before); }

private:
    int number;
    void (*before)(int);
};

TEST(ChildProcess, hands_on_what_is_printed_and_the_status) {
    const seen_child seen = run(shell("echo out; echo err >&2; exit 5"));
    EXPECT_EQ(seen.end.fate, child_fate::ended);
    EXPECT_EQ(seen.end.number, 5);
    EXPECT_EQ(seen.output, "out\n");
    EXPECT_EQ(seen.errors, "err\n");
    EXPECT_GT(seen.end.peak_memory_bytes, 100000u);
}

TEST(ChildProcess, more_output_than_a_pipe_holds_is_handed_on_whole) {
    EXPECT_EQ(run(shell("head -c 3000000 /dev/zero; head -c 2000000 /dev/zero >&2")).output.size(), 3000000u);
}

TEST(ChildProcess, an_input_is_empty) {
    EXPECT_EQ(run(shell("cat; echo end")).output, "end\n");
}

TEST(ChildProcess, a_program_that_is_not_there_is_told_in_the_words_of_the_system) {
    const seen_child seen = run({"/no/such/program"});
    EXPECT_EQ(seen.end.fate, child_fate::not_started);
    EXPECT_EQ(seen.end.words, "No such file or directory");
}

TEST(ChildProcess, variables_are_changed_taken_away_and_kept) {
    ASSERT_EQ(setenv("TESSALINE_TEST_KEPT", "k", 1), 0);
    ASSERT_EQ(setenv("TESSALINE_TEST_GONE", "g", 1), 0);
    child_start start = shell("echo $TESSALINE_TEST_KEPT-${TESSALINE_TEST_GONE-none}-$TESSALINE_TEST_NEW");
    start.environment = {{"TESSALINE_TEST_GONE", std::nullopt}, {"TESSALINE_TEST_NEW", "n=1"}};
    EXPECT_EQ(run(start).output, "k-none-n=1\n");
    unsetenv("TESSALINE_TEST_KEPT");
    unsetenv("TESSALINE_TEST_GONE");
}

TEST(ChildProcess, a_program_that_a_signal_ends_is_told_by_its_name) {
    const seen_child seen = run(shell("kill -SEGV $$"));
    EXPECT_EQ(seen.end.fate, child_fate::crashed);
    EXPECT_EQ(seen.end.number, SIGSEGV);
    EXPECT_EQ(seen.end.words, "SIGSEGV");
}

TEST(ChildProcess, a_program_that_is_not_done_at_the_deadline_is_ended) {
    for (const int milliseconds : {0, 1}) { // over before it begins, and while it is waited for
        child_start start = shell("exec sleep 1000");
        start.deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
        EXPECT_EQ(run(start).end.fate, child_fate::out_of_time);
        EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1); // there is no such child any more
        EXPECT_EQ(errno, ECHILD);
    }
}

// What loses its parent becomes a child of this process, which waits for it as long as it takes.
TEST(ChildProcess, what_a_program_has_started_and_left_ends_with_it) {
    ASSERT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 1), 0);
    const seen_child seen = run(shell("sleep 1000 >/dev/null 2>&1 & echo $!"));
    EXPECT_EQ(seen.end.fate, child_fate::ended);
    const pid_t left = std::stoi(seen.output);
    int status = 0;
    EXPECT_EQ(waitpid(left, &status, 0), left);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
    EXPECT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 0), 0);
}

// How the system describes what a process does, such as R for running and S for waiting; nothing if there is none.
char state_of(const std::string& process) {
    std::string text;
    std::ifstream file("/proc/" + process + "/stat");
    std::getline(file, text);
    const std::size_t name_end = text.rfind(") ");
    return name_end == std::string::npos ? '\0' : text[name_end + 2];
}

// It makes the pipe larger than what is taken at once, and has ended before a second piece is asked for.
TEST(ChildProcess, all_that_waits_when_a_program_has_ended_is_handed_on) {
    child_start start = shell("echo $$; exec perl -e 'fcntl(STDOUT, 1031, 1 << 20) or die; print \"x\" x 500000'");
    std::string output;
    start.on_output = [&output](std::string_view bytes) {
        output += bytes;
        const std::string process = output.substr(0, output.find('\n'));
        for (char state = 'R'; state != 'Z' && state != '\0'; state = state_of(process))
            std::this_thread::yield();
    };
    EXPECT_EQ(platform::run_child(start).number, 0);
    EXPECT_EQ(output.size() - output.find('\n') - 1, 500000u);
}

// Whenever a piece was taken, the next one stands in the pipe, which is full before anybody looks at it.
TEST(ChildProcess, one_that_never_stops_printing_is_called_off_all_the_same) {
    const platform::end_requests noted;
    child_start start = shell("echo $$; exec head -c 300000000 /dev/zero");
    std::string process;
    int pieces = 0;
    start.on_output = [&](std::string_view bytes) {
        if (process.empty())
            process = bytes.substr(0, bytes.find('\n'));
        raise(SIGTERM);
        ++pieces;
        for (char state = 'R'; state == 'R' || state == 'D'; state = state_of(process))
            std::this_thread::yield();
    };
    EXPECT_EQ(platform::run_child(start).fate, child_fate::called_off);
    EXPECT_LT(pieces, 1000); // one, and what a pipe holds; of all it would be 4000
}

TEST(ChildProcess, a_limit_of_memory_is_that_of_the_program) {
    child_start start = shell("ulimit -v");
    start.memory_limit = std::uint64_t{512} << 20U;
    EXPECT_EQ(run(start).output, "524288\n"); // KiB
}

TEST(ChildProcess, a_request_to_end_ends_the_program_and_is_told_by_its_name) {
    const platform::end_requests noted;
    EXPECT_EQ(platform::end_request(), "");
    child_start start = shell("echo begun; exec sleep 1000");
    start.on_output = [](std::string_view) { raise(SIGTERM); };
    EXPECT_EQ(platform::run_child(start).fate, child_fate::called_off);
    EXPECT_EQ(platform::end_request(), "SIGTERM");
}

TEST(ChildProcess, a_program_with_grace_may_clear_away_before_it_ends) {
    const platform::end_requests noted;
    std::string output;
    child_start start = shell("trap 'echo cleared; exit' TERM; echo begun; while :; do sleep 0.01; done");
    start.grace = std::chrono::minutes(1);
    start.on_output = [&output](std::string_view bytes) {
        if (output.empty())
            raise(SIGTERM);
        output += bytes;
    };
    EXPECT_EQ(platform::run_child(start).fate, child_fate::called_off);
    EXPECT_EQ(output, "begun\ncleared\n");
}

TEST(ChildProcess, a_program_that_lets_its_grace_pass_is_ended) {
    const platform::end_requests noted;
    child_start start = shell("trap '' TERM; echo begun; while :; do sleep 0.01; done");
    start.grace = std::chrono::milliseconds(20);
    start.on_output = [](std::string_view) { raise(SIGTERM); };
    EXPECT_EQ(platform::run_child(start).fate, child_fate::called_off);
}

TEST(ChildProcess, every_signal_that_asks_to_end_ends_the_program_and_is_told_by_its_name) {
    const std::pair<int, const char*> all[] = {
        {SIGTERM, "SIGTERM"}, {SIGINT, "SIGINT"}, {SIGHUP, "SIGHUP"}, {SIGQUIT, "SIGQUIT"}, {SIGXCPU, "SIGXCPU"}};
    for (const auto& [number, name] : all) {
        const heard_signal heard(number);
        const platform::end_requests noted;
        child_start start = shell("echo begun; exec sleep 1000");
        start.on_output = [number = number](std::string_view) { raise(number); };
        EXPECT_EQ(platform::run_child(start).fate, child_fate::called_off) << name;
        EXPECT_EQ(platform::end_request(), name);
    }
}

TEST(ChildProcess, a_request_to_end_is_forgotten_with_whoever_noted_it) {
    const heard_signal heard(SIGINT);
    {
        const platform::end_requests noted;
        raise(SIGINT);
        EXPECT_EQ(platform::end_request(), "SIGINT");
    }
    EXPECT_EQ(platform::end_request(), "");
}

TEST(ChildProcess, a_reader_that_is_gone_ends_a_program_as_ever) {
    const platform::end_requests noted; // for this process alone such a signal is none
    EXPECT_EQ(run(shell("kill -PIPE $$")).end.words, "SIGPIPE");
}

} // namespace
