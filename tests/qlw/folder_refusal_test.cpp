#include "qlw/folder_refusal.h"

#include <gtest/gtest.h>

namespace {

const std::string accepted;

std::string windows(const std::string& name) {
    return folder_refusal(name, path_rules::windows, {});
}

std::string posix(const std::string& name, folder_facts facts = {}) {
    if (facts.real_name.empty())
        facts.real_name = name;
    if (facts.home.empty())
        facts.home = "/home/ann";
    return folder_refusal(name, path_rules::posix, facts);
}

std::string not_a_drive(const std::string& name) {
    return "Cannot remove folder: '" + name +
           "'\n\nName must contain a file path name and name cannot be an entire drive.";
}

std::string no_share_folder(const std::string& name) {
    return "Cannot remove folder: '" + name + "'\n\nNetwork path must have drive name and a folder";
}

TEST(WindowsFolderRules, the_empty_name_is_refused) {
    EXPECT_EQ(windows(""), "Folder to remove not set properly - name is blank");
}

TEST(WindowsFolderRules, a_bare_word_is_refused) {
    EXPECT_EQ(windows("batch"), "Cannot remove folder: 'batch'\n\nName must contain a backslash");
}

TEST(WindowsFolderRules, a_drive_is_refused_with_and_without_its_backslash) {
    EXPECT_EQ(windows("C:"), "Cannot remove folder: 'C:'\n\nName must contain a backslash");
    EXPECT_EQ(windows("C:\\"), "Cannot remove folder: 'C:\\'\n\nName is a drive letter with no path");
    EXPECT_EQ(windows("C:/"), "Cannot remove folder: 'C:\\'\n\nName is a drive letter with no path");
    EXPECT_EQ(windows("C:\\\\"), "Cannot remove folder: 'C:\\'\n\nName is a drive letter with no path");
}

TEST(WindowsFolderRules, a_folder_on_a_drive_is_accepted) {
    EXPECT_EQ(windows("C:\\batch"), accepted);
    EXPECT_EQ(windows("c:/users/ann/batch/"), accepted);
    EXPECT_EQ(windows("C:\\a"), accepted);
}

TEST(WindowsFolderRules, a_name_of_neither_form_is_refused) {
    EXPECT_EQ(windows("\\batch"), not_a_drive("\\batch"));
    EXPECT_EQ(windows("a\\b"), not_a_drive("a\\b"));
    EXPECT_EQ(windows("C:a\\b"), not_a_drive("C:a\\b"));
    EXPECT_EQ(windows("\\"), not_a_drive("\\"));
}

TEST(WindowsFolderRules, a_network_name_without_a_folder_is_refused) {
    for (const char* name : {"\\\\", "\\\\host", "\\\\host\\", "\\\\host\\share", "\\\\host\\share\\", "\\\\h\\s\\"})
        EXPECT_EQ(windows(name), no_share_folder(name)) << name;
}

TEST(WindowsFolderRules, a_network_name_with_a_folder_is_accepted) {
    EXPECT_EQ(windows("\\\\host\\share\\batch"), accepted);
    EXPECT_EQ(windows("//host/share/batch"), accepted);
    EXPECT_EQ(windows("\\\\h\\s\\b"), accepted);
}

TEST(WindowsFolderRules, doubled_backslashes_hide_no_missing_folder) {
    EXPECT_EQ(windows("\\\\host\\share\\\\"), no_share_folder("\\\\host\\share\\"));
}

// Pairs fold first, so what is refused is the folded name. A name of the host, the share or the folder that is missing
// leaves two backslashes side by side.
TEST(WindowsFolderRules, a_network_name_with_a_piece_missing_inside_is_refused) {
    EXPECT_EQ(windows("\\\\\\\\s\\b"), no_share_folder("\\\\\\s\\b"));
    EXPECT_EQ(windows("\\\\h\\\\\\\\b"), no_share_folder("\\\\h\\\\b"));
    EXPECT_EQ(windows("\\\\host\\share\\\\\\\\b"), no_share_folder("\\\\host\\share\\\\b"));
}

TEST(WindowsSeparators, slashes_turn_and_pairs_fold_behind_the_first_character) {
    EXPECT_EQ(with_fixed_separators("a/b\\\\c//d", path_rules::windows), "a\\b\\c\\d");
    EXPECT_EQ(with_fixed_separators("//host/share", path_rules::windows), "\\\\host\\share");
    EXPECT_EQ(with_fixed_separators("\\\\\\\\a", path_rules::windows), "\\\\\\a"); // 1 + (3 folded to 2)
    EXPECT_EQ(with_fixed_separators("a\\\\\\\\b", path_rules::windows), "a\\\\b"); // each pair becomes one
    EXPECT_EQ(with_fixed_separators("", path_rules::windows), "");
}

TEST(PosixSeparators, doubled_slashes_fold_and_a_backslash_is_a_letter) {
    EXPECT_EQ(with_fixed_separators("//a///b\\\\c/", path_rules::posix), "/a/b\\\\c/");
}

TEST(PosixFolderRules, the_empty_name_is_refused) {
    EXPECT_EQ(posix(""), "Folder to remove not set properly - name is blank");
}

TEST(PosixFolderRules, a_bare_word_is_refused) {
    EXPECT_EQ(posix("batch", {"/home/ann/batch", "", false}),
              "Cannot remove folder: 'batch'\n\nName must contain a backslash");
    EXPECT_EQ(posix("a\\b", {"/home/ann/a\\b", "", false}),
              "Cannot remove folder: 'a\\b'\n\nName must contain a backslash");
}

TEST(PosixFolderRules, the_root_and_what_lies_directly_in_it_are_refused) {
    for (const char* name : {"/", "/tmp", "/tmp/", "/.", "/./tmp/.", "/a/..", "/a/../tmp", "/..", "/../tmp", "/a/b/.."})
        EXPECT_EQ(posix(name), not_a_drive(name)) << name;
    EXPECT_EQ(posix("//tmp"), not_a_drive("/tmp"));
}

TEST(PosixFolderRules, a_name_that_leads_to_the_root_by_links_or_dots_is_refused) {
    EXPECT_EQ(posix("/home/ann/root", {"/", "", false}), not_a_drive("/home/ann/root"));
    EXPECT_EQ(posix("/home/ann/root/tmp", {"/tmp", "", false}), not_a_drive("/home/ann/root/tmp"));
    EXPECT_EQ(posix("../..", {"/", "", false}), not_a_drive("../.."));
}

TEST(PosixFolderRules, the_home_folder_is_refused_under_any_name) {
    EXPECT_EQ(posix("/home/ann"), "Cannot remove folder: '/home/ann'\n\nName is the home folder");
    EXPECT_EQ(posix("./", {"/home/ann", "", false}), "Cannot remove folder: './'\n\nName is the home folder");
}

TEST(PosixFolderRules, a_link_is_refused) {
    EXPECT_EQ(posix("/home/ann/link", {"/data/ann/batch", "", true}),
              "Cannot remove folder: '/home/ann/link'\n\nName is a symbolic link");
}

TEST(PosixFolderRules, a_folder_two_levels_down_is_accepted) {
    EXPECT_EQ(posix("/tmp/batch"), accepted);
    EXPECT_EQ(posix("/home/ann/batch/"), accepted);
    EXPECT_EQ(posix("models/batch", {"/home/ann/models/batch", "", false}), accepted);
    EXPECT_EQ(posix("/home/ann/../bob/batch", {"/home/bob/batch", "", false}), accepted);
}

} // namespace
