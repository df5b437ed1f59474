// Which messages reach the user, and what a message leaves in the trace.

#include "qlw/qlw_error_dialog.h"

#include "platform/platform.h"
#include "qlw/qlw_trace.h"
#include "tests/support/answering_desktop.h"
#include "tests/support/trace_capture.h"
#include "text/letter_case.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ErrorDialog : public testing::Test {
protected:
    static void report_at(int level, const std::string& text) {
        cl_trace("source", 12, "function", level, 0).report("%s", text);
    }

    // How many dialogs a message at a level opens.
    std::size_t dialogs_at(int level) {
        desktop.shown.clear();
        report_at(level, "text");
        return desktop.shown.size();
    }

    // The text that a message at level 5 throws; empty if it throws none.
    static std::string thrown_by(const std::string& text) {
        try {
            report_at(5, text);
        } catch (const std::string& thrown) {
            return thrown;
        }
        return {};
    }

    plain_trace_capture capture;
    answering_desktop desktop;
};

TEST_F(ErrorDialog, shows_the_message_and_traces_an_error_line) {
    report_at(2, "No such\nfolder");
    ASSERT_EQ(desktop.shown.size(), 1u);
    EXPECT_THAT(desktop.shown[0].text, testing::StartsWith("No such\r\nfolder\r\n\r\n    (VER: SC26w - "));
    EXPECT_EQ(capture.text(), "source(12):: *** ERROR: No such\nfolder\n");
}

TEST_F(ErrorDialog, has_the_title_that_its_message_asks_for_and_the_dialog_behind_more_the_usual_one) {
    desktop.answers = {answering_desktop::more()};
    cl_trace("source", 12, "function", 2, 0).titled("Reading").report("text");
    report_at(2, "text");
    ASSERT_EQ(desktop.shown.size(), 3u);
    EXPECT_EQ(desktop.shown[0].caption, "Tessaline - Reading");
    EXPECT_EQ(desktop.shown[1].caption, "Tessaline - Error");
    EXPECT_EQ(desktop.shown[2].caption, "Tessaline - Error");
}

TEST_F(ErrorDialog, is_shown_for_every_level_from_two_to_eight_but_four) {
    for (const int level : {2, 3, 6, 7, 8})
        EXPECT_EQ(dialogs_at(level), 1u) << level;
    for (const int level : {0, 1, 4, 9, 10, 11})
        EXPECT_EQ(dialogs_at(level), 0u) << level;
}

TEST_F(ErrorDialog, a_developers_error_is_traced_as_an_error_and_shown_to_nobody) {
    EXPECT_EQ(dialogs_at(4), 0u);
    EXPECT_EQ(capture.text(), "source(12):: *** ERROR: text\n");
}

TEST_F(ErrorDialog, a_developers_error_gains_a_note_in_the_history) {
    cl_trace trace("source", 12, "function", 4, 0);
    trace.report("text");
    EXPECT_EQ(trace.last_message, "text\n*** This error only appears in DEBUG mode ***\n\n"
                                  "     (Error occurred in source line: 12)");
}

TEST_F(ErrorDialog, a_place_silenced_by_the_check_box_shows_no_dialog_and_writes_no_error_line_again) {
    desktop.answers = {answering_desktop::ok_and_silence()};
    report_at(2, "first");
    report_at(2, "second");
    EXPECT_EQ(desktop.shown.size(), 1u);
    EXPECT_EQ(capture.text(), "source(12):: *** ERROR: first\n");
}

TEST_F(ErrorDialog, a_place_that_was_not_silenced_shows_its_message_each_time) {
    report_at(2, "first");
    report_at(2, "second");
    EXPECT_EQ(desktop.shown.size(), 2u);
}

TEST_F(ErrorDialog, another_line_of_a_silenced_source_file_is_still_shown) {
    desktop.answers = {answering_desktop::ok_and_silence()};
    report_at(2, "first");
    cl_trace("source", 13, "function", 2, 0).report("second");
    EXPECT_EQ(desktop.shown.size(), 2u);
}

TEST_F(ErrorDialog, a_silenced_developers_error_writes_no_error_line_either) {
    desktop.answers = {answering_desktop::ok_and_silence()};
    report_at(2, "first");
    report_at(4, "second");
    EXPECT_EQ(capture.text(), "source(12):: *** ERROR: first\n");
}

TEST_F(ErrorDialog, a_silenced_place_still_traces_plain_lines) {
    desktop.answers = {answering_desktop::ok_and_silence()};
    report_at(2, "first");
    report_at(0, "plain");
    EXPECT_THAT(capture.text(), HasSubstr("source(12):: plain\n"));
}

