// Disks that take no more, and files that end before they should.

#include "tests/support/run_program.h"
#include "tests/support/temporary_folder.h"
#include "tools/page/page_text.h"
#include "tools/page/write_page.h"

#include <gtest/gtest.h>

namespace {

// Files may have so many blocks of 512 or 1024 bytes; the signal that would end the program is passed over.
program_result run_on_full_disk(const std::string& command) {
    return run_program({"/bin/sh", {"-c", "trap '' XFSZ; ulimit -f 1; exec " PROGRAMS "/" + command}});
}

const std::string stages_batch = std::string(TESSALINE_SOURCE_DIR) + "/examples/stages/expected";

TEST(FullDisk, leaves_no_picture_and_the_system_says_why) {
    const temporary_folder folder;
    const program_result seen =
        run_on_full_disk("batch-view " + stages_batch + " --png " + (folder / "a.png") + " --size 640x480");
    EXPECT_EQ(seen.status, 3);
    EXPECT_NE(seen.errors.find("a.png: cannot be written: File too large"), std::string::npos) << seen.errors;
    EXPECT_FALSE(folder.has("a.png"));
    EXPECT_FALSE(folder.has("a.png.part"));
}

TEST(FullDisk, leaves_no_page) {
    const temporary_folder folder;
    const program_result seen = run_on_full_disk("batch-view " + stages_batch + " -o " + (folder / "a.html"));
    EXPECT_EQ(seen.status, 3);
    EXPECT_NE(seen.errors, "");
    EXPECT_FALSE(folder.has("a.html"));
    EXPECT_FALSE(folder.has("a.html.part"));
    EXPECT_FALSE(folder.has("a.html.1.glb"));
}

// The system announces 4096 bytes for a file that has a few.
TEST(WritePage, a_model_that_ends_before_its_size_leaves_no_page) {
    const std::string short_file = "/sys/devices/system/cpu/online";
    if (page_text().empty() || platform::file_size(short_file) != 4096U)
        GTEST_SKIP() << "there is no page, or no such file";
    const temporary_folder folder;
    page_facts facts;
    facts.kind = "model";
    EXPECT_EQ(write_page(facts, short_file, folder / "a.html"), short_file + ": cannot be read to its end");
    EXPECT_FALSE(folder.has("a.html"));
    EXPECT_FALSE(folder.has("a.html.part"));
}

} // namespace
