// What is shown where nobody sits.

#include "platform/platform.h"
#include "tests/support/environment.h"
#include "tests/support/shown_to_user.h"

#include <gtest/gtest.h>

namespace {

TEST(Unattended, progress_is_told_in_lines_each_percentage_once) {
    const with_environment unattended("TESSALINE_UNATTENDED", "1");
    const std::string shown = shown_to_user([] {
        platform::run_with_progress_window("caption", [](platform::progress_window& window) {
            window.set_percent(0);
            window.set_title("title");
            window.set_percent(7);
            window.set_percent(7);
            window.set_text("7%");
            window.set_percent(120);
        });
    });
    EXPECT_EQ(shown, "progress 0\nprogress 7\nprogress 100\n");
}

TEST(Unattended, messages_and_errors_are_lines_and_nobody_can_be_asked) {
    const with_environment unattended("TESSALINE_UNATTENDED", "1");
    EXPECT_EQ(
        shown_to_user([] {
            platform::message_box("title", "text");
            platform::message_box("", "text alone");
            platform::show_error_dialog({platform::error_dialog_kind::message, "caption", "one\r\ntwo\r\n", true, {}});
        }),
        "title: text\ntext alone\ncaption: one\ntwo\n");
    EXPECT_FALSE(platform::can_ask_for_file());
}

TEST(Unattended, an_empty_variable_means_that_somebody_is_there) {
    const with_environment unattended("TESSALINE_UNATTENDED", "");
    EXPECT_FALSE(platform::is_unattended());
}

} // namespace
