#pragma once

// The small value types of a model: points, colours, transforms, typed attribute values.

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace sketchup {

// A point or a vector; inches unless said otherwise.
struct vec3 {
    double x = 0;
    double y = 0;
    double z = 0;
    friend bool operator==(const vec3&, const vec3&) = default;
};

// a·x + b·y + c·z + d = 0; (a, b, c) is a unit normal.
struct plane {
    double a = 0;
    double b = 0;
    double c = 1;
    double d = 0;
    friend bool operator==(const plane&, const plane&) = default;
    vec3 normal() const { return {a, b, c}; }
};

struct rgba {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t alpha = 0;
    friend bool operator==(const rgba&, const rgba&) = default;
};

using guid = std::array<std::uint8_t, 16>;

// A placement as the interface gives it: column-major, translation in 12 to 14, the weight that divides everything
// in 15.
using transform = std::array<double, 16>;

inline constexpr transform identity_transform = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

// The 13 numbers of a file (a 3 × 3 part row by row, the translation, the weight) in the form of the interface, and
// back.
constexpr transform transform_from_file(const std::array<double, 13>& m) {
    return {m[0], m[3], m[6], 0, m[1], m[4], m[7], 0, m[2], m[5], m[8], 0, m[9], m[10], m[11], m[12]};
}
constexpr std::array<double, 13> transform_to_file(const transform& t) {
    return {t[0], t[4], t[8], t[1], t[5], t[9], t[2], t[6], t[10], t[12], t[13], t[14], t[15]};
}

// An axis-aligned box in inches. An empty box has its minimum above its maximum, at +1e30 and -1e30.
struct box {
    vec3 minimum{1e30, 1e30, 1e30};
    vec3 maximum{-1e30, -1e30, -1e30};
    bool is_empty() const { return minimum.x > maximum.x; }
};

// The types of an attribute value as files number them (the classic codes; the newer container's are one less).
enum class value_code : std::uint8_t {
    nil = 0,
    byte = 2,
    int16 = 3,
    int32 = 4,
    float32 = 5,
    float64 = 6,
    boolean = 7,
    color = 8,
    time = 9, // seconds since 1970
    string = 10,
    array = 11,
    length = 12,     // inches
    measure_13 = 13, // angle, area and others: doubles whose meaning no sample tells apart
    measure_14 = 14,
    measure_15 = 15,
    measure_16 = 16,
    point = 17,
    vector = 18,
    unit_vector = 19,
    transformation = 20,
};

// One attribute value. What `data` holds follows from the code:
//   nil: monostate; byte, int16, int32, time: int64; boolean: bool; float32, float64, length, measures: double;
//   color: rgba; string: UTF-8 text; array: the elements; point, vector, unit_vector: vec3;
//   transformation: the 13 numbers of the file.
struct typed_value {
    value_code code = value_code::nil;
    std::variant<std::monostate, std::int64_t, bool, double, rgba, std::string, std::vector<typed_value>, vec3,
                 std::array<double, 13>>
        data;
    friend bool operator==(const typed_value&, const typed_value&) = default;
};

struct attribute {
    std::string key;
    typed_value value;
    friend bool operator==(const attribute&, const attribute&) = default;
};

} // namespace sketchup
