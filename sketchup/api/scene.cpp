// The calls on cameras and scenes.

#include "sketchup/api/calls.h"
#include "sketchup/api/plain_values.h"
#include "sketchup/model/vector_math.h"

using namespace sketchup::api;

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

SUResult SUSceneGetName(SUSceneRef scene, SUStringRef* name) {
    return give_text(scene, name, [](const sketchup::scene& s) { return s.name; });
}

SUResult SUSceneGetCamera(SUSceneRef scene, SUCameraRef* camera) {
    return give_handle(scene, camera, [](const sketchup::scene& s) { return element_at(s.owner->cameras, s.camera); });
}
