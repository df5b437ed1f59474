// The shapes that the parts of the room are made of.

#include "room_parts.h"

#include <cmath>
#include <numbers>

using namespace sketchup;

list_builder add_box(model_builder& m, list_builder list, const char* name, const vec3& low, const vec3& high,
                     sketchup::index material) {
    list_builder group = list.group(name);
    m.element(group.placement()).material = material;
    group.box(low, high);
    return group;
}

namespace {

// In steps of a thousandth of an inch, so that the same model is made wherever sines differ in their last digit.
double rounded(double length) {
    return std::round(length * 1000) / 1000;
}

std::vector<vec3> points_of(const vec3& foot, const ring& at, int sides) {
    if (at.radius == 0)
        return {{foot.x, foot.y, foot.z + at.z}};
    std::vector<vec3> points;
    for (int i = 0; i < sides; ++i) {
        const double angle = 2 * std::numbers::pi * (i + 0.5) / sides;
        points.push_back({foot.x + rounded(at.radius * std::cos(angle)), foot.y + rounded(at.radius * std::sin(angle)),
                          foot.z + at.z});
    }
    return points;
}

} // namespace

void add_turned(list_builder list, const vec3& foot, const std::vector<ring>& rings, int sides, bool closed) {
    std::vector<vec3> below = points_of(foot, rings.front(), sides);
    if (closed && below.size() > 1)
        list.face(std::vector<vec3>(below.rbegin(), below.rend()));
    for (std::size_t r = 1; r < rings.size(); ++r) {
        std::vector<vec3> above = points_of(foot, rings[r], sides);
        for (std::size_t i = 0; i < static_cast<std::size_t>(sides); ++i) {
            const std::size_t next = (i + 1) % static_cast<std::size_t>(sides);
            std::vector<vec3> outline = {below[below.size() > 1 ? i : 0]};
            if (below.size() > 1)
                outline.push_back(below[next]);
            outline.push_back(above[above.size() > 1 ? next : 0]);
            if (above.size() > 1)
                outline.push_back(above[i]);
            list.face(outline);
        }
        below = std::move(above);
    }
    if (closed && below.size() > 1)
        list.face(below);
}
