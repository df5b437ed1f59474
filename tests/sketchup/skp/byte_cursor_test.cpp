#include "sketchup/skp/byte_cursor.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

std::string message(const std::vector<std::uint8_t>& bytes, void (*read)(skp::byte_cursor&)) {
    skp::byte_cursor in(bytes, 1000);
    in.set_where("CThing");
    try {
        read(in);
    } catch (const skp::format_error& e) {
        EXPECT_EQ(e.why, skp::failure::damaged);
        return e.what();
    }
    return "";
}

} // namespace

TEST(ByteCursor, numbers_are_little_endian) {
    const std::vector<std::uint8_t> bytes = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 0xFE, 0xFF, 0xFF, 0xFF};
    skp::byte_cursor in(bytes);
    EXPECT_EQ(in.u8(), 1);
    EXPECT_EQ(in.u16(), 0x0302);
    EXPECT_EQ(in.u64(), 0x0B0A090807060504u);
    EXPECT_EQ(in.i32(), -2);
    EXPECT_TRUE(in.at_end());
    EXPECT_EQ(in.offset(), 15u);
}

TEST(ByteCursor, a_value_beyond_the_end_fails_with_the_offset_in_the_file) {
    EXPECT_EQ(message({1, 2, 3}, [](skp::byte_cursor& in) { in.u32(); }), "offset 1000, CThing: needs 4 bytes, 3 left");
    EXPECT_EQ(message({1, 2, 3}, [](skp::byte_cursor& in) { in.skip(4); }),
              "offset 1000, CThing: needs 4 bytes, 3 left");
    EXPECT_EQ(message(std::vector<std::uint8_t>(23), [](skp::byte_cursor& in) { in.v3(); }),
              "offset 1000, CThing: needs 24 bytes, 23 left");
}

TEST(ByteCursor, a_count_is_compared_with_the_bytes_that_are_left) {
    EXPECT_EQ(message({2, 0, 0, 0, 9, 9, 9}, [](skp::byte_cursor& in) { in.count(2); }),
              "offset 1004, CThing: count 2 needs 4 bytes, 3 left");
    EXPECT_EQ(message({1, 0, 0, 0, 9, 9}, [](skp::byte_cursor& in) { EXPECT_EQ(in.count(2), 1u); }), "");
}

TEST(ByteCursor, a_count_that_overflows_32_bits_when_multiplied_fails) {
    EXPECT_EQ(message({0xFF, 0xFF, 0xFF, 0xFF}, [](skp::byte_cursor& in) { in.count(8); }),
              "offset 1004, CThing: count 4294967295 needs 34359738360 bytes, 0 left");
}
