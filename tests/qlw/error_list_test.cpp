#include "qlw/error_list.h"

#include "qlw/qlw_trace.h"
#include "tests/support/answering_desktop.h"
#include "tests/support/matches_pattern.h"
#include "tests/support/trace_capture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

class ErrorList : public testing::Test {
protected:
    static void report_at(int level, const std::string& text) {
        cl_trace("source", 12, "function", level, 0).report("%s", text);
    }
    std::string text() const { return folder.read("settings/error_file.txt"); }

    temporary_folder folder;
    with_settings_folder settings{folder / "settings"};
    trace_capture capture;
    answering_desktop desktop;
};

TEST_F(ErrorList, is_not_kept_unless_it_is_active) {
    report_at(2, "error");
    EXPECT_FALSE(folder.has("settings/error_file.txt"));
}

TEST_F(ErrorList, opens_with_its_title_and_the_time) {
    error_list_open("night run");
    EXPECT_THAT(text(), MatchesPattern("ERROR LIST: night run: [0-9][0-9]:[0-9][0-9]:[0-9][0-9]\r\n"));
    EXPECT_TRUE(trace_state().error_list.has_file);
    EXPECT_FALSE(trace_state().error_list.was_written);
}

TEST_F(ErrorList, of_an_earlier_run_is_replaced) {
    folder.write("settings/error_file.txt", "old\r\n");
    error_list_open("new");
    EXPECT_THAT(text(), MatchesPattern("ERROR LIST: new: ..:..:..\r\n"));
}

TEST_F(ErrorList, a_first_line_opens_it_with_an_empty_title) {
    error_list_append("first");
    error_list_append("second");
    EXPECT_THAT(text(), MatchesPattern("ERROR LIST: : ..:..:..\r\nfirst\r\nsecond\r\n"));
    EXPECT_TRUE(trace_state().error_list.was_written);
    EXPECT_FALSE(trace_state().error_list.file.is_open()); // nothing is lost if the program dies
}

TEST_F(ErrorList, while_active_takes_every_message_behind_its_title) {
    error_list_open("night run");
    trace_state().error_list_active = true;
    report_at(0, "plain");
    report_at(2, "error");
    report_at(4, "developer");
    EXPECT_THAT(text(), MatchesPattern("ERROR LIST: night run: ..:..:..\r\nplain\r\nerror\r\ndeveloper\r\n"));
    EXPECT_EQ(desktop.shown.size(), 1u); // of the user's error
}

TEST_F(ErrorList, takes_a_listed_error_alone_while_it_is_active) {
    trace_state().error_list_active = true;
    report_at(8, "listed");
    EXPECT_EQ(desktop.shown.size(), 0u);
    EXPECT_EQ(capture.text(), "");
    EXPECT_THAT(text(), MatchesPattern("ERROR LIST: : ..:..:..\r\nlisted\r\n"));
}

TEST_F(ErrorList, that_cannot_be_made_is_shown_to_the_user_once_for_each_line) {
    const std::string name = folder.make_folder("settings/error_file.txt"); // a folder stands in its place
    trace_state().error_list_active = true;
    report_at(0, "plain");
    ASSERT_EQ(desktop.shown.size(), 1u);
    EXPECT_THAT(desktop.shown[0].text,
                testing::StartsWith("Cannot create file: '" + name +
                                    "'. \r\n\r\nMake sure that the file path exists and that the file is not in use "
                                    "by another program.\r\n\r\n    (VER: "));
    EXPECT_FALSE(trace_state().error_list.was_written);
    report_at(0, "plain");
    EXPECT_EQ(desktop.shown.size(), 2u);
}

} // namespace
