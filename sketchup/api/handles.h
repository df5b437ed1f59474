#pragma once

// From handles of the C interface to the objects behind them and back. A handle's pointer leads to a struct of the
// model or to one that the provider made for the caller. Either begins with a byte that tells its kind, so that a
// handle of another kind is refused instead of misread.

#include "sketchup/api/provider_objects.h"
#include "sketchup/model/model.h"
#include "sketchup/SketchUpAPI.h"

#include <memory>

namespace sketchup::api {

// What stands behind a type of handle: the struct, and which kinds of it the handle may lead to.
template<class Handle>
struct handle_traits;

// A struct of the model of one kind.
template<class Object, entity_kind... kinds>
struct entity_handle {
    using object = Object;
    using root = entity;
    static bool accepts(unsigned char kind) { return ((kind == static_cast<unsigned char>(kinds)) || ...); }
};

// A struct of the provider.
template<class Object>
struct provider_handle {
    using object = Object;
    using root = provider_object;
    static bool accepts(unsigned char kind) { return kind == static_cast<unsigned char>(Object::live_kind); }
};

// clang-format off
template<> struct handle_traits<SUModelRef> : entity_handle<model, entity_kind::model> {};
template<> struct handle_traits<SUEntitiesRef> : entity_handle<entity_list, entity_kind::entities> {};
template<> struct handle_traits<SUFaceRef> : entity_handle<face, entity_kind::face> {};
template<> struct handle_traits<SUEdgeRef> : entity_handle<edge, entity_kind::edge> {};
template<> struct handle_traits<SUVertexRef> : entity_handle<vertex, entity_kind::vertex> {};
template<> struct handle_traits<SUGroupRef> : entity_handle<placement, entity_kind::group> {};
template<> struct handle_traits<SUComponentInstanceRef>
    : entity_handle<placement, entity_kind::component_instance, entity_kind::group> {};
template<> struct handle_traits<SUComponentDefinitionRef>
    : entity_handle<component_definition, entity_kind::component_definition> {};
template<> struct handle_traits<SUImageRef> : entity_handle<placement, entity_kind::image> {};
template<> struct handle_traits<SUSectionPlaneRef> : entity_handle<section_plane, entity_kind::section_plane> {};
template<> struct handle_traits<SULayerRef> : entity_handle<layer, entity_kind::layer> {};
template<> struct handle_traits<SUMaterialRef> : entity_handle<material, entity_kind::material> {};
template<> struct handle_traits<SUTextureRef> : entity_handle<texture, entity_kind::texture> {};
template<> struct handle_traits<SUAttributeDictionaryRef>
    : entity_handle<attribute_dictionary, entity_kind::attribute_dictionary> {};
template<> struct handle_traits<SUCameraRef> : entity_handle<camera, entity_kind::camera> {};
template<> struct handle_traits<SUSceneRef> : entity_handle<scene, entity_kind::scene> {};
template<> struct handle_traits<SURenderingOptionsRef>
    : entity_handle<rendering_options, entity_kind::rendering_options> {};
template<> struct handle_traits<SUShadowInfoRef> : entity_handle<shadow_info, entity_kind::shadow_info> {};
template<> struct handle_traits<SUDrawingElementRef>
    : entity_handle<drawing_element, entity_kind::face, entity_kind::edge, entity_kind::group,
                    entity_kind::component_instance, entity_kind::image, entity_kind::section_plane,
                    entity_kind::annotation, entity_kind::component_definition> {};
template<> struct handle_traits<SUEntityRef>
    : entity_handle<entity, entity_kind::face, entity_kind::edge, entity_kind::group, entity_kind::component_instance,
                    entity_kind::image, entity_kind::section_plane, entity_kind::annotation,
                    entity_kind::component_definition, entity_kind::vertex, entity_kind::curve, entity_kind::layer,
                    entity_kind::material, entity_kind::texture, entity_kind::attribute_dictionary,
                    entity_kind::scene> {};
template<> struct handle_traits<SUStringRef> : provider_handle<string_object> {};
template<> struct handle_traits<SUTypedValueRef> : provider_handle<typed_value_object> {};
template<> struct handle_traits<SUUVHelperRef> : provider_handle<uv_helper> {};
template<> struct handle_traits<SUMeshHelperRef> : provider_handle<mesh_helper> {};
template<> struct handle_traits<SUOpeningRef> : provider_handle<opening_object> {};
template<> struct handle_traits<SUTextureWriterRef> : provider_handle<texture_writer> {};
// clang-format on

// The object behind a handle; null if the handle is invalid or of another kind.
template<class Handle>
typename handle_traits<Handle>::object* object_of(Handle handle) {
    using traits = handle_traits<Handle>;
    if (!handle.ptr || !traits::accepts(*static_cast<const unsigned char*>(handle.ptr)))
        return nullptr;
    return static_cast<typename traits::object*>(static_cast<typename traits::root*>(handle.ptr));
}

// The handle of an object; the same for every call.
template<class Handle>
Handle handle_of(typename handle_traits<Handle>::object& object) {
    Handle handle;
    handle.ptr = static_cast<typename handle_traits<Handle>::root*>(&object);
    return handle;
}

// Puts a linked model behind a handle, as opening a file does. The provider owns the model until SUModelRelease or
// SUTerminate.
SUModelRef adopt_model(std::unique_ptr<model> linked);

} // namespace sketchup::api
