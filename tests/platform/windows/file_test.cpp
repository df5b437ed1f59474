#include "platform/platform.h"
#include "platform/windows/system_handle.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

using platform::open_mode;

bool another_may(DWORD access, const std::string& name) {
    return platform::owned(CreateFileA(name.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                       nullptr, OPEN_EXISTING, 0, nullptr)) != nullptr;
}

TEST(WindowsFile, others_may_read_an_open_file_and_not_write_it) {
    const temporary_folder folder;
    const std::string name = folder.write("a", "abc");
    for (const open_mode mode : {open_mode::read, open_mode::write, open_mode::append}) {
        platform::file file;
        ASSERT_TRUE(file.open(name, mode));
        EXPECT_TRUE(another_may(GENERIC_READ, name));
        EXPECT_FALSE(another_may(GENERIC_WRITE, name));
        EXPECT_FALSE(platform::delete_file(name));
        file.close();
        EXPECT_TRUE(another_may(GENERIC_WRITE, name));
    }
}

TEST(WindowsFile, a_file_that_another_program_writes_is_not_opened) {
    const temporary_folder folder;
    const std::string name = folder.write("a", "abc");
    const platform::system_handle writer = platform::owned(CreateFileA(
        name.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr));
    platform::file file;
    EXPECT_FALSE(file.open(name, open_mode::read));
    EXPECT_FALSE(file.failure().empty());
    EXPECT_EQ(file.failure().find('\n'), std::string::npos);
}

TEST(WindowsFile, devices_are_written_to_and_not_read) {
    platform::file file;
    EXPECT_TRUE(file.open("NUL", open_mode::write));
    EXPECT_TRUE(file.write_all("x"));
    EXPECT_FALSE(file.open("NUL", open_mode::read));
    EXPECT_EQ(file.failure(), "Not a plain file");
}

TEST(WindowsFile, a_folder_is_called_one) {
    const temporary_folder folder;
    platform::file file;
    EXPECT_FALSE(file.open(folder.name(), open_mode::read));
    EXPECT_EQ(file.failure(), "Is a folder");
}

TEST(WindowsFile, a_name_of_259_characters_is_taken_and_a_longer_one_called_too_long) {
    const temporary_folder folder;
    std::string deep = platform::absolute_name(folder.name());
    while (deep.size() < 140) {
        deep += "\\" + std::string(40, 'd');
        ASSERT_TRUE(platform::make_folder(deep));
    }
    const std::string name = deep + "\\" + std::string(platform::longest_name - deep.size() - 1, 'n');
    platform::file file;
    EXPECT_TRUE(file.open(name, open_mode::write)) << file.failure();
    file.close();
    EXPECT_TRUE(platform::exists(name));
    EXPECT_FALSE(file.open(name + "n", open_mode::write));
    EXPECT_EQ(file.failure(), "The name has more than 259 characters");
    EXPECT_FALSE(platform::exists(name + "n"));
    EXPECT_TRUE(platform::delete_file(name));
}

TEST(WindowsFile, names_beyond_ascii_are_those_of_the_code_page) {
    const temporary_folder folder;
    const std::string name = platform::absolute_name(folder.name()) + "\\K\xf6"
                                                                      "ff.txt"; // o with two dots in Windows-1252
    if (GetACP() != 1252)
        GTEST_SKIP() << "another code page";
    platform::file file;
    ASSERT_TRUE(file.open(name, open_mode::write));
    file.close();
    WIN32_FIND_DATAW found = {};
    const std::string pattern = folder.name() + "/*.txt";
    const HANDLE search = FindFirstFileW(std::wstring(pattern.begin(), pattern.end()).c_str(), &found);
    EXPECT_EQ(std::wstring(found.cFileName), L"K\u00f6ff.txt");
    FindClose(search);
    const auto entries = platform::list_folder(folder.name());
    ASSERT_EQ(entries->size(), 1u);
    EXPECT_EQ(entries->front().name, "K\xf6"
                                     "ff.txt");
}

} // namespace
