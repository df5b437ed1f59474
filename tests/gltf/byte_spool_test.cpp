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
