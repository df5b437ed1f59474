#include "tests/qlw/clear_folder_fixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

TEST_F(ClearFolder, deletes_all_files_and_leaves_inner_folders_alone_unless_told) {
    folder.write("a.txt", "");
    folder.write(".hidden", "");
    folder.write("inner/b.txt", "");
    clear_folder(folder.name(), false, "");
    EXPECT_THAT(left(), ElementsAre("inner/", "inner/b.txt"));
}

TEST_F(ClearFolder, recursive_deletes_the_files_of_inner_folders_and_keeps_the_folders) {
    folder.write("a.txt", "");
    folder.write("inner/b.txt", "");
    folder.write("inner/deep/c.txt", "");
    folder.make_folder("empty");
    clear_folder(folder.name(), true, "");
    EXPECT_THAT(left(), ElementsAre("empty/", "inner/", "inner/deep/"));
}

TEST_F(ClearFolder, an_extension_is_compared_without_case) {
    for (const char* name : {"a.JPG", "a.png", "b.jpg", "jpg", "inner/c.Jpg", "inner/c.txt"})
        folder.write(name, "");
    clear_folder(folder.name(), true, ".jpg");
    EXPECT_THAT(left(), ElementsAre("a.png", "inner/", "inner/c.txt", "jpg"));
}

TEST_F(ClearFolder, a_separator_at_the_end_and_doubled_ones_change_nothing) {
    folder.write("inner/a.txt", "");
    clear_folder(folder.name() + "//inner//", false, "");
    EXPECT_THAT(left(), ElementsAre("inner/"));
}

TEST_F(ClearFolder, a_folder_that_is_missing_is_cleared_without_a_word) {
    const trace_capture capture;
    clear_folder(folder / "missing", true, "");
    clear_folder_except(folder / "missing", "", {});
    EXPECT_EQ(capture.text(), "");
}

TEST_F(ClearFolder, a_file_that_cannot_be_deleted_is_passed_over) {
    folder.write("inner/a.txt", "");
    folder.write("z.txt", "");
    const trace_capture capture;
    clear_folder(folder.name() + "/inner/a.txt", true, ""); // a file is no folder
    EXPECT_THAT(left(), ElementsAre("inner/", "inner/a.txt", "z.txt"));
    EXPECT_EQ(capture.text(), "");
}

TEST_F(ClearFolder, except_keeps_files_whose_name_holds_a_kept_text) {
    for (const char* name : {"geometry.qlm", "my geometry.txt", "Geometry.txt", "a.txt", "inner/a.txt"})
        folder.write(name, "");
    clear_folder_except(folder.name(), "", {"geometry", "zzz"});
    EXPECT_THAT(left(), ElementsAre("geometry.qlm", "inner/", "inner/a.txt", "my geometry.txt"));
}

TEST_F(ClearFolder, except_deletes_only_files_with_the_extension) {
    for (const char* name : {"Zyn_Ground_Plane.qlobj", "Red.qlobj", "Blue.QLOBJ", "Red.OrnMaterial"})
        folder.write(name, "");
    clear_folder_except(folder.name(), "qlobj", {"Zyn_Ground_Plane", "Zyn%20Default%20Color"});
    EXPECT_THAT(left(), ElementsAre("Red.OrnMaterial", "Zyn_Ground_Plane.qlobj"));
}

TEST_F(ClearFolder, the_empty_name_is_refused) {
    expect_refusal("", "Folder to remove not set properly - name is blank");
}

TEST_F(ClearFolder, a_bare_word_is_refused_even_if_it_names_a_folder) {
    folder.write("batch/a.txt", "");
    const std::string before = platform::current_folder();
    std::filesystem::current_path(folder.name());
    expect_refusal("batch", "Cannot remove folder: 'batch'\n\nName must contain a backslash");
    std::filesystem::current_path(before);
    EXPECT_TRUE(folder.has("batch/a.txt"));
}

TEST_F(ClearFolder, the_iterator_gives_every_entry_once_in_the_order_of_the_names) {
    folder.write("b.txt", "12345");
    folder.write("a.txt", "");
    folder.make_folder("c");
    DIR entries;
    ASSERT_TRUE(entries.open(folder.name()));
    std::vector<std::string> seen;
    while (entries.next())
        seen.push_back(entries.full_name() + (entries.is_folder() ? "/ " : " ") + std::to_string(entries.size()));
    EXPECT_THAT(seen, ElementsAre((folder / "a.txt") + " 0", (folder / "b.txt") + " 5", (folder / "c") + "/ 0"));
    EXPECT_FALSE(entries.next());
    EXPECT_FALSE(entries.open(folder / "missing"));
    EXPECT_FALSE(entries.next());
}

} // namespace
