#include "platform/windows/resource_numbers.h"
#include "tests/windows/driven_program.h"

#include <gtest/gtest.h>

namespace {

TEST(ProgressDialog, stands_as_the_resource_says_and_shows_each_percentage_at_once) {
    driven_program desk("window_desk", {"progress"});
    EXPECT_EQ(desk.line(), "size as it should be");
    EXPECT_EQ(desk.line(), "bar in place");
    EXPECT_EQ(desk.line(), "text in place");
    EXPECT_EQ(desk.line(), "font MS Shell Dlg");
    EXPECT_EQ(desk.line(), "0 of 0 to 100, drawn");
    const HWND dialog = desk.dialog("Tessaline Progress");
    const HWND label = GetDlgItem(dialog, CONTROL_PROGRESS_TEXT);
    EXPECT_EQ(caption_of(label), "Static");

    desk.go_on();
    EXPECT_EQ(desk.line(), "1 of 0 to 100, drawn");
    EXPECT_EQ(caption_of(dialog), " Converting Model Geometry");
    EXPECT_EQ(caption_of(label), " 1% Complete,  Please Wait...");
    desk.go_on();
    EXPECT_EQ(desk.line(), "42 of 0 to 100, drawn");
    EXPECT_EQ(caption_of(label), " 42% Complete,  Please Wait...");
    desk.go_on();
    EXPECT_EQ(desk.line(), "42 of 0 to 100, drawn");
    desk.go_on();
    EXPECT_EQ(desk.line(), "41 of 0 to 100, drawn");
    desk.go_on();
    EXPECT_EQ(desk.line(), "100 of 0 to 100, drawn");
    desk.go_on();
    EXPECT_EQ(desk.line(), "100 of 0 to 100, drawn"); // 250 fills the bar
    EXPECT_TRUE(desk.has_dialog());
    desk.go_on();
    EXPECT_EQ(desk.line(), "closed");
    EXPECT_FALSE(desk.has_dialog());
    EXPECT_EQ(desk.status(), 0u);
}

TEST(ProgressDialog, stays_open_whatever_the_user_does_while_the_work_runs) {
    driven_program desk("window_desk", {"progress"});
    const HWND dialog = desk.dialog("Tessaline Progress");
    press(dialog, IDCANCEL);
    PostMessageA(dialog, WM_CLOSE, 0, 0);
    for (int i = 0; i < 7; ++i) {
        EXPECT_TRUE(IsWindow(dialog));
        desk.go_on();
    }
    EXPECT_EQ(desk.status(), 0u);
}

TEST(ProgressDialog, what_the_work_throws_comes_out_of_the_call) {
    driven_program desk("window_desk", {"failing_progress"});
    EXPECT_EQ(desk.line(), "out of the work");
    EXPECT_FALSE(desk.has_dialog());
}

TEST(ProgressDialog, the_work_does_not_run_if_the_dialog_cannot_be_made) {
    driven_program desk("bare_desk", {"progress"});
    EXPECT_EQ(desk.line(), "not shown");
    EXPECT_EQ(desk.status(), 0u);
}

} // namespace
