// How the chunks of the ground plane's text are put together.

#include "tessaline/ground_plane.h"

#include <map>

#include <gtest/gtest.h>

namespace {

std::optional<std::string> assembled(const std::map<std::string, std::string>& texts) {
    return assembled_ground_plane([&texts](const std::string& key) -> std::optional<std::string> {
        const auto found = texts.find(key);
        return found == texts.end() ? std::nullopt : std::optional(found->second);
    });
}

TEST(GroundPlane, one_chunk_is_the_text) {
    EXPECT_EQ(assembled({{"hex_data", "5;1;x;"}, {"hex_data_chunk0", "abcde"}}), "abcde");
}

TEST(GroundPlane, each_chunk_starts_at_its_number_times_400000) {
    const auto text = assembled({{"hex_data", "400002;2;x;"}, {"hex_data_chunk0", "ab"}, {"hex_data_chunk1", "cd"}});
    ASSERT_TRUE(text);
    ASSERT_EQ(text->size(), 400002u);
    EXPECT_EQ(text->substr(0, 3), std::string("ab\0", 3));
    EXPECT_EQ(text->substr(399999), std::string("\0cd", 3));
}

TEST(GroundPlane, a_missing_middle_chunk_leaves_zeros) {
    const auto text = assembled(
        {{"hex_data", "800001;3;x;"}, {"hex_data_chunk0", std::string(400000, 'a')}, {"hex_data_chunk2", "c"}});
    ASSERT_TRUE(text);
    EXPECT_EQ((*text)[399999], 'a');
    EXPECT_EQ((*text)[400000], '\0');
    EXPECT_EQ((*text)[800000], 'c');
}

TEST(GroundPlane, a_chunk_that_is_too_long_is_cut) {
    const auto text = assembled(
        {{"hex_data", "400001;2;x;"}, {"hex_data_chunk0", std::string(400005, 'a')}, {"hex_data_chunk1", "bcd"}});
    ASSERT_TRUE(text);
    EXPECT_EQ(*text, std::string(400000, 'a') + "b");
}

TEST(GroundPlane, an_incomplete_header_gives_nothing) {
    for (const char* header : {"", ";1;x;", "5", "5;", "5;1", "5;1;", "5;1;x", "5;0;x;", "5;;x;", "5;-1;x;"})
        EXPECT_FALSE(assembled({{"hex_data", header}, {"hex_data_chunk0", "abcde"}})) << header;
}

TEST(GroundPlane, a_missing_last_chunk_gives_nothing) {
    EXPECT_FALSE(assembled({{"hex_data", "5;2;x;"}, {"hex_data_chunk0", "abcde"}}));
}

TEST(GroundPlane, a_length_beyond_any_material_file_asks_for_no_more_room_than_that) {
    const auto text = assembled({{"hex_data", "9000000000;1;x;"}, {"hex_data_chunk0", "ab"}});
    ASSERT_TRUE(text);
    EXPECT_EQ(text->size(), 160000000u); // 400 chunks
}

} // namespace
