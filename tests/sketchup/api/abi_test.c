// What a program compiled against the host's own header relies on: every size, offset and signature. Nothing here runs;
// that it compiles, as C, is the test.

#include "sketchup/SketchUpAPI.h"

// Sizes and offsets are those of 64-bit systems.
static_assert(sizeof(void*) == 8, "64 bits");

#define HANDLE(type) static_assert(sizeof(type) == 8 && offsetof(type, ptr) == 0, "a handle is one pointer")
HANDLE(SUModelRef);
HANDLE(SUEntitiesRef);
HANDLE(SUEntityRef);
HANDLE(SUDrawingElementRef);
HANDLE(SUFaceRef);
HANDLE(SUEdgeRef);
HANDLE(SUVertexRef);
HANDLE(SULoopRef);
HANDLE(SUGroupRef);
HANDLE(SUComponentDefinitionRef);
HANDLE(SUComponentInstanceRef);
HANDLE(SUImageRef);
HANDLE(SUSectionPlaneRef);
HANDLE(SULayerRef);
HANDLE(SUMaterialRef);
HANDLE(SUTextureRef);
HANDLE(SUTextureWriterRef);
HANDLE(SUUVHelperRef);
HANDLE(SUMeshHelperRef);
HANDLE(SUOpeningRef);
HANDLE(SUAttributeDictionaryRef);
HANDLE(SUTypedValueRef);
HANDLE(SUCameraRef);
HANDLE(SUSceneRef);
HANDLE(SURenderingOptionsRef);
HANDLE(SUShadowInfoRef);
HANDLE(SUStringRef);

#define STRUCT(type, size) static_assert(sizeof(type) == (size), "size of " #type)
#define MEMBER(type, member, offset) static_assert(offsetof(type, member) == (offset), #type "::" #member)
STRUCT(struct SUPoint2D, 16);
MEMBER(struct SUPoint2D, x, 0);
MEMBER(struct SUPoint2D, y, 8);
STRUCT(struct SUVector2D, 16);
MEMBER(struct SUVector2D, x, 0);
MEMBER(struct SUVector2D, y, 8);
STRUCT(struct SUPoint3D, 24);
MEMBER(struct SUPoint3D, x, 0);
MEMBER(struct SUPoint3D, y, 8);
MEMBER(struct SUPoint3D, z, 16);
STRUCT(struct SUVector3D, 24);
MEMBER(struct SUVector3D, x, 0);
MEMBER(struct SUVector3D, y, 8);
MEMBER(struct SUVector3D, z, 16);
STRUCT(struct SUPlane3D, 32);
MEMBER(struct SUPlane3D, a, 0);
MEMBER(struct SUPlane3D, b, 8);
MEMBER(struct SUPlane3D, c, 16);
MEMBER(struct SUPlane3D, d, 24);
STRUCT(struct SUBoundingBox3D, 48);
MEMBER(struct SUBoundingBox3D, min_point, 0);
MEMBER(struct SUBoundingBox3D, max_point, 24);
STRUCT(struct SUTransformation, 128);
MEMBER(struct SUTransformation, values, 0);
STRUCT(struct SUUVQ, 24);
MEMBER(struct SUUVQ, u, 0);
MEMBER(struct SUUVQ, v, 8);
MEMBER(struct SUUVQ, q, 16);
STRUCT(struct SUColor, 4);
MEMBER(struct SUColor, red, 0);
MEMBER(struct SUColor, green, 1);
MEMBER(struct SUColor, blue, 2);
MEMBER(struct SUColor, alpha, 3);
STRUCT(struct SUColorOrder, 8);
MEMBER(struct SUColorOrder, red_index, 0);
MEMBER(struct SUColorOrder, green_index, 2);
MEMBER(struct SUColorOrder, blue_index, 4);
MEMBER(struct SUColorOrder, alpha_index, 6);
STRUCT(struct SUComponentBehavior, 16);
MEMBER(struct SUComponentBehavior, component_snap, 0);
MEMBER(struct SUComponentBehavior, component_cuts_opening, 4);
MEMBER(struct SUComponentBehavior, component_always_face_camera, 5);
MEMBER(struct SUComponentBehavior, component_shadows_face_sun, 6);
MEMBER(struct SUComponentBehavior, component_no_scale_mask, 8);
STRUCT(SUByte, 1);
STRUCT(unichar, 2);
STRUCT(bool, 1);
static_assert((unichar)-1 > 0, "UTF-16 units are unsigned");
STRUCT(enum SUResult, 4);
STRUCT(enum SUTypedValueType, 4);
STRUCT(enum SUComponentType, 4);
STRUCT(enum SUMaterialType, 4);
STRUCT(enum SUModelLoadStatus, 4);
STRUCT(enum SUSnapToBehavior, 4);

