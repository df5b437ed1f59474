#pragma once

// The layouts of the archive container, by the number that stands in the header of a file.

#include <cstdint>

namespace skp::modern {

inline constexpr std::uint16_t format_2021 = 8;
inline constexpr std::uint16_t format_2021_1 = 10;
inline constexpr std::uint16_t format_2023 = 13;
inline constexpr std::uint16_t format_2024 = 14;
inline constexpr std::uint16_t format_2025 = 17;

} // namespace skp::modern
