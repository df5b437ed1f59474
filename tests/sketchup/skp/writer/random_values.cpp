#include "tests/sketchup/skp/writer/random_values.h"

#include "sketchup/builder/model_builder.h"

#include <iterator>

using sketchup::typed_value;
using sketchup::value_code;

// The generator splitmix64.
std::uint64_t random_values::bits() {
    std::uint64_t z = state_ += 0x9E3779B97F4A7C15U;
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31U);
}

double random_values::figure() {
    return static_cast<double>(below(200001)) / 1000.0 - 100.0;
}

sketchup::rgba random_values::color() {
    const auto channel = [this] { return static_cast<std::uint8_t>(below(256)); };
    return {channel(), channel(), channel(), channel()};
}

sketchup::guid random_values::guid() {
    sketchup::guid id;
    for (std::uint8_t& byte : id)
        byte = static_cast<std::uint8_t>(below(256));
    return id;
}

std::string random_values::text() {
    constexpr const char* pieces[] = {
        "a",        "Wall ",        "[Brick]",          "\"",  "<&>", "/", "\\", "\xC3\xA9",
        "\xD0\x96", "\xE6\x9C\xA8", "\xF0\x9F\x8F\xA0", "]]>", " ",   "7", "\t"};
    std::string result;
    for (std::uint32_t i = below(6); i > 0; --i)
        result += pieces[below(std::size(pieces))];
    return result;
}

std::string random_values::name() {
    return text() + "#" + std::to_string(++names_);
}

sketchup::transform random_values::placement() {
    using namespace sketchup;
    transform t = after(moved(point()), turned_about_z(figure()));
    if (chance(3))
        t = after(t, scaled(figure(), figure(), figure())); // negative as often as not
    if (chance(4))
        t[15] = 0.5 + below(4);
    if (chance(5))
        t[4] += 0.25; // sheared
    return t;
}

namespace {

std::array<double, 13> transformation(random_values& random) {
    return sketchup::transform_to_file(random.placement());
}

} // namespace

typed_value random_values::value(int depth) {
    const auto code = static_cast<value_code>(below(21));
    switch (code) {
    case value_code::byte:
        return {code, static_cast<std::int64_t>(below(256))};
    case value_code::int16:
        return {code, static_cast<std::int64_t>(below(65536)) - 32768};
    case value_code::int32:
        return {code, static_cast<std::int64_t>(static_cast<std::int32_t>(bits()))};
    case value_code::time:
        return {code, static_cast<std::int64_t>(below(0xFFFFFFFF))};
    case value_code::float32:
        return {code, static_cast<double>(static_cast<float>(figure()))};
    case value_code::float64:
    case value_code::length:
    case value_code::measure_13:
    case value_code::measure_14:
    case value_code::measure_15:
    case value_code::measure_16:
        return {code, figure()};
    case value_code::boolean:
        return {code, chance(2)};
    case value_code::color:
        return {code, color()};
    case value_code::string:
        return {code, text()};
    case value_code::array: {
        std::vector<typed_value> elements;
        for (std::uint32_t i = depth > 0 ? below(4) : 0; i > 0; --i)
            elements.push_back(value(depth - 1));
        return {code, std::move(elements)};
    }
    case value_code::point:
    case value_code::vector:
    case value_code::unit_vector:
        return {code, point()};
    case value_code::transformation:
        return {code, transformation(*this)};
    default: // nil, and the one code that no value has
        return {};
    }
}
