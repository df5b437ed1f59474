// What every program beside the converter answers to "--help", "--version" and what it does not know.

#include "tests/run_program.h"
#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include <sys/wait.h>

namespace {

struct outcome {
    int status = -1;
    std::string output;
    std::string errors;
};

class ProgramsBeside : public testing::TestWithParam<std::string> {
protected:
    outcome run(const std::string& arguments) const {
        const temporary_folder folder;
        const program_result result = run_program(shell_quoted(std::string(PROGRAMS) + "/" + GetParam()) + " " +
                                                  arguments + " 2>" + shell_quoted(folder / "errors"));
        return {WEXITSTATUS(result.status), result.output, folder.read("errors")};
    }
};

TEST_P(ProgramsBeside, help_is_the_usage_and_status_0) {
    const outcome seen = run("--help");
    EXPECT_EQ(seen.status, 0);
    EXPECT_THAT(seen.output, testing::StartsWith("usage: " + GetParam() + " "));
    EXPECT_EQ(seen.errors, "");
}

TEST_P(ProgramsBeside, version_is_one_line_and_status_0) {
    const outcome seen = run("--version");
    EXPECT_EQ(seen.status, 0);
    EXPECT_EQ(seen.output, GetParam() + " " PROJECT_VERSION "\n");
    EXPECT_EQ(seen.errors, "");
}

TEST_P(ProgramsBeside, an_unknown_option_is_one_line_and_status_2_wherever_it_stands) {
    for (const char* arguments : {"--bogus", "a --bogus", "a b c --bogus", "-b", "--help --bogus"}) {
        const outcome seen = run(arguments);
        EXPECT_EQ(seen.status, 2) << arguments;
        EXPECT_EQ(seen.output, "") << arguments;
        EXPECT_THAT(seen.errors, testing::MatchesRegex(GetParam() + ": unknown option [^\n]*\n")) << arguments;
    }
    EXPECT_EQ(run("--bogus").errors, GetParam() + ": unknown option --bogus\n");
}

TEST_P(ProgramsBeside, nothing_on_the_command_line_is_the_usage_and_status_2) {
    const outcome seen = run("");
    EXPECT_EQ(seen.status, 2);
    EXPECT_EQ(seen.output, "");
    EXPECT_THAT(seen.errors, testing::StartsWith("usage: " + GetParam() + " "));
}

INSTANTIATE_TEST_SUITE_P(All, ProgramsBeside,
                         testing::Values("skp-dump", "batch-summary", "example_garden", "example_room",
                                         "example_stages", "draw_model", "draw_stream", "damage_samples", "make_seeds"),
                         [](const auto& program) {
                             std::string name = program.param;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

TEST(SkpDumpProgram, an_option_that_lacks_its_folder_is_the_usage_and_status_2) {
    const program_result result = run_program(std::string(SKP_DUMP_PROGRAM) + " a.skp --textures 2>/dev/null");
    EXPECT_EQ(WEXITSTATUS(result.status), 2);
}

} // namespace
