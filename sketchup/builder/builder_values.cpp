// The values and placements that a program building a model writes down.

#include "sketchup/builder/model_builder.h"
#include "sketchup/model/vector_math.h"

#include <cmath>
#include <numbers>

namespace sketchup {

typed_value text(std::string_view value) {
    return {value_code::string, std::string(value)};
}
typed_value whole_number(std::int32_t value) {
    return {value_code::int32, std::int64_t{value}};
}
typed_value real_number(double value) {
    return {value_code::float64, value};
}
typed_value truth(bool value) {
    return {value_code::boolean, value};
}

transform moved(const vec3& by) {
    return {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, by.x, by.y, by.z, 1};
}

transform scaled(double x, double y, double z) {
    return {x, 0, 0, 0, 0, y, 0, 0, 0, 0, z, 0, 0, 0, 0, 1};
}

transform turned_about_z(double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return {c, s, 0, 0, -s, c, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
}

transform after(const transform& outer, const transform& inner) {
    return compose(outer, inner);
}

} // namespace sketchup
