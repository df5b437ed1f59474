// The calls on cameras and scenes.

#include "sketchup/api/calls.h"
#include "sketchup/api/plain_values.h"
#include "sketchup/model/vector_math.h"

#include <optional>

using namespace sketchup::api;

namespace {

// What `number` finds in a camera; NO_DATA if that is nothing.
template<class Number>
SUResult give_number(SUCameraRef camera, double* output, Number number) {
    const sketchup::camera* c = object_of(camera);
    if (!c)
        return SU_ERROR_INVALID_INPUT;
    if (!output)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    const std::optional<double> found = number(*c);
    if (!found)
        return SU_ERROR_NO_DATA;
    *output = *found;
    return SU_ERROR_NONE;
}

std::optional<double> number_if(bool there_is_one, double number) {
    return there_is_one ? std::optional(number) : std::nullopt;
}

} // namespace

SUResult SUCameraGetOrientation(SUCameraRef camera, SUPoint3D* position, SUPoint3D* target, SUVector3D* up) {
    const sketchup::camera* c = object_of(camera);
    if (!c)
        return SU_ERROR_INVALID_INPUT;
    if (!position || !target || !up)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    *position = to_point(c->eye);
    *target = to_point(c->target);
    *up = to_vector(sketchup::normalized_or(c->up, c->up));
    return SU_ERROR_NONE;
}

SUResult SUCameraGetPerspective(SUCameraRef camera, bool* perspective) {
    return give(camera, perspective, [](const sketchup::camera& c) { return c.perspective; });
}

SUResult SUCameraGetPerspectiveFrustumFOV(SUCameraRef camera, double* field_of_view) {
    return give_number(camera, field_of_view,
                       [](const sketchup::camera& c) { return number_if(c.perspective, c.field_of_view); });
}

SUResult SUCameraGetFOVIsHeight(SUCameraRef camera, bool* is_height) {
    return give(camera, is_height, [](const sketchup::camera& c) { return c.fov_is_vertical; });
}

SUResult SUCameraGetOrthographicFrustumHeight(SUCameraRef camera, double* height) {
    return give_number(camera, height, [](const sketchup::camera& c) { return number_if(!c.perspective, c.height); });
}

SUResult SUCameraGetAspectRatio(SUCameraRef camera, double* aspect_ratio) {
    return give_number(camera, aspect_ratio,
                       [](const sketchup::camera& c) { return number_if(c.aspect > 0, c.aspect); });
}

SUResult SUSceneGetName(SUSceneRef scene, SUStringRef* name) {
    return give_text(scene, name, [](const sketchup::scene& s) { return s.name; });
}

SUResult SUSceneGetCamera(SUSceneRef scene, SUCameraRef* camera) {
    return give_handle(scene, camera, [](const sketchup::scene& s) { return element_at(s.owner->cameras, s.camera); });
}
