#pragma once

// UTF-8 into the UTF-16 of the classic container.

#include <string>
#include <string_view>

namespace skp {

// Every byte that is part of no well-formed UTF-8 sequence becomes one U+FFFD.
std::u16string utf16_from_utf8(std::string_view text);

} // namespace skp
