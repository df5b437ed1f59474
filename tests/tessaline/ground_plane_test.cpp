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

TEST(GroundPlane, a_missing_middle_chunk_ends_the_text_and_does_not_stop_the_restoration) {
    EXPECT_EQ(
        assembled(
            {{"hex_data", "800001;3;x;"}, {"hex_data_chunk0", std::string(400000, 'a')}, {"hex_data_chunk2", "c"}}),
        std::string(400000, 'a'));
}

TEST(GroundPlane, an_incomplete_header_gives_nothing) {
    for (const char* header : {"", ";1;x;", "5", "5;", "5;1", "5;1;", "5;1;x", "5;0;x;", "5;;x;", "5;-1;x;"})
        EXPECT_FALSE(assembled({{"hex_data", header}, {"hex_data_chunk0", "abcde"}})) << header;
}

TEST(GroundPlane, a_missing_last_chunk_gives_nothing) {
    EXPECT_FALSE(assembled({{"hex_data", "5;2;x;"}, {"hex_data_chunk0", "abcde"}}));
}

TEST(GroundPlane, a_length_beyond_32_bits_asks_for_no_more_room_than_the_chunks_fill) {
    EXPECT_EQ(assembled({{"hex_data", "9000000000;1;x;"}, {"hex_data_chunk0", "ab"}}), "ab");
}

TEST(GroundPlane, a_count_beyond_all_chunks_is_not_walked_through) {
    EXPECT_EQ(assembled({{"hex_data", "5;2147483647;x;"}, {"hex_data_chunk2147483646", "ab"}}), "");
    EXPECT_FALSE(assembled({{"hex_data", "5;9000000000;x;"}, {"hex_data_chunk0", "ab"}}));
}

} // namespace
