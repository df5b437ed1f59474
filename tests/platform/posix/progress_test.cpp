#include "platform/posix/progress_bar.h"

#include "platform/platform.h"
#include "tests/support/posix/terminal_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

TEST(ProgressBar, redraws_its_line_in_place_on_a_terminal) {
    std::string shown;
    {
        platform::progress_bar bar(
            "Start", [&](std::string_view text) { shown += text; }, true);
        bar.set_title(" Converting Model Geometry");
        bar.set_percent(42);
        bar.set_text(" 42% Complete,  Please Wait...");
    }
    EXPECT_EQ(shown, "\r\x1b[?7lStart [....................]\x1b[K\x1b[?7h\r"
                     "\r\x1b[?7lConverting Model Geometry [....................]\x1b[K\x1b[?7h\r"
                     "\r\x1b[?7lConverting Model Geometry [########............]\x1b[K\x1b[?7h\r" // 42 x 20 / 100 = 8.4
                     "\r\x1b[?7lConverting Model Geometry [########............] 42% Complete,  Please Wait..."
                     "\x1b[K\x1b[?7h\r"
                     "\r\x1b[K");
}

TEST(ProgressBar, leaves_only_its_last_line_where_nothing_can_be_redrawn) {
    std::string shown;
    {
        platform::progress_bar bar(
            "Start", [&](std::string_view text) { shown += text; }, false);
        bar.set_percent(10);
        bar.set_percent(100);
        bar.set_text(" 100% Complete,  Please Wait...");
        EXPECT_EQ(shown, "");
    }
    EXPECT_EQ(shown, "Start [####################] 100% Complete,  Please Wait...\n");
}

TEST(ProgressBar, keeps_a_percentage_beyond_its_range_inside_the_bar) {
    std::string shown;
    {
        platform::progress_bar bar(
            "", [&](std::string_view text) { shown += text; }, true);
        bar.set_percent(-5);
        bar.set_percent(250);
    }
    EXPECT_EQ(shown, "\r\x1b[?7l[....................]\x1b[K\x1b[?7h\r"
                     "\r\x1b[?7l[....................]\x1b[K\x1b[?7h\r"
                     "\r\x1b[?7l[####################]\x1b[K\x1b[?7h\r"
                     "\r\x1b[K");
}

TEST(ProgressBar, is_one_line_on_a_terminal_that_is_narrower_and_nothing_when_it_is_gone) {
    terminal_screen screen(30);
    {
        platform::progress_bar bar(
            "Start", [&](std::string_view text) { screen.show(text); }, true);
        bar.set_text(" 42% Complete,  Please Wait..."); // "Start [....................] " takes 29 columns
        EXPECT_THAT(screen.rows(), testing::ElementsAre("Start [....................] ."));
    }
    EXPECT_THAT(screen.rows(), testing::IsEmpty());
}

TEST(ProgressWindow, runs_the_work_and_closes_before_it_returns) {
    testing::internal::CaptureStderr();
    bool ran = false;
    EXPECT_TRUE(platform::run_with_progress_window("Tessaline Progress", [&](platform::progress_window& window) {
        window.set_percent(50);
        ran = true;
    }));
    const std::string shown = testing::internal::GetCapturedStderr();
    EXPECT_TRUE(ran);
    EXPECT_EQ(shown, "Tessaline Progress [##########..........]\n");
}

} // namespace
