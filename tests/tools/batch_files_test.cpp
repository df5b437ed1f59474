// How a file of a batch is read whole.

#include "tests/support/files_in_memory.h"
#include "tests/support/temporary_folder.h"
#include "tools/batch_check/batch_files.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using batch_check::whole_file;

// Gives one byte at a time.
class slow_source : public byte_source {
public:
    explicit slow_source(std::string_view all) : bytes(all) {}
    std::size_t read(char* into, std::size_t size) override { return bytes.read(into, std::min<std::size_t>(size, 1)); }

private:
    files_in_memory::bytes_in_memory bytes;
};

// One file of five bytes, which may be said to be of another size.
class slow_files : public files_in_memory {
public:
    explicit slow_files(std::uint64_t bytes) : files_in_memory(files_by_name{{"a.txt", text}}), said(bytes) {}
    std::optional<std::uint64_t> size(const std::string& /*name*/) const override { return said; }
    std::unique_ptr<byte_source> open(const std::string& /*name*/) const override {
        return std::make_unique<slow_source>(text);
    }

private:
    static constexpr const char* text = "abcde";
    std::uint64_t said;
};

TEST(WholeFile, is_read_in_as_many_pieces_as_it_comes_in) {
    EXPECT_EQ(whole_file(slow_files(5), "a.txt", 5), "abcde");
}

TEST(WholeFile, is_as_long_as_it_was_or_as_what_is_left_of_it) {
    EXPECT_EQ(whole_file(slow_files(3), "a.txt", 5), "abc");
    EXPECT_EQ(whole_file(slow_files(9), "a.txt", 9), "abcde");
}

TEST(WholeFile, is_nothing_beyond_the_limit_and_where_there_is_no_plain_file) {
    const temporary_folder disk;
    disk.write("a.txt", "abcde");
    disk.write("empty.txt", "");
    disk.make_folder("inner");
    const auto files = batch_check::folder_on_disk(disk.name());
    EXPECT_EQ(whole_file(*files, "a.txt", 5), "abcde");
    EXPECT_EQ(whole_file(*files, "empty.txt", 0), "");
    EXPECT_EQ(whole_file(*files, "a.txt", 4), std::nullopt);
    EXPECT_EQ(whole_file(*files, "none.txt", 5), std::nullopt);
    EXPECT_EQ(whole_file(*files, "inner", 5), std::nullopt);
}

} // namespace
