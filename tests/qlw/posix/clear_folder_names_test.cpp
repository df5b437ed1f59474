// Which names of folders are refused on POSIX, and symbolic links.

#include "tests/qlw/clear_folder_fixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

// An ending that only the test's own files have: a broken rule then shows without harm to the machine.
constexpr const char* guard_ending = ".tessaline_guard";

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

} // namespace