#define NUMBER(name, value) static_assert(name == (value), "number of " #name)
NUMBER(SU_ERROR_NONE, 0);
NUMBER(SU_ERROR_NULL_POINTER_INPUT, 1);
NUMBER(SU_ERROR_INVALID_INPUT, 2);
NUMBER(SU_ERROR_NULL_POINTER_OUTPUT, 3);
NUMBER(SU_ERROR_INVALID_OUTPUT, 4);
NUMBER(SU_ERROR_OVERWRITE_VALID, 5);
NUMBER(SU_ERROR_GENERIC, 6);
NUMBER(SU_ERROR_SERIALIZATION, 7);
NUMBER(SU_ERROR_OUT_OF_RANGE, 8);
NUMBER(SU_ERROR_NO_DATA, 9);
NUMBER(SU_ERROR_INSUFFICIENT_SIZE, 10);
NUMBER(SU_ERROR_UNKNOWN_EXCEPTION, 11);
NUMBER(SU_ERROR_MODEL_INVALID, 12);
NUMBER(SU_ERROR_MODEL_VERSION, 13);
NUMBER(SU_ERROR_LAYER_LOCKED, 14);
NUMBER(SU_ERROR_DUPLICATE, 15);
NUMBER(SU_ERROR_PARTIAL_SUCCESS, 16);
NUMBER(SU_ERROR_UNSUPPORTED, 17);
NUMBER(SU_ERROR_INVALID_ARGUMENT, 18);
NUMBER(SU_ERROR_ENTITY_LOCKED, 19);
NUMBER(SU_ERROR_INVALID_OPERATION, 20);
NUMBER(SUTypedValueType_Empty, 0);
NUMBER(SUTypedValueType_Byte, 1);
NUMBER(SUTypedValueType_Short, 2);
NUMBER(SUTypedValueType_Int32, 3);
NUMBER(SUTypedValueType_Float, 4);
NUMBER(SUTypedValueType_Double, 5);
NUMBER(SUTypedValueType_Bool, 6);
NUMBER(SUTypedValueType_Color, 7);
NUMBER(SUTypedValueType_Time, 8);
NUMBER(SUTypedValueType_String, 9);
NUMBER(SUTypedValueType_Vector3D, 10);
NUMBER(SUTypedValueType_Array, 11);
NUMBER(SUComponentType_Normal, 0);
NUMBER(SUComponentType_Group, 1);
NUMBER(SUComponentType_Image, 2);
NUMBER(SUMaterialType_Colored, 0);
NUMBER(SUMaterialType_Textured, 1);
NUMBER(SUMaterialType_ColorizedTexture, 2);
NUMBER(SUSnapToBehavior_None, 0);
NUMBER(SUSnapToBehavior_Any, 1);
NUMBER(SUSnapToBehavior_Horizontal, 2);
NUMBER(SUSnapToBehavior_Vertical, 3);
NUMBER(SUSnapToBehavior_Sloped, 4);
NUMBER(SUModelLoadStatus_Success, 0);
NUMBER(SUModelLoadStatus_Success_MoreRecent, 1);

// The call converts to a pointer of exactly this signature.
#define SIGNATURE(result, name, ...)                                                                                   \
    do {                                                                                                               \
        result (*call)(__VA_ARGS__) = name;                                                                            \
        (void)call;                                                                                                    \
    } while (0)

void abi_of_library(void);
void abi_of_library(void) {
    SIGNATURE(void, SUInitialize, void);
    SIGNATURE(void, SUTerminate, void);
    SIGNATURE(void, SUGetAPIVersion, size_t*, size_t*);
}

