#include "qlw/suppression_list.h"

#include "qlw/qlw_trace.h"
#include "tests/support/trace_capture.h"

#include <gtest/gtest.h>

namespace {

class SuppressionList : public testing::Test {
protected:
    static bool is_suppressed(const char* source_file, int line, const char* function) {
        return is_source_suppressed(cl_trace(source_file, line, function, 2, 0));
    }

    trace_capture capture; // empties the list before and after
};

TEST_F(SuppressionList, is_empty_at_the_start) {
    EXPECT_FALSE(is_suppressed("qlw_std", 7, "clear_folder"));
}

TEST_F(SuppressionList, holds_a_place_by_source_file_and_line_and_ignores_the_function) {
    add_suppressed_source({"qlw_std", 7, "clear_folder"});
    EXPECT_TRUE(is_suppressed("qlw_std", 7, "clear_folder"));
    EXPECT_TRUE(is_suppressed("qlw_std", 7, "another"));
    EXPECT_FALSE(is_suppressed("qlw_std", 8, "clear_folder"));
    EXPECT_FALSE(is_suppressed("Tessaline", 7, "clear_folder"));
}

TEST_F(SuppressionList, compares_source_files_exactly) {
    add_suppressed_source({"qlw_std", 7, {}});
    EXPECT_FALSE(is_suppressed("QLW_STD", 7, ""));
    EXPECT_FALSE(is_suppressed("qlw_std ", 7, ""));
}

TEST_F(SuppressionList, keeps_every_place_that_was_added) {
    for (int line = 1; line <= 100; line++)
        add_suppressed_source({"qlw_std", line, {}});
    EXPECT_TRUE(is_suppressed("qlw_std", 1, ""));
    EXPECT_TRUE(is_suppressed("qlw_std", 100, ""));
    EXPECT_FALSE(is_suppressed("qlw_std", 101, ""));
}

} // namespace
