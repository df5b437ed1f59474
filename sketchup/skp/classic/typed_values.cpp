#include "sketchup/skp/classic/typed_values.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace skp {
namespace {

using sketchup::typed_value;
using sketchup::value_code;

typed_value read_value(archive& in, int depth);

std::vector<typed_value> read_array(archive& in, int depth) {
    if (depth > deepest_array_nesting)
        in.fail("arrays nest deeper than " + std::to_string(deepest_array_nesting));
    const std::uint32_t count = in.count(1); // an element is at least its code
    in.spend_array_elements(count);
    std::vector<typed_value> elements; // not reserved: nested counts could each claim all the bytes that are left
    for (std::uint32_t i = 0; i < count; ++i)
        elements.push_back(read_value(in, depth));
    return elements;
}

std::array<double, 13> read_transformation(archive& in) {
    std::array<double, 13> numbers{};
    for (double& n : numbers)
        n = in.f64();
    return numbers;
}

typed_value read_value(archive& in, int depth) {
    const std::uint8_t code = in.u8();
    const auto value = [code](auto data) { return typed_value{static_cast<value_code>(code), std::move(data)}; };
    switch (static_cast<value_code>(code)) {
    case value_code::nil:
        return {};
    case value_code::byte:
        return value(static_cast<std::int64_t>(in.u8()));
    case value_code::int16:
        return value(static_cast<std::int64_t>(static_cast<std::int16_t>(in.u16())));
    case value_code::int32:
        return value(static_cast<std::int64_t>(in.i32()));
    case value_code::float32:
        return value(static_cast<double>(in.f32()));
    case value_code::boolean:
        return value(in.boolean());
    case value_code::color:
        return value(in.rgba());
    case value_code::time:
        return value(static_cast<std::int64_t>(in.u32()));
    case value_code::string:
        return value(in.text());
    case value_code::array:
        return value(read_array(in, depth + 1));
    case value_code::float64:
    case value_code::length:
    case value_code::measure_13:
    case value_code::measure_14:
    case value_code::measure_15:
    case value_code::measure_16:
        return value(in.f64());
    case value_code::point:
    case value_code::vector:
    case value_code::unit_vector:
        return value(in.v3());
    case value_code::transformation:
        return value(read_transformation(in));
    }
    in.fail("unknown value code " + std::to_string(code));
}

} // namespace

typed_value read_typed_value(archive& in) {
    return read_value(in, 0);
}

} // namespace skp
