#pragma once

// Between UTF-8 and UTF-16. What is not valid becomes U+FFFD, one for each byte or unit that fits nowhere.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace sketchup::api {

// Takes the first character off a text that is not empty.
char32_t take_character(std::string_view& utf8);

// The number of UTF-16 units of a character: 1, or 2 beyond the basic plane.
std::size_t utf16_units(char32_t character);

// The length of the longest part of a text that has at most `limit` bytes and splits no character.
std::size_t whole_characters(std::string_view utf8, std::size_t limit);

// From UTF-16 that ends with a null.
std::string utf8_from_utf16(const std::uint16_t* text);

} // namespace sketchup::api
