#include "platform/child_process.h"

#include "tests/support/environment.h"

#include <gtest/gtest.h>

namespace {

using platform::child_end;
using platform::child_fate;
using platform::child_start;

struct seen_child {
    child_end end;
    std::string output;
    std::string errors;
};

// A line for the command interpreter of the system.
seen_child run(const std::string& line, child_start start = {}) {
    seen_child seen;
    start.program = "C:\\windows\\system32\\cmd.exe";
    start.arguments = {"/c", line};
    start.on_output = [&seen](std::string_view bytes) { seen.output += bytes; };
    start.on_errors = [&seen](std::string_view bytes) { seen.errors += bytes; };
    seen.end = platform::run_child(start);
    return seen;
}

TEST(ChildProcess, hands_on_what_is_printed_and_the_status) {
    const seen_child seen = run("echo out&echo err>&2&exit 5");
    EXPECT_EQ(seen.end.fate, child_fate::ended);
    EXPECT_EQ(seen.end.number, 5);
    EXPECT_EQ(seen.output, "out\r\n");
    EXPECT_EQ(seen.errors, "err\r\n");
    EXPECT_GT(seen.end.peak_memory_bytes, 100000u);
}

TEST(ChildProcess, variables_are_changed_and_taken_away) {
    const with_environment gone("TESSALINE_TEST_GONE", "g");
    child_start start;
    start.environment = {{"TESSALINE_TEST_GONE", std::nullopt}, {"TESSALINE_TEST_NEW", "new"}};
    EXPECT_EQ(run("if not defined TESSALINE_TEST_GONE echo %TESSALINE_TEST_NEW%", start).output, "new\r\n");
}

TEST(ChildProcess, a_program_that_is_not_there_is_told_in_the_words_of_the_system) {
    const child_end end = platform::run_child({"C:\\no\\such\\program.exe"});
    EXPECT_EQ(end.fate, child_fate::not_started);
    EXPECT_NE(end.words, "");
}

} // namespace
