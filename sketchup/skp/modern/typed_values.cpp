#include "sketchup/skp/modern/typed_values.h"

#include "sketchup/skp/modern/model_data.h"
#include "sketchup/skp/modern/records.h"
#include "sketchup/skp/modern/tags.h"

#include <utility>

namespace skp::modern {
namespace {

using sketchup::typed_value;
using sketchup::value_code;

typed_value value_in(byte_cursor payload, int depth);

std::vector<typed_value> array_in(byte_cursor in, int depth) {
    if (depth > deepest_containers)
        in.fail("arrays nest deeper than " + std::to_string(deepest_containers));
    std::vector<typed_value> elements;
    elements.reserve(count_of(in, tag::typed_value));
    for (const record& r : records(in))
        if (r.tag == tag::typed_value)
            elements.push_back(value_in(r.payload, depth));
    return elements;
}

// The code of a type is one more than its record's tag says.
value_code code_of(std::uint16_t value_tag) {
    return static_cast<value_code>(value_tag - tag::typed_value + 1);
}

typed_value value_of(const record& r, int depth) {
    byte_cursor in = r.payload;
    const value_code code = code_of(r.tag);
    const auto value = [code](auto data) { return typed_value{code, std::move(data)}; };
    switch (code) {
    case value_code::nil:
        break;
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
        return value(static_cast<std::int64_t>(in.left() >= sizeof(std::uint64_t) ? in.u64() : in.u32()));
    case value_code::string:
        return value(text_in(in));
    case value_code::array:
        return value(array_in(in, depth + 1));
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
        return value(doubles_in<13>(in));
    }
    return {};
}

typed_value value_in(byte_cursor payload, int depth) {
    constexpr int last_tag = tag::typed_value - 1 + static_cast<int>(value_code::transformation);
    for (const record& r : records(payload))
        if (r.tag > tag::typed_value && r.tag <= last_tag)
            return value_of(r, depth);
    return {};
}

} // namespace

typed_value read_typed_value(byte_cursor payload) {
    return value_in(payload, 0);
}

} // namespace skp::modern
