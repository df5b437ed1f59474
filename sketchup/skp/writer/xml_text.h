#pragma once

// How values stand in the documents of the archive container.

#include "sketchup/model/values.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <pugixml.hpp>
#include <string>

namespace skp {

// The shortest text that gives the number again.
template<class T>
std::string decimal(T number) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    return {digits.data(), end.ptr};
}

// 0xAABBGGRR
inline std::uint32_t packed(const sketchup::rgba& color) {
    return std::uint32_t{color.red} | std::uint32_t{color.green} << 8U | std::uint32_t{color.blue} << 16U |
           std::uint32_t{color.alpha} << 24U;
}

// Adds an attribute; bytes that are no UTF-8 become U+FFFD.
void set(pugi::xml_node element, const char* name, const std::string& value);

// Adds the declaration and the root element, in whose namespace are elements without a prefix and those with this one,
// as the program writes it.
pugi::xml_node add_root(pugi::xml_document& document, const char* name, const char* prefix, const char* of_namespace);

// The document in UTF-8, without white space between elements.
std::string text_of(const pugi::xml_document& document);

} // namespace skp