void abi_of_model(void);
void abi_of_model(void) {
    SIGNATURE(SUResult, SUModelCreateFromFile, SUModelRef*, const char*);
    SIGNATURE(SUResult, SUModelRelease, SUModelRef*);
    SIGNATURE(SUResult, SUModelGetVersion, SUModelRef, int*, int*, int*);
    SIGNATURE(SUResult, SUModelGetEntities, SUModelRef, SUEntitiesRef*);
    SIGNATURE(SUResult, SUModelGetNumLayers, SUModelRef, size_t*);
    SIGNATURE(SUResult, SUModelGetLayers, SUModelRef, size_t, SULayerRef*, size_t*);
    SIGNATURE(SUResult, SUModelGetNumComponentDefinitions, SUModelRef, size_t*);
    SIGNATURE(SUResult, SUModelGetComponentDefinitions, SUModelRef, size_t, SUComponentDefinitionRef*, size_t*);
    SIGNATURE(SUResult, SUModelGetNumAttributeDictionaries, SUModelRef, size_t*);
    SIGNATURE(SUResult, SUModelGetAttributeDictionaries, SUModelRef, size_t, SUAttributeDictionaryRef*, size_t*);
    SIGNATURE(SUResult, SUModelGetCamera, SUModelRef, SUCameraRef*);
    SIGNATURE(SUResult, SUModelGetActiveScene, SUModelRef, SUSceneRef*);
    SIGNATURE(SUResult, SUModelGetRenderingOptions, SUModelRef, SURenderingOptionsRef*);
    SIGNATURE(SUResult, SUModelGetShadowInfo, SUModelRef, SUShadowInfoRef*);
    SIGNATURE(SUResult, SUModelCreateFromFileWithStatus, SUModelRef*, const char*, enum SUModelLoadStatus*);
    SIGNATURE(SUResult, SUModelGetNumGroupDefinitions, SUModelRef, size_t*);
    SIGNATURE(SUResult, SUModelGetNumImageDefinitions, SUModelRef, size_t*);
    SIGNATURE(SUResult, SUModelGetNumMaterials, SUModelRef, size_t*);
    SIGNATURE(SUResult, SUModelGetGroupDefinitions, SUModelRef, size_t, SUComponentDefinitionRef*, size_t*);
    SIGNATURE(SUResult, SUModelGetImageDefinitions, SUModelRef, size_t, SUComponentDefinitionRef*, size_t*);
    SIGNATURE(SUResult, SUModelGetMaterials, SUModelRef, size_t, SUMaterialRef*, size_t*);
    SIGNATURE(SUResult, SUModelGetDefaultLayer, SUModelRef, SULayerRef*);
}

void abi_of_entities(void);
void abi_of_entities(void) {
    SIGNATURE(SUResult, SUEntitiesGetBoundingBox, SUEntitiesRef, SUBoundingBox3D*);
    SIGNATURE(SUResult, SUEntitiesGetNumFaces, SUEntitiesRef, size_t*);
    SIGNATURE(SUResult, SUEntitiesGetFaces, SUEntitiesRef, size_t, SUFaceRef*, size_t*);
    SIGNATURE(SUResult, SUEntitiesGetNumGroups, SUEntitiesRef, size_t*);
    SIGNATURE(SUResult, SUEntitiesGetGroups, SUEntitiesRef, size_t, SUGroupRef*, size_t*);
    SIGNATURE(SUResult, SUEntitiesGetNumImages, SUEntitiesRef, size_t*);
    SIGNATURE(SUResult, SUEntitiesGetImages, SUEntitiesRef, size_t, SUImageRef*, size_t*);
    SIGNATURE(SUResult, SUEntitiesGetNumInstances, SUEntitiesRef, size_t*);
    SIGNATURE(SUResult, SUEntitiesGetInstances, SUEntitiesRef, size_t, SUComponentInstanceRef*, size_t*);
    SIGNATURE(SUResult, SUEntitiesGetNumSectionPlanes, SUEntitiesRef, size_t*);
    SIGNATURE(SUResult, SUEntitiesGetSectionPlanes, SUEntitiesRef, size_t, SUSectionPlaneRef*, size_t*);
    SIGNATURE(SUResult, SUEntitiesGetNumEdges, SUEntitiesRef, bool, size_t*);
    SIGNATURE(SUResult, SUEntitiesGetEdges, SUEntitiesRef, bool, size_t, SUEdgeRef*, size_t*);
}

