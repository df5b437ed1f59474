// What the checker prints of texts that somebody else has chosen.

#include "tests/support/files_in_memory.h"
#include "tests/tools/small_batch.h"
#include "tools/batch_check/first_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace batch_check;
using testing::HasSubstr;
using testing::StartsWith;

TEST(FirstScreen, the_name_of_a_file_makes_no_line_of_its_own) {
    small_batch::files_by_name files = small_batch::still();
    files["ZynBatch_Lights/a\nerror fake: x"] = "";
    const batch_report report = check_batch(files_in_memory(files, small_batch::folder));
    EXPECT_EQ(finding_lines(report.found),
              "warning orphan: ZynBatch_Lights/a\\x0aerror fake: x: nothing refers to this file\n");
}

TEST(FirstScreen, names_of_the_folder_of_lamps_and_of_materials_make_no_line_and_no_control_sequence) {
    batch_report report;
    EXPECT_EQ(first_screen("room\nsound", report), "room\\x0asound: not a batch\n");
    report.is_batch = true;
    report.lamps_by_type["bulb\r\x7f"] = 1;
    report.stream.materials.push_back({"wall\x1b[2J.OrnMaterial", 10, 5, true});
    const std::string screen = first_screen("room\nsound", report);
    EXPECT_THAT(screen, StartsWith("room\\x0asound\nis it all there?\n"));
    EXPECT_THAT(screen, HasSubstr("\n  lamps               0: 1 bulb\\x0d\\x7f\n"));
    EXPECT_THAT(screen, HasSubstr("\n  triangles           5 of wall\\x1b[2J\n"));
}

} // namespace
