#include "tools/gltf/numbers.h"

#include <array>
#include <charconv>
#include <cmath>

namespace gltf {

double short_number(double number) {
    const float nearest = static_cast<float>(number);
    if (!std::isfinite(nearest) || nearest == 0)
        return 0;
    std::array<char, 32> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), nearest);
    double result = 0;
    std::from_chars(text.data(), written.ptr, result);
    return result;
}

double linear_channel(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

} // namespace gltf