void abi_of_entity(void);
void abi_of_entity(void) {
    SIGNATURE(SUResult, SUEntityGetID, SUEntityRef, int32_t*);
    SIGNATURE(SUResult, SUEntityGetNumAttributeDictionaries, SUEntityRef, size_t*);
    SIGNATURE(SUResult, SUEntityGetAttributeDictionaries, SUEntityRef, size_t, SUAttributeDictionaryRef*, size_t*);
    SIGNATURE(SUResult, SUEntityGetPersistentID, SUEntityRef, int64_t*);
    SIGNATURE(SUResult, SUEntityGetAttributeDictionary, SUEntityRef, const char*, SUAttributeDictionaryRef*);
}

void abi_of_face(void);
void abi_of_face(void) {
    SIGNATURE(SUEntityRef, SUFaceToEntity, SUFaceRef);
    SIGNATURE(SUDrawingElementRef, SUFaceToDrawingElement, SUFaceRef);
    SIGNATURE(SUResult, SUFaceGetFrontMaterial, SUFaceRef, SUMaterialRef*);
    SIGNATURE(SUResult, SUFaceSetFrontMaterial, SUFaceRef, SUMaterialRef);
    SIGNATURE(SUResult, SUFaceIsFrontMaterialAffine, SUFaceRef, bool*);
    SIGNATURE(SUResult, SUFaceGetBackMaterial, SUFaceRef, SUMaterialRef*);
    SIGNATURE(SUResult, SUFaceSetBackMaterial, SUFaceRef, SUMaterialRef);
    SIGNATURE(SUResult, SUFaceIsBackMaterialAffine, SUFaceRef, bool*);
    SIGNATURE(SUResult, SUFaceGetNumEdges, SUFaceRef, size_t*);
    SIGNATURE(SUResult, SUFaceGetEdges, SUFaceRef, size_t, SUEdgeRef*, size_t*);
    SIGNATURE(SUResult, SUFaceGetNumOpenings, SUFaceRef, size_t*);
    SIGNATURE(SUResult, SUFaceGetOpenings, SUFaceRef, size_t, SUOpeningRef*, size_t*);
    SIGNATURE(SUResult, SUOpeningGetNumPoints, SUOpeningRef, size_t*);
    SIGNATURE(SUResult, SUOpeningGetPoints, SUOpeningRef, size_t, SUPoint3D*, size_t*);
    SIGNATURE(SUResult, SUOpeningRelease, SUOpeningRef*);
    SIGNATURE(SUResult, SUFaceGetUVHelper, SUFaceRef, bool, bool, SUTextureWriterRef, SUUVHelperRef*);
    SIGNATURE(SUFaceRef, SUFaceFromEntity, SUEntityRef);
    SIGNATURE(SUFaceRef, SUFaceFromDrawingElement, SUDrawingElementRef);
    SIGNATURE(SUResult, SUFaceGetNormal, SUFaceRef, SUVector3D*);
    SIGNATURE(SUResult, SUFaceGetPlane, SUFaceRef, SUPlane3D*);
    SIGNATURE(SUResult, SUFaceGetArea, SUFaceRef, double*);
}

void abi_of_edge(void);
void abi_of_edge(void) {
    SIGNATURE(SUEntityRef, SUEdgeToEntity, SUEdgeRef);
    SIGNATURE(SUDrawingElementRef, SUEdgeToDrawingElement, SUEdgeRef);
    SIGNATURE(SUResult, SUEdgeGetStartVertex, SUEdgeRef, SUVertexRef*);
    SIGNATURE(SUResult, SUEdgeGetEndVertex, SUEdgeRef, SUVertexRef*);
    SIGNATURE(SUResult, SUEdgeGetSoft, SUEdgeRef, bool*);
    SIGNATURE(SUResult, SUEdgeGetSmooth, SUEdgeRef, bool*);
    SIGNATURE(SUResult, SUEdgeGetFaces, SUEdgeRef, size_t, SUFaceRef*, size_t*);
    SIGNATURE(SUEdgeRef, SUEdgeFromEntity, SUEntityRef);
    SIGNATURE(SUEdgeRef, SUEdgeFromDrawingElement, SUDrawingElementRef);
    SIGNATURE(SUResult, SUEdgeGetNumFaces, SUEdgeRef, size_t*);
}

