#include "tools/command_line/within_memory.h"

#include <gtest/gtest.h>

#include <new>
#include <vector>

namespace {

TEST(WithinMemory, the_status_is_that_of_the_work) {
    EXPECT_EQ(within_memory("tool", [] { return 7; }), 7);
}

TEST(WithinMemory, work_that_runs_out_of_memory_ends_with_3_and_a_line) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(within_memory("tool", []() -> int { throw std::bad_alloc(); }), 3);
    EXPECT_EQ(within_memory("tool", [] { return static_cast<int>(std::vector<int>(~std::size_t{0}).size()); }), 3);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "tool: there is not enough memory\n"
                                                      "tool: there is not enough memory\n");
}

} // namespace
