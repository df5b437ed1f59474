#pragma once

// Files that travel as base64 text in attributes of a model.

#include <string>
#include <string_view>

// The bytes of a text in the alphabet of RFC 4648, taken in groups of four characters. It ends at the first character
// that is none of the alphabet, "=" among them: a line feed too, so line feeds must be taken out first. A last group of
// three or two characters gives two bytes or one; a single character left over gives none. Never fails.
std::string decode_base64(std::string_view text);
