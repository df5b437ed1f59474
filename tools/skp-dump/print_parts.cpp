#include "tools/skp-dump/prints.h"

#include "sketchup/api/inspect.h"
#include "sketchup/model/model.h"
#include "tools/model_opening/su_lists.h"
#include "tools/skp-dump/value_text.h"

#include <cstdio>

namespace {

void print_camera(SUModelRef model) {
    SUCameraRef camera = SU_INVALID;
    SUPoint3D eye = {};
    SUPoint3D target = {};
    SUVector3D up = {};
    if (SUModelGetCamera(model, &camera) != SU_ERROR_NONE ||
        SUCameraGetOrientation(camera, &eye, &target, &up) != SU_ERROR_NONE)
        return;
    const sketchup::camera& inside = sketchup::model_behind(model)->camera;
    std::printf("  camera at (%.6g, %.6g, %.6g) to (%.6g, %.6g, %.6g) up (%.6g, %.6g, %.6g), ", eye.x, eye.y, eye.z,
                target.x, target.y, target.z, up.x, up.y, up.z);
    if (inside.perspective)
        std::printf("field of view %.6g degrees\n", inside.field_of_view);
    else
        std::printf("parallel, %.6g inches high\n", inside.height);
}

void print_scenes(SUModelRef model) {
    SUSceneRef active = SU_INVALID;
    SUModelGetActiveScene(model, &active);
    for (const SUSceneRef scene : su_list(model, SUModelGetNumScenes, SUModelGetScenes))
        std::printf("  scene %s%s\n", su_text(scene, SUSceneGetName).c_str(),
                    SUAreEqual(scene, active) ? " (active)" : "");
}

void print_images(SUEntitiesRef entities) {
    for (const SUImageRef image : su_list(entities, SUEntitiesGetNumImages, SUEntitiesGetImages)) {
        std::size_t pixels_wide = 0;
        std::size_t pixels_high = 0;
        double width = 0;
        double height = 0;
        const bool has_picture = SUImageGetPixelDimensions(image, &pixels_wide, &pixels_high) == SU_ERROR_NONE;
        SUImageGetDimensions(image, &width, &height);
        std::printf("  image %s: %.6g x %.6g inches, ", su_text(image, SUImageGetFileName).c_str(), width, height);
        if (has_picture)
            std::printf("%zu x %zu pixels\n", pixels_wide, pixels_high);
        else
            std::puts("no readable picture");
    }
}

void print_section_planes(SUEntitiesRef entities) {
    for (const SUSectionPlaneRef plane : su_list(entities, SUEntitiesGetNumSectionPlanes, SUEntitiesGetSectionPlanes)) {
        SUPlane3D p = {};
        bool active = false;
        SUSectionPlaneGetPlane(plane, &p);
        SUSectionPlaneIsActive(plane, &active);
        std::printf("  section plane %.6g x + %.6g y + %.6g z + %.6g = 0%s\n", p.a, p.b, p.c, p.d,
                    active ? " (active)" : "");
    }
}

// Images and section planes of the model and of everything that can be placed in it, once each.
void print_content(SUModelRef model) {
    SUEntitiesRef root = SU_INVALID;
    SUModelGetEntities(model, &root);
    std::vector<SUEntitiesRef> lists = {root};
    for (const auto& definitions : {su_list(model, SUModelGetNumComponentDefinitions, SUModelGetComponentDefinitions),
                                    su_list(model, SUModelGetNumGroupDefinitions, SUModelGetGroupDefinitions)})
        for (const SUComponentDefinitionRef definition : definitions) {
            SUEntitiesRef inside = SU_INVALID;
            SUComponentDefinitionGetEntities(definition, &inside);
            lists.push_back(inside);
        }
    for (const SUEntitiesRef entities : lists) {
        print_images(entities);
        print_section_planes(entities);
    }
}

// What a component does beyond lying where it is placed; empty for nothing.
std::string behavior_text(const SUComponentBehavior& behavior) {
    constexpr const char* glue[] = {"", " glues to anything", " glues to level faces", " glues to upright faces",
                                    " glues to sloped faces"};
    std::string text = glue[behavior.component_snap];
    const auto add = [&text](bool holds, const char* what) {
        if (holds)
            text += (text.empty() ? "" : ",") + std::string(what);
    };
    add(behavior.component_cuts_opening, " cuts openings");
    add(behavior.component_always_face_camera, " always faces the camera");
    add(behavior.component_shadows_face_sun, " its shadow faces the sun");
    add(behavior.component_no_scale_mask != 0, " hides scale handles");
    return text;
}

void print_behaviours(SUModelRef model) {
    for (const SUComponentDefinitionRef definition :
         su_list(model, SUModelGetNumComponentDefinitions, SUModelGetComponentDefinitions)) {
        SUComponentBehavior behavior = {};
        SUComponentDefinitionGetBehavior(definition, &behavior);
        const std::string text = behavior_text(behavior);
        if (!text.empty())
            std::printf("  component %s:%s\n", su_text(definition, SUComponentDefinitionGetName).c_str(), text.c_str());
    }
}

void print_rendering_options(SUModelRef model) {
    SURenderingOptionsRef options = SU_INVALID;
    if (SUModelGetRenderingOptions(model, &options) != SU_ERROR_NONE)
        return;
    SUTypedValueRef value = SU_INVALID;
    SUTypedValueCreate(&value);
    std::fputs("  rendering options:", stdout);
    for (const sketchup::attribute& option : sketchup::model_behind(model)->rendering_options.values)
        if (SURenderingOptionsGetValue(options, option.key.c_str(), &value) == SU_ERROR_NONE)
            std::printf(" %s=%s", option.key.c_str(), value_text(value).c_str());
    std::puts("");
    SUTypedValueRelease(&value);
}

} // namespace

void print_parts(SUModelRef model) {
    print_camera(model);
    print_sun(model);
    print_scenes(model);
    print_content(model);
    print_behaviours(model);
    print_rendering_options(model);
}
