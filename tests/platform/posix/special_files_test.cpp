// Files that are no plain files: pipes with names, devices, symbolic links.

#include "platform/platform.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using platform::open_mode;

std::string all_of(platform::file& file) {
    std::array<char, 100> buffer;
    return std::string(buffer.data(), file.read(buffer.data(), buffer.size()));
}

TEST(SpecialFile, what_is_no_plain_file_is_not_read) {
    const temporary_folder folder;
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/zero", folder / "endless");
    platform::file file;
    for (const char* name : {"pipe", "endless"}) {
        EXPECT_FALSE(file.open(folder / name, open_mode::read));
        EXPECT_FALSE(file.is_open());
        EXPECT_EQ(file.failure(), "Not a plain file");
    }
}

TEST(SpecialFile, no_link_is_followed_by_what_clears_or_makes) {
    const temporary_folder folder;
    folder.write("elsewhere/letter.txt", "dear reader");
    folder.make_folder("cleared");
    std::filesystem::create_directory_symlink(folder / "elsewhere", folder / "cleared/link");
    std::filesystem::create_directory_symlink(folder / "elsewhere", folder / "in_place_of_a_folder");
    std::filesystem::create_symlink(folder / "nowhere", folder / "in_place_of_a_file");
    EXPECT_FALSE(platform::clear_folder(folder / "in_place_of_a_folder"));
    EXPECT_TRUE(platform::clear_folder(folder / "cleared"));
    EXPECT_FALSE(folder.has("cleared/link"));
    EXPECT_EQ(folder.read("elsewhere/letter.txt"), "dear reader");
    platform::file file;
    EXPECT_FALSE(file.open(folder / "in_place_of_a_file", open_mode::write_new));
    EXPECT_FALSE(folder.has("nowhere"));
}

// The memory of this process is a plain file, and nothing can be read at its begin.
TEST(SpecialFile, a_read_that_fails_is_no_end_of_the_file) {
    platform::file file;
    ASSERT_TRUE(file.open("/proc/self/mem", open_mode::read));
    EXPECT_EQ(file.failure(), "");
    EXPECT_EQ(all_of(file), "");
    EXPECT_EQ(file.failure(), "Input/output error");
}

TEST(SpecialFile, a_link_to_a_plain_file_is_read) {
    const temporary_folder folder;
    folder.write("a", "abc");
    std::filesystem::create_symlink("a", folder / "link");
    platform::file file;
    ASSERT_TRUE(file.open(folder / "link", open_mode::read));
    EXPECT_EQ(all_of(file), "abc");
}

TEST(SpecialFile, a_pipe_without_a_reader_is_not_opened_for_writing) {
    const temporary_folder folder;
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    platform::file file;
    for (const open_mode mode : {open_mode::write, open_mode::append}) {
        EXPECT_FALSE(file.open(folder / "pipe", mode));
        EXPECT_EQ(file.failure(), "No such device or address");
    }
}

// More bytes than a pipe holds: the writer has to wait for the reader.
TEST(SpecialFile, a_pipe_with_a_reader_gets_every_byte) {
    const temporary_folder folder;
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    const int reader = ::open((folder / "pipe").c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    platform::file file;
    ASSERT_TRUE(file.open(folder / "pipe", open_mode::write));
    constexpr std::size_t size = 1'000'000;
    std::size_t taken = 0;
    {
        const std::jthread taker([&] {
            fcntl(reader, F_SETFL, 0); // from here on it waits for bytes and for the end
            std::array<char, 4096> buffer;
            for (ssize_t count = 0; (count = ::read(reader, buffer.data(), buffer.size())) > 0;)
                taken += static_cast<std::size_t>(count);
        });
        EXPECT_TRUE(file.write_all(std::string(size, 'x')));
        file.close();
    }
    EXPECT_EQ(taken, size);
    ::close(reader);
}

TEST(SpecialFile, a_device_is_written_to) {
    platform::file file;
    for (const open_mode mode : {open_mode::write, open_mode::append}) {
        ASSERT_TRUE(file.open("/dev/null", mode));
        EXPECT_TRUE(file.write_all("x"));
    }
}

TEST(SpecialFile, a_full_disk_is_reported) {
    platform::file file;
    ASSERT_TRUE(file.open("/dev/full", open_mode::write));
    EXPECT_FALSE(file.write_all("x"));
}

TEST(SpecialFile, that_is_endless_is_not_read_whole) {
    EXPECT_FALSE(platform::read_file("/dev/zero", 1000).has_value());
}

} // namespace
