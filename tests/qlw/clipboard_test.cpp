#include "qlw/clipboard.h"

#include "tests/support/answering_desktop.h"
#include "tests/support/trace_capture.h"

#include <gtest/gtest.h>

namespace {

using platform::clipboard_result;

class CopyToClipboard : public testing::Test {
protected:
    // What is traced of a copy that ends so.
    std::string traced_after(clipboard_result result) {
        desktop.clipboard_answer = result;
        copy_to_clipboard("text");
        return capture.text_without_line_numbers();
    }

    trace_capture capture;
    answering_desktop desktop;
};

TEST_F(CopyToClipboard, hands_the_text_over_without_a_word) {
    EXPECT_EQ(traced_after(clipboard_result::done), "");
    EXPECT_EQ(desktop.clipboard, "text");
    EXPECT_TRUE(desktop.shown.empty());
}

TEST_F(CopyToClipboard, tells_the_user_that_there_is_no_memory) {
    EXPECT_EQ(traced_after(clipboard_result::no_memory),
              "qlw_std(#): copy_to_clipboard():: *** ERROR: Cannot copy text to clipboard - Cannot allocate memory.\n");
    EXPECT_EQ(desktop.shown.size(), 1u);
}

TEST_F(CopyToClipboard, tells_the_user_that_the_clipboard_does_not_open) {
    EXPECT_EQ(traced_after(clipboard_result::cannot_open),
              "qlw_std(#): copy_to_clipboard():: *** ERROR: Cannot copy text to clipboard - Cannot open Windows "
              "clipboard - perhaps another application is using the clipboard.\n");
    EXPECT_EQ(desktop.shown.size(), 1u);
}

TEST_F(CopyToClipboard, tells_the_user_that_the_clipboard_takes_no_text) {
    EXPECT_EQ(
        traced_after(clipboard_result::cannot_put),
        "qlw_std(#): copy_to_clipboard():: *** ERROR: Cannot copy text to clipboard - Cannot put text on clipboard\n");
    EXPECT_EQ(desktop.shown.size(), 1u);
}

} // namespace