void abi_of_group(void);
void abi_of_group(void) {
    SIGNATURE(SUEntityRef, SUGroupToEntity, SUGroupRef);
    SIGNATURE(SUDrawingElementRef, SUGroupToDrawingElement, SUGroupRef);
    SIGNATURE(SUResult, SUGroupGetName, SUGroupRef, SUStringRef*);
    SIGNATURE(SUResult, SUGroupGetTransform, SUGroupRef, SUTransformation*);
    SIGNATURE(SUResult, SUGroupGetEntities, SUGroupRef, SUEntitiesRef*);
    SIGNATURE(SUResult, SUGroupGetDefinition, SUGroupRef, SUComponentDefinitionRef*);
    SIGNATURE(SUGroupRef, SUGroupFromEntity, SUEntityRef);
    SIGNATURE(SUGroupRef, SUGroupFromDrawingElement, SUDrawingElementRef);
    SIGNATURE(SUComponentInstanceRef, SUGroupToComponentInstance, SUGroupRef);
    SIGNATURE(SUGroupRef, SUGroupFromComponentInstance, SUComponentInstanceRef);
}

void abi_of_component_instance(void);
void abi_of_component_instance(void) {
    SIGNATURE(SUEntityRef, SUComponentInstanceToEntity, SUComponentInstanceRef);
    SIGNATURE(SUDrawingElementRef, SUComponentInstanceToDrawingElement, SUComponentInstanceRef);
    SIGNATURE(SUResult, SUComponentInstanceGetName, SUComponentInstanceRef, SUStringRef*);
    SIGNATURE(SUResult, SUComponentInstanceGetTransform, SUComponentInstanceRef, SUTransformation*);
    SIGNATURE(SUResult, SUComponentInstanceGetDefinition, SUComponentInstanceRef, SUComponentDefinitionRef*);
    SIGNATURE(SUComponentInstanceRef, SUComponentInstanceFromEntity, SUEntityRef);
    SIGNATURE(SUComponentInstanceRef, SUComponentInstanceFromDrawingElement, SUDrawingElementRef);
}

void abi_of_component_definition(void);
void abi_of_component_definition(void) {
    SIGNATURE(SUEntityRef, SUComponentDefinitionToEntity, SUComponentDefinitionRef);
    SIGNATURE(SUDrawingElementRef, SUComponentDefinitionToDrawingElement, SUComponentDefinitionRef);
    SIGNATURE(SUResult, SUComponentDefinitionGetName, SUComponentDefinitionRef, SUStringRef*);
    SIGNATURE(SUResult, SUComponentDefinitionGetEntities, SUComponentDefinitionRef, SUEntitiesRef*);
    SIGNATURE(SUResult, SUComponentDefinitionGetBehavior, SUComponentDefinitionRef, SUComponentBehavior*);
    SIGNATURE(SUComponentDefinitionRef, SUComponentDefinitionFromEntity, SUEntityRef);
    SIGNATURE(SUComponentDefinitionRef, SUComponentDefinitionFromDrawingElement, SUDrawingElementRef);
    SIGNATURE(SUResult, SUComponentDefinitionGetType, SUComponentDefinitionRef, enum SUComponentType*);
}

void abi_of_image(void);
void abi_of_image(void) {
    SIGNATURE(SUEntityRef, SUImageToEntity, SUImageRef);
    SIGNATURE(SUDrawingElementRef, SUImageToDrawingElement, SUImageRef);
    SIGNATURE(SUResult, SUImageGetTransform, SUImageRef, SUTransformation*);
    SIGNATURE(SUResult, SUImageGetFileName, SUImageRef, SUStringRef*);
    SIGNATURE(SUResult, SUImageGetDimensions, SUImageRef, double*, double*);
    SIGNATURE(SUResult, SUImageGetPixelDimensions, SUImageRef, size_t*, size_t*);
    SIGNATURE(SUResult, SUImageGetDataSize, SUImageRef, size_t*, size_t*);
    SIGNATURE(SUResult, SUImageGetData, SUImageRef, size_t, SUByte*);
    SIGNATURE(SUImageRef, SUImageFromEntity, SUEntityRef);
    SIGNATURE(SUImageRef, SUImageFromDrawingElement, SUDrawingElementRef);
    SIGNATURE(SUResult, SUImageGetDefinition, SUImageRef, SUComponentDefinitionRef*);
}

