#include "sketchup/skp/modern/zip_entries.h"

#include "sketchup/skp/format_error.h"
#include "tests/sketchup/skp/modern/record_bytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <utility>

using namespace record_bytes;
using skp::format_error;
using skp::modern::zip_entries;

namespace {

zip_entries open(bytes archive, const bytes& before = {}) {
    return zip_entries(std::make_shared<const bytes>(before + archive), before.size());
}

// Where the directory's record of the first entry begins.
std::size_t directory_record(const bytes& archive) {
    const bytes mark = {'P', 'K', 1, 2};
    return static_cast<std::size_t>(std::search(archive.begin(), archive.end(), mark.begin(), mark.end()) -
                                    archive.begin());
}

// Offsets in a directory record.
constexpr std::size_t flags_field = 8;
constexpr std::size_t method_field = 10;
constexpr std::size_t packed_size_field = 20;
constexpr std::size_t size_field = 24;

template<class T>
void put(bytes& archive, std::size_t at, T value) {
    std::memcpy(archive.data() + at, &value, sizeof(T));
}

bytes announcing(bytes archive, std::uint32_t size) {
    put(archive, directory_record(archive) + size_field, size);
    return archive;
}

bytes letters(std::size_t count) {
    bytes b(count);
    for (std::size_t i = 0; i < count; ++i)
        b[i] = static_cast<std::uint8_t>('a' + i * i % 23);
    return b;
}

} // namespace

TEST(ZipEntries, are_found_by_name_and_unpacked) {
    zip_entries e = open(archive_of({{"model.dat", letters(5000)}, {"empty", {}}}));
    EXPECT_TRUE(e.has("model.dat"));
    EXPECT_FALSE(e.has("Model.dat"));
    EXPECT_EQ(e.read("model.dat"), letters(5000));
    EXPECT_TRUE(e.read("empty").empty());
    EXPECT_THROW(e.read("materials"), format_error);
}

TEST(ZipEntries, can_be_read_again) {
    zip_entries e = open(archive_of({{"a", letters(100)}}));
    EXPECT_EQ(e.read("a"), letters(100));
    EXPECT_EQ(e.read("a"), letters(100));
}

TEST(ZipEntries, offsets_count_from_the_start_of_the_archive) {
    zip_entries e = open(archive_of({{"a", letters(100)}}), bytes(69, 0xFF));
    EXPECT_EQ(e.read("a"), letters(100));
}

TEST(ZipEntries, names_are_bytes_of_utf_8_though_no_flag_says_so) {
    const std::string name = "materials/\xD0\x94\xD0\xB5\xD1\x80\xD0\xB5\xD0\xB2\xD0\xBE/\xC3\xA9.jpg";
    bytes archive = archive_of({{name, letters(10)}});
    const std::size_t flags = directory_record(archive) + flags_field;
    constexpr std::uint8_t utf_8_flag = 0x08; // of the high byte
    archive[flags + 1] &= static_cast<std::uint8_t>(~utf_8_flag);
    constexpr std::size_t flags_of_local_header = 6;
    archive[flags_of_local_header + 1] &= static_cast<std::uint8_t>(~utf_8_flag);
    zip_entries e = open(archive);
    EXPECT_TRUE(e.has(name));
    EXPECT_EQ(e.read(name), letters(10));
}

TEST(ZipEntries, no_archive_is_refused) {
    EXPECT_THROW(open({}).read("model.dat"), format_error);
    EXPECT_THROW(open(letters(300)), format_error);
}

TEST(ZipEntries, an_archive_without_its_directory_is_refused) {
    bytes archive = archive_of({{"a", letters(100)}});
    archive.resize(directory_record(archive));
    EXPECT_THROW(open(archive), format_error);
}

TEST(ZipEntries, an_entry_that_is_longer_or_shorter_than_announced_is_refused) {
    const bytes archive = archive_of({{"a", letters(3000)}});
    EXPECT_THROW(open(announcing(archive, 2999)).read("a"), format_error);
    EXPECT_THROW(open(announcing(archive, 3001)).read("a"), format_error);
    EXPECT_NO_THROW(open(announcing(archive, 3000)).read("a"));
}

TEST(ZipEntries, an_entry_with_a_wrong_checksum_is_refused) {
    bytes archive = archive_of({{"a", letters(3000)}});
    constexpr std::size_t checksum_field = 16;
    archive[directory_record(archive) + checksum_field] ^= 1;
    EXPECT_THROW(open(archive).read("a"), format_error);
}

TEST(ZipEntries, what_deflate_can_pack_is_unpacked) {
    // A million equal bytes: about 1000 : 1.
    EXPECT_EQ(open(archive_of({{"a", bytes(1000000, 'x')}})).read("a"), bytes(1000000, 'x'));
}

TEST(ZipEntries, an_entry_that_announces_more_than_deflate_can_pack_is_refused_before_memory_is_taken) {
    const bytes archive = archive_of({{"a", letters(300)}, {"b", letters(100000)}});
    try {
        open(announcing(archive, 5000000)).read("a");
        FAIL() << "read";
    } catch (const format_error& e) {
        EXPECT_NE(std::string(e.what()).find("cannot be as large as announced"), std::string::npos) << e.what();
    }
}

TEST(ZipEntries, an_archive_whose_entries_announce_more_than_it_can_hold_is_refused) {
    EXPECT_THROW(open(announcing(archive_of({{"a", letters(300)}}), 0xFFFFFFF0)), format_error);
}

TEST(ZipEntries, all_together_unpack_to_1100_bytes_a_byte_while_small_and_to_64_when_large) {
    using skp::modern::most_unpacked;
    EXPECT_EQ(most_unpacked(1000), 1100000u);                        // 1000 x 1100
    EXPECT_EQ(most_unpacked(20000000), 1548435456u);                 // 268435456 + 20000000 x 64
    EXPECT_EQ(most_unpacked(std::uint64_t{1} << 32), 275146342400u); // 268435456 + 4294967296 x 64
}

TEST(ZipEntries, an_entry_that_claims_more_packed_bytes_than_there_are_is_refused) {
    bytes archive = archive_of({{"a", letters(300)}});
    put(archive, directory_record(archive) + packed_size_field, std::uint32_t{100000});
    EXPECT_THROW(open(archive).read("a"), format_error);
}

TEST(ZipEntries, an_encrypted_entry_is_refused) {
    bytes archive = archive_of({{"a", letters(300)}});
    archive[directory_record(archive) + flags_field] |= 1;
    EXPECT_THROW(open(archive).read("a"), format_error);
}

TEST(ZipEntries, an_entry_packed_in_another_way_is_refused) {
    bytes archive = archive_of({{"a", letters(300)}});
    constexpr std::uint16_t bzip2 = 12;
    put(archive, directory_record(archive) + method_field, bzip2);
    EXPECT_THROW(open(archive).read("a"), format_error);
}
