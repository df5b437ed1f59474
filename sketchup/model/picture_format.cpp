#include "sketchup/model/picture_format.h"

#include <initializer_list>

namespace sketchup {

std::uint32_t picture_format(std::span<const std::uint8_t> file) {
    const auto begins = [&](std::initializer_list<int> signature) {
        std::size_t i = 0;
        for (const int byte : signature)
            if (i >= file.size() || file[i++] != byte)
                return false;
        return true;
    };
    if (begins({0xFF, 0xD8, 0xFF}))
        return 1;
    if (begins({'B', 'M'}))
        return 2;
    if (begins({'I', 'I', 42, 0}) || begins({'M', 'M', 0, 42}))
        return 3;
    if (begins({0x89, 'P', 'N', 'G'}))
        return 4;
    return begins({'8', 'B', 'P', 'S'}) ? 8 : 0;
}

} // namespace sketchup
