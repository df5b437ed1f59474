#include "platform/platform.h"
#include "tests/support/environment.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

namespace {

std::string written_to_error(const std::function<void()>& action) {
    testing::internal::CaptureStderr();
    action();
    return testing::internal::GetCapturedStderr();
}

TEST(MessageBox, prints_title_and_text_as_one_line) {
    EXPECT_EQ(written_to_error([] { platform::message_box("sin", "/a/geometry.qlm"); }), "sin: /a/geometry.qlm\n");
}

TEST(MessageBox, prints_the_text_alone_without_a_title) {
    EXPECT_EQ(written_to_error([] { platform::message_box("", "text\n"); }), "text\n");
}

TEST(MessageBox, prints_an_empty_line_for_nothing) {
    EXPECT_EQ(written_to_error([] { platform::message_box("", ""); }), "\n");
}

TEST(DebugOutput, is_heard_if_it_is_asked_for) {
    for (const char* target : {"-", "trace.txt"}) {
        const with_environment trace("TESSALINE_TRACE", target);
        EXPECT_TRUE(platform::debug_output_is_heard());
    }
    for (const std::optional<std::string>& target : {std::optional<std::string>(), std::optional<std::string>("")}) {
        const with_environment trace("TESSALINE_TRACE", target);
        EXPECT_FALSE(platform::debug_output_is_heard());
    }
}

TEST(Console, what_standard_output_does_not_take_is_told) {
    const int kept = dup(STDOUT_FILENO);
    const int full = open("/dev/full", O_WRONLY);
    ASSERT_GE(full, 0);
    dup2(full, STDOUT_FILENO);
    const bool into_full = platform::write_standard_output("text");
    close(STDOUT_FILENO);
    const bool into_closed = platform::write_standard_output("text");
    const int nowhere = open("/dev/null", O_WRONLY); // in the place of the closed stream
    const bool into_nowhere = platform::write_standard_output("text");
    dup2(kept, STDOUT_FILENO);
    for (const int descriptor : {kept, full})
        close(descriptor);
    EXPECT_EQ(nowhere, STDOUT_FILENO);
    EXPECT_FALSE(into_full);
    EXPECT_FALSE(into_closed);
    EXPECT_TRUE(into_nowhere);
}

TEST(Console, a_pipe_is_no_terminal) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const int kept = dup(STDIN_FILENO);
    dup2(ends[0], STDIN_FILENO);
    EXPECT_FALSE(platform::is_terminal(platform::standard_stream::input));
    EXPECT_FALSE(platform::can_ask_for_file());
    EXPECT_FALSE(platform::ask_for_file_to_open({}).has_value());
    EXPECT_FALSE(platform::ask_for_file_to_save({}).has_value());
    dup2(kept, STDIN_FILENO);
    for (const int descriptor : {ends[0], ends[1], kept})
        close(descriptor);
}

TEST(Console, a_pseudo_terminal_is_a_terminal) {
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    if (terminal < 0 || grantpt(terminal) != 0 || unlockpt(terminal) != 0)
        GTEST_SKIP() << "no pseudo terminal here";
    const int inner = open(ptsname(terminal), O_RDWR | O_NOCTTY);
    ASSERT_GE(inner, 0);
    const int kept = dup(STDIN_FILENO);
    dup2(inner, STDIN_FILENO);
    EXPECT_TRUE(platform::is_terminal(platform::standard_stream::input));
    dup2(kept, STDIN_FILENO);
    for (const int descriptor : {terminal, inner, kept})
        close(descriptor);
}

} // namespace
