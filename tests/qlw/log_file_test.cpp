#include "qlw/log_file.h"

#include "qlw/qlw_std.h"
#include "qlw/qlw_trace.h"
#include "tests/support/matches_pattern.h"
#include "tests/support/shown_to_user.h"
#include "tests/support/trace_capture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::EndsWith;

class LogFile : public testing::Test {
protected:
    std::string text() const { return folder.read("settings/Tessaline_LOG_FILE.txt"); }

    temporary_folder folder;
    with_settings_folder settings{folder / "settings"};
    plain_trace_capture capture;
};

TEST_F(LogFile, starts_with_three_lines_about_the_run) {
    trace_state().log_always = true;
    cl_trace("s", 1, "f", 0, 0).report("first");
    EXPECT_THAT(text(), MatchesPattern("LOGFL: Tessaline: SC26w\r\n"
                                       "Time: [0-9][0-9]:[0-9][0-9]:[0-9][0-9]\r\n"
                                       "Windows: [^\r]+\r\n"
                                       ":s\\(1\\): first\r\n"));
}

TEST_F(LogFile, of_an_earlier_run_is_replaced_and_later_lines_are_appended) {
    folder.write("settings/Tessaline_LOG_FILE.txt", "old\r\n");
    trace_state().log_always = true;
    cl_trace("s", 1, "f", 0, 0).report("first");
    cl_trace("s", 2, "f", 0, 0).report("second\n");
    EXPECT_EQ(text().find("old"), std::string::npos);
    EXPECT_THAT(text(), EndsWith("\r\n:s(1): first\r\n:s(2): second\r\n"));
}

TEST_F(LogFile, lines_have_the_time_in_front_of_the_location) {
    trace_state().log_always = true;
    trace_state().show_time = true;
    cl_trace("s", 1, "f", 0, 0).report("text");
    EXPECT_THAT(text(), MatchesPattern("LOGFL.*\n \\(T: ..:..:..: 0.00\\):s\\(1\\): text\r\n"));
}

TEST_F(LogFile, is_announced_once_unless_it_is_always_on) {
    trace_state().log_to_file = true;
    const std::string shown = shown_to_user([] {
        cl_trace("s", 1, "f", 0, 0).report("first");
        cl_trace("s", 2, "f", 0, 0).report("second");
    });
    EXPECT_EQ(shown, "Log File: Writing log messages to file: " + (folder / "settings/Tessaline_LOG_FILE.txt") + "\n");
    EXPECT_THAT(text(), EndsWith("\r\n:s(1): first\r\nAfter Log File Message Box\r\n:s(2): second\r\n"));
}

TEST_F(LogFile, takes_level_nine_which_reaches_nothing_else) {
    trace_state().log_always = true;
    cl_trace("s", 1, "f", 9, 0).report("only here");
    EXPECT_THAT(text(), EndsWith("\r\n:s(1): only here\r\n"));
}

TEST_F(LogFile, that_cannot_be_made_is_skipped_and_reported_once_for_the_line) {
    folder.make_folder("settings/Tessaline_LOG_FILE.txt"); // a folder stands in its place
    trace_state().log_always = true;
    EXPECT_THAT(shown_to_user([] { cl_trace("s", 1, "f", 0, 0).report("first"); }),
                testing::HasSubstr("Cannot create file: '"));
    EXPECT_THAT(capture.text(), testing::StartsWith("s(1):: first\n"));
}

} // namespace
