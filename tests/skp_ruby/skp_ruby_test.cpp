// Hexadecimal frames.

#include "skp_ruby/skp_ruby.h"

#include "tests/support/trace_capture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using bytes = std::vector<std::uint8_t>;

TEST(HexEncode, a_frame_gives_its_bytes_in_either_case) {
    cl_hex_encode decoder;
    EXPECT_EQ(decoder.decode_hex_string("hex_data", "[hex_data][00000006]-48aBfF"), 3);
    EXPECT_EQ(decoder.data, (bytes{0x48, 0xab, 0xff}));
}

TEST(HexEncode, the_length_ends_at_the_first_character_that_is_no_digit) {
    cl_hex_encode decoder;
    EXPECT_EQ(decoder.decode_hex_string("n", "[n][4      ]-48494a4b"), 0); // seven characters: the bracket is misplaced
    EXPECT_EQ(decoder.decode_hex_string("n", "[n][4       ]-48494a4b"), 2);
    EXPECT_EQ(decoder.data, (bytes{0x48, 0x49}));
}

TEST(HexEncode, a_fault_among_the_digits_leaves_the_rest_of_the_announced_size_zero) {
    cl_hex_encode decoder;
    EXPECT_EQ(decoder.decode_hex_string("n", "[n][00000008]-48x94a4b"), 4);
    EXPECT_EQ(decoder.data, (bytes{0x48, 0, 0, 0}));
}

TEST(HexEncode, a_text_that_ends_early_leaves_zeros) {
    cl_hex_encode decoder;
    EXPECT_EQ(decoder.decode_hex_string("n", "[n][00000008]-48"), 4);
    EXPECT_EQ(decoder.data, (bytes{0x48, 0, 0, 0}));
    EXPECT_EQ(decoder.decode_hex_string("n", "[n][00000008]"), 4);
}

TEST(HexEncode, each_fault_of_the_frame_is_reported_and_gives_nothing) {
    const std::vector<std::pair<std::string, std::string>> faults{
        {"n][00000002]-48", "encoded string for n does not start with '['): ( n][00000002]-48 )"},
        {"", "encoded string for n does not start with '['): (  )"},
        {"[m][00000002]-48", "encoded string hex_name n does not match: ( [m][00000002]-48 )"},
        {"[n)[00000002]-48", "encoded string for n does not end with ']': ( [n)[00000002]-48 )"},
        {"[n]00000002]-4849494949", "encoded string for n does not have buffer length: ( [n]00000002]-4849494 )"},
        {"[n][0000002]-48", "encoded string for n does not have buffer length: ( [n][0000002]-48 )"},
    };
    for (const auto& [text, message] : faults) {
        trace_capture trace;
        cl_hex_encode decoder;
        EXPECT_EQ(decoder.decode_hex_string("n", text), 0) << text;
        EXPECT_TRUE(decoder.data.empty());
        EXPECT_THAT(trace.text(), testing::HasSubstr(message));
    }
}

TEST(HexEncode, a_second_text_replaces_what_the_first_gave) {
    cl_hex_encode decoder;
    decoder.decode_hex_string("n", "[n][00000002]-48");
    decoder.decode_hex_string("n", "broken");
    EXPECT_TRUE(decoder.data.empty());
}

TEST(HexDigits, more_pairs_than_there_is_room_for_are_refused) {
    bytes one(1);
    EXPECT_FALSE(decode_hex_digits("4849", one));
    EXPECT_TRUE(decode_hex_digits("48", one));
    EXPECT_TRUE(decode_hex_digits("", one));
}

} // namespace
