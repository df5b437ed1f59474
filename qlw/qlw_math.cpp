#include "qlw/qlw_math.h"

#include "qlw/base64_alphabet.h"
#include "qlw/qlw_trace.h"
#include "qlw/text_numbers.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

constexpr double least_watts = 1.0;       // no lamp is darker
constexpr double large_value_share = 0.1; // of the tolerance, as a ratio to the coordinate

double to_multiple(double value, double step) {
    return step > 0 ? std::floor(value / step + round_up_from) * step : value;
}

bool components_agree(double a, double b, double tolerance) {
    const double difference = std::abs(a - b);
    return difference < tolerance || difference < std::max(std::abs(a), std::abs(b)) * tolerance * large_value_share;
}

// The bytes of a base64 text. Letters outside the alphabet are passed over; a NUL ends the text.
std::vector<std::uint8_t> bytes_of_base64(std::string_view text) {
    std::vector<std::uint8_t> bytes;
    std::uint32_t bits = 0;
    int bit_count = 0;
    for (const char letter : text.substr(0, text.find('\0'))) {
        const int value = base64_value(letter);
        if (value < 0)
            continue;
        bits = (bits << 6 | static_cast<std::uint32_t>(value)) & 0xFFFF; // at most 6 + 6 bits are waiting
        bit_count += 6;
        if (bit_count < 8)
            continue;
        bit_count -= 8;
        bytes.push_back(static_cast<std::uint8_t>(bits >> bit_count & 0xFF));
    }
    return bytes;
}

double little_endian_double(const std::uint8_t* bytes) {
    std::uint64_t bits = 0;
    for (int i = 7; i >= 0; --i)
        bits = bits << 8 | bytes[i];
    return std::bit_cast<double>(bits);
}

// text: "B", two digits and that many letters of base64.
fpt point_of_binary_text(std::string_view text) {
    const int letters = std::max(decimal_value(text.substr(1, 2)), 0);
    const std::size_t start = std::min<std::size_t>(3, text.size());
    std::vector<std::uint8_t> bytes = bytes_of_base64(text.substr(start, static_cast<std::size_t>(letters)));
    bytes.resize(3 * sizeof(double)); // what is missing is 0
    return {little_endian_double(&bytes[0]), little_endian_double(&bytes[8]), little_endian_double(&bytes[16])};
}

} // namespace

void report_no_magnitude(const fpt& vector) {
    cl_trace::here("fpt::make_unit", trace_level::report)
        .report("Try/Catch Error during punit: %g,%g,%g", vector.x, vector.y, vector.z);
}

std::string fpt_to_text(const fpt& point) {
    const auto component = [](double value) { return number_text(snap_to_zero(value, smallest_in_text)); };
    std::string text = "(";
    text.append(component(point.x)).append(", ").append(component(point.y)).append(", ").append(component(point.z));
    return text.append(")");
}

fpt text_to_fpt(std::string_view text) {
    if (text.starts_with('B'))
        return point_of_binary_text(text);
    if (text.starts_with('V'))
        text.remove_prefix(1);
    if (text.starts_with('('))
        text.remove_prefix(1);

    std::array<double, 3> components{};
    for (double& component : components) {
        const std::size_t comma = text.find(',');
        component = double_value(text.substr(0, comma));
        text.remove_prefix(comma == std::string_view::npos ? text.size() : comma + 1);
    }
    return {components[0], components[1], components[2]};
}

bool fpt_equal(const fpt& a, const fpt& b, double tolerance) {
    return components_agree(a.x, b.x, tolerance) && components_agree(a.y, b.y, tolerance) &&
           components_agree(a.z, b.z, tolerance);
}

double lumens_to_watts(double lumens, double step) {
    return std::max(least_watts, to_multiple(lumens / lumens_per_watt, step));
}

double watts_to_lumens(double watts, double step) {
    return std::max(lumens_per_watt * least_watts, to_multiple(watts * lumens_per_watt, step));
}