void abi_of_section_plane(void);
void abi_of_section_plane(void) {
    SIGNATURE(SUEntityRef, SUSectionPlaneToEntity, SUSectionPlaneRef);
    SIGNATURE(SUDrawingElementRef, SUSectionPlaneToDrawingElement, SUSectionPlaneRef);
    SIGNATURE(SUResult, SUSectionPlaneGetPlane, SUSectionPlaneRef, SUPlane3D*);
    SIGNATURE(SUResult, SUSectionPlaneIsActive, SUSectionPlaneRef, bool*);
    SIGNATURE(SUSectionPlaneRef, SUSectionPlaneFromEntity, SUEntityRef);
    SIGNATURE(SUSectionPlaneRef, SUSectionPlaneFromDrawingElement, SUDrawingElementRef);
}

void abi_of_material(void);
void abi_of_material(void) {
    SIGNATURE(SUEntityRef, SUMaterialToEntity, SUMaterialRef);
    SIGNATURE(SUResult, SUMaterialGetName, SUMaterialRef, SUStringRef*);
    SIGNATURE(SUResult, SUMaterialGetColor, SUMaterialRef, SUColor*);
    SIGNATURE(SUResult, SUMaterialGetTexture, SUMaterialRef, SUTextureRef*);
    SIGNATURE(SUResult, SUMaterialGetOpacity, SUMaterialRef, double*);
    SIGNATURE(SUMaterialRef, SUMaterialFromEntity, SUEntityRef);
    SIGNATURE(SUResult, SUMaterialGetNameLegacyBehavior, SUMaterialRef, SUStringRef*);
    SIGNATURE(SUResult, SUMaterialGetUseOpacity, SUMaterialRef, bool*);
    SIGNATURE(SUResult, SUMaterialGetType, SUMaterialRef, enum SUMaterialType*);
}

void abi_of_drawing_element(void);
void abi_of_drawing_element(void) {
    SIGNATURE(SUResult, SUDrawingElementGetBoundingBox, SUDrawingElementRef, SUBoundingBox3D*);
    SIGNATURE(SUResult, SUDrawingElementGetMaterial, SUDrawingElementRef, SUMaterialRef*);
    SIGNATURE(SUResult, SUDrawingElementGetLayer, SUDrawingElementRef, SULayerRef*);
    SIGNATURE(SUResult, SUDrawingElementGetHidden, SUDrawingElementRef, bool*);
    SIGNATURE(SUResult, SUDrawingElementGetCastsShadows, SUDrawingElementRef, bool*);
    SIGNATURE(SUResult, SUDrawingElementGetReceivesShadows, SUDrawingElementRef, bool*);
    SIGNATURE(SUEntityRef, SUDrawingElementToEntity, SUDrawingElementRef);
    SIGNATURE(SUDrawingElementRef, SUDrawingElementFromEntity, SUEntityRef);
}

void abi_of_uv_helper(void);
void abi_of_uv_helper(void) {
    SIGNATURE(SUResult, SUUVHelperGetFrontUVQ, SUUVHelperRef, const SUPoint3D*, SUUVQ*);
    SIGNATURE(SUResult, SUUVHelperGetBackUVQ, SUUVHelperRef, const SUPoint3D*, SUUVQ*);
    SIGNATURE(SUResult, SUUVHelperRelease, SUUVHelperRef*);
}

