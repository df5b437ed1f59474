// What a restored material file does to links, and the room that it takes on the disk.

#include "tests/tessaline/materials/edited_material_fixture.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

TEST_F(EditedMaterial, takes_the_place_of_a_link_and_leaves_alone_what_that_leads_to) {
    const std::string precious = folder.write("precious", "not ours");
    std::filesystem::create_symlink(precious, folder / "Brick.OrnMaterial");
    EXPECT_NE(restore(carried("41;1;x;", {{0, framed_hi}})), "");
    EXPECT_EQ(folder.read("Brick.OrnMaterial"), "Hi");
    EXPECT_EQ(folder.read("precious"), "not ours");
}

// A disk that knows no gaps would hold 97,656 blocks of 512 bytes.
TEST_F(EditedMaterial, a_frame_that_announces_50_megabytes_and_holds_none_makes_a_file_that_takes_no_room) {
    restore(carried("99999999;1;x;", {{0, "[ORNZyn Material Settings][99999999]-4869"}}));
    struct stat of_file {};
    ASSERT_EQ(stat((folder / "Brick.OrnMaterial").c_str(), &of_file), 0);
    EXPECT_EQ(of_file.st_size, 49999999);
    EXPECT_LT(of_file.st_blocks, 1000);
}

} // namespace
