#include "qlw/qlw_trace.h"

#include "platform/platform.h"
#include "tests/support/matches_pattern.h"
#include "tests/support/trace_capture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

TEST(Trace, says_nothing_until_it_is_enabled) {
    const plain_trace_capture capture;
    trace_state().trace_enabled = false;
    cl_trace("source", 12, "function", 1, 0).report("text");
    EXPECT_EQ(capture.text(), "");
    trace_state().trace_enabled = true;
    cl_trace("source", 12, "function", 1, 0).report("text");
    EXPECT_EQ(capture.text(), "source(12):: REPORT: text\n");
}

TEST(Trace, a_message_stands_under_the_stem_of_the_file_that_holds_its_line) {
    const plain_trace_capture capture;
    cl_trace::here("any", trace_level::plain).report("a");
    cl_trace::here("any", trace_level::plain, "/a.b/c/lamps.cpp", 7).report("b");
    cl_trace::here("any", trace_level::plain, "C:\\a\\edge_lines.h", 8).report("c");
    cl_trace::here("any", trace_level::plain, "bare", 9).report("d");
    EXPECT_EQ(capture.text_without_line_numbers(),
              "qlw_trace_test(#):: a\nlamps(#):: b\nedge_lines(#):: c\nbare(#):: d\n");
}

TEST(Trace, a_plain_trace_carries_the_location_and_no_prefix) {
    const plain_trace_capture capture;
    cl_trace("qlw_std", 12, "clear_folder", 0, 0).report("folder %s has %d", "/a/b", 3);
    EXPECT_EQ(capture.text(), "qlw_std(12):: folder /a/b has 3\n");
}

TEST(Trace, levels_outside_the_dialog_have_their_own_prefix) {
    const plain_trace_capture capture;
    cl_trace("s", 1, "f", 10, 0).report("ten");
    cl_trace("s", 1, "f", 11, 0).report("eleven");
    cl_trace("s", 1, "f", -1, 0).report("below zero");
    EXPECT_EQ(capture.text(), "s(1):: LOG: ten\ns(1):: eleven\ns(1):: below zero\n");
}

TEST(Trace, without_a_line_the_file_stands_with_a_colon_and_no_number) {
    const plain_trace_capture capture;
    cl_trace("source", 0, "function", 0, 0).report("text");
    cl_trace("source", -1, "function", 0, 0).report("text");
    EXPECT_EQ(capture.text(), "source:: text\nsource:: text\n");
}

TEST(Trace, the_location_names_the_function_if_that_is_switched_on) {
    const plain_trace_capture capture;
    trace_state().show_function = true;
    cl_trace("source", 7, "function", 0, 0).report("text");
    cl_trace("source", 0, "function", 0, 0).report("text");
    EXPECT_EQ(capture.text(), "source(7): function():: text\nsource:: text\n");
}

TEST(Trace, a_ruby_source_in_compiled_form_is_shown_by_its_plain_name) {
    const plain_trace_capture capture;
    cl_trace("front.rbs", 7, "f", 0, 0).report("text");
    cl_trace("front.rbsx", 7, "f", 0, 0).report("text");
    EXPECT_EQ(capture.text(), "front.rb(7):: text\nfront.rbsx(7):: text\n");
}

TEST(Trace, a_plain_g_has_six_digits_and_an_explicit_precision_stays) {
    const plain_trace_capture capture;
    cl_trace("s", 1, "f", 0, 0).report("%g %g %.9g %lg", 0.123456789, 1.0, 0.123456789, 0.5);
    EXPECT_EQ(capture.text(), "s(1):: 0.123457 1 0.123456789 0.5\n");
}

TEST(Trace, a_format_with_too_few_arguments_is_reported_as_bad) {
    const plain_trace_capture capture;
    cl_trace("s", 1, "f", 1, 0).report("%d of %g", 1);
    EXPECT_EQ(capture.text(), "s(1):: REPORT: Cannot process apgn TRACE - bad format: %d of %g\n");
}

TEST(Trace, a_format_with_the_wrong_types_is_reported_as_bad) {
    const plain_trace_capture capture;
    cl_trace("s", 1, "f", 0, 0).report("%s", 1);
    EXPECT_EQ(capture.text(), "s(1):: Cannot process apgn TRACE - bad format: %s\n");
}

TEST(Trace, a_line_feed_at_the_end_is_not_doubled) {
    const plain_trace_capture capture;
    cl_trace("s", 1, "f", 0, 0).report("one\n");
    cl_trace("s", 1, "f", 0, 0).report("two");
    EXPECT_EQ(capture.text(), "s(1):: one\ns(1):: two\n");
}