void abi_of_mesh_helper(void);
void abi_of_mesh_helper(void) {
    SIGNATURE(SUResult, SUMeshHelperCreate, SUMeshHelperRef*, SUFaceRef);
    SIGNATURE(SUResult, SUMeshHelperCreateWithUVHelper, SUMeshHelperRef*, SUFaceRef, SUUVHelperRef);
    SIGNATURE(SUResult, SUMeshHelperRelease, SUMeshHelperRef*);
    SIGNATURE(SUResult, SUMeshHelperGetNumTriangles, SUMeshHelperRef, size_t*);
    SIGNATURE(SUResult, SUMeshHelperGetNumVertices, SUMeshHelperRef, size_t*);
    SIGNATURE(SUResult, SUMeshHelperGetVertexIndices, SUMeshHelperRef, size_t, size_t*, size_t*);
    SIGNATURE(SUResult, SUMeshHelperGetVertices, SUMeshHelperRef, size_t, SUPoint3D*, size_t*);
    SIGNATURE(SUResult, SUMeshHelperGetNormals, SUMeshHelperRef, size_t, SUVector3D*, size_t*);
    SIGNATURE(SUResult, SUMeshHelperCreateWithTextureWriter, SUMeshHelperRef*, SUFaceRef, SUTextureWriterRef);
    SIGNATURE(SUResult, SUMeshHelperGetFrontSTQCoords, SUMeshHelperRef, size_t, SUPoint3D*, size_t*);
    SIGNATURE(SUResult, SUMeshHelperGetBackSTQCoords, SUMeshHelperRef, size_t, SUPoint3D*, size_t*);
}

void abi_of_vertex(void);
void abi_of_vertex(void) {
    SIGNATURE(SUResult, SUVertexGetPosition, SUVertexRef, SUPoint3D*);
}

void abi_of_layer(void);
void abi_of_layer(void) {
    SIGNATURE(SUResult, SULayerGetName, SULayerRef, SUStringRef*);
    SIGNATURE(SUResult, SULayerGetMaterial, SULayerRef, SUMaterialRef*);
    SIGNATURE(SUResult, SULayerGetVisibility, SULayerRef, bool*);
    SIGNATURE(SUEntityRef, SULayerToEntity, SULayerRef);
    SIGNATURE(SULayerRef, SULayerFromEntity, SUEntityRef);
    SIGNATURE(SUResult, SULayerGetDisplayName, SULayerRef, SUStringRef*);
}

void abi_of_texture(void);
void abi_of_texture(void) {
    SIGNATURE(SUResult, SUTextureGetDimensions, SUTextureRef, size_t*, size_t*, double*, double*);
    SIGNATURE(SUResult, SUTextureGetFileName, SUTextureRef, SUStringRef*);
    SIGNATURE(SUResult, SUTextureWriteToFile, SUTextureRef, const char*);
    SIGNATURE(SUResult, SUTextureCreateFromImageData, SUTextureRef*, size_t, size_t, size_t, const SUByte*);
    SIGNATURE(SUResult, SUTextureRelease, SUTextureRef*);
    SIGNATURE(SUEntityRef, SUTextureToEntity, SUTextureRef);
    SIGNATURE(SUTextureRef, SUTextureFromEntity, SUEntityRef);
    SIGNATURE(SUResult, SUTextureWriteOriginalToFile, SUTextureRef, const char*);
    SIGNATURE(SUResult, SUTextureCreateFromFile, SUTextureRef*, const char*, double, double);
}

void abi_of_texture_writer(void);
void abi_of_texture_writer(void) {
    SIGNATURE(SUResult, SUTextureWriterCreate, SUTextureWriterRef*);
    SIGNATURE(SUResult, SUTextureWriterRelease, SUTextureWriterRef*);
    SIGNATURE(SUResult, SUTextureWriterLoadEntity, SUTextureWriterRef, SUEntityRef, long*);
    SIGNATURE(SUResult, SUTextureWriterLoadFace, SUTextureWriterRef, SUFaceRef, long*, long*);
    SIGNATURE(SUResult, SUTextureWriterGetNumTextures, SUTextureWriterRef, size_t*);
    SIGNATURE(SUResult, SUTextureWriterGetTextureIdForFace, SUTextureWriterRef, SUFaceRef, bool, long*);
    SIGNATURE(SUResult, SUTextureWriterWriteTexture, SUTextureWriterRef, long, const char*, bool);
    SIGNATURE(SUResult, SUTextureWriterIsTextureAffine, SUTextureWriterRef, long, bool*);
    SIGNATURE(SUResult, SUTextureWriterGetTextureIdForEntity, SUTextureWriterRef, SUEntityRef, long*);
}