TEST_F(ErrorDialog, a_silenced_message_moves_the_history_on_and_knows_its_location) {
    desktop.answers = {answering_desktop::ok_and_silence()};
    report_at(2, "first");
    cl_trace trace("source", 12, "function", 2, 0);
    trace.last_message = "one";
    trace.previous_message = "two";
    trace.report("second");
    EXPECT_EQ(trace.previous_message, "one");
    EXPECT_EQ(trace.oldest_message, "two");
    EXPECT_EQ(trace.location_text, "     (Error occurred in source line: 12)");
    EXPECT_EQ(trace.source_file, "source"); // the place is forgotten by messages that are shown
}

TEST_F(ErrorDialog, a_fatal_error_is_shown_and_then_thrown_as_text) {
    EXPECT_EQ(thrown_by("the end"),
              "Fatal Error encountered\n\rthe end\n\r\n\r     (Error occurred in source line: 12)");
    EXPECT_EQ(desktop.shown.size(), 1u);
}

TEST_F(ErrorDialog, a_fatal_error_from_a_silenced_place_still_shows_and_then_throws) {
    desktop.answers = {answering_desktop::ok_and_silence()};
    report_at(2, "first");
    EXPECT_EQ(thrown_by("the end"),
              "Fatal Error encountered\n\rthe end\n\r\n\r     (Error occurred in source line: 12)");
    EXPECT_EQ(desktop.shown.size(), 2u);
    EXPECT_EQ(capture.text(), "source(12):: *** ERROR: first\nsource(12):: *** ERROR: the end\n");
}

TEST_F(ErrorDialog, a_trace_keeps_its_three_latest_messages_and_forgets_its_place) {
    cl_trace trace("source", 12, "function", 2, 0);
    for (const char* text : {"one", "two", "three", "four"})
        trace.report("%s", text);
    EXPECT_EQ(trace.last_message, "four\n\n     (Error occurred in Unknown line: 0)");
    EXPECT_EQ(trace.previous_message, "three\n\n     (Error occurred in Unknown line: 0)");
    EXPECT_EQ(trace.oldest_message, "two\n\n     (Error occurred in Unknown line: 0)");
    EXPECT_EQ(trace.source_file, "Unknown");
    EXPECT_EQ(trace.function, "");
    EXPECT_EQ(trace.line, 0);
}

TEST_F(ErrorDialog, a_second_report_of_an_object_whose_dialog_is_open_does_nothing) {
    cl_trace trace("source", 12, "function", 2, 0);
    desktop.while_open = [&trace] { trace.report("from inside"); };
    trace.report("text");
    EXPECT_EQ(desktop.shown.size(), 1u);
    EXPECT_EQ(capture.text(), "source(12):: *** ERROR: text\n");
    EXPECT_FALSE(trace.busy);
}

TEST_F(ErrorDialog, another_object_may_report_while_a_dialog_is_open) {
    desktop.while_open = [] { cl_trace("inner", 1, "f", 0, 0).report("from inside"); };
    report_at(2, "text");
    EXPECT_EQ(capture.text(), "source(12):: *** ERROR: text\ninner(1):: from inside\n");
}

TEST_F(ErrorDialog, that_cannot_be_started_gives_way_to_a_message_box) {
    desktop.answers = {answering_desktop::not_started()};
    report_at(2, "No such folder");
    EXPECT_THAT(desktop.message_boxes,
                ElementsAre("Tessaline: Cannot load error dialog. qlw_common.rc2 is probably not included.\n\n"
                            "No such folder"));
}

TEST_F(ErrorDialog, on_the_console_prints_its_title_and_its_text) {
    if (!platform::lives_on_the_console)
        GTEST_SKIP() << "errors are shown in windows here";
    trace_state().desktop = &trace_state().system_desktop;
    testing::internal::CaptureStderr();
    report_at(2, "No such\nfolder");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Tessaline - Error: No such\nfolder\n\n    (VER: SC26w - " +
                                                          in_capitals(platform::computer_name()) +
                                                          ")\n    Click More to send message to Support.\n");
}

TEST_F(ErrorDialog, the_console_never_silences_a_place) {
    if (!platform::lives_on_the_console)
        GTEST_SKIP() << "errors are shown in windows here";
    trace_state().desktop = &trace_state().system_desktop;
    testing::internal::CaptureStderr();
    report_at(2, "first");
    report_at(2, "second");
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("Tessaline - Error: second\n"));
    EXPECT_TRUE(trace_state().suppressed_sources.empty());
}

} // namespace
