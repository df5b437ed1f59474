// Names of files taken apart.

#include "tessaline/files/paths.h"

#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

TEST(Paths, the_bare_name_stands_behind_the_last_separator_of_either_platform) {
    EXPECT_EQ(bare_name_of("C:\\textures\\wall.jpg"), "wall.jpg");
    EXPECT_EQ(bare_name_of("/a/b\\c/wall.jpg"), "wall.jpg");
    EXPECT_EQ(bare_name_of("wall.jpg"), "wall.jpg");
    EXPECT_EQ(bare_name_of("a/"), "");
    EXPECT_EQ(bare_name_of(""), "");
}

TEST(Paths, the_extension_begins_with_the_last_dot_of_the_bare_name) {
    EXPECT_EQ(extension_of("C:\\a.b\\wall.x.jpg"), ".jpg");
    EXPECT_EQ(extension_of("/a.b/wall"), "");
    EXPECT_EQ(extension_of("C:\\a.b\\wall"), "");
    EXPECT_EQ(extension_of(".png"), ".png");
    EXPECT_EQ(extension_of("wall."), ".");
    EXPECT_EQ(extension_of(""), "");
}

TEST(Paths, a_file_is_neither_a_folder_nor_missing) {
    const temporary_folder folder;
    EXPECT_TRUE(is_file(folder.write("a.txt", "")));
    EXPECT_FALSE(is_file(folder.name()));
    EXPECT_FALSE(is_file(folder / "missing"));
    EXPECT_FALSE(is_file(""));
}

} // namespace
