// What the error dialog says and what its buttons do.

#include "qlw/error_dialog.h"

#include "platform/platform.h"
#include "qlw/qlw_trace.h"
#include "tests/support/answering_desktop.h"
#include "tests/support/trace_capture.h"
#include "text/letter_case.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using platform::error_dialog_kind;
using testing::EndsWith;
using testing::StartsWith;

const std::string version_line = "    (VER: SC26w - " + in_capitals(platform::computer_name()) + ")";

class DialogContent : public testing::Test {
protected:
    DialogContent() {
        dialog.message = "Cannot open\r\nthe file";
        dialog.location_text = "     (Error occurred in qlw_std line: 7)";
        dialog.source = {"qlw_std", 7, "clear_folder"};
    }

    trace_capture capture;
    answering_desktop desktop;
    cl_error_dialog dialog;
};

TEST_F(DialogContent, the_text_is_the_message_the_version_and_the_hint) {
    EXPECT_EQ(dialog.text(),
              "Cannot open\r\nthe file\r\n\r\n" + version_line + "\r\n    Click More to send message to Support.");
}

TEST_F(DialogContent, behind_more_the_location_stands_in_place_of_the_hint) {
    dialog.show_location = true;
    EXPECT_EQ(dialog.text(),
              "Cannot open\r\nthe file\r\n\r\n" + version_line + "\r\n         (Error occurred in qlw_std line: 7)");
}

TEST_F(DialogContent, a_lone_carriage_return_goes_and_a_lone_line_feed_gains_one) {
    dialog.plain_mode = true;
    dialog.message = "a\rb\nc\r\n\n";
    EXPECT_EQ(dialog.text(), "ab\r\nc\r\n\r\n");
}

TEST_F(DialogContent, the_title_names_the_application_and_the_error) {
    EXPECT_EQ(dialog.window_title(), "Tessaline - Error");
    dialog.title = "Conversion";
    EXPECT_EQ(dialog.window_title(), "Tessaline - Conversion");
    dialog.title.clear();
    EXPECT_EQ(dialog.window_title(), "Tessaline - Error");
}

TEST_F(DialogContent, in_plain_mode_the_title_stands_alone_and_the_application_is_the_last_resort) {
    dialog.plain_mode = true;
    EXPECT_EQ(dialog.window_title(), "Error");
    dialog.title.clear();
    EXPECT_EQ(dialog.window_title(), "Tessaline");
}

TEST_F(DialogContent, in_plain_mode_the_text_is_the_message_alone_and_there_is_no_check_box) {
    dialog.plain_mode = true;
    EXPECT_EQ(dialog.text(), "Cannot open\r\nthe file");
    dialog.run();
    ASSERT_EQ(desktop.shown.size(), 1u);
    EXPECT_FALSE(desktop.shown[0].offers_silence);
}

TEST_F(DialogContent, the_first_dialog_shows_title_and_text_and_offers_the_check_box) {
    EXPECT_TRUE(dialog.run());
    ASSERT_EQ(desktop.shown.size(), 1u);
    EXPECT_EQ(desktop.shown[0].kind, error_dialog_kind::message);
    EXPECT_EQ(desktop.shown[0].caption, "Tessaline - Error");
    EXPECT_EQ(desktop.shown[0].text, dialog.text());
    EXPECT_TRUE(desktop.shown[0].offers_silence);
}

TEST_F(DialogContent, ok_with_the_check_box_silences_the_place) {
    desktop.answers = {answering_desktop::ok_and_silence()};
    dialog.run();
    ASSERT_EQ(trace_state().suppressed_sources.size(), 1u);
    EXPECT_EQ(trace_state().suppressed_sources[0].source_file, "qlw_std");
    EXPECT_EQ(trace_state().suppressed_sources[0].line, 7);
    EXPECT_EQ(trace_state().suppressed_sources[0].function, "clear_folder");
}

TEST_F(DialogContent, ok_without_the_check_box_silences_nothing) {
    desktop.answers = {answering_desktop::ok()};
    dialog.run();
    EXPECT_TRUE(trace_state().suppressed_sources.empty());
}

TEST_F(DialogContent, more_opens_the_second_dialog_with_the_location) {
    desktop.answers = {answering_desktop::more()};
    dialog.run();
    ASSERT_EQ(desktop.shown.size(), 2u);
    EXPECT_EQ(desktop.shown[1].kind, error_dialog_kind::report);
    EXPECT_EQ(desktop.shown[1].caption, "Tessaline - Error");
    EXPECT_EQ(desktop.shown[1].text,
              "Cannot open\r\nthe file\r\n\r\n" + version_line + "\r\n         (Error occurred in qlw_std line: 7)");
}

TEST_F(DialogContent, more_does_not_look_at_the_check_box_but_ok_behind_it_does) {
    desktop.answers = {answering_desktop::more_and_silence(), answering_desktop::ok()};
    dialog.run();
    EXPECT_TRUE(trace_state().suppressed_sources.empty());
    desktop.answers = {answering_desktop::more(), answering_desktop::ok_and_silence()};
    dialog.run();
    ASSERT_EQ(trace_state().suppressed_sources.size(), 1u);
    EXPECT_EQ(trace_state().suppressed_sources[0].source_file, "qlw_std");
    EXPECT_EQ(trace_state().suppressed_sources[0].line, 7);
    EXPECT_EQ(trace_state().suppressed_sources[0].function, "clear_folder");
    EXPECT_TRUE(desktop.shown.back().offers_silence);
}

TEST_F(DialogContent, an_exception_in_the_second_dialog_is_traced_as_a_report_and_goes_no_further) {
    desktop.answers = {answering_desktop::more()};
    desktop.while_open = [this] {
        if (desktop.shown.size() == 2)
            throw std::runtime_error("no window");
    };
    EXPECT_TRUE(dialog.run());
    EXPECT_EQ(capture.text_without_line_numbers(),
              "error_dialog(#): do_modal_dialog():: REPORT: Error while running modal dialog: Error\n");
}

TEST_F(DialogContent, that_is_not_started_says_so_and_silences_nothing) {
    platform::error_dialog_answer answer = answering_desktop::not_started();
    answer.silences_place = true;
    desktop.answers = {answer};
    EXPECT_FALSE(dialog.run());
    EXPECT_TRUE(trace_state().suppressed_sources.empty());
}

TEST_F(DialogContent, copy_puts_message_location_and_report_on_the_clipboard) {
    desktop.answers = {answering_desktop::more()};
    desktop.copies_reports = true;
    dialog.run();
    EXPECT_THAT(desktop.clipboard, StartsWith("Cannot open\r\nthe file\r\n\r\n"
                                              "     (Error occurred in qlw_std line: 7)\r\n\r\n"
                                              "     #Date: '"));
    EXPECT_THAT(desktop.clipboard, EndsWith("     #SU Version: ''\r\n"));
}

TEST_F(DialogContent, the_report_of_plain_mode_has_no_location) {
    dialog.plain_mode = true;
    EXPECT_THAT(dialog.report(), StartsWith("Cannot open\r\nthe file\r\n\r\n     #Date: '"));
}

} // namespace
