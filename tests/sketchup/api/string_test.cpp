#include "tests/sketchup/api/test_model.h"

#include <gtest/gtest.h>
#include <random>

namespace {

struct filled_string {
    explicit filled_string(const char* text) { EXPECT_EQ(SUStringCreateFromUTF8(&ref, text), SU_ERROR_NONE); }
    explicit filled_string(const unichar* text) { EXPECT_EQ(SUStringCreateFromUTF16(&ref, text), SU_ERROR_NONE); }
    filled_string(const filled_string&) = delete;
    filled_string& operator=(const filled_string&) = delete;
    ~filled_string() { SUStringRelease(&ref); }
    size_t utf8_length() const {
        size_t length = 0;
        EXPECT_EQ(SUStringGetUTF8Length(ref, &length), SU_ERROR_NONE);
        return length;
    }
    size_t utf16_length() const {
        size_t length = 0;
        EXPECT_EQ(SUStringGetUTF16Length(ref, &length), SU_ERROR_NONE);
        return length;
    }
    // The buffer of `size` units, filled with 7 before; max is what the call is told.
    std::vector<int> utf8(size_t max, size_t size) const {
        std::vector<char> buffer(size, 7);
        EXPECT_EQ(SUStringGetUTF8(ref, max, buffer.data(), &copied), SU_ERROR_NONE);
        return {buffer.begin(), buffer.end()};
    }
    std::vector<int> utf16(size_t max, size_t size) const {
        std::vector<unichar> buffer(size, 7);
        EXPECT_EQ(SUStringGetUTF16(ref, max, buffer.data(), &copied), SU_ERROR_NONE);
        return {buffer.begin(), buffer.end()};
    }
    SUStringRef ref = SU_INVALID;
    mutable size_t copied = 99;
};

} // namespace

TEST(String, is_given_whole_to_a_buffer_with_room_for_the_null) {
    const filled_string text("abc");
    EXPECT_EQ(text.utf8_length(), 3u);
    EXPECT_EQ(text.utf8(4, 5), std::vector<int>({'a', 'b', 'c', 0, 7}));
    EXPECT_EQ(text.copied, 3u);
    EXPECT_EQ(text.utf16(4, 5), std::vector<int>({'a', 'b', 'c', 0, 7}));
    EXPECT_EQ(text.copied, 3u);
}

TEST(String, is_given_whole_to_a_buffer_of_just_its_length) {
    const filled_string text("abc");
    EXPECT_EQ(text.utf8(3, 4), std::vector<int>({'a', 'b', 'c', 7}));
    EXPECT_EQ(text.copied, 3u);
    EXPECT_EQ(text.utf16(3, 4), std::vector<int>({'a', 'b', 'c', 7}));
    EXPECT_EQ(text.copied, 3u);
}

TEST(String, is_cut_at_whole_characters) {
    const filled_string text("a\xC3\xA4\xF0\x9F\x98\x80"); // a, ä, a smiling face
    EXPECT_EQ(text.utf8_length(), 7u);
    EXPECT_EQ(text.utf16_length(), 4u);
    EXPECT_EQ(text.utf8(2, 2), std::vector<int>({'a', 0})) << "no half ä";
    EXPECT_EQ(text.copied, 1u);
    text.utf8(6, 7);
    EXPECT_EQ(text.copied, 3u);
    EXPECT_EQ(text.utf16(3, 4), std::vector<int>({'a', 0xE4, 0, 7})) << "no half pair of surrogates";
    EXPECT_EQ(text.copied, 2u);
    EXPECT_EQ(text.utf16(4, 4), std::vector<int>({'a', 0xE4, 0xD83D, 0xDE00}));
    EXPECT_EQ(text.copied, 4u);
}

TEST(String, without_room_copies_nothing_and_writes_nothing) {
    const filled_string text("abc");
    EXPECT_EQ(text.utf8(0, 1), std::vector<int>({7}));
    EXPECT_EQ(text.copied, 0u);
    EXPECT_EQ(text.utf16(0, 1), std::vector<int>({7}));
    EXPECT_EQ(text.copied, 0u);
}

