#include "platform/platform.h"
#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace {

using platform::open_mode;

std::string all_of(platform::file& file) {
    std::array<char, 100> buffer;
    return std::string(buffer.data(), file.read(buffer.data(), buffer.size()));
}

TEST(File, writes_bytes_unchanged) {
    const temporary_folder folder;
    const std::string bytes("a\nb\r\nc\0d", 8);
    platform::file file;
    ASSERT_TRUE(file.open(folder / "a", open_mode::write));
    EXPECT_TRUE(file.write_all(bytes));
    EXPECT_TRUE(file.close());
    EXPECT_EQ(folder.read("a"), bytes);
}

TEST(File, writing_empties_an_old_file_and_appending_keeps_it) {
    const temporary_folder folder;
    folder.write("a", "old and long");
    platform::file file;
    ASSERT_TRUE(file.open(folder / "a", open_mode::write));
    file.write_all("new");
    ASSERT_TRUE(file.open(folder / "a", open_mode::append));
    file.write_all(" more");
    file.close();
    EXPECT_EQ(folder.read("a"), "new more");
}

TEST(File, a_new_file_is_never_made_over_an_old_one) {
    const temporary_folder folder;
    folder.write("old", "of somebody");
    platform::file file;
    EXPECT_FALSE(file.open(folder / "old", open_mode::write_new));
    EXPECT_NE(file.failure(), "");
    ASSERT_TRUE(file.open(folder / "new", open_mode::write_new));
    EXPECT_TRUE(file.write_all("bytes"));
    EXPECT_TRUE(file.close());
    EXPECT_EQ(folder.read("old"), "of somebody");
    EXPECT_EQ(folder.read("new"), "bytes");
}

TEST(File, appending_makes_a_missing_file) {
    const temporary_folder folder;
    platform::file file;
    EXPECT_TRUE(file.open(folder / "a", open_mode::append));
    EXPECT_TRUE(folder.has("a"));
}

TEST(File, reads_up_to_the_end_and_from_a_given_place) {
    const temporary_folder folder;
    folder.write("a", "0123456789");
    platform::file file;
    ASSERT_TRUE(file.open(folder / "a", open_mode::read));
    EXPECT_EQ(all_of(file), "0123456789");
    EXPECT_EQ(all_of(file), "");
    EXPECT_TRUE(file.seek(7));
    EXPECT_EQ(all_of(file), "789");
}

// Each version and language of Windows has words of its own.
testing::Matcher<const std::string&> words_of_the_system(const char* on_posix) {
    if (platform::has_drive_letters)
        return testing::Not(testing::IsEmpty());
    return testing::Eq(on_posix);
}

TEST(File, says_why_it_could_not_be_opened) {
    const temporary_folder folder;
    platform::file file;
    EXPECT_FALSE(file.open(folder / "missing", open_mode::read));
    EXPECT_THAT(file.failure(), words_of_the_system("No such file or directory"));
    EXPECT_FALSE(file.open(folder.name(), open_mode::read));
    EXPECT_THAT(file.failure(), words_of_the_system("Is a directory"));
    EXPECT_FALSE(file.is_open());
    EXPECT_FALSE(file.open(folder / "missing/a", open_mode::write));
    folder.write("a", "");
    EXPECT_TRUE(file.open(folder / "a", open_mode::read));
    EXPECT_EQ(file.failure(), "");
}

TEST(File, a_closed_file_takes_and_gives_nothing) {
    platform::file file;
    EXPECT_FALSE(file.is_open());
    EXPECT_FALSE(file.write_all("x"));
    EXPECT_FALSE(file.seek(0));
    EXPECT_FALSE(file.close());
    EXPECT_EQ(all_of(file), "");
}

TEST(File, moves_its_handle) {
    const temporary_folder folder;
    platform::file first;
    ASSERT_TRUE(first.open(folder / "a", open_mode::write));
    platform::file second(std::move(first));
    EXPECT_TRUE(second.write_all("ab"));
    platform::file third;
    ASSERT_TRUE(third.open(folder / "b", open_mode::write));
    third = std::move(second);
    EXPECT_TRUE(third.write_all("c"));
    EXPECT_TRUE(third.close());
    EXPECT_EQ(folder.read("a"), "abc");
    EXPECT_EQ(folder.read("b"), "");
}

TEST(ReadFile, gives_the_whole_file_up_to_the_limit) {
    const temporary_folder folder;
    folder.write("a", "abc");
    folder.write("empty", "");
    const auto bytes = platform::read_file(folder / "a", 3);
    ASSERT_TRUE(bytes.has_value());
    EXPECT_EQ(*bytes, (std::vector<std::byte>{std::byte{'a'}, std::byte{'b'}, std::byte{'c'}}));
    EXPECT_FALSE(platform::read_file(folder / "a", 2).has_value());
    EXPECT_EQ(platform::read_file(folder / "empty", 0), std::vector<std::byte>());
}

TEST(ReadFile, gives_nothing_for_what_is_no_plain_file) {
    const temporary_folder folder;
    EXPECT_FALSE(platform::read_file(folder.name(), 1000).has_value());
    EXPECT_FALSE(platform::read_file(folder / "missing", 1000).has_value());
}

} // namespace