void abi_of_attribute_dictionary(void);
void abi_of_attribute_dictionary(void) {
    SIGNATURE(SUResult, SUAttributeDictionaryGetName, SUAttributeDictionaryRef, SUStringRef*);
    SIGNATURE(SUResult, SUAttributeDictionaryGetNumKeys, SUAttributeDictionaryRef, size_t*);
    SIGNATURE(SUResult, SUAttributeDictionaryGetKeys, SUAttributeDictionaryRef, size_t, SUStringRef*, size_t*);
    SIGNATURE(SUResult, SUAttributeDictionaryGetValue, SUAttributeDictionaryRef, const char*, SUTypedValueRef*);
    SIGNATURE(SUEntityRef, SUAttributeDictionaryToEntity, SUAttributeDictionaryRef);
    SIGNATURE(SUAttributeDictionaryRef, SUAttributeDictionaryFromEntity, SUEntityRef);
}

void abi_of_typed_value(void);
void abi_of_typed_value(void) {
    SIGNATURE(SUResult, SUTypedValueCreate, SUTypedValueRef*);
    SIGNATURE(SUResult, SUTypedValueRelease, SUTypedValueRef*);
    SIGNATURE(SUResult, SUTypedValueGetType, SUTypedValueRef, enum SUTypedValueType*);
    SIGNATURE(SUResult, SUTypedValueGetByte, SUTypedValueRef, char*);
    SIGNATURE(SUResult, SUTypedValueGetInt16, SUTypedValueRef, int16_t*);
    SIGNATURE(SUResult, SUTypedValueGetInt32, SUTypedValueRef, int32_t*);
    SIGNATURE(SUResult, SUTypedValueGetFloat, SUTypedValueRef, float*);
    SIGNATURE(SUResult, SUTypedValueGetDouble, SUTypedValueRef, double*);
    SIGNATURE(SUResult, SUTypedValueGetBool, SUTypedValueRef, bool*);
    SIGNATURE(SUResult, SUTypedValueGetColor, SUTypedValueRef, SUColor*);
    SIGNATURE(SUResult, SUTypedValueGetTime, SUTypedValueRef, int64_t*);
    SIGNATURE(SUResult, SUTypedValueGetString, SUTypedValueRef, SUStringRef*);
    SIGNATURE(SUResult, SUTypedValueGetVector3d, SUTypedValueRef, double*);
    SIGNATURE(SUResult, SUTypedValueGetNumArrayItems, SUTypedValueRef, size_t*);
    SIGNATURE(SUResult, SUTypedValueGetArrayItems, SUTypedValueRef, size_t, SUTypedValueRef*, size_t*);
}

void abi_of_string(void);
void abi_of_string(void) {
    SIGNATURE(SUResult, SUStringCreate, SUStringRef*);
    SIGNATURE(SUResult, SUStringRelease, SUStringRef*);
    SIGNATURE(SUResult, SUStringGetUTF8Length, SUStringRef, size_t*);
    SIGNATURE(SUResult, SUStringGetUTF8, SUStringRef, size_t, char*, size_t*);
    SIGNATURE(SUResult, SUStringGetUTF16Length, SUStringRef, size_t*);
    SIGNATURE(SUResult, SUStringGetUTF16, SUStringRef, size_t, unichar*, size_t*);
    SIGNATURE(SUResult, SUStringCreateFromUTF8, SUStringRef*, const char*);
    SIGNATURE(SUResult, SUStringCreateFromUTF16, SUStringRef*, const unichar*);
}

void abi_of_scene(void);
void abi_of_scene(void) {
    SIGNATURE(SUResult, SUCameraGetOrientation, SUCameraRef, SUPoint3D*, SUPoint3D*, SUVector3D*);
    SIGNATURE(SUResult, SUCameraGetPerspective, SUCameraRef, bool*);
    SIGNATURE(SUResult, SUCameraGetPerspectiveFrustumFOV, SUCameraRef, double*);
    SIGNATURE(SUResult, SUCameraGetFOVIsHeight, SUCameraRef, bool*);
    SIGNATURE(SUResult, SUCameraGetOrthographicFrustumHeight, SUCameraRef, double*);
    SIGNATURE(SUResult, SUCameraGetAspectRatio, SUCameraRef, double*);
    SIGNATURE(SUResult, SURenderingOptionsGetValue, SURenderingOptionsRef, const char*, SUTypedValueRef*);
    SIGNATURE(SUResult, SUShadowInfoGetValue, SUShadowInfoRef, const char*, SUTypedValueRef*);
}
