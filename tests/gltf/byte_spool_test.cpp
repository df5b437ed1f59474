#include "tests/support/temporary_folder.h"
#include "tools/gltf/byte_spool.h"

#include <gtest/gtest.h>

namespace {

std::string all_of(gltf::byte_spool& spool, gltf::byte_spool::strand strand, std::size_t piece = 4) {
    std::string bytes;
    EXPECT_TRUE(spool.read(
        strand,
        [&](std::string_view part) {
            EXPECT_LE(part.size(), piece);
            bytes += part;
            return true;
        },
        piece));
    return bytes;
}

} // namespace

TEST(ByteSpool, keeps_strands_apart_that_grow_in_turn_and_do_not_fit_in_memory) {
    const temporary_folder folder;
    gltf::byte_spool spool(folder / "spool", 5);
    const auto first = spool.begin();
    const auto second = spool.begin();
    for (const char letter : {'a', 'b', 'c', 'd'}) {
        spool.append(first, std::string(3, letter));
        spool.append(second, std::string(1, letter));
    }
    EXPECT_TRUE(platform::exists(folder / "spool"));
    EXPECT_EQ(spool.size(first), 12U);
    EXPECT_EQ(spool.size(), 16U);
    EXPECT_EQ(all_of(spool, first), "aaabbbcccddd");
    EXPECT_EQ(all_of(spool, second), "abcd");
}

TEST(ByteSpool, can_grow_on_after_it_was_read) {
    const temporary_folder folder;
    gltf::byte_spool spool(folder / "spool", 2);
    const auto strand = spool.begin();
    spool.append(strand, "abc");
    EXPECT_EQ(all_of(spool, strand), "abc");
    spool.append(strand, "defg");
    EXPECT_EQ(all_of(spool, strand), "abcdefg");
}

TEST(ByteSpool, makes_no_file_while_memory_is_enough_and_leaves_none_behind) {
    const temporary_folder folder;
    {
        gltf::byte_spool spool(folder / "spool", 3);
        const auto strand = spool.begin();
        spool.append(strand, "abc");
        EXPECT_FALSE(platform::exists(folder / "spool"));
        spool.append(strand, "d");
        EXPECT_TRUE(platform::exists(folder / "spool"));
    }
    EXPECT_FALSE(platform::exists(folder / "spool"));
}

TEST(ByteSpool, says_so_if_its_file_cannot_be_made) {
    const temporary_folder folder;
    gltf::byte_spool spool(folder / "no such folder/spool", 2);
    const auto strand = spool.begin();
    spool.append(strand, "ab");
    EXPECT_FALSE(spool.has_failed());
    spool.append(strand, "c");
    EXPECT_TRUE(spool.has_failed());
}

TEST(ByteSpool, appends_a_strand_to_another_while_either_moves_into_the_file) {
    for (const std::size_t memory : {std::size_t{1}, std::size_t{7}, std::size_t{9}, std::size_t{100}}) {
        const temporary_folder folder;
        gltf::byte_spool spool(folder / "spool", memory);
        const auto from = spool.begin();
        const auto to = spool.begin();
        spool.append(to, "[");
        for (const char* const part : {"ab", "cde", "f", "ghij"})
            spool.append(from, part);
        EXPECT_TRUE(spool.append_strand(to, from, 3)) << memory;
        spool.append(to, "]");
        EXPECT_EQ(all_of(spool, to), "[abcdefghij]") << memory;
        EXPECT_EQ(all_of(spool, from), "abcdefghij") << memory;
    }
}
