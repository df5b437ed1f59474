#pragma once

// Sums of progress steps.

#include <algorithm>
#include <cstdint>
#include <limits>

// Adds to a total of at least 0, which stays within 32 bits whatever scattered components add.
inline void add_items(int& total, std::uint64_t count) {
    const auto room = static_cast<std::uint64_t>(std::numeric_limits<int>::max() - total);
    total += static_cast<int>(std::min(count, room));
}
