// What every program beside the converter does where its answer to "--help" or "--version" finds no place.

#include "tests/tools/posix/into_full_disk.h"
#include "tests/tools/programs_beside.h"

namespace {

class ProgramsBesideIntoFullOutput : public testing::TestWithParam<std::string> {
protected:
    static void expect_refused(const std::string& option) {
        const program_result seen = run_into_full_disk(GetParam(), {option});
        EXPECT_EQ(seen.status, GetParam() == "tessaline-run" ? 4 : 2) << seen.end;
        EXPECT_EQ(seen.errors, GetParam() + ": standard output takes nothing\n");
    }
};

TEST_P(ProgramsBesideIntoFullOutput, help_has_a_status_of_its_own) {
    expect_refused("--help");
}

TEST_P(ProgramsBesideIntoFullOutput, version_has_a_status_of_its_own) {
    expect_refused("--version");
}

INSTANTIATE_TEST_SUITE_P(All, ProgramsBesideIntoFullOutput, programs_beside(), name_in_test);

// Its status tells nothing; whether the stream is there does.
TEST(TessalineIntoFullOutput, has_status_0_as_ever) {
    EXPECT_EQ(run_into_full_disk("tessaline", {"--help"}).status, 0);
    EXPECT_EQ(run_into_full_disk("tessaline", {"--version"}).status, 0);
}

} // namespace
