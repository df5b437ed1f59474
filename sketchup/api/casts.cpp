// Casts between the handles of one object. The pointer stays the same; what cannot be cast gives an invalid handle.

#include "sketchup/api/handles.h"

namespace {

template<class To, class From>
To recast(From from) {
    using traits = sketchup::api::handle_traits<To>;
    To to = SU_INVALID;
    const sketchup::entity* object = sketchup::api::object_of(from);
    if (object && traits::accepts(static_cast<unsigned char>(object->kind)))
        to.ptr = from.ptr;
    return to;
}

} // namespace

SUEntityRef SUDrawingElementToEntity(SUDrawingElementRef element) {
    return recast<SUEntityRef>(element);
}

SUDrawingElementRef SUDrawingElementFromEntity(SUEntityRef entity) {
    return recast<SUDrawingElementRef>(entity);
}

SUEntityRef SUFaceToEntity(SUFaceRef face) {
    return recast<SUEntityRef>(face);
}

SUFaceRef SUFaceFromEntity(SUEntityRef entity) {
    return recast<SUFaceRef>(entity);
}

SUDrawingElementRef SUFaceToDrawingElement(SUFaceRef face) {
    return recast<SUDrawingElementRef>(face);
}

SUFaceRef SUFaceFromDrawingElement(SUDrawingElementRef element) {
    return recast<SUFaceRef>(element);
}

SUEntityRef SUEdgeToEntity(SUEdgeRef edge) {
    return recast<SUEntityRef>(edge);
}

SUEdgeRef SUEdgeFromEntity(SUEntityRef entity) {
    return recast<SUEdgeRef>(entity);
}

SUDrawingElementRef SUEdgeToDrawingElement(SUEdgeRef edge) {
    return recast<SUDrawingElementRef>(edge);
}

SUEdgeRef SUEdgeFromDrawingElement(SUDrawingElementRef element) {
    return recast<SUEdgeRef>(element);
}

SUEntityRef SUVertexToEntity(SUVertexRef vertex) {
    return recast<SUEntityRef>(vertex);
}

SUVertexRef SUVertexFromEntity(SUEntityRef entity) {
    return recast<SUVertexRef>(entity);
}

SUEntityRef SUGroupToEntity(SUGroupRef group) {
    return recast<SUEntityRef>(group);
}

SUGroupRef SUGroupFromEntity(SUEntityRef entity) {
    return recast<SUGroupRef>(entity);
}

SUDrawingElementRef SUGroupToDrawingElement(SUGroupRef group) {
    return recast<SUDrawingElementRef>(group);
}

SUGroupRef SUGroupFromDrawingElement(SUDrawingElementRef element) {
    return recast<SUGroupRef>(element);
}

SUEntityRef SUComponentInstanceToEntity(SUComponentInstanceRef instance) {
    return recast<SUEntityRef>(instance);
}

SUComponentInstanceRef SUComponentInstanceFromEntity(SUEntityRef entity) {
    return recast<SUComponentInstanceRef>(entity);
}

SUDrawingElementRef SUComponentInstanceToDrawingElement(SUComponentInstanceRef instance) {
    return recast<SUDrawingElementRef>(instance);
}

SUComponentInstanceRef SUComponentInstanceFromDrawingElement(SUDrawingElementRef element) {
    return recast<SUComponentInstanceRef>(element);
}

SUEntityRef SUComponentDefinitionToEntity(SUComponentDefinitionRef definition) {
    return recast<SUEntityRef>(definition);
}

SUComponentDefinitionRef SUComponentDefinitionFromEntity(SUEntityRef entity) {
    return recast<SUComponentDefinitionRef>(entity);
}

SUDrawingElementRef SUComponentDefinitionToDrawingElement(SUComponentDefinitionRef definition) {
    return recast<SUDrawingElementRef>(definition);
}

SUComponentDefinitionRef SUComponentDefinitionFromDrawingElement(SUDrawingElementRef element) {
    return recast<SUComponentDefinitionRef>(element);
}

SUEntityRef SUImageToEntity(SUImageRef image) {
    return recast<SUEntityRef>(image);
}

SUImageRef SUImageFromEntity(SUEntityRef entity) {
    return recast<SUImageRef>(entity);
}

SUDrawingElementRef SUImageToDrawingElement(SUImageRef image) {
    return recast<SUDrawingElementRef>(image);
}

SUImageRef SUImageFromDrawingElement(SUDrawingElementRef element) {
    return recast<SUImageRef>(element);
}

SUEntityRef SUSectionPlaneToEntity(SUSectionPlaneRef plane) {
    return recast<SUEntityRef>(plane);
}

SUSectionPlaneRef SUSectionPlaneFromEntity(SUEntityRef entity) {
    return recast<SUSectionPlaneRef>(entity);
}

SUDrawingElementRef SUSectionPlaneToDrawingElement(SUSectionPlaneRef plane) {
    return recast<SUDrawingElementRef>(plane);
}

SUSectionPlaneRef SUSectionPlaneFromDrawingElement(SUDrawingElementRef element) {
    return recast<SUSectionPlaneRef>(element);
}

SUEntityRef SULayerToEntity(SULayerRef layer) {
    return recast<SUEntityRef>(layer);
}

SULayerRef SULayerFromEntity(SUEntityRef entity) {
    return recast<SULayerRef>(entity);
}

SUEntityRef SUMaterialToEntity(SUMaterialRef material) {
    return recast<SUEntityRef>(material);
}

SUMaterialRef SUMaterialFromEntity(SUEntityRef entity) {
    return recast<SUMaterialRef>(entity);
}

SUEntityRef SUTextureToEntity(SUTextureRef texture) {
    return recast<SUEntityRef>(texture);
}

SUTextureRef SUTextureFromEntity(SUEntityRef entity) {
    return recast<SUTextureRef>(entity);
}

SUEntityRef SUSceneToEntity(SUSceneRef scene) {
    return recast<SUEntityRef>(scene);
}

SUSceneRef SUSceneFromEntity(SUEntityRef entity) {
    return recast<SUSceneRef>(entity);
}

SUEntityRef SUAttributeDictionaryToEntity(SUAttributeDictionaryRef dictionary) {
    return recast<SUEntityRef>(dictionary);
}

SUAttributeDictionaryRef SUAttributeDictionaryFromEntity(SUEntityRef entity) {
    return recast<SUAttributeDictionaryRef>(entity);
}

SUComponentInstanceRef SUGroupToComponentInstance(SUGroupRef group) {
    return recast<SUComponentInstanceRef>(group);
}

SUGroupRef SUGroupFromComponentInstance(SUComponentInstanceRef instance) {
    return recast<SUGroupRef>(instance);
}
