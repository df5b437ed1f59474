#include "tools/raster/view.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double usual_field_of_view = 35; // degrees
constexpr vec from_a_corner = {-0.6, -0.8, 0.5};
constexpr double least_radius = 1e-3; // so that a point is seen too

} // namespace

bool looks_somewhere(const view& seen) {
    const bool is_finite = std::isfinite(seen.eye[0] + seen.eye[1] + seen.eye[2]) &&
                           std::isfinite(seen.target[0] + seen.target[1] + seen.target[2]) &&
                           std::isfinite(seen.up[0] + seen.up[1] + seen.up[2]);
    const bool is_wide = seen.perspective ? seen.field_of_view > 0 && seen.field_of_view < 180
                                          : seen.height > 0 && std::isfinite(seen.height);
    return is_finite && is_wide && seen.eye != seen.target;
}

view view_of_box(const vec& low, const vec& high, double aspect) {
    const double radius = std::max(least_radius, std::hypot(high[0] - low[0], high[1] - low[1], high[2] - low[2]) / 2);
    const double away = radius / std::sin(usual_field_of_view * std::numbers::pi / 360) /
                        std::hypot(from_a_corner[0], from_a_corner[1], from_a_corner[2]);
    view result;
    for (std::size_t i = 0; i < low.size(); ++i) {
        result.target[i] = (low[i] + high[i]) / 2;
        result.eye[i] = result.target[i] + away * from_a_corner[i];
    }
    result.field_of_view = usual_field_of_view;
    result.fov_is_vertical = aspect >= 1;
    return result;
}
