#include "tools/raster/model_camera.h"

#include "sketchup/api/inspect.h"
#include "sketchup/model/model.h"

view camera_of(SUModelRef model, double unit) {
    const sketchup::camera& camera = sketchup::model_behind(model)->camera;
    const auto scaled = [unit](const sketchup::vec3& p) { return vec{p.x * unit, p.y * unit, p.z * unit}; };
    view result;
    result.eye = scaled(camera.eye);
    result.target = scaled(camera.target);
    result.up = {camera.up.x, camera.up.y, camera.up.z};
    result.perspective = camera.perspective;
    result.field_of_view = camera.field_of_view;
    result.fov_is_vertical = camera.fov_is_vertical;
    result.height = camera.height * unit;
    return result;
}
