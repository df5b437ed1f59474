#include "tools/skp_glb/model_cameras.h"

#include "tools/gltf/node_placement.h"
#include "tools/gltf/numbers.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

using gltf::metres_in_an_inch;
constexpr double nearest = 0.01;            // metres in front of the eye from which on things are seen
constexpr double usual_aspect = 16.0 / 9.0; // of a window, where the camera has none of its own

gltf::json perspective_of(SUCameraRef camera, double aspect) {
    double degrees = 35;
    bool is_height = true;
    SUCameraGetPerspectiveFrustumFOV(camera, &degrees);
    SUCameraGetFOVIsHeight(camera, &is_height);
    double half = std::clamp(degrees, 0.1, 179.0) / 2 * std::numbers::pi / 180;
    if (!is_height)
        half = std::atan(std::tan(half) / aspect);
    return {
        {"type", "perspective"},
        {"perspective",
         {{"yfov", gltf::short_number(2 * half)}, {"aspectRatio", gltf::short_number(aspect)}, {"znear", nearest}}}};
}

gltf::json parallel_of(SUCameraRef camera, double aspect, double far) {
    double height = 0;
    SUCameraGetOrthographicFrustumHeight(camera, &height);
    const double half = height > 0 ? gltf::short_number(height / 2 * metres_in_an_inch) : 1;
    return {{"type", "orthographic"},
            {"orthographic",
             {{"xmag", gltf::short_number(half * aspect)},
              {"ymag", half},
              {"znear", nearest},
              {"zfar", gltf::short_number(far)}}}};
}

} // namespace

std::optional<std::size_t> add_camera(gltf::glb_writer& to, SUCameraRef camera, const std::string& name, double reach) {
    SUPoint3D eye{};
    SUPoint3D target{};
    SUVector3D up{};
    if (SUCameraGetOrientation(camera, &eye, &target, &up) != SU_ERROR_NONE)
        return std::nullopt;
    const gltf::double3 direction = {target.x - eye.x, target.y - eye.y, target.z - eye.z};
    const double distance = std::hypot(direction[0], direction[1], direction[2]) * metres_in_an_inch;
    if (!(distance > 0) || !std::isfinite(distance))
        return std::nullopt;
    double aspect = usual_aspect;
    SUCameraGetAspectRatio(camera, &aspect);
    aspect = std::isfinite(aspect) ? std::clamp(aspect, 0.01, 100.0) : usual_aspect;
    bool in_perspective = true;
    SUCameraGetPerspective(camera, &in_perspective);
    gltf::json made =
        in_perspective ? perspective_of(camera, aspect) : parallel_of(camera, aspect, 2 * distance + reach + 1);
    made["name"] = name;
    gltf::node_placement where;
    where.translation = {eye.x * metres_in_an_inch, eye.y * metres_in_an_inch, eye.z * metres_in_an_inch};
    where.rotation = gltf::rotation_looking(direction, {up.x, up.y, up.z});
    gltf::json node = {{"name", name}, {"camera", to.add(gltf::list::cameras, made)}};
    gltf::place(node, where);
    return to.add(gltf::list::nodes, node);
}
