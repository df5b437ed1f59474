#include "tools/raster/model_camera.h"

view camera_of(SUModelRef model, double unit) {
    SUCameraRef camera = SU_INVALID;
    SUPoint3D eye{};
    SUPoint3D target{};
    SUVector3D up{};
    SUModelGetCamera(model, &camera);
    SUCameraGetOrientation(camera, &eye, &target, &up);
    const auto scaled = [unit](const SUPoint3D& p) { return vec{p.x * unit, p.y * unit, p.z * unit}; };
    view result;
    result.eye = scaled(eye);
    result.target = scaled(target);
    result.up = {up.x, up.y, up.z};
    // What a parallel view lacks, and what one in perspective does, stays as it is.
    SUCameraGetPerspective(camera, &result.perspective);
    SUCameraGetPerspectiveFrustumFOV(camera, &result.field_of_view);
    SUCameraGetFOVIsHeight(camera, &result.fov_is_vertical);
    SUCameraGetOrthographicFrustumHeight(camera, &result.height);
    result.height *= unit;
    return result;
}
