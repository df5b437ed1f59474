#include "qlw/qlw_error_dialog.h"

#include "platform/platform.h"
#include "qlw/qlw_trace.h"
#include "tests/support/trace_capture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

class ErrorDialog : public testing::Test {
protected:
    // What the user sees of a message at a level.
    std::string shown_at(int level, const std::string& text) {
        testing::internal::CaptureStderr();
        cl_trace("source", 12, "function", level, 0).report("%s", text);
        return testing::internal::GetCapturedStderr();
    }

    trace_capture capture;
};

TEST_F(ErrorDialog, shows_the_message_with_the_version_and_traces_an_error_line) {
    EXPECT_THAT(shown_at(2, "No such\nfolder"),
                MatchesRegex("Tessaline - Error: No such\nfolder\n\n    \\(VER: SC26w - [^a-z]*\\)\n"));
    EXPECT_EQ(capture.text(), "source(12):: *** ERROR: No such\nfolder\n");
}

TEST_F(ErrorDialog, is_shown_for_every_level_from_two_to_eight_but_four) {
    for (const int level : {2, 3, 6, 7, 8})
        EXPECT_THAT(shown_at(level, "text"), StartsWith("Tessaline - Error: text\n")) << level;
    for (const int level : {0, 1, 4, 9, 10, 11})
        EXPECT_EQ(shown_at(level, "text"), "") << level;
}

TEST_F(ErrorDialog, a_developers_error_is_traced_as_an_error_and_shown_to_nobody) {
    EXPECT_EQ(shown_at(4, "text"), "");
    EXPECT_EQ(capture.text(), "source(12):: *** ERROR: text\n");
}

TEST_F(ErrorDialog, a_developers_error_gains_a_note_in_the_history) {
    cl_trace trace("source", 12, "function", 4, 0);
    trace.report("text");
    EXPECT_EQ(trace.last_message, "text\n*** This error only appears in DEBUG mode ***\n\n"
                                  "     (Error occurred in source line: 12)");
}

TEST_F(ErrorDialog, a_fatal_error_is_shown_and_then_thrown_as_text) {
    testing::internal::CaptureStderr();
    std::string thrown;
    try {
        cl_trace("source", 12, "function", 5, 0).report("the end");
    } catch (const std::string& text) {
        thrown = text;
    }
    EXPECT_THAT(testing::internal::GetCapturedStderr(), StartsWith("Tessaline - Error: the end\n"));
    EXPECT_EQ(thrown, "Fatal Error encountered\n\rthe end\n\r\n\r     (Error occurred in source line: 12)");
}

TEST_F(ErrorDialog, a_trace_keeps_its_three_latest_messages_and_forgets_its_place) {
    testing::internal::CaptureStderr();
    cl_trace trace("source", 12, "function", 2, 0);
    for (const char* text : {"one", "two", "three", "four"})
        trace.report("%s", text);
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(trace.last_message, "four\n\n     (Error occurred in Unknown line: 0)");
    EXPECT_EQ(trace.previous_message, "three\n\n     (Error occurred in Unknown line: 0)");
    EXPECT_EQ(trace.oldest_message, "two\n\n     (Error occurred in Unknown line: 0)");
    EXPECT_EQ(trace.source_file, "Unknown");
    EXPECT_EQ(trace.line, 0);
}

TEST_F(ErrorDialog, a_listed_error_goes_to_the_error_list_alone_while_that_is_active) {
    const temporary_folder folder;
    const with_environment settings("XDG_CONFIG_HOME", folder.name());
    trace_state().error_list_active = true;
    EXPECT_EQ(shown_at(8, "listed"), "");
    EXPECT_EQ(capture.text(), "");
    EXPECT_THAT(folder.read("error_file.txt"), MatchesRegex("ERROR LIST: : ..:..:..\r\nlisted\r\n"));
}

TEST_F(ErrorDialog, an_active_error_list_takes_every_message_behind_its_title) {
    const temporary_folder folder;
    const with_environment settings("XDG_CONFIG_HOME", folder.name());
    error_list_open("night run");
    trace_state().error_list_active = true;
    shown_at(0, "plain");
    shown_at(2, "error");
    EXPECT_THAT(folder.read("error_file.txt"), MatchesRegex("ERROR LIST: night run: ..:..:..\r\nplain\r\nerror\r\n"));
}

} // namespace
