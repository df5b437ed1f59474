#pragma once

// The fields of the classic record of rendering options, which came and went with the versions.

#include <cstdint>
#include <limits>
#include <span>

namespace skp {

enum class option_type : std::uint8_t {
    integer,
    boolean,
    color,
    real,
    shadows,         // a flag that belongs to the shadow settings
    section_display, // two flags in one number: planes, cuts
};

inline constexpr std::uint32_t section_planes_bit = 1;
inline constexpr std::uint32_t section_cuts_bit = 2;

struct option_field {
    const char* name; // of the C interface; none for a field that it does not show
    option_type type;
    int from = 0; // the layouts that have the field
    int until = std::numeric_limits<int>::max();
    const char* setting = nullptr; // what model/usual_options.h calls a field without a name, if it has a usual value

    bool is_in(int layout) const { return layout >= from && layout <= until; }
};

// In the order of the file.
std::span<const option_field> option_fields();

} // namespace skp
