// The calls on a whole model: opening, closing, and the lists that hang on it.

#include "sketchup/api/calls.h"
#include "sketchup/api/provider_state.h"
#include "sketchup/api/whole_file.h"
#include "sketchup/skp/read_model.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {

using namespace sketchup::api;
using sketchup::component_definition;
using sketchup::definition_kind;
using sketchup::model;

SUResult open_file(SUModelRef* handle, const char* file_path) {
    return guarded([&] {
        std::optional<std::vector<std::uint8_t>> bytes = read_whole_file(file_path);
        if (!bytes)
            return SU_ERROR_SERIALIZATION;
        *handle = adopt_model(skp::read_model(std::move(*bytes)));
        return SU_ERROR_NONE;
    });
}

SUResult definition_count(SUModelRef handle, definition_kind what, size_t* count) {
    return give(handle, count, [what](const model& m) {
        return static_cast<size_t>(std::count_if(m.definitions.begin(), m.definitions.end(),
                                                 [what](const component_definition& d) { return d.what == what; }));
    });
}

SUResult definitions(SUModelRef handle, definition_kind what, size_t len, SUComponentDefinitionRef items[],
                     size_t* count) {
    model* m = object_of(handle);
    if (!m)
        return SU_ERROR_INVALID_INPUT;
    return fill_accepted(m->definitions, len, items, count,
                         [what](const component_definition& d) { return d.what == what; });
}

} // namespace

SUResult SUModelCreateFromFile(SUModelRef* model, const char* file_path) {
    SUModelLoadStatus ignored;
    return SUModelCreateFromFileWithStatus(model, file_path, &ignored);
}

SUResult SUModelCreateFromFileWithStatus(SUModelRef* model, const char* file_path, SUModelLoadStatus* status) {
    if (!file_path)
        return SU_ERROR_NULL_POINTER_INPUT;
    if (!model || !status)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    if (model->ptr)
        return SU_ERROR_OVERWRITE_VALID;
    const SUResult result = open_file(model, file_path);
    if (result == SU_ERROR_NONE)
        *status = SUModelLoadStatus_Success;
    return result;
}

SUResult SUModelRelease(SUModelRef* model) {
    if (!model)
        return SU_ERROR_NULL_POINTER_INPUT;
    const sketchup::model* closed = object_of(*model);
    if (!closed)
        return SU_ERROR_INVALID_INPUT;
    std::erase_if(provider().models, [closed](const auto& open) { return open->model.get() == closed; });
    model->ptr = nullptr;
    return SU_ERROR_NONE;
}

SUResult SUModelGetVersion(SUModelRef model, int* major, int* minor, int* build) {
    const sketchup::model* m = object_of(model);
    if (!m)
        return SU_ERROR_INVALID_INPUT;
    if (!major || !minor || !build)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    *major = m->version.major;
    *minor = m->version.minor;
    *build = m->version.build;
    return SU_ERROR_NONE;
}

SUResult SUModelGetEntities(SUModelRef model, SUEntitiesRef* entities) {
    return give_handle(model, entities, [](sketchup::model& m) { return &m.root; });
}

SUResult SUModelGetNumLayers(SUModelRef model, size_t* count) {
    return give(model, count, [](const sketchup::model& m) { return m.layers.size(); });
}

SUResult SUModelGetLayers(SUModelRef model, size_t len, SULayerRef items[], size_t* count) {
    sketchup::model* m = object_of(model);
    if (!m)
        return SU_ERROR_INVALID_INPUT;
    return fill_accepted(m->layers, len, items, count, [](const sketchup::layer&) { return true; });
}

SUResult SUModelGetDefaultLayer(SUModelRef model, SULayerRef* layer) {
    return give_handle(model, layer, [](sketchup::model& m) { return element_at(m.layers, 0); });
}

SUResult SUModelGetNumComponentDefinitions(SUModelRef model, size_t* count) {
    return definition_count(model, definition_kind::component, count);
}

SUResult SUModelGetComponentDefinitions(SUModelRef model, size_t len, SUComponentDefinitionRef items[], size_t* count) {
    return definitions(model, definition_kind::component, len, items, count);
}

SUResult SUModelGetNumGroupDefinitions(SUModelRef model, size_t* count) {
    return definition_count(model, definition_kind::group, count);
}

SUResult SUModelGetGroupDefinitions(SUModelRef model, size_t len, SUComponentDefinitionRef items[], size_t* count) {
    return definitions(model, definition_kind::group, len, items, count);
}

SUResult SUModelGetNumImageDefinitions(SUModelRef model, size_t* count) {
    return definition_count(model, definition_kind::image, count);
}

SUResult SUModelGetImageDefinitions(SUModelRef model, size_t len, SUComponentDefinitionRef items[], size_t* count) {
    return definitions(model, definition_kind::image, len, items, count);
}

SUResult SUModelGetNumMaterials(SUModelRef model, size_t* count) {
    return give(model, count, [](const sketchup::model& m) { return m.listed_materials.size(); });
}

SUResult SUModelGetMaterials(SUModelRef model, size_t len, SUMaterialRef items[], size_t* count) {
    sketchup::model* m = object_of(model);
    if (!m)
        return SU_ERROR_INVALID_INPUT;
    return fill_chosen(m->listed_materials, m->materials, len, items, count);
}

SUResult SUModelGetNumScenes(SUModelRef model, size_t* count) {
    return give(model, count, [](const sketchup::model& m) { return m.scenes.size(); });
}

SUResult SUModelGetScenes(SUModelRef model, size_t len, SUSceneRef items[], size_t* count) {
    sketchup::model* m = object_of(model);
    if (!m)
        return SU_ERROR_INVALID_INPUT;
    return fill_accepted(m->scenes, len, items, count, [](const sketchup::scene&) { return true; });
}

SUResult SUModelGetActiveScene(SUModelRef model, SUSceneRef* scene) {
    sketchup::model* m = object_of(model);
    if (!m)
        return SU_ERROR_INVALID_INPUT;
    if (scene && scene->ptr)
        return SU_ERROR_OVERWRITE_VALID;
    return give_handle(model, scene,
                       [](sketchup::model& found) { return element_at(found.scenes, found.active_scene); });
}

SUResult SUModelGetCamera(SUModelRef model, SUCameraRef* camera) {
    return give_handle(model, camera, [](sketchup::model& m) { return &m.camera; });
}

SUResult SUModelGetRenderingOptions(SUModelRef model, SURenderingOptionsRef* options) {
    return give_handle(model, options, [](sketchup::model& m) { return &m.rendering_options; });
}

SUResult SUModelGetShadowInfo(SUModelRef model, SUShadowInfoRef* info) {
    return give_handle(model, info, [](sketchup::model& m) { return &m.shadow_info; });
}
