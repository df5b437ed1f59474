#include "sketchup/skp/writer/written_cameras.h"

#include "sketchup/model/vector_math.h"

#include <algorithm>
#include <cmath>

namespace skp {

using sketchup::vec3;

namespace {

constexpr double usual_height = 133; // inches: what the program leaves in perspective views

// How far the cosine between two directions at right angles may be off: views of the program are stored with noise.
constexpr double slack = 1e-3;

vec3 across(const vec3& up, const vec3& view) {
    return up - view * (dot(up, view) / dot(view, view));
}

// up: any vector. view: not zero.
vec3 upright(const vec3& up, const vec3& view) {
    const double shortest = 1e-6 * length(up);
    for (const vec3& candidate : {up, vec3{0, 0, 1}, vec3{0, 1, 0}}) {
        const vec3 turned = across(candidate, view);
        if (length(turned) > std::max(shortest, 1e-6))
            return turned * (1 / length(turned));
    }
    return {0, 0, 1};
}

bool is_upright(const vec3& up, const vec3& view) {
    return std::abs(length(up) - 1) <= slack && std::abs(dot(up, view)) <= slack * length(view);
}

} // namespace

sketchup::camera written_camera(const sketchup::camera& camera) {
    sketchup::camera written = camera;
    if (!(written.height > 0))
        written.height = usual_height;
    const vec3 view = camera.target - camera.eye;
    if (length(view) > 0 && !is_upright(camera.up, view))
        written.up = upright(camera.up, view);
    return written;
}

sketchup::camera thumbnail_camera() {
    sketchup::camera camera;
    camera.eye = {0, 0, 1};
    camera.target = {0, 0, 2};
    camera.up = {0, 1, 0};
    camera.field_of_view = 30;
    camera.height = 1;
    return camera;
}

} // namespace skp
