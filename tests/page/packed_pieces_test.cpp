#include "tools/page/packed_pieces.h"

#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>
#include <zlib.h>

namespace {

// The vectors of RFC 4648.
TEST(Base64, the_examples_of_its_standard) {
    EXPECT_EQ(base64_of(""), "");
    EXPECT_EQ(base64_of("f"), "Zg==");
    EXPECT_EQ(base64_of("fo"), "Zm8=");
    EXPECT_EQ(base64_of("foo"), "Zm9v");
    EXPECT_EQ(base64_of("foob"), "Zm9vYg==");
    EXPECT_EQ(base64_of("foobar"), "Zm9vYmFy");
}

TEST(Base64, bytes_above_127_are_no_negative_numbers) {
    EXPECT_EQ(base64_of("\xff\xff\xfe"), "///+"); // 111111 111111 111111 111110
}

int digit(char c) {
    return c >= 'A' && c <= 'Z'   ? c - 'A'
           : c >= 'a' && c <= 'z' ? c - 'a' + 26
           : c >= '0' && c <= '9' ? c - '0' + 52
           : c == '+'             ? 62
                                  : 63;
}

std::string bytes_of(std::string_view base64) {
    std::string bytes;
    for (std::size_t i = 0; i + 3 < base64.size(); i += 4) {
        int four = 0;
        for (std::size_t k = 0; k < 4; ++k)
            four = four << 6 | (base64[i + k] == '=' ? 0 : digit(base64[i + k]));
        for (std::size_t k = 0; k < 3; ++k)
            if (base64[i + k + 1] != '=')
                bytes += static_cast<char>(four >> (16 - 8 * k) & 0xff);
    }
    return bytes;
}

std::string unpacked(std::string gzip, std::size_t size) {
    std::string bytes(size + 1, '\0');
    z_stream stream{};
    inflateInit2(&stream, 15 + 16);
    stream.next_in = reinterpret_cast<Bytef*>(gzip.data());
    stream.avail_in = static_cast<uInt>(gzip.size());
    stream.next_out = reinterpret_cast<Bytef*>(bytes.data());
    stream.avail_out = static_cast<uInt>(bytes.size());
    const int result = inflate(&stream, Z_FINISH);
    bytes.resize(stream.total_out);
    inflateEnd(&stream);
    return result == Z_STREAM_END ? bytes : "not whole";
}

// The contents of the elements, one after the other.
std::vector<std::string> pieces_in(const std::string& text) {
    constexpr std::string_view before = "<script type=\"application/octet-stream\" class=\"piece\">";
    constexpr std::string_view behind = "</script>\n";
    std::vector<std::string> pieces;
    std::size_t at = 0;
    while (text.compare(at, before.size(), before) == 0) {
        const std::size_t end = text.find(behind, at);
        pieces.push_back(text.substr(at + before.size(), end - at - before.size()));
        at = end + behind.size();
    }
    EXPECT_EQ(at, text.size());
    return pieces;
}

TEST(PackedPieces, what_is_added_comes_out_of_the_pieces_again) {
    std::string bytes;
    std::uint32_t chance = 1;
    for (int i = 0; i < 5000; ++i) {
        chance = chance * 214013 + 2531011;
        bytes += static_cast<char>(chance >> 16U);
    }
    const temporary_folder folder;
    platform::file file;
    ASSERT_TRUE(file.open(folder / "page", platform::open_mode::write));
    packed_pieces packer(file, 300);
    EXPECT_TRUE(packer.add(std::string_view(bytes).substr(0, 17)));
    EXPECT_TRUE(packer.add(std::string_view(bytes).substr(17)));
    EXPECT_TRUE(packer.finish());
    ASSERT_TRUE(file.close());
    const std::vector<std::string> pieces = pieces_in(folder.read("page"));
    ASSERT_GE(pieces.size(), 16U); // 5000 bytes of chance cannot be packed into fewer than 4800
    std::string gzip;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        EXPECT_EQ(i + 1 < pieces.size() ? pieces[i].size() : 400U, 400U); // 300 bytes in base64
        gzip += bytes_of(pieces[i]);
    }
    EXPECT_EQ(unpacked(gzip, bytes.size()), bytes);
}

TEST(PackedPieces, nothing_is_an_empty_gzip) {
    const temporary_folder folder;
    platform::file file;
    ASSERT_TRUE(file.open(folder / "page", platform::open_mode::write));
    EXPECT_TRUE(packed_pieces(file).finish());
    ASSERT_TRUE(file.close());
    const std::vector<std::string> pieces = pieces_in(folder.read("page"));
    ASSERT_EQ(pieces.size(), 1U);
    EXPECT_EQ(unpacked(bytes_of(pieces[0]), 0), "");
}

} // namespace
