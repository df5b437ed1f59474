#include "platform/platform.h"
#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace {

using testing::ElementsAre;

TEST(FileSystem, tells_files_and_folders_apart) {
    const temporary_folder folder;
    const std::string file = folder.write("a.txt", "abc");
    const std::string inner = folder.make_folder("inner");
    EXPECT_TRUE(platform::exists(file));
    EXPECT_FALSE(platform::is_folder(file));
    EXPECT_TRUE(platform::exists(inner));
    EXPECT_TRUE(platform::is_folder(inner));
    EXPECT_FALSE(platform::is_symbolic_link(inner));
    EXPECT_FALSE(platform::exists(folder / "missing"));
    EXPECT_FALSE(platform::exists(""));
}

TEST(Names, are_put_together_with_one_separator) {
    const std::string folder = with_own_separators("/a");
    EXPECT_EQ(platform::joined(folder, "b"), with_own_separators("/a/b"));
    EXPECT_EQ(platform::joined(folder + platform::path_separator, "b"), with_own_separators("/a/b"));
    EXPECT_EQ(platform::joined(with_own_separators("/"), "b"), with_own_separators("/b"));
    EXPECT_EQ(platform::joined("", "b"), "b");
}

TEST(Names, are_taken_apart_at_the_last_separator) {
    const std::string name = with_own_separators("/a/b.skp");
    EXPECT_EQ(platform::last_part(name), "b.skp");
    EXPECT_EQ(platform::last_part("b.skp"), "b.skp");
    EXPECT_EQ(platform::last_part(with_own_separators("/a/")), "");
    EXPECT_EQ(platform::last_part("C:b\\c/d"), "d");
    EXPECT_EQ(platform::last_part("C:d"), platform::has_drive_letters ? "d" : "C:d");
    EXPECT_EQ(platform::parent_of(name), with_own_separators("/a"));
    EXPECT_EQ(platform::parent_of(with_own_separators("/a")), "");
    EXPECT_EQ(platform::parent_of("a"), "");
}

TEST(FileSystem, makes_a_folder_with_those_above_it_and_tells_which_were_missing) {
    const temporary_folder folder;
    folder.make_folder("a");
    const platform::made_folders made = platform::make_folders(folder / "a/b/c");
    EXPECT_TRUE(made.is_there);
    EXPECT_THAT(made.made, ElementsAre(folder / "a/b", folder / "a/b/c"));
    EXPECT_TRUE(platform::is_folder(folder / "a/b/c"));
    const platform::made_folders again = platform::make_folders(folder / "a/b/c");
    EXPECT_TRUE(again.is_there);
    EXPECT_TRUE(again.made.empty());
}

TEST(FileSystem, no_folder_is_made_in_a_file_or_in_place_of_one) {
    const temporary_folder folder;
    folder.write("a", "a file");
    EXPECT_FALSE(platform::make_folders(folder / "a").is_there);
    EXPECT_FALSE(platform::make_folders(folder / "a/b").is_there);
    EXPECT_EQ(folder.read("a"), "a file");
}

TEST(FileSystem, clears_a_folder_but_for_one_file_of_its_own) {
    const temporary_folder folder;
    folder.write("kept", "a");
    folder.write("gone", "b");
    folder.write("inner/kept", "c");
    folder.make_folder("inner/deep/empty");
    EXPECT_TRUE(platform::clear_folder(folder.name(), "kept"));
    EXPECT_EQ(folder.read("kept"), "a");
    EXPECT_FALSE(folder.has("gone"));
    EXPECT_FALSE(folder.has("inner"));
    EXPECT_TRUE(platform::clear_folder(folder.name()));
    EXPECT_FALSE(folder.has("kept"));
    EXPECT_FALSE(platform::clear_folder(folder / "missing"));
}

TEST(FileSystem, gives_the_size_of_plain_files_only) {
    const temporary_folder folder;
    EXPECT_EQ(platform::file_size(folder.write("a.txt", "abc")), 3u);
    EXPECT_FALSE(platform::file_size(folder.name()).has_value());
    EXPECT_FALSE(platform::file_size(folder / "missing").has_value());
}

