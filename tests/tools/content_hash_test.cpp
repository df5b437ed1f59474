// What the library's own program xxh128sum prints for the same bytes.

#include "tools/content_hash/content_hash.h"

#include <gtest/gtest.h>

namespace {

TEST(ContentHash, of_bytes_with_a_known_hash) {
    EXPECT_EQ(content_hash_of(""), "99aa06d3014798d86001c324468d497f");
    EXPECT_EQ(content_hash_of("abc"), "06b05ab6733a618578af5f94892f3950");
    EXPECT_EQ(content_hash_of(std::string(1000000, 'a')), "a545df8e384a9579b1fd6fae5285c4eb");
}

TEST(ContentHash, pieces_of_any_size_make_no_difference) {
    const std::string text(2000, 'x');
    for (std::size_t piece = 1; piece < 1100; piece += 7) {
        content_hash hash;
        for (std::size_t at = 0; at < text.size(); at += piece)
            hash.add(std::string_view(text).substr(at, piece));
        EXPECT_EQ(hash.digest(), content_hash_of(text)) << piece;
    }
}

} // namespace
