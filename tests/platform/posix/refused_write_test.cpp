// What the trace says of disks that take nothing.

#include "platform/platform.h"
#include "tests/support/environment.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

TEST(RefusedWrite, a_full_disk_is_traced_with_the_name_and_the_reason) {
    const temporary_folder here;
    const with_environment traced("TESSALINE_TRACE", here / "trace.txt");
    const with_environment watched("TESSALINE_UNATTENDED", "1");
    platform::file full;
    ASSERT_TRUE(full.open("/dev/full", platform::open_mode::write));
    EXPECT_FALSE(full.write_all("bytes"));
    EXPECT_EQ(full.failure(), "No space left on device");
    EXPECT_EQ(here.read("trace.txt"), "file:: REPORT: Cannot write /dev/full: No space left on device\n");
}

TEST(RefusedWrite, a_full_disk_is_not_traced_where_somebody_sits_before_the_program) {
    const temporary_folder here;
    const with_environment traced("TESSALINE_TRACE", here / "trace.txt");
    const with_environment watched("TESSALINE_UNATTENDED", "");
    platform::file full;
    ASSERT_TRUE(full.open("/dev/full", platform::open_mode::write));
    EXPECT_FALSE(full.write_all("bytes"));
    EXPECT_FALSE(here.has("trace.txt"));
}

TEST(RefusedWrite, a_name_that_cannot_be_is_not_traced_as_callers_try_another) {
    const temporary_folder here;
    const with_environment traced("TESSALINE_TRACE", here / "trace.txt");
    const with_environment watched("TESSALINE_UNATTENDED", "1");
    platform::file file;
    EXPECT_FALSE(file.open(here / std::string(300, 'x'), platform::open_mode::write));
    EXPECT_FALSE(file.open(here / "missing/file", platform::open_mode::write));
    EXPECT_FALSE(platform::make_folder(here.name()));
    EXPECT_FALSE(here.has("trace.txt"));
}

TEST(RefusedWrite, a_trace_on_a_full_disk_ends_there) {
    const with_environment traced("TESSALINE_TRACE", "/dev/full");
    platform::debug_output("nobody hears this\n");
}

} // namespace