TEST(FileSystem, lists_a_folder_in_the_order_of_the_names_without_the_dots) {
    const temporary_folder folder;
    folder.write("b.txt", "12345");
    folder.write("A.txt", "");
    folder.make_folder("c");
    folder.write("a_.txt", "");
    const auto entries = platform::list_folder(folder.name());
    ASSERT_TRUE(entries.has_value());
    std::vector<std::string> seen;
    for (const auto& entry : *entries)
        seen.push_back(entry.name + (entry.is_folder ? " folder " : " file ") + std::to_string(entry.size));
    EXPECT_THAT(seen, ElementsAre("A.txt file 0", "a_.txt file 0", "b.txt file 5", "c folder 0"));
}

TEST(FileSystem, a_folder_that_is_missing_has_no_list_and_an_empty_one_an_empty_list) {
    const temporary_folder folder;
    EXPECT_FALSE(platform::list_folder(folder / "missing").has_value());
    EXPECT_FALSE(platform::list_folder(folder.write("a.txt", "")).has_value());
    ASSERT_TRUE(platform::list_folder(folder.make_folder("empty")).has_value());
    EXPECT_TRUE(platform::list_folder(folder / "empty")->empty());
}

TEST(FileSystem, makes_one_folder_at_a_time) {
    const temporary_folder folder;
    EXPECT_FALSE(platform::make_folder(folder / "a/b"));
    EXPECT_TRUE(platform::make_folder(folder / "a"));
    EXPECT_FALSE(platform::make_folder(folder / "a"));
    EXPECT_TRUE(platform::make_folder(folder / "a/b"));
    EXPECT_TRUE(platform::is_folder(folder / "a/b"));
}

TEST(FileSystem, a_unique_folder_is_new_and_empty) {
    const temporary_folder folder;
    const auto first = platform::make_unique_folder(folder / "a_");
    const auto second = platform::make_unique_folder(folder / "a_");
    ASSERT_TRUE(first && second);
    EXPECT_NE(*first, *second);
    for (const std::string& name : {*first, *second}) {
        EXPECT_TRUE(name.starts_with(folder / "a_"));
        EXPECT_EQ(name.size(), (folder / "a_").size() + 6);
        EXPECT_EQ(platform::list_folder(name)->size(), 0u);
    }
    EXPECT_FALSE(platform::make_unique_folder(folder / "missing/a_").has_value());
}

TEST(FileSystem, unique_folders_that_come_and_go_at_once_never_fail_one_another) {
    const temporary_folder folder;
    std::atomic<int> made = 0;
    const auto make_and_remove = [&] {
        for (int i = 0; i < 300; ++i)
            if (const auto name = platform::make_unique_folder(folder / "a_"))
                made += std::filesystem::remove(*name) ? 1 : 0;
    };
    {
        std::vector<std::jthread> makers;
        for (int i = 0; i < 4; ++i)
            makers.emplace_back(make_and_remove);
    }
    EXPECT_EQ(made, 4 * 300);
    EXPECT_TRUE(platform::list_folder(folder.name())->empty());
}

TEST(FileSystem, deletes_files_but_no_folders) {
    const temporary_folder folder;
    folder.write("inner/a.txt", "");
    EXPECT_FALSE(platform::delete_file(folder / "inner"));
    EXPECT_TRUE(folder.has("inner"));
    EXPECT_TRUE(platform::delete_file(folder / "inner/a.txt"));
    EXPECT_FALSE(platform::delete_file(folder / "inner/a.txt"));
}

TEST(FileSystem, a_rename_replaces_the_old_file) {
    const temporary_folder folder;
    folder.write("new", "new text");
    folder.write("old", "old text");
    EXPECT_TRUE(platform::rename_replacing(folder / "new", folder / "old"));
    EXPECT_EQ(folder.read("old"), "new text");
    EXPECT_FALSE(folder.has("new"));
    EXPECT_FALSE(platform::rename_replacing(folder / "new", folder / "old"));
}

} // namespace
