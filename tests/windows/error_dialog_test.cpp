#include "platform/windows/resource_numbers.h"
#include "tests/windows/driven_program.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* title = "Tessaline - Error";

void tick_silence(HWND dialog) {
    SendMessageA(GetDlgItem(dialog, CONTROL_SILENCE), BM_CLICK, 0, 0);
}

TEST(ErrorDialog, shows_caption_text_and_check_box) {
    driven_program desk("window_desk", {"error", "message", "offered"});
    const HWND dialog = desk.dialog(title);
    EXPECT_EQ(text_of(dialog, CONTROL_MESSAGE), "first line\r\nsecond line");
    EXPECT_TRUE(is_shown(dialog, CONTROL_SILENCE));
    EXPECT_TRUE(is_shown(dialog, CONTROL_MORE));
    EXPECT_EQ(GetDlgItem(dialog, CONTROL_COPY), nullptr);
    press(dialog, IDOK);
    EXPECT_EQ(desk.line(), "ok");
}

TEST(ErrorDialog, hides_the_check_box_in_plain_mode) {
    for (const char* kind : {"message", "report"}) {
        driven_program desk("window_desk", {"error", kind, "hidden"});
        const HWND dialog = desk.dialog(title);
        EXPECT_FALSE(is_shown(dialog, CONTROL_SILENCE));
        EXPECT_FALSE(IsWindowEnabled(GetDlgItem(dialog, CONTROL_SILENCE)));
        press(dialog, IDOK);
        EXPECT_EQ(desk.line(), "ok");
    }
}

TEST(ErrorDialog, silences_by_ok_with_the_box_ticked) {
    for (const char* kind : {"message", "report"}) {
        driven_program desk("window_desk", {"error", kind, "offered"});
        const HWND dialog = desk.dialog(title);
        tick_silence(dialog);
        press(dialog, IDOK);
        EXPECT_EQ(desk.line(), "ok, silenced");
    }
}

TEST(ErrorDialog, does_not_silence_if_the_window_is_closed) {
    for (const char* kind : {"message", "report"}) {
        driven_program desk("window_desk", {"error", kind, "offered"});
        const HWND dialog = desk.dialog(title);
        tick_silence(dialog);
        PostMessageA(dialog, WM_CLOSE, 0, 0);
        EXPECT_EQ(desk.line(), "ok");
    }
}

TEST(ErrorDialog, more_does_not_silence) {
    driven_program desk("window_desk", {"error", "message", "offered"});
    const HWND dialog = desk.dialog(title);
    tick_silence(dialog);
    press(dialog, CONTROL_MORE);
    EXPECT_EQ(desk.line(), "more");
}

TEST(ErrorDialog, copy_fills_the_clipboard_and_leaves_the_dialog_open) {
    empty_clipboard();
    driven_program desk("window_desk", {"error", "report", "offered"});
    const HWND dialog = desk.dialog(title);
    EXPECT_EQ(GetDlgItem(dialog, CONTROL_MORE), nullptr);
    press(dialog, CONTROL_COPY);
    EXPECT_EQ(desk.line(), "copied");
    EXPECT_EQ(clipboard_text(), "copied\r\ntext");
    EXPECT_TRUE(IsWindow(dialog));
    press(dialog, IDOK);
    EXPECT_EQ(desk.line(), "ok");
}

TEST(ErrorDialog, copies_over_the_progress_dialog_too) {
    empty_clipboard();
    driven_program desk("window_desk", {"error_over_progress"});
    const HWND dialog = desk.dialog(title);
    EXPECT_EQ(GetWindow(dialog, GW_OWNER), desk.dialog("Tessaline Progress"));
    press(dialog, CONTROL_COPY);
    EXPECT_EQ(desk.line(), "copied");
    EXPECT_EQ(clipboard_text(), "copied\r\ntext");
    press(dialog, IDOK);
    EXPECT_EQ(desk.line(), "ok");
    EXPECT_EQ(desk.status(), 0u);
}

TEST(ErrorDialog, says_that_the_clipboard_is_somebody_elses) {
    driven_program holder("window_desk", {"hold_clipboard"});
    ASSERT_EQ(holder.line(), "held");
    driven_program desk("window_desk", {"error", "report", "offered"});
    const HWND dialog = desk.dialog(title);
    press(dialog, CONTROL_COPY);
    EXPECT_EQ(desk.line(), "not copied");
    holder.go_on();
    EXPECT_EQ(holder.status(), 0u);
    press(dialog, CONTROL_COPY);
    EXPECT_EQ(desk.line(), "copied");
    press(dialog, IDOK);
}

TEST(ErrorDialog, tells_if_it_cannot_be_made) {
    driven_program desk("bare_desk", {"error", "message", "offered"});
    EXPECT_EQ(desk.line(), "not shown");
}

TEST(ErrorDialog, a_report_that_finds_no_dialog_comes_in_a_box) {
    driven_program desk("bare_desk", {"report"});
    const HWND box = desk.dialog("Tessaline");
    constexpr int text_of_a_box = 0xffff;
    EXPECT_EQ(text_of(box, text_of_a_box),
              "Cannot load error dialog. qlw_common.rc2 is probably not included.\n\nsomething is wrong");
    press(box, IDOK);
    EXPECT_EQ(desk.line(), "reported");
}

} // namespace
