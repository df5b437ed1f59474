#include "platform/platform.h"
#include "tests/support/environment.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

std::string written_to_error(const std::function<void()>& action) {
    testing::internal::CaptureStderr();
    action();
    return testing::internal::GetCapturedStderr();
}

TEST(DebugOutput, goes_nowhere_unless_it_is_asked_for) {
    const with_environment unset("TESSALINE_TRACE", std::nullopt);
    EXPECT_EQ(written_to_error([] { platform::debug_output("line\n"); }), "");
}

TEST(DebugOutput, goes_to_standard_error_for_a_minus_sign) {
    const with_environment trace("TESSALINE_TRACE", "-");
    EXPECT_EQ(written_to_error([] { platform::debug_output("line\n"); }), "line\n");
}

TEST(DebugOutput, is_appended_to_the_file_that_is_named) {
    const temporary_folder folder;
    const with_environment trace("TESSALINE_TRACE", folder / "trace.txt");
    EXPECT_EQ(written_to_error([] {
                  platform::debug_output("first\n");
                  platform::debug_output("second\n");
              }),
              "");
    EXPECT_EQ(folder.read("trace.txt"), "first\nsecond\n");
}

TEST(DebugOutput, is_lost_quietly_if_the_file_cannot_be_made) {
    const temporary_folder folder;
    const with_environment trace("TESSALINE_TRACE", folder / "missing/trace.txt");
    EXPECT_EQ(written_to_error([] { platform::debug_output("line\n"); }), "");
}

} // namespace
