// A run on a disk that is full. A limit on the size of files, which the shell sets, stands for that.

#include "tests/batch/batch_runner.h"

#include <gtest/gtest.h>

namespace {

using namespace sketchup;

// The new text has thousands of bytes, the parent's some tens.
TEST(FullDisk, an_option_file_that_the_disk_has_no_room_for_keeps_what_the_parent_wrote) {
    batch b;
    model_builder m;
    m.root().square(10);
    b.put_model(m);
    const std::string parents = "# from the parent\nivl_resx; 800\n";
    b.put("option_globals.txt", parents);
    program_start start = b.start_with({}, b.folder());
    start.arguments = {"-c", "ulimit -f 4; trap '' XFSZ; exec \"$@\"", "sh", start.program, b / "geometry.qlm"};
    start.program = "/bin/sh";
    EXPECT_EQ(run_program(start).status, 0);
    EXPECT_EQ(b.read("option_globals.txt"), parents);
    EXPECT_TRUE(b.read("batch_file.txt").ends_with("END;\r\n"));
}

} // namespace
