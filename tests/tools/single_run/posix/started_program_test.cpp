#include "tests/tools/single_run/posix/started_program.h"

#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

TEST(StartedProgram, one_that_does_not_end_in_time_is_no_success_and_runs_no_longer) {
    const temporary_folder here;
    started_program sleeper({"/bin/sh", {"-c", "exec sleep 1000", here / "sleeper"}});
    const pid_t process = sleeper.number();
    EXPECT_EQ(sleeper.wait(std::chrono::milliseconds::zero()), -1);
    EXPECT_FALSE(is_running(process));
}

} // namespace
