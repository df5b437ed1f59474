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

TEST(HexEncode, a_text_that_ends_early_has_the_announced_size_and_keeps_what_it_has_digits_for) {
    cl_hex_encode decoder;
    EXPECT_EQ(decoder.decode_hex_string("n", "[n][00000008]-484"), 4);
    EXPECT_EQ(decoder.data, (bytes{0x48}));
    EXPECT_EQ(decoder.data_size, 4);
    EXPECT_EQ(decoder.decode_hex_string("n", "[n][00000008]"), 4);
    EXPECT_TRUE(decoder.data.empty());
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
        testing::internal::CaptureStderr();
        EXPECT_EQ(decoder.decode_hex_string("n", text), 0) << text;
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "an error for developers, without a dialog";
        EXPECT_TRUE(decoder.data.empty());
        EXPECT_EQ(trace.text_without_line_numbers(),
                  "skp_ruby(#): cl_hex_encode::decode_hex_string():: *** ERROR: " + message + "\n");
    }
}

TEST(HexEncode, a_second_text_replaces_what_the_first_gave) {
    cl_hex_encode decoder;
    decoder.decode_hex_string("n", "[n][00000002]-48");
    decoder.decode_hex_string("n", "broken");
    EXPECT_TRUE(decoder.data.empty());
}

TEST(HexEncode, an_odd_length_counts_the_byte_that_its_last_digit_makes_with_the_character_behind_it) {
    cl_hex_encode decoder;
    EXPECT_EQ(decoder.decode_hex_string("n", "[n][00000007]-48494a4b4c"), 4);
    EXPECT_EQ(decoder.data, (bytes{0x48, 0x49, 0x4a, 0x4b}));
    EXPECT_EQ(decoder.data_size, 4);
    EXPECT_EQ(decoder.hex_length, 7);
    EXPECT_EQ(decoder.decode_hex_string("n", "[n][00000001]-48"), 1);
    EXPECT_EQ(decoder.data, (bytes{0x48}));
}

TEST(HexEncode, an_odd_length_without_a_digit_behind_it_has_the_size_of_its_whole_pairs) {
    for (const char* text : {"[n][00000007]-48494a4", "[n][00000007]-48494a4x"}) {
        cl_hex_encode decoder;
        EXPECT_EQ(decoder.decode_hex_string("n", text), 3) << text;
        EXPECT_EQ(decoder.data, (bytes{0x48, 0x49, 0x4a})) << text;
    }
}

TEST(HexEncode, the_name_is_compared_over_its_own_length_only) {
    const trace_capture trace;
    cl_hex_encode decoder;
    EXPECT_EQ(decoder.decode_hex_string("abc", "[abcd][00000002]-48"), 0);
    EXPECT_THAT(trace.text(),
                testing::HasSubstr("encoded string for abc does not end with ']': ( [abcd][00000002]-48 )"));
}

TEST(HexEncode, a_length_of_0_is_an_empty_result_without_a_report) {
    const trace_capture trace;
    cl_hex_encode decoder;
    EXPECT_EQ(decoder.decode_hex_string("n", "[n][00000000]-48"), 0);
    EXPECT_TRUE(decoder.data.empty());
    EXPECT_EQ(trace.text(), "");
}

TEST(HexEncode, a_length_below_0_is_an_empty_result) {
    cl_hex_encode decoder;
    EXPECT_EQ(decoder.decode_hex_string("n", "[n][-0000004]-4849"), 0);
    EXPECT_TRUE(decoder.data.empty());
}

TEST(HexEncode, a_wrong_digit_at_position_5_leaves_two_bytes_set_and_the_announced_size) {
    cl_hex_encode decoder;
    EXPECT_EQ(decoder.decode_hex_string("n", "[n][00000008]-48494x4b"), 4);
    EXPECT_EQ(decoder.data, (bytes{0x48, 0x49, 0, 0}));
    EXPECT_EQ(decoder.data_size, 4);
}

TEST(HexEncode, the_largest_length_that_a_frame_can_say_asks_for_no_more_memory_than_its_text_fills) {
    cl_hex_encode decoder;
    EXPECT_EQ(decoder.decode_hex_string("n", "[n][99999999]-48"), 49999999);
    EXPECT_EQ(decoder.data, (bytes{0x48}));
    EXPECT_EQ(decoder.data_size, 49999999);
}

TEST(HexEncode, every_shorter_frame_is_taken_without_reading_past_its_end) {
    const std::string whole = "[name][00000004]-4849";
    for (std::size_t length = 0; length != whole.size(); ++length) {
        const std::vector<char> exact(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
        cl_hex_encode decoder;
        const std::int32_t size = decoder.decode_hex_string("name", {exact.data(), exact.size()});
        EXPECT_EQ(size, length < 16 ? 0 : 2) << length; // the frame's last bracket is the 16th character
        EXPECT_EQ(decoder.text_length, static_cast<std::int32_t>(length));
    }
}

TEST(HexDigits, more_pairs_than_there_is_room_for_are_refused) {
    bytes two(2);
    std::int32_t count = 1;
    EXPECT_FALSE(decode_hex_digits("4849", 4, two, count));
    EXPECT_EQ(count, 1);
    EXPECT_TRUE(decode_hex_digits("48", 2, two, count));
    EXPECT_EQ(count, 1);
}

TEST(HexDigits, no_digits_are_no_bytes) {
    bytes one(1);
    for (const std::int32_t digits : {0, -1}) {
        std::int32_t count = 1;
        EXPECT_TRUE(decode_hex_digits("48", digits, one, count));
        EXPECT_EQ(count, 0);
    }
}

TEST(HexDigits, an_odd_last_digit_is_paired_with_the_character_behind_it) {
    bytes four(4);
    std::int32_t count = 3;
    EXPECT_TRUE(decode_hex_digits("48494a4b4c", 7, four, count));
    EXPECT_EQ(count, 4);
    EXPECT_EQ(four, (bytes{0x48, 0x49, 0x4a, 0x4b}));
}

TEST(HexDigits, an_odd_last_digit_with_nothing_behind_it_or_no_room_for_it_is_a_fault) {
    bytes four(4);
    std::int32_t count = 3;
    EXPECT_FALSE(decode_hex_digits("48494a4", 7, four, count));
    EXPECT_EQ(count, 3);
    bytes three(3);
    EXPECT_FALSE(decode_hex_digits("48494a4b", 7, three, count));
    EXPECT_EQ(count, 3);
    EXPECT_EQ(three, (bytes{0x48, 0x49, 0x4a}));
}

TEST(HexDigits, a_fault_leaves_the_count_and_the_bytes_in_front_of_it) {
    bytes two(2);
    for (const char* text : {"48g0", "480g", "48 9", "48:0", "480@", "48`0", "48"}) {
        std::int32_t count = 2;
        EXPECT_FALSE(decode_hex_digits(text, 4, two, count)) << text;
        EXPECT_EQ(count, 2);
        EXPECT_EQ(two[0], 0x48);
    }
}

TEST(HexDigits, nothing_to_read_from_or_to_write_to_is_a_fault) {
    bytes one(1);
    std::int32_t count = 1;
    EXPECT_FALSE(decode_hex_digits({}, 2, one, count));
    EXPECT_FALSE(decode_hex_digits("48", 2, {}, count));
    EXPECT_EQ(count, 1);
}

} // namespace
