// The examples of FIPS 180-2, appendix B, and the empty message.

#include "tools/single_run/sha256.h"

#include <gtest/gtest.h>

namespace {

std::string digest_of(std::string_view text) {
    sha256 hash;
    hash.add(text);
    return hash.digest();
}

TEST(Sha256, of_messages_with_a_known_hash) {
    EXPECT_EQ(digest_of(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(digest_of("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(digest_of("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
              "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
    EXPECT_EQ(digest_of(std::string(1000000, 'a')), "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(Sha256, pieces_of_any_size_make_no_difference) {
    const std::string text(200, 'x');
    for (std::size_t piece = 1; piece < 140; ++piece) {
        sha256 hash;
        for (std::size_t at = 0; at < text.size(); at += piece)
            hash.add(std::string_view(text).substr(at, piece));
        EXPECT_EQ(hash.digest(), digest_of(text)) << piece;
    }
}

} // namespace
