// What every program beside the converter answers to "--help", "--version" and what it does not know.

#include "tests/support/run_program.h"
#include "tests/tools/programs_beside.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

class ProgramsBeside : public testing::TestWithParam<std::string> {
protected:
    program_result run(const std::vector<std::string>& arguments) const {
        return run_program({std::string(PROGRAMS) + "/" + GetParam() + PROGRAM_ENDING, arguments});
    }
};

TEST_P(ProgramsBeside, help_is_the_usage_and_status_0) {
    const program_result seen = run({"--help"});
    EXPECT_EQ(seen.status, 0);
    EXPECT_THAT(seen.output, testing::StartsWith("usage: " + GetParam() + " "));
    EXPECT_EQ(seen.errors, "");
}

TEST_P(ProgramsBeside, version_is_one_line_and_status_0) {
    const program_result seen = run({"--version"});
    EXPECT_EQ(seen.status, 0);
    EXPECT_EQ(seen.output, GetParam() + " " PROJECT_VERSION "\n");
    EXPECT_EQ(seen.errors, "");
}

TEST_P(ProgramsBeside, an_unknown_option_is_one_line_and_status_2_wherever_it_stands) {
    const std::vector<std::vector<std::string>> command_lines = {
        {"--bogus"}, {"a", "--bogus"}, {"a", "b", "c", "--bogus"}, {"-b"}, {"--help", "--bogus"}};
    for (const std::vector<std::string>& arguments : command_lines) {
        const program_result seen = run(arguments);
        EXPECT_EQ(seen.status, 2) << testing::PrintToString(arguments);
        EXPECT_EQ(seen.output, "") << testing::PrintToString(arguments);
        EXPECT_THAT(seen.errors, testing::StartsWith(GetParam() + ": unknown option -"));
        EXPECT_EQ(seen.errors.find('\n'), seen.errors.size() - 1) << seen.errors;
    }
    EXPECT_EQ(run({"--bogus"}).errors, GetParam() + ": unknown option --bogus\n");
    EXPECT_EQ(run({"-\x1b[2J"}).errors, GetParam() + ": unknown option -\\x1b[2J\n"); // nothing for a terminal
}

TEST_P(ProgramsBeside, nothing_on_the_command_line_is_the_usage_and_status_2) {
    const program_result seen = run({});
    EXPECT_EQ(seen.status, 2);
    EXPECT_EQ(seen.output, "");
    EXPECT_THAT(seen.errors, testing::StartsWith("usage: " + GetParam() + " "));
}

INSTANTIATE_TEST_SUITE_P(All, ProgramsBeside, programs_beside(), name_in_test);

TEST(SkpDumpProgram, an_option_that_lacks_its_folder_is_the_usage_and_status_2) {
    EXPECT_EQ(run_program({SKP_DUMP_PROGRAM, {"a.skp", "--textures"}}).status, 2);
}

} // namespace
