#include "tests/windows/driven_program.h"

#include <gtest/gtest.h>

namespace {

constexpr int text_of_a_box = 0xffff;

bool stands_above_all(HWND window) {
    return (GetWindowLongPtrA(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

TEST(Box, shows_title_and_text_until_it_is_read) {
    driven_program desk("window_desk", {"box", "sin", "C:\\a b\\geometry.qlm"});
    const HWND box = desk.dialog("sin");
    EXPECT_EQ(text_of(box, text_of_a_box), "C:\\a b\\geometry.qlm");
    EXPECT_FALSE(stands_above_all(box));
    press(box, IDOK);
    EXPECT_EQ(desk.line(), "read");
}

TEST(Box, a_pixel_outside_a_picture_is_told_of_above_all_windows_without_a_title) {
    driven_program desk("window_desk", {"pixel"});
    const HWND box = desk.dialog("");
    EXPECT_EQ(text_of(box, text_of_a_box), "Error in GetPixel");
    EXPECT_TRUE(stands_above_all(box));
    press(box, IDOK);
    EXPECT_EQ(desk.line(), "16777215"); // white
}

} // namespace
