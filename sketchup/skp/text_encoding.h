#pragma once

// Text on its way into files and out of them: any bytes in, well-formed UTF-16 or UTF-8 out.

#include <string>
#include <string_view>

namespace skp {

// Every byte that is part of no well-formed UTF-8 sequence becomes one U+FFFD.
std::u16string utf16_from_utf8(std::string_view text);
std::string well_formed_utf8(std::string_view text);

} // namespace skp
