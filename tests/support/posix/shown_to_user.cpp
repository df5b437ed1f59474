#include "tests/support/shown_to_user.h"

#include <gtest/gtest.h>

class attended_desktop::attendant {};

attended_desktop::attended_desktop() = default;
attended_desktop::~attended_desktop() = default;

std::string shown_to_user(const std::function<void()>& action) {
    testing::internal::CaptureStderr();
    action();
    return testing::internal::GetCapturedStderr();
}

std::string written_to_output(const std::function<void()>& action) {
    testing::internal::CaptureStdout();
    action();
    return testing::internal::GetCapturedStdout();
}
