#include "qlw/qlw_std.h"
#include "tests/support/shown_to_user.h"
#include "tests/support/trace_capture.h"

#include <gtest/gtest.h>

namespace {

class with_application_folder {
public:
    explicit with_application_folder(const std::string& folder) { application_folder = folder; }
    with_application_folder(const with_application_folder&) = delete;
    with_application_folder& operator=(const with_application_folder&) = delete;
    ~with_application_folder() { application_folder.clear(); }
};

std::string told(const std::function<void()>& action) {
    const std::string text = shown_to_user(action);
    return text.substr(0, text.find("\n\n    (VER: "));
}

TEST(PathSeparators, are_folded_in_place) {
    std::string path = "/a//b/c";
    fix_path_separators(path);
    EXPECT_EQ(path, with_own_separators("/a/b/c"));
}

TEST(PathExists, takes_files_and_folders_with_or_without_one_separator_at_the_end) {
    const temporary_folder folder;
    const std::string file = folder.write("a.txt", "");
    EXPECT_TRUE(path_exists(file));
    EXPECT_TRUE(path_exists(file + "/"));
    EXPECT_TRUE(path_exists(folder.name()));
    EXPECT_TRUE(path_exists(folder.name() + "/", "anything"));
    EXPECT_TRUE(path_exists("/"));
    EXPECT_FALSE(path_exists(folder / "none"));
    EXPECT_FALSE(path_exists(""));
}

TEST(MakeSureDirectoryExists, makes_all_folders_of_a_path_and_traces_each_step) {
    const temporary_folder folder;
    const trace_capture capture;
    EXPECT_EQ(qlw_make_sure_directory_exists(folder / "a/b/"), 1);
    EXPECT_TRUE(folder.has("a/b"));
    EXPECT_EQ(capture.text_without_line_numbers(),
              "qlw_std(#): qlw_make_sure_directory_exists():: Making sub-folder: " + (folder / "a") + "\n" +
                  "qlw_std(#): qlw_make_sure_directory_exists():: Making sub-folder: " + folder.name() + "\n" +
                  "qlw_std(#): qlw_make_sure_directory_exists():: calling qlw_mkdir: " + (folder / "a") + "\n" +
                  "qlw_std(#): qlw_make_sure_directory_exists():: Directory created: " + (folder / "a") + "\n" +
                  "qlw_std(#): qlw_make_sure_directory_exists():: calling qlw_mkdir: " + (folder / "a/b") + "\n" +
                  "qlw_std(#): qlw_make_sure_directory_exists():: Directory created: " + (folder / "a/b") + "\n");
}

TEST(MakeSureDirectoryExists, says_nothing_about_a_folder_that_exists) {
    const temporary_folder folder;
    const trace_capture capture;
    EXPECT_EQ(qlw_make_sure_directory_exists(folder.name()), 1);
    EXPECT_EQ(qlw_make_sure_directory_exists("/"), 1);
    EXPECT_EQ(capture.text(), "");
}

TEST(MakeSureDirectoryExists, a_failure_is_traced_and_still_gives_1) {
    const temporary_folder folder;
    folder.write("file", "");
    const std::string blocked = folder / "file/a";
    const trace_capture capture;
    EXPECT_EQ(told([&] { EXPECT_EQ(qlw_make_sure_directory_exists(blocked), 1); }), "");
    EXPECT_FALSE(path_exists(blocked));
    EXPECT_EQ(capture.text_without_line_numbers(),
              "qlw_std(#): qlw_make_sure_directory_exists():: Making sub-folder: " + (folder / "file") + "\n" +
                  "qlw_std(#): qlw_make_sure_directory_exists():: calling qlw_mkdir: " + blocked + "\n" +
                  "qlw_std(#): qlw_make_sure_directory_exists():: *** ERROR: Could not create folder: " + blocked +
                  "\n" + "qlw_std(#): qlw_make_sure_directory_exists():: Directory created: " + blocked + "\n");
}

TEST(MakeDirectoryTree, makes_all_folders_quietly) {
    const temporary_folder folder;
    const trace_capture capture;
    EXPECT_NE(make_directory_tree(folder / "a/b/c//"), 0);
    EXPECT_TRUE(folder.has("a/b/c"));
    EXPECT_NE(make_directory_tree(folder / "a/b/c"), 0);
    EXPECT_EQ(capture.text(), "");
}

TEST(MakeDirectoryTree, gives_0_where_no_folder_can_be) {
    const temporary_folder folder;
    EXPECT_EQ(make_directory_tree(folder.write("file", "") + "/a/b"), 0);
    EXPECT_EQ(make_directory_tree(""), 0);
}

TEST(TemporaryDirectory, ends_in_one_separator_and_exists) {
    const temporary_folder folder;
    for (const char* ending : {"new", "new/"}) {
        const with_temporary_folder temporary(folder / ending);
        EXPECT_EQ(get_temporary_directory(), folder / "new/");
        EXPECT_TRUE(folder.has("new"));
    }
}

TEST(TemporaryDirectory, that_cannot_be_made_is_reported_and_replaced) {
    const temporary_folder folder;
    folder.write("file", "");
    const std::string blocked = folder / "file/temp";
    const std::string last_resort = std::string(platform::last_resort_temporary_folder) + platform::path_separator;
    const trace_capture capture;
    const auto ask = [&] {
        const with_temporary_folder temporary(blocked);
        EXPECT_EQ(get_temporary_directory(), last_resort);
    };
    EXPECT_EQ(told(ask), "Tessaline - Error: Cannot create temporary folder: " + blocked);
    EXPECT_EQ(capture.text_without_line_numbers(),
              "qlw_std(#): get_temporary_directory():: *** ERROR: Cannot create temporary folder: " + blocked + "\n");
}

TEST(KnownFolder, the_settings_folder_is_made_if_missing) {
    const temporary_folder folder;
    const with_settings_folder settings(folder / "a/settings");
    EXPECT_EQ(get_application_data_folder(), folder / "a/settings");
    EXPECT_TRUE(folder.has("a/settings"));
}

TEST(ApplicationFolder, is_empty_unless_someone_fills_it) {
    EXPECT_EQ(get_application_folder(), "");
}

TEST(ApplicationFolder, is_taken_as_it_is_if_appl_lies_there) {
    const temporary_folder folder;
    folder.make_folder("Program Files/appl");
    folder.make_folder("Program Files (x86)/appl");
    const with_application_folder application(folder / "Program Files");
    EXPECT_EQ(get_application_folder(), folder / "Program Files");
}

TEST(ApplicationFolder, moves_to_the_narrow_program_files_if_appl_lies_there) {
    const temporary_folder folder;
    folder.make_folder("Program Files (x86)/Tessaline/appl");
    const with_application_folder application(folder / "Program Files/Tessaline");
    EXPECT_EQ(get_application_folder(), folder / "Program Files (x86)/Tessaline");
    EXPECT_EQ(application_folder, folder / "Program Files (x86)/Tessaline");
    EXPECT_EQ(resolve_file_path("", "", "a.txt"), folder / "Program Files (x86)/Tessaline/a.txt");
}

TEST(ApplicationFolder, without_appl_in_either_place_is_reported_and_used_all_the_same) {
    const temporary_folder folder;
    const with_application_folder application(folder / "none");
    const trace_capture capture;
    EXPECT_EQ(told([&] { EXPECT_EQ(get_application_folder(), folder / "none"); }),
              "Tessaline - Error: Application appl folder not found: " + (folder / "none/appl"));
    EXPECT_EQ(capture.text_without_line_numbers(),
              "qlw_std(#): get_application_folder():: Application appl folder not found: " + (folder / "none/appl") +
                  "\n" + "qlw_std(#): get_application_folder():: *** ERROR: Application appl folder not found: " +
                  (folder / "none/appl") + "\n");
}

TEST(ResolveFilePath, an_absolute_name_changes_only_in_its_separators) {
    EXPECT_EQ(resolve_file_path("folder", "sub", "/a//b.txt"), with_own_separators("/a/b.txt"));
    EXPECT_EQ(resolve_file_path("folder", "sub", "C:b.txt"), "C:b.txt");
    EXPECT_EQ(resolve_file_path("folder", "", "PF:b.txt"), "PF:b.txt");
}

TEST(ResolveFilePath, without_an_application_folder_a_name_stays_relative) {
    EXPECT_EQ(resolve_file_path("", "", "b.txt"), "b.txt");
    EXPECT_EQ(resolve_file_path("folder", "", "a//b.txt"), with_own_separators("folder/a/b.txt"));
    EXPECT_EQ(resolve_file_path("", "sub", "b.txt"), with_own_separators("appl/sub/b.txt"));
}

TEST(ResolveFilePath, a_relative_name_lies_in_the_application_folder) {
    const temporary_folder folder;
    folder.make_folder("appl");
    const with_application_folder application(folder.name());
    EXPECT_EQ(resolve_file_path("", "", "b.txt"), folder / "b.txt");
    EXPECT_EQ(resolve_file_path("x", "", "b.txt"), folder / "x/b.txt");
    EXPECT_EQ(resolve_file_path("x", "sub", "b.txt"), folder / "appl/sub/x/b.txt");
}

TEST(ResolveFilePath, the_application_folder_is_made_if_it_is_missing) {
    const temporary_folder folder;
    const with_application_folder application(folder / "none");
    told([&] { EXPECT_EQ(resolve_file_path("", "", "b.txt"), folder / "none/b.txt"); });
    EXPECT_TRUE(folder.has("none"));
}

TEST(ResolveFilePath, the_application_folder_is_not_made_for_a_folder_within) {
    const temporary_folder folder;
    const with_application_folder application(folder / "none");
    told([&] { EXPECT_EQ(resolve_file_path("", "sub", "b.txt"), folder / "none/appl/sub/b.txt"); });
    EXPECT_FALSE(folder.has("none"));
}

std::string version(int platform_id, int major, int minor) {
    platform::os_version numbers;
    numbers.platform_id = platform_id;
    numbers.major = major;
    numbers.minor = minor;
    numbers.build = 7601;
    numbers.service_pack = "Service Pack 1";
    return windows_version_text(numbers);
}

TEST(WindowsVersion, known_versions_have_their_names) {
    EXPECT_EQ(version(1, 4, 0), "Windows 95 Build: 7601 Service Pack 1");
    EXPECT_EQ(version(1, 4, 10), "Windows 98 Build: 7601 Service Pack 1");
    EXPECT_EQ(version(2, 4, 0), "Windows NT 4 Build: 7601 Service Pack 1");
    EXPECT_EQ(version(2, 5, 0), "Windows 2000 Build: 7601 Service Pack 1");
    EXPECT_EQ(version(2, 5, 1), "Windows XP Build: 7601 Service Pack 1");
    EXPECT_EQ(version(2, 5, 2), "Windows 2003 Server Build: 7601 Service Pack 1");
    EXPECT_EQ(version(2, 6, 0), "Windows Vista/2008 Build: 7601 Service Pack 1");
    EXPECT_EQ(version(2, 6, 1), "Windows 7 Build: 7601 Service Pack 1");
}

TEST(WindowsVersion, NT_4_has_its_name_with_any_minor_number) {
    EXPECT_EQ(version(2, 4, 7), "Windows NT 4 Build: 7601 Service Pack 1");
}

TEST(WindowsVersion, other_versions_are_numbers) {
    EXPECT_EQ(version(2, 6, 2), "Windows 2602 Build: 7601 Service Pack 1");
    EXPECT_EQ(version(2, 10, 0), "Windows 21000 Build: 7601 Service Pack 1");
    EXPECT_EQ(version(1, 4, 90), "Windows 1490 Build: 7601 Service Pack 1");
}

} // namespace
