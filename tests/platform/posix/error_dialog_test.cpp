#include "platform/platform.h"

#include <gtest/gtest.h>

namespace {

class ConsoleErrorDialog : public testing::Test {
protected:
    std::string written_for(const platform::error_dialog_view& view) {
        testing::internal::CaptureStderr();
        answer = platform::show_error_dialog(view);
        return testing::internal::GetCapturedStderr();
    }

    platform::error_dialog_answer answer;
};

TEST_F(ConsoleErrorDialog, prints_caption_and_text_with_plain_line_feeds) {
    EXPECT_EQ(written_for({platform::error_dialog_kind::message, "Title", "one\r\ntwo", true, {}}),
              "Title: one\ntwo\n");
}

TEST_F(ConsoleErrorDialog, answers_ok_and_silences_nothing) {
    for (const auto kind : {platform::error_dialog_kind::message, platform::error_dialog_kind::report}) {
        written_for({kind, "Title", "text", true, [] { FAIL() << "nobody presses Copy on a console"; }});
        EXPECT_TRUE(answer.was_shown);
        EXPECT_EQ(answer.button, platform::error_dialog_button::ok);
        EXPECT_FALSE(answer.silences_place);
    }
}

} // namespace
