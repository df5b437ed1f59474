#pragma once

// Real numbers cut to whole ones, where the language leaves what does not fit undefined.

#include <cmath>
#include <cstdint>
#include <limits>

// The integer part; the lowest integer where 32 bits cannot hold it, as the processor's own conversion gives it.
inline std::int32_t cut_toward_zero(double number) {
    constexpr double two_to_31 = 2147483648.0;
    const double whole = std::trunc(number);
    if (!(whole >= -two_to_31 && whole < two_to_31))
        return std::numeric_limits<std::int32_t>::min();
    return static_cast<std::int32_t>(whole);
}