TEST(String, from_utf16_joins_surrogates) {
    const unichar units[] = {'a', 0xE4, 0x20AC, 0xD83D, 0xDE00, 0};
    EXPECT_EQ(text_from<SUStringRef>(
                  [](SUStringRef from, SUStringRef* to) {
                      *sketchup::api::object_of(*to) = *sketchup::api::object_of(from);
                      return SU_ERROR_NONE;
                  },
                  filled_string(units).ref),
              "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(filled_string(units).utf8_length(), 10u);
}

TEST(String, replaces_what_is_no_text) {
    const unichar lone[] = {0xD83D, 'a', 0xDE00, 0};
    EXPECT_EQ(filled_string(lone).utf16(4, 4), std::vector<int>({0xFFFD, 'a', 0xFFFD, 0}));
    // A stray continuation, a cut sequence, an overlong slash, a surrogate, a code above the last: one for each byte.
    const std::vector<std::pair<const char*, size_t>> invalid = {
        {"\x80", 1}, {"\xE2\x82", 2}, {"\xC0\xAF", 2}, {"\xED\xA0\x80", 3}, {"\xF4\x90\x80\x80", 4}, {"\xFF", 1}};
    for (const auto& [bytes, count] : invalid) {
        const filled_string text(bytes);
        EXPECT_EQ(text.utf16_length(), count) << bytes;
        EXPECT_EQ(text.utf16(count, count), std::vector<int>(count, 0xFFFD));
    }
}

TEST(String, comes_back_the_same_through_utf16) {
    std::mt19937 random(20240501);
    for (int round = 0; round < 2000; ++round) {
        std::vector<unichar> units;
        for (int i = 0; i < 20; ++i) {
            const auto c = static_cast<char32_t>(1 + random() % 0x10FFFE);
            if (c >= 0xD800 && c <= 0xDFFF)
                continue;
            if (c >= 0x10000) {
                units.push_back(static_cast<unichar>(0xD800 + ((c - 0x10000) >> 10)));
                units.push_back(static_cast<unichar>(0xDC00 + ((c - 0x10000) & 0x3FF)));
            } else {
                units.push_back(static_cast<unichar>(c));
            }
        }
        units.push_back(0);
        const filled_string text(units.data());
        ASSERT_EQ(text.utf16_length(), units.size() - 1);
        ASSERT_EQ(text.utf16(units.size(), units.size()), std::vector<int>(units.begin(), units.end()));
    }
}

TEST(String, is_created_empty_once_and_released_once) {
    SUStringRef string = SU_INVALID;
    EXPECT_EQ(SUStringCreate(nullptr), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUStringCreate(&string), SU_ERROR_NONE);
    EXPECT_EQ(SUStringCreate(&string), SU_ERROR_OVERWRITE_VALID);
    size_t length = 9;
    EXPECT_EQ(SUStringGetUTF8Length(string, &length), SU_ERROR_NONE);
    EXPECT_EQ(length, 0u);
    EXPECT_EQ(SUStringRelease(&string), SU_ERROR_NONE);
    EXPECT_FALSE(SUIsValid(string));
    EXPECT_EQ(SUStringRelease(&string), SU_ERROR_INVALID_INPUT);
    EXPECT_EQ(SUStringRelease(nullptr), SU_ERROR_NULL_POINTER_INPUT);
}

TEST(String, of_a_released_one_is_empty_when_created_again) {
    SUStringRef string = SU_INVALID;
    SUStringCreateFromUTF8(&string, "left over");
    SUStringRelease(&string);
    EXPECT_EQ(test_string().text(), "");
}

TEST(String, tells_null_pointers_apart) {
    const filled_string text("abc");
    char buffer[4];
    unichar units[4];
    size_t copied = 0;
    SUStringRef made = SU_INVALID;
    EXPECT_EQ(SUStringGetUTF8(text.ref, 4, nullptr, &copied), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUStringGetUTF8(text.ref, 4, buffer, nullptr), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUStringGetUTF16(text.ref, 4, nullptr, &copied), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUStringGetUTF16(SU_INVALID, 4, units, &copied), SU_ERROR_INVALID_INPUT);
    EXPECT_EQ(SUStringCreateFromUTF8(&made, nullptr), SU_ERROR_NULL_POINTER_INPUT);
    EXPECT_EQ(SUStringCreateFromUTF16(&made, nullptr), SU_ERROR_NULL_POINTER_INPUT);
}
