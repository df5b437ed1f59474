#include "platform/platform.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <winioctl.h>

namespace {

std::string backslashed(const temporary_folder& folder, const std::string& inside) {
    return platform::absolute_name(folder / inside);
}

// Makes an empty folder lead to another one, as "mklink /J" does; needs no rights. Whether the system can.
bool make_junction(const std::string& name, const std::string& target) {
    struct mount_point {
        DWORD tag = IO_REPARSE_TAG_MOUNT_POINT;
        WORD data_size = 0;
        WORD reserved = 0;
        WORD target_at = 0;
        WORD target_size = 0;
        WORD shown_at = 0;
        WORD shown_size = 0;
        wchar_t names[MAX_PATH * 2] = L"";
    } point;
    const std::string substitute = "\\??\\" + target;
    std::wstring names(substitute.begin(), substitute.end());
    names += L'\0';
    names.append(target.begin(), target.end());
    names += L'\0';
    names.copy(point.names, names.size());
    point.target_size = static_cast<WORD>(substitute.size() * sizeof(wchar_t));
    point.shown_at = static_cast<WORD>(point.target_size + sizeof(wchar_t));
    point.shown_size = static_cast<WORD>(target.size() * sizeof(wchar_t));
    point.data_size = static_cast<WORD>(8 + names.size() * sizeof(wchar_t));
    const HANDLE folder = CreateFileA(name.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    DWORD ignored = 0;
    const bool is_made =
        DeviceIoControl(folder, FSCTL_SET_REPARSE_POINT, &point, 8UL + point.data_size, nullptr, 0, &ignored, nullptr);
    CloseHandle(folder);
    return is_made;
}

TEST(WindowsFolder, a_junction_is_a_link_and_no_folder_in_a_list_and_goes_without_what_it_leads_to) {
    const temporary_folder folder;
    folder.write("kept/a.txt", "abc");
    const std::string junction = backslashed(folder, "list/junction");
    folder.make_folder("list/junction");
    if (!make_junction(junction, backslashed(folder, "kept")))
        GTEST_SKIP() << "this system makes no junctions";
    const auto entries = platform::list_folder(backslashed(folder, "list"));
    ASSERT_EQ(entries->size(), 1u);
    EXPECT_FALSE(entries->front().is_folder);
    EXPECT_TRUE(entries->front().is_symbolic_link);
    EXPECT_TRUE(platform::is_symbolic_link(junction));
    EXPECT_TRUE(platform::is_folder(junction));
    EXPECT_TRUE(platform::exists(junction + "\\a.txt"));
    EXPECT_TRUE(platform::delete_file(junction));
    EXPECT_FALSE(platform::exists(junction));
    EXPECT_EQ(folder.read("kept/a.txt"), "abc");
}

TEST(WindowsFolder, a_folder_is_not_deleted_as_a_file) {
    const temporary_folder folder;
    folder.make_folder("a");
    EXPECT_FALSE(platform::delete_file(folder / "a"));
    EXPECT_TRUE(platform::is_folder(folder / "a"));
}

TEST(WindowsFolder, the_root_of_a_drive_is_a_folder_and_has_a_list) {
    const std::string drive = platform::shared_ini_folder().substr(0, 3);
    EXPECT_TRUE(platform::is_folder(drive));
    EXPECT_TRUE(platform::list_folder(drive).has_value());
    EXPECT_FALSE(platform::is_symbolic_link(drive));
    EXPECT_FALSE(platform::exists("Q:\\"));
    EXPECT_FALSE(platform::list_folder("\\\\no such host\\share").has_value());
}

TEST(WindowsFolder, a_pattern_is_no_name) {
    const temporary_folder folder;
    folder.write("a.txt", "");
    EXPECT_FALSE(platform::exists(folder / "*.txt"));
    EXPECT_FALSE(platform::is_symbolic_link(folder / "*.txt"));
    EXPECT_FALSE(platform::file_size(folder / "?.txt").has_value());
}

TEST(WindowsFolder, an_absolute_name_has_a_drive_and_backslashes) {
    const std::string drive = platform::current_folder().substr(0, 2);
    EXPECT_EQ(platform::absolute_name("C:/a b//c\\d"), "C:\\a b\\c\\d");
    EXPECT_EQ(platform::absolute_name("\\a"), drive + "\\a");
    EXPECT_EQ(platform::absolute_name("\\\\host\\share\\\\a"), "\\\\host\\share\\a");
    EXPECT_EQ(platform::absolute_name("x\\y"),
              platform::current_folder() + (platform::current_folder().ends_with('\\') ? "x\\y" : "\\x\\y"));
    EXPECT_EQ(platform::absolute_name(""), "");
}

TEST(WindowsFolder, a_real_name_is_spelt_as_on_the_disk) {
    const temporary_folder folder;
    folder.make_folder("Inner");
    const auto real = platform::real_name(backslashed(folder, "Inner\\..\\Inner"));
    ASSERT_TRUE(real.has_value());
    EXPECT_EQ(real, platform::real_name(backslashed(folder, "Inner")));
    EXPECT_EQ((*real)[1], ':');
    EXPECT_TRUE(real->ends_with("\\Inner")) << *real;
    EXPECT_FALSE(platform::real_name(folder / "missing").has_value());
}

} // namespace