TEST(Trace, an_object_inside_its_own_report_does_not_report_again) {
    const plain_trace_capture capture;
    cl_trace trace("s", 1, "f", 0, 0);
    trace.busy = true;
    trace.report("again");
    EXPECT_EQ(capture.text(), "");
    trace.busy = false;
    trace.report("once");
    EXPECT_FALSE(trace.busy);
    EXPECT_EQ(capture.text(), "s(1):: once\n");
}

TEST(Trace, a_written_line_empties_the_location_and_the_message) {
    const plain_trace_capture capture;
    cl_trace trace("s", 1, "f", 0, 5);
    trace.report("text");
    EXPECT_EQ(trace.source_file, "");
    EXPECT_EQ(trace.function, "");
    EXPECT_EQ(trace.message, "");
    EXPECT_EQ(trace.line, -1);
    EXPECT_EQ(trace.extra, 5);
    trace.report("text");
    EXPECT_EQ(capture.text(), "s(1):: text\n:: text\n");
}

TEST(Trace, objects_alive_are_counted) {
    const int before = trace_state().live_count;
    {
        const cl_trace one("s", 1, "f", 0, 0);
        const cl_trace two("s", 1, "f", 0, 0);
        EXPECT_EQ(trace_state().live_count, before + 2);
    }
    EXPECT_EQ(trace_state().live_count, before);
}

TEST(Trace, the_first_line_with_times_shows_no_time_elapsed) {
    const plain_trace_capture capture;
    trace_state().show_time = true;
    cl_trace("s", 1, "f", 0, 0).report("text");
    EXPECT_THAT(capture.text(), MatchesPattern("s\\(1\\):: \\(T: [0-9][0-9]:[0-9][0-9]:[0-9][0-9]: 0.00\\) text\n"));
}

TEST(Trace, a_line_soon_after_the_last_shows_the_seconds_between) {
    const plain_trace_capture capture;
    trace_state().show_time = true;
    trace_state().time_base = platform::seconds_since_epoch() - 1.5;
    cl_trace("s", 1, "f", 1, 0).report("text");
    EXPECT_THAT(capture.text(), MatchesPattern("s\\(1\\):: \\(T: .*: 1\\.5[0-9]\\) REPORT: text\n"));
}

TEST(Trace, a_line_after_two_and_a_half_seconds_of_silence_shows_the_delay) {
    const plain_trace_capture capture;
    trace_state().show_time = true;
    trace_state().time_base = platform::seconds_since_epoch() - 2.5;
    cl_trace("s", 1, "f", 0, 0).report("text");
    EXPECT_THAT(capture.text(),
                MatchesPattern("s\\(1\\):: \\(DELAY:    2\\.[56] secs: [0-9][0-9]:[0-9][0-9]:[0-9][0-9]\\) text\n"));
}

TEST(Trace, a_clock_that_was_set_back_counts_as_no_time) {
    const plain_trace_capture capture;
    trace_state().show_time = true;
    trace_state().time_base = platform::seconds_since_epoch() + 1000;
    cl_trace("s", 1, "f", 0, 0).report("text");
    EXPECT_THAT(capture.text(), MatchesPattern(".*\\(T: .*: 0\\.00\\) text\n"));
}

TEST(Trace, the_time_counts_from_the_last_line_even_if_that_showed_none) {
    const plain_trace_capture capture;
    trace_state().time_base = 1.0;
    cl_trace("s", 1, "f", 0, 0).report("text");
    EXPECT_NEAR(trace_state().time_base, platform::seconds_since_epoch(), 2.0);
}

TEST(Trace, the_memory_figure_is_in_millions_of_bytes) {
    const plain_trace_capture capture;
    trace_state().show_memory = true;
    cl_trace("s", 1, "f", 0, 0).report("text");
    EXPECT_THAT(capture.text(), MatchesPattern("s\\(1\\):: \\([0-9]+\\.[0-9]M\\) text\n"));
}

TEST(Trace, level_nine_is_silent_without_the_log_file) {
    const plain_trace_capture capture;
    cl_trace("s", 1, "f", 9, 0).report("text");
    EXPECT_EQ(capture.text(), "");
}

TEST(Trace, is_heard_while_its_lines_go_anywhere) {
    const plain_trace_capture capture;
    EXPECT_TRUE(traces_are_heard());
    trace_state().trace_enabled = false;
    EXPECT_FALSE(traces_are_heard());
    trace_state().trace_enabled = true;
    const with_environment nobody_listens("TESSALINE_TRACE", std::nullopt);
    EXPECT_EQ(traces_are_heard(), platform::debug_output_is_heard()); // no on POSIX; Windows does not tell
    trace_state().log_always = true;
    EXPECT_TRUE(traces_are_heard());
    trace_state().log_always = false;
    trace_state().error_list_active = true;
    EXPECT_TRUE(traces_are_heard());
}

TEST(Trace, the_extraction_log_is_closed) {
    EXPECT_FALSE(trace_state().extraction_log.is_open());
}

} // namespace
