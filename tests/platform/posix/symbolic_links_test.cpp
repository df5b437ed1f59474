// Symbolic links, and names as POSIX has them.

#include "platform/platform.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

TEST(SymbolicLinks, tells_files_folders_and_links_apart) {
    const temporary_folder folder;
    const std::string file = folder.write("a.txt", "abc");
    const std::string inner = folder.make_folder("inner");
    std::filesystem::create_symlink("inner", folder / "link");
    std::filesystem::create_symlink("nothing", folder / "broken");

    EXPECT_TRUE(platform::exists(file));
    EXPECT_FALSE(platform::is_folder(file));
    EXPECT_TRUE(platform::is_folder(inner));
    EXPECT_TRUE(platform::is_folder(folder / "link"));
    EXPECT_TRUE(platform::is_symbolic_link(folder / "link"));
    EXPECT_FALSE(platform::is_symbolic_link(inner));
    EXPECT_FALSE(platform::exists(folder / "broken"));
    EXPECT_TRUE(platform::is_symbolic_link(folder / "broken"));
    EXPECT_FALSE(platform::exists(""));
}

TEST(SymbolicLinks, a_real_name_has_no_links_and_no_dots) {
    const temporary_folder folder;
    folder.make_folder("inner/deep");
    std::filesystem::create_symlink("inner", folder / "link");
    EXPECT_EQ(platform::real_name(folder / "link/deep/.."), platform::real_name(folder / "inner"));
    EXPECT_FALSE(platform::real_name(folder / "missing").has_value());
    EXPECT_FALSE(platform::real_name("").has_value());
}

TEST(PosixNames, an_absolute_name_folds_doubled_separators_and_changes_nothing_else) {
    EXPECT_EQ(platform::absolute_name("//a///b\\c/../d/"), "/a/b\\c/../d/");
    EXPECT_EQ(platform::absolute_name("x//y"), platform::current_folder() + "/x/y");
    EXPECT_EQ(platform::absolute_name(""), "");
}

TEST(SymbolicLinks, are_deleted_and_what_they_lead_to_stays) {
    const temporary_folder folder;
    folder.write("inner/a.txt", "");
    std::filesystem::create_symlink("inner", folder / "link");
    EXPECT_TRUE(platform::delete_file(folder / "link"));
    EXPECT_FALSE(folder.has("link"));
    EXPECT_TRUE(folder.has("inner/a.txt"));
}

TEST(SymbolicLinks, are_no_folders_in_a_list) {
    const temporary_folder folder;
    folder.make_folder("c");
    std::filesystem::create_symlink("c", folder / "d");
    const auto entries = platform::list_folder(folder.name());
    ASSERT_TRUE(entries && entries->size() == 2);
    EXPECT_EQ(entries->at(1).name, "d");
    EXPECT_TRUE(entries->at(1).is_symbolic_link);
    EXPECT_FALSE(entries->at(1).is_folder);
    EXPECT_EQ(entries->at(1).size, 0u);
}

TEST(PosixNames, differ_if_their_case_does) {
    const temporary_folder folder;
    folder.write("b.txt", "12345");
    folder.write("B.txt", "");
    EXPECT_EQ(platform::list_folder(folder.name())->at(0).name, "B.txt");
    EXPECT_EQ(platform::list_folder(folder.name())->at(1).name, "b.txt");
}

TEST(PosixNames, a_unique_folder_is_for_this_user_only) {
    const temporary_folder folder;
    const auto made = platform::make_unique_folder(folder / "a_");
    ASSERT_TRUE(made);
    EXPECT_EQ(std::filesystem::status(*made).permissions(), std::filesystem::perms::owner_all);
}

} // namespace
