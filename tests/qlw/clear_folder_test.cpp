#include "qlw/qlw_std.h"
#include "tests/support/trace_capture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

namespace {

using testing::ElementsAre;

class ClearFolder : public testing::Test {
protected:
    // What stands in the folder, folders with a separator behind them, in the order of the names.
    std::vector<std::string> left() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.name())) {
            std::string name = entry.path().string().substr(folder.name().size() + 1);
            names.push_back(entry.is_directory() && !entry.is_symlink() ? name + "/" : name);
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    // What the user is told while a folder is being cleared.
    static std::string told(const std::function<void()>& action) {
        testing::internal::CaptureStderr();
        action();
        const std::string text = testing::internal::GetCapturedStderr();
        return text.substr(0, text.find("\n\n    (VER: "));
    }

    // Both operations refuse the name with that message and say so under their own name.
    static void expect_refusal(const std::string& name, const std::string& message, const std::string& ending = "") {
        const trace_capture capture;
        EXPECT_EQ(told([&] { clear_folder(name, true, ending); }), "Tessaline - Error: " + message);
        EXPECT_EQ(told([&] { clear_folder_except(name, ending, {}); }), "Tessaline - Error: " + message);
        EXPECT_EQ(capture.text_without_line_numbers(), "qlw_std(#): clear_folder():: *** ERROR: " + message + "\n" +
                                                           "qlw_std(#): clear_folder_except():: *** ERROR: " + message +
                                                           "\n");
    }

    temporary_folder folder;
};

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

TEST_F(ClearFolder, links_inside_are_deleted_and_never_followed) {
    const temporary_folder other;
    other.write("precious.txt", "");
    other.write("deep/precious.txt", "");
    std::filesystem::create_symlink(other.name(), folder / "to_folder");
    std::filesystem::create_symlink(other / "precious.txt", folder / "to_file");
    std::filesystem::create_symlink("nowhere", folder / "broken");
    folder.make_folder("inner");
    std::filesystem::create_symlink(other / "deep", folder / "inner/to_folder");
    clear_folder(folder.name(), true, "");
    EXPECT_THAT(left(), ElementsAre("inner/"));
    EXPECT_TRUE(other.has("precious.txt"));
    EXPECT_TRUE(other.has("deep/precious.txt"));
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
    ASSERT_EQ(chdir(folder.name().c_str()), 0);
    expect_refusal("batch", "Cannot remove folder: 'batch'\n\nName must contain a backslash");
    ASSERT_EQ(chdir(before.c_str()), 0);
    EXPECT_TRUE(folder.has("batch/a.txt"));
}

// An ending that only the test's own files have: a broken rule then shows without harm to the machine.
constexpr const char* guard_ending = ".tessaline_guard";

TEST_F(ClearFolder, the_root_and_a_folder_in_it_are_refused) {
    const std::string top = *platform::real_name(folder.name());
    const std::string below_root = top.substr(0, top.find('/', 1));
    folder.write("a.tessaline_guard", "");
    for (const std::string& name : {std::string("/"), below_root, below_root + "/", below_root + "/.."})
        expect_refusal(name,
                       "Cannot remove folder: '" + name +
                           "'\n\nName must contain a file path name and name cannot be an entire drive.",
                       guard_ending);
    EXPECT_TRUE(folder.has("a.tessaline_guard"));
}

TEST_F(ClearFolder, a_name_that_leads_to_a_folder_of_the_root_by_a_link_is_refused) {
    folder.write("a.tessaline_guard", "");
    std::filesystem::create_symlink("/", folder / "root");
    const std::string name = folder / "root/tmp";
    expect_refusal(name,
                   "Cannot remove folder: '" + name +
                       "'\n\nName must contain a file path name and name cannot be an entire drive.",
                   guard_ending);
    EXPECT_TRUE(folder.has("a.tessaline_guard"));
}

TEST_F(ClearFolder, the_home_folder_is_refused_but_not_a_folder_inside) {
    const with_environment home("HOME", folder / "ann");
    folder.write("ann/letter.txt", "");
    folder.write("ann/batch/a.txt", "");
    expect_refusal(folder / "ann", "Cannot remove folder: '" + (folder / "ann") + "'\n\nName is the home folder");
    expect_refusal(folder / "ann/batch/..",
                   "Cannot remove folder: '" + (folder / "ann/batch/..") + "'\n\nName is the home folder");
    EXPECT_THAT(left(), ElementsAre("ann/", "ann/batch/", "ann/batch/a.txt", "ann/letter.txt"));
    clear_folder(folder / "ann/batch", true, "");
    EXPECT_THAT(left(), ElementsAre("ann/", "ann/batch/", "ann/letter.txt"));
}

TEST_F(ClearFolder, a_link_to_a_folder_is_refused_whatever_stands_behind_its_name) {
    folder.write("real/a.txt", "");
    std::filesystem::create_symlink("real", folder / "link");
    for (const char* ending : {"", "/", "/."})
        expect_refusal(folder / "link" + ending,
                       "Cannot remove folder: '" + (folder / "link") + ending + "'\n\nName is a symbolic link");
    EXPECT_THAT(left(), ElementsAre("link", "real/", "real/a.txt"));
}

TEST_F(ClearFolder, a_refusal_holds_while_tracing_is_off) {
    folder.write("a.txt", "");
    const with_environment home("HOME", folder.name());
    clear_folder(folder.name(), true, "");
    EXPECT_THAT(left(), ElementsAre("a.txt"));
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
