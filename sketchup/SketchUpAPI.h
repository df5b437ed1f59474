#pragma once

// The C interface to SketchUp models, as far as the project uses it. Usable from C and C++; binary compatible with the
// host's own library on 64-bit systems: C linkage, the default calling convention, no packing.
//
// What holds for every call:
//  - Lengths are inches, angles of cameras degrees. Every char* is UTF-8, on every platform, paths included.
//  - Arguments are checked in the order handle, inputs, outputs, and a call that fails leaves its outputs alone:
//      SU_ERROR_INVALID_INPUT        a handle is null or of another kind
//      SU_ERROR_NULL_POINTER_INPUT   a pointer to input data is null
//      SU_ERROR_NULL_POINTER_OUTPUT  a pointer to an output is null
//      SU_ERROR_INVALID_OUTPUT       an output string or typed value was not created first
//      SU_ERROR_OVERWRITE_VALID      an output handle that the call would create is valid already
//    The comments below name only what comes beside these.
//  - Lists: `len` is the room in the caller's array. At most so many items are stored, `count` receives the number
//    stored, and asking for fewer than there are is no error. Order is that of the file, the same in every call.
//  - A handle stays the same for an object while its model is open, so equal pointers mean the same object. All that a
//    model contains belongs to the model. The caller releases strings, typed values, helpers, writers and models; a
//    release call nulls the handle that it is given the address of.
//  - Not for use by several threads at once.

#include <stddef.h>
#include <stdint.h>
#ifndef __cplusplus
#include <assert.h>
#include <stdbool.h>
#endif

#ifdef __cplusplus
extern "C" {
#endif

// The calls are what a shared library of the provider shows; all else of the project is compiled hidden.
#if defined(__GNUC__) && !defined(_WIN32)
#pragma GCC visibility push(default)
#endif

// clang-format off
// ---- Handles ----------------------------------------------------------------------------------------------------

typedef struct { void* ptr; } SUModelRef;
typedef struct { void* ptr; } SUEntitiesRef;
typedef struct { void* ptr; } SUEntityRef;
typedef struct { void* ptr; } SUDrawingElementRef;
typedef struct { void* ptr; } SUFaceRef;
typedef struct { void* ptr; } SUEdgeRef;
typedef struct { void* ptr; } SUVertexRef;
typedef struct { void* ptr; } SULoopRef;
typedef struct { void* ptr; } SUGroupRef;
typedef struct { void* ptr; } SUComponentDefinitionRef;
typedef struct { void* ptr; } SUComponentInstanceRef;
typedef struct { void* ptr; } SUImageRef;
typedef struct { void* ptr; } SUSectionPlaneRef;
typedef struct { void* ptr; } SULayerRef;
typedef struct { void* ptr; } SUMaterialRef;
typedef struct { void* ptr; } SUTextureRef;
typedef struct { void* ptr; } SUTextureWriterRef;
typedef struct { void* ptr; } SUUVHelperRef;
typedef struct { void* ptr; } SUMeshHelperRef;
typedef struct { void* ptr; } SUOpeningRef;
typedef struct { void* ptr; } SUAttributeDictionaryRef;
typedef struct { void* ptr; } SUTypedValueRef;
typedef struct { void* ptr; } SUCameraRef;
typedef struct { void* ptr; } SUSceneRef;
typedef struct { void* ptr; } SURenderingOptionsRef;
typedef struct { void* ptr; } SUShadowInfoRef;
typedef struct { void* ptr; } SUStringRef;

// An initialiser, and what can be asked of any handle.
#define SU_INVALID {0}
#define SUIsValid(handle) ((handle).ptr != 0)
#define SUIsInvalid(handle) ((handle).ptr == 0)
#define SUSetInvalid(handle) ((handle).ptr = 0)
#define SUAreEqual(first, second) ((first).ptr == (second).ptr)

// ---- Plain values -----------------------------------------------------------------------------------------------

typedef unsigned char SUByte;
typedef uint16_t unichar; // one UTF-16 code unit
struct SUPoint2D { double x, y; };
struct SUVector2D { double x, y; };
struct SUPoint3D { double x, y, z; };
struct SUVector3D { double x, y, z; };
struct SUPlane3D { double a, b, c, d; }; // ax + by + cz + d = 0, (a, b, c) unit
struct SUBoundingBox3D { struct SUPoint3D min_point, max_point; };
struct SUTransformation { double values[16]; }; // column-major; translation in 12 to 14, weight that divides all in 15
struct SUUVQ { double u, v, q; }; // the picture's coordinates are u / q and v / q, v upwards
struct SUColor { SUByte red, green, blue, alpha; };
struct SUColorOrder { short red_index, green_index, blue_index, alpha_index; };

// clang-format on
struct SUComponentBehavior {
    enum SUSnapToBehavior {
        SUSnapToBehavior_None = 0,
        SUSnapToBehavior_Any = 1,
        SUSnapToBehavior_Horizontal = 2,
        SUSnapToBehavior_Vertical = 3,
        SUSnapToBehavior_Sloped = 4
    } component_snap;
    bool component_cuts_opening;
    bool component_always_face_camera;
    bool component_shadows_face_sun;
    size_t component_no_scale_mask; // bits 0 to 6 hide the scale handles x, y, z, xz, yz, xy, uniform
};

#ifndef __cplusplus
typedef struct SUPoint2D SUPoint2D;
typedef struct SUVector2D SUVector2D;
typedef struct SUPoint3D SUPoint3D;
typedef struct SUVector3D SUVector3D;
typedef struct SUPlane3D SUPlane3D;
typedef struct SUBoundingBox3D SUBoundingBox3D;
typedef struct SUTransformation SUTransformation;
typedef struct SUUVQ SUUVQ;
typedef struct SUColor SUColor;
typedef struct SUColorOrder SUColorOrder;
typedef struct SUComponentBehavior SUComponentBehavior;
#endif

enum SUResult {
    SU_ERROR_NONE = 0,
    SU_ERROR_NULL_POINTER_INPUT = 1,
    SU_ERROR_INVALID_INPUT = 2,
    SU_ERROR_NULL_POINTER_OUTPUT = 3,
    SU_ERROR_INVALID_OUTPUT = 4,
    SU_ERROR_OVERWRITE_VALID = 5,
    SU_ERROR_GENERIC = 6,
    SU_ERROR_SERIALIZATION = 7,
    SU_ERROR_OUT_OF_RANGE = 8,
    SU_ERROR_NO_DATA = 9,
    SU_ERROR_INSUFFICIENT_SIZE = 10,
    SU_ERROR_UNKNOWN_EXCEPTION = 11,
    SU_ERROR_MODEL_INVALID = 12,
    SU_ERROR_MODEL_VERSION = 13,
    SU_ERROR_LAYER_LOCKED = 14,
    SU_ERROR_DUPLICATE = 15,
    SU_ERROR_PARTIAL_SUCCESS = 16,
    SU_ERROR_UNSUPPORTED = 17,
    SU_ERROR_INVALID_ARGUMENT = 18,
    SU_ERROR_ENTITY_LOCKED = 19,
    SU_ERROR_INVALID_OPERATION = 20
};

enum SUTypedValueType {
    SUTypedValueType_Empty = 0,
    SUTypedValueType_Byte = 1,
    SUTypedValueType_Short = 2,
    SUTypedValueType_Int32 = 3,
    SUTypedValueType_Float = 4,
    SUTypedValueType_Double = 5,
    SUTypedValueType_Bool = 6,
    SUTypedValueType_Color = 7,
    SUTypedValueType_Time = 8,
    SUTypedValueType_String = 9,
    SUTypedValueType_Vector3D = 10,
    SUTypedValueType_Array = 11
};

enum SUComponentType { SUComponentType_Normal = 0, SUComponentType_Group = 1, SUComponentType_Image = 2 };
enum SUMaterialType { SUMaterialType_Colored = 0, SUMaterialType_Textured = 1, SUMaterialType_ColorizedTexture = 2 };
enum SUModelLoadStatus { SUModelLoadStatus_Success = 0, SUModelLoadStatus_Success_MoreRecent = 1 };

#ifndef __cplusplus
typedef enum SUResult SUResult;
#endif

// ---- Library ----------------------------------------------------------------------------------------------------

// Begins the use of the library. The other calls work without it, too.
void SUInitialize(void);

// Ends it: whatever the caller has not released is freed, open models included, and every handle is void.
void SUTerminate(void);

// The interface that this library follows; 13.0 is that of 2025. A null pointer is passed over.
void SUGetAPIVersion(size_t* major, size_t* minor);

// ---- Model ------------------------------------------------------------------------------------------------------

// Opens a model file of any version known; its name's extension does not matter. The caller releases the model.
// SERIALIZATION: no such file, unreadable, or damaged. MODEL_INVALID: not a SketchUp model.
// MODEL_VERSION: written by a newer program than any known.
enum SUResult SUModelCreateFromFile(SUModelRef* model, const char* file_path);

// The same; status tells whether the file may hold more than was read.
enum SUResult SUModelCreateFromFileWithStatus(SUModelRef* model, const char* file_path, enum SUModelLoadStatus* status);

// Closes a model: all handles into it are void. Null pointer: NULL_POINTER_INPUT.
enum SUResult SUModelRelease(SUModelRef* model);

// The version of the program that saved the file, for example 21, 0, 394.
enum SUResult SUModelGetVersion(SUModelRef model, int* major, int* minor, int* build);

// The list at the top level; its box and contents.
enum SUResult SUModelGetEntities(SUModelRef model, SUEntitiesRef* entities);

// The layers, the default layer first; folders of layers are not among them.
enum SUResult SUModelGetNumLayers(SUModelRef model, size_t* count);
enum SUResult SUModelGetLayers(SUModelRef model, size_t len, SULayerRef items[], size_t* count);
enum SUResult SUModelGetDefaultLayer(SUModelRef model, SULayerRef* layer);

// Three lists that exclude one another: the definitions of components, of groups, of images.
enum SUResult SUModelGetNumComponentDefinitions(SUModelRef model, size_t* count);
enum SUResult SUModelGetComponentDefinitions(SUModelRef model, size_t len, SUComponentDefinitionRef items[],
                                             size_t* count);
enum SUResult SUModelGetNumGroupDefinitions(SUModelRef model, size_t* count);
enum SUResult SUModelGetGroupDefinitions(SUModelRef model, size_t len, SUComponentDefinitionRef items[], size_t* count);
enum SUResult SUModelGetNumImageDefinitions(SUModelRef model, size_t* count);
enum SUResult SUModelGetImageDefinitions(SUModelRef model, size_t len, SUComponentDefinitionRef items[], size_t* count);

// The user's materials; those that belong to layers and images are not among them.
enum SUResult SUModelGetNumMaterials(SUModelRef model, size_t* count);
enum SUResult SUModelGetMaterials(SUModelRef model, size_t len, SUMaterialRef items[], size_t* count);

// The model's own attribute dictionaries.
enum SUResult SUModelGetNumAttributeDictionaries(SUModelRef model, size_t* count);
enum SUResult SUModelGetAttributeDictionaries(SUModelRef model, size_t len, SUAttributeDictionaryRef items[],
                                              size_t* count);

// The scenes (tabs) of the model.
enum SUResult SUModelGetNumScenes(SUModelRef model, size_t* count);
enum SUResult SUModelGetScenes(SUModelRef model, size_t len, SUSceneRef items[], size_t* count);

// NO_DATA without an active scene; OVERWRITE_VALID if *scene is valid.
enum SUResult SUModelGetActiveScene(SUModelRef model, SUSceneRef* scene);

// Every model has one of each.
enum SUResult SUModelGetCamera(SUModelRef model, SUCameraRef* camera);
enum SUResult SUModelGetRenderingOptions(SUModelRef model, SURenderingOptionsRef* options);
enum SUResult SUModelGetShadowInfo(SUModelRef model, SUShadowInfoRef* info);

// ---- Lists of entities ------------------------------------------------------------------------------------------

// The box of the content in the list's own space, hidden content included. Of an empty list minimum +1e30 and maximum
// -1e30.
enum SUResult SUEntitiesGetBoundingBox(SUEntitiesRef entities, struct SUBoundingBox3D* box);

// Groups, images and instances are three lists that exclude one another.
enum SUResult SUEntitiesGetNumFaces(SUEntitiesRef entities, size_t* count);
enum SUResult SUEntitiesGetFaces(SUEntitiesRef entities, size_t len, SUFaceRef items[], size_t* count);
enum SUResult SUEntitiesGetNumGroups(SUEntitiesRef entities, size_t* count);
enum SUResult SUEntitiesGetGroups(SUEntitiesRef entities, size_t len, SUGroupRef items[], size_t* count);
enum SUResult SUEntitiesGetNumImages(SUEntitiesRef entities, size_t* count);
enum SUResult SUEntitiesGetImages(SUEntitiesRef entities, size_t len, SUImageRef items[], size_t* count);
enum SUResult SUEntitiesGetNumInstances(SUEntitiesRef entities, size_t* count);
enum SUResult SUEntitiesGetInstances(SUEntitiesRef entities, size_t len, SUComponentInstanceRef items[], size_t* count);
enum SUResult SUEntitiesGetNumSectionPlanes(SUEntitiesRef entities, size_t* count);
enum SUResult SUEntitiesGetSectionPlanes(SUEntitiesRef entities, size_t len, SUSectionPlaneRef items[], size_t* count);

// standalone_only: only the edges that bound no face and are part of no curve.
enum SUResult SUEntitiesGetNumEdges(SUEntitiesRef entities, bool standalone_only, size_t* count);
enum SUResult SUEntitiesGetEdges(SUEntitiesRef entities, bool standalone_only, size_t len, SUEdgeRef items[],
                                 size_t* count);

// ---- Entities ---------------------------------------------------------------------------------------------------

// Positive, unique in the model; not stored in the file but the same whenever that file is opened.
enum SUResult SUEntityGetID(SUEntityRef entity, int32_t* id);

// The id that the file stores; 0 if it stores none.
enum SUResult SUEntityGetPersistentID(SUEntityRef entity, int64_t* id);

// The dictionaries that the file holds for the entity, without those nested in them. A nested one hangs on its
// dictionary's own entity.
enum SUResult SUEntityGetNumAttributeDictionaries(SUEntityRef entity, size_t* count);
enum SUResult SUEntityGetAttributeDictionaries(SUEntityRef entity, size_t len, SUAttributeDictionaryRef items[],
                                               size_t* count);

// The dictionary of that name; one that is missing is made, empty, and is neither counted nor listed above.
enum SUResult SUEntityGetAttributeDictionary(SUEntityRef entity, const char* name,
                                             SUAttributeDictionaryRef* dictionary);

// Casts keep the pointer and never fail: an invalid handle, or one of another kind when casting back, gives an invalid
// handle.
SUEntityRef SUDrawingElementToEntity(SUDrawingElementRef element);
SUDrawingElementRef SUDrawingElementFromEntity(SUEntityRef entity);
SUEntityRef SUFaceToEntity(SUFaceRef face);
SUFaceRef SUFaceFromEntity(SUEntityRef entity);
SUDrawingElementRef SUFaceToDrawingElement(SUFaceRef face);
SUFaceRef SUFaceFromDrawingElement(SUDrawingElementRef element);
SUEntityRef SUEdgeToEntity(SUEdgeRef edge);
SUEdgeRef SUEdgeFromEntity(SUEntityRef entity);
SUDrawingElementRef SUEdgeToDrawingElement(SUEdgeRef edge);
SUEdgeRef SUEdgeFromDrawingElement(SUDrawingElementRef element);
SUEntityRef SUVertexToEntity(SUVertexRef vertex);
SUVertexRef SUVertexFromEntity(SUEntityRef entity);
SUEntityRef SUGroupToEntity(SUGroupRef group);
SUGroupRef SUGroupFromEntity(SUEntityRef entity);
SUDrawingElementRef SUGroupToDrawingElement(SUGroupRef group);
SUGroupRef SUGroupFromDrawingElement(SUDrawingElementRef element);
SUEntityRef SUComponentInstanceToEntity(SUComponentInstanceRef instance);
SUComponentInstanceRef SUComponentInstanceFromEntity(SUEntityRef entity);
SUDrawingElementRef SUComponentInstanceToDrawingElement(SUComponentInstanceRef instance);
SUComponentInstanceRef SUComponentInstanceFromDrawingElement(SUDrawingElementRef element);
SUEntityRef SUComponentDefinitionToEntity(SUComponentDefinitionRef definition);
SUComponentDefinitionRef SUComponentDefinitionFromEntity(SUEntityRef entity);
SUDrawingElementRef SUComponentDefinitionToDrawingElement(SUComponentDefinitionRef definition);
SUComponentDefinitionRef SUComponentDefinitionFromDrawingElement(SUDrawingElementRef element);
SUEntityRef SUImageToEntity(SUImageRef image);
SUImageRef SUImageFromEntity(SUEntityRef entity);
SUDrawingElementRef SUImageToDrawingElement(SUImageRef image);
SUImageRef SUImageFromDrawingElement(SUDrawingElementRef element);
SUEntityRef SUSectionPlaneToEntity(SUSectionPlaneRef plane);
SUSectionPlaneRef SUSectionPlaneFromEntity(SUEntityRef entity);
SUDrawingElementRef SUSectionPlaneToDrawingElement(SUSectionPlaneRef plane);
SUSectionPlaneRef SUSectionPlaneFromDrawingElement(SUDrawingElementRef element);
SUEntityRef SULayerToEntity(SULayerRef layer);
SULayerRef SULayerFromEntity(SUEntityRef entity);
SUEntityRef SUMaterialToEntity(SUMaterialRef material);
SUMaterialRef SUMaterialFromEntity(SUEntityRef entity);
SUEntityRef SUTextureToEntity(SUTextureRef texture);
SUTextureRef SUTextureFromEntity(SUEntityRef entity);
SUEntityRef SUSceneToEntity(SUSceneRef scene);
SUSceneRef SUSceneFromEntity(SUEntityRef entity);
SUEntityRef SUAttributeDictionaryToEntity(SUAttributeDictionaryRef dictionary);
SUAttributeDictionaryRef SUAttributeDictionaryFromEntity(SUEntityRef entity);

// A group seen as the instance that it is, and back; the second gives an invalid handle for an instance that is no
// group.
SUComponentInstanceRef SUGroupToComponentInstance(SUGroupRef group);
SUGroupRef SUGroupFromComponentInstance(SUComponentInstanceRef instance);

// ---- Drawing elements -------------------------------------------------------------------------------------------

// The box in the space of the list that holds the element: of a placement that of its transformed content, of a
// definition that of its own list, of a section plane that of the symbol drawn for it. Empty as for a list.
enum SUResult SUDrawingElementGetBoundingBox(SUDrawingElementRef element, struct SUBoundingBox3D* box);

// The element's own material (of a face the front's); NO_DATA without one.
enum SUResult SUDrawingElementGetMaterial(SUDrawingElementRef element, SUMaterialRef* material);

// Every element has a layer.
enum SUResult SUDrawingElementGetLayer(SUDrawingElementRef element, SULayerRef* layer);

// The element's own flags, never those of what contains it.
enum SUResult SUDrawingElementGetHidden(SUDrawingElementRef element, bool* hidden);
enum SUResult SUDrawingElementGetCastsShadows(SUDrawingElementRef element, bool* casts);
enum SUResult SUDrawingElementGetReceivesShadows(SUDrawingElementRef element, bool* receives);

// ---- Faces ------------------------------------------------------------------------------------------------------

// The material painted on one side itself; NO_DATA if there is none.
enum SUResult SUFaceGetFrontMaterial(SUFaceRef face, SUMaterialRef* material);
enum SUResult SUFaceGetBackMaterial(SUFaceRef face, SUMaterialRef* material);

// Paints one side of the open model with a material of the same model; an invalid handle takes the paint off.
enum SUResult SUFaceSetFrontMaterial(SUFaceRef face, SUMaterialRef material);
enum SUResult SUFaceSetBackMaterial(SUFaceRef face, SUMaterialRef material);

// False if the side's texture is distorted, so that q varies over it. NO_DATA if the side has no texture.
enum SUResult SUFaceIsFrontMaterialAffine(SUFaceRef face, bool* is_affine);
enum SUResult SUFaceIsBackMaterialAffine(SUFaceRef face, bool* is_affine);

// All edges of outline and holes, loop after loop.
enum SUResult SUFaceGetNumEdges(SUFaceRef face, size_t* count);
enum SUResult SUFaceGetEdges(SUFaceRef face, size_t len, SUEdgeRef edges[], size_t* count);

// The unit normal, the plane, and the area in square inches, holes taken off.
enum SUResult SUFaceGetNormal(SUFaceRef face, struct SUVector3D* normal);
enum SUResult SUFaceGetPlane(SUFaceRef face, struct SUPlane3D* plane);
enum SUResult SUFaceGetArea(SUFaceRef face, double* area);

// Makes what answers texture coordinates of the face; the caller releases it.
// front, back: which sides are wanted; the other gives 0, 0, 0.
// writer: may be invalid. If a distorted side was loaded into it, the coordinates are those of the straightened picture
// that the writer writes for that side.
enum SUResult SUFaceGetUVHelper(SUFaceRef face, bool front, bool back, SUTextureWriterRef writer,
                                SUUVHelperRef* helper);

// The holes that groups and component instances which cut openings make in the face that they are glued to, in the
// order of the file: whole outlines, also where they reach over the face. Hidden ones, and those on a layer that is
// off, make none. Each opening handed out is the caller's to release, and lasts till then.
enum SUResult SUFaceGetNumOpenings(SUFaceRef face, size_t* count);
enum SUResult SUFaceGetOpenings(SUFaceRef face, size_t len, SUOpeningRef openings[], size_t* count);

// The corners of an opening in the space of the face's list, the last not repeated, running against the face's outline.
enum SUResult SUOpeningGetNumPoints(SUOpeningRef opening, size_t* count);
enum SUResult SUOpeningGetPoints(SUOpeningRef opening, size_t len, struct SUPoint3D points[], size_t* count);
enum SUResult SUOpeningRelease(SUOpeningRef* opening);

// ---- Texture coordinates ----------------------------------------------------------------------------------------

// The coordinates at a point given in the space of the face's list. A side without texture gives inches in the axes of
// the face's plane and q = 1.
enum SUResult SUUVHelperGetFrontUVQ(SUUVHelperRef helper, const struct SUPoint3D* point, struct SUUVQ* uvq);
enum SUResult SUUVHelperGetBackUVQ(SUUVHelperRef helper, const struct SUPoint3D* point, struct SUUVQ* uvq);
enum SUResult SUUVHelperRelease(SUUVHelperRef* helper);

// ---- Triangles of a face ----------------------------------------------------------------------------------------

// Triangulates a face; the caller releases the result. Without a UV helper and without a writer all texture coordinates
// are 0, 0, 0; a writer gives those of both sides. The triangles are the same in each case.
enum SUResult SUMeshHelperCreate(SUMeshHelperRef* mesh, SUFaceRef face);
enum SUResult SUMeshHelperCreateWithUVHelper(SUMeshHelperRef* mesh, SUFaceRef face, SUUVHelperRef helper);
enum SUResult SUMeshHelperCreateWithTextureWriter(SUMeshHelperRef* mesh, SUFaceRef face, SUTextureWriterRef writer);
enum SUResult SUMeshHelperRelease(SUMeshHelperRef* mesh);

// One vertex for each corner of the face, none split; none at all for a face without area.
enum SUResult SUMeshHelperGetNumTriangles(SUMeshHelperRef mesh, size_t* count);
enum SUResult SUMeshHelperGetNumVertices(SUMeshHelperRef mesh, size_t* count);

// Three indices from 0 for each triangle, counter-clockwise seen from the front.
enum SUResult SUMeshHelperGetVertexIndices(SUMeshHelperRef mesh, size_t len, size_t indices[], size_t* count);

// For each vertex its position, its unit normal (of a smooth surface averaged) and u, v, q of either side.
enum SUResult SUMeshHelperGetVertices(SUMeshHelperRef mesh, size_t len, struct SUPoint3D vertices[], size_t* count);
enum SUResult SUMeshHelperGetNormals(SUMeshHelperRef mesh, size_t len, struct SUVector3D normals[], size_t* count);
enum SUResult SUMeshHelperGetFrontSTQCoords(SUMeshHelperRef mesh, size_t len, struct SUPoint3D coords[], size_t* count);
enum SUResult SUMeshHelperGetBackSTQCoords(SUMeshHelperRef mesh, size_t len, struct SUPoint3D coords[], size_t* count);

// ---- Edges and vertices -----------------------------------------------------------------------------------------

enum SUResult SUEdgeGetStartVertex(SUEdgeRef edge, SUVertexRef* vertex);
enum SUResult SUEdgeGetEndVertex(SUEdgeRef edge, SUVertexRef* vertex);
enum SUResult SUEdgeGetSoft(SUEdgeRef edge, bool* soft);
enum SUResult SUEdgeGetSmooth(SUEdgeRef edge, bool* smooth);

// The faces that the edge bounds, each once.
enum SUResult SUEdgeGetNumFaces(SUEdgeRef edge, size_t* count);
enum SUResult SUEdgeGetFaces(SUEdgeRef edge, size_t len, SUFaceRef faces[], size_t* count);

enum SUResult SUVertexGetPosition(SUVertexRef vertex, struct SUPoint3D* position);

// ---- Groups, instances, definitions -----------------------------------------------------------------------------

// An unnamed group or instance gives the empty string.
enum SUResult SUGroupGetName(SUGroupRef group, SUStringRef* name);
enum SUResult SUGroupGetTransform(SUGroupRef group, struct SUTransformation* transform);

// The list of the group's definition, which copies of the group share.
enum SUResult SUGroupGetEntities(SUGroupRef group, SUEntitiesRef* entities);
enum SUResult SUGroupGetDefinition(SUGroupRef group, SUComponentDefinitionRef* definition);

// These take a group's handle, cast, as well.
enum SUResult SUComponentInstanceGetName(SUComponentInstanceRef instance, SUStringRef* name);
enum SUResult SUComponentInstanceGetTransform(SUComponentInstanceRef instance, struct SUTransformation* transform);
enum SUResult SUComponentInstanceGetDefinition(SUComponentInstanceRef instance, SUComponentDefinitionRef* definition);

enum SUResult SUComponentDefinitionGetName(SUComponentDefinitionRef definition, SUStringRef* name);
enum SUResult SUComponentDefinitionGetEntities(SUComponentDefinitionRef definition, SUEntitiesRef* entities);
enum SUResult SUComponentDefinitionGetBehavior(SUComponentDefinitionRef definition,
                                               struct SUComponentBehavior* behavior);
enum SUResult SUComponentDefinitionGetType(SUComponentDefinitionRef definition, enum SUComponentType* type);

// ---- Placed images ----------------------------------------------------------------------------------------------

// From the image's space (lower left corner at the origin, one unit a pixel) to the list that holds it.
enum SUResult SUImageGetTransform(SUImageRef image, struct SUTransformation* transform);

// As stored; may hold folders of any platform.
enum SUResult SUImageGetFileName(SUImageRef image, SUStringRef* name);

// The size as placed, in inches.
enum SUResult SUImageGetDimensions(SUImageRef image, double* width, double* height);

// The picture's size. NO_DATA if the file lacks the picture or it cannot be decoded.
enum SUResult SUImageGetPixelDimensions(SUImageRef image, size_t* width, size_t* height);

// How many bytes SUImageGetData stores, and 24 or 32 bits a pixel. NO_DATA as above.
enum SUResult SUImageGetDataSize(SUImageRef image, size_t* data_size, size_t* bits_per_pixel);

// The pixels: rows from the top, each padded to a multiple of 4 bytes; blue, green, red(, alpha).
// pixel_data: room for data_size bytes. INSUFFICIENT_SIZE if that is too little. NO_DATA as above.
enum SUResult SUImageGetData(SUImageRef image, size_t data_size, SUByte pixel_data[]);

// The hidden definition that holds the image's rectangle.
enum SUResult SUImageGetDefinition(SUImageRef image, SUComponentDefinitionRef* definition);

// ---- Section planes ---------------------------------------------------------------------------------------------

enum SUResult SUSectionPlaneGetPlane(SUSectionPlaneRef plane, struct SUPlane3D* equation);

// At most one plane of a list is active.
enum SUResult SUSectionPlaneIsActive(SUSectionPlaneRef plane, bool* is_active);

// ---- Layers -----------------------------------------------------------------------------------------------------

// The default layer is "Layer0" in every version; only its display name is "Untagged".
enum SUResult SULayerGetName(SULayerRef layer, SUStringRef* name);
enum SUResult SULayerGetDisplayName(SULayerRef layer, SUStringRef* name);

// The material that holds the layer's colour; NO_DATA if the file lacks it.
enum SUResult SULayerGetMaterial(SULayerRef layer, SUMaterialRef* material);

// The layer's own flag, not that of a folder around it.
enum SUResult SULayerGetVisibility(SULayerRef layer, bool* visible);

// ---- Materials --------------------------------------------------------------------------------------------------

// The name as stored; the second without the square brackets that surround a library material's name.
enum SUResult SUMaterialGetName(SUMaterialRef material, SUStringRef* name);
enum SUResult SUMaterialGetNameLegacyBehavior(SUMaterialRef material, SUStringRef* name);

// The colour; of a textured material the average of its picture.
enum SUResult SUMaterialGetColor(SUMaterialRef material, struct SUColor* color);

// The texture, which belongs to the material; NO_DATA without one.
enum SUResult SUMaterialGetTexture(SUMaterialRef material, SUTextureRef* texture);

// 0 clear to 1 opaque; 1 if the material does not use its opacity.
enum SUResult SUMaterialGetOpacity(SUMaterialRef material, double* alpha);
enum SUResult SUMaterialGetUseOpacity(SUMaterialRef material, bool* use_opacity);
enum SUResult SUMaterialGetType(SUMaterialRef material, enum SUMaterialType* type);

// ---- Textures ---------------------------------------------------------------------------------------------------

// The picture's size in pixels and the tiles an inch in either direction. NO_DATA if the picture is missing.
enum SUResult SUTextureGetDimensions(SUTextureRef texture, size_t* width, size_t* height, double* s_scale,
                                     double* t_scale);

// The last part of the stored path, which may be nothing but an extension.
enum SUResult SUTextureGetFileName(SUTextureRef texture, SUStringRef* name);

// Writes the picture, colourised if the material is, in the format of the path's extension: jpg, jpeg, png, bmp, tif,
// tiff in either case. SERIALIZATION for another extension, a missing picture or a file that cannot be written; then no
// file is left.
enum SUResult SUTextureWriteToFile(SUTextureRef texture, const char* file_path);

// Writes the stored bytes of the picture as they are.
enum SUResult SUTextureWriteOriginalToFile(SUTextureRef texture, const char* file_path);

// A texture of its own that the caller releases.
// pixel_data: rows from the top, each padded to a multiple of 4 bytes; blue, green, red(, alpha).
// OUT_OF_RANGE: a size of 0 or of more than 65535, or bits_per_pixel neither 24 nor 32.
enum SUResult SUTextureCreateFromImageData(SUTextureRef* texture, size_t width, size_t height, size_t bits_per_pixel,
                                           const SUByte pixel_data[]);

// The same from a picture file; its tile is s_scale by t_scale inches. SERIALIZATION if it cannot be read.
enum SUResult SUTextureCreateFromFile(SUTextureRef* texture, const char* file_path, double s_scale, double t_scale);

// Only for textures that the caller created; one that belongs to a material: INVALID_INPUT.
enum SUResult SUTextureRelease(SUTextureRef* texture);

// ---- Texture writer ---------------------------------------------------------------------------------------------

// Numbers the textures loaded into it from 1. The caller releases it.
enum SUResult SUTextureWriterCreate(SUTextureWriterRef* writer);
enum SUResult SUTextureWriterRelease(SUTextureWriterRef* writer);

// Loads the texture of the material on a component instance, group or layer, or the picture of an image.
// GENERIC if there is none or the entity is of another kind. Loading again gives the same id.
enum SUResult SUTextureWriterLoadEntity(SUTextureWriterRef writer, SUEntityRef entity, long* id);

// Loads the textures of both sides. GENERIC if neither has one; the id of a side without is left alone, and its pointer
// may be null. Sides whose mapping is affine share the id of their material's texture, a distorted one gets its own.
enum SUResult SUTextureWriterLoadFace(SUTextureWriterRef writer, SUFaceRef face, long* front_id, long* back_id);

enum SUResult SUTextureWriterGetNumTextures(SUTextureWriterRef writer, size_t* count);

// Writes the picture of an id: that of the material, or for a distorted side a new one that lies straight on the face.
// reduce_size: scale it down. SERIALIZATION as for SUTextureWriteToFile; INVALID_INPUT for an id never given out.
enum SUResult SUTextureWriterWriteTexture(SUTextureWriterRef writer, long id, const char* path, bool reduce_size);

// Whether the id stands for a material's own picture and not for a straightened one. INVALID_INPUT as above.
enum SUResult SUTextureWriterIsTextureAffine(SUTextureWriterRef writer, long id, bool* is_affine);

// The id of what was loaded; never loads. GENERIC if nothing was.
enum SUResult SUTextureWriterGetTextureIdForFace(SUTextureWriterRef writer, SUFaceRef face, bool front, long* id);
enum SUResult SUTextureWriterGetTextureIdForEntity(SUTextureWriterRef writer, SUEntityRef entity, long* id);

// ---- Attributes -------------------------------------------------------------------------------------------------

enum SUResult SUAttributeDictionaryGetName(SUAttributeDictionaryRef dictionary, SUStringRef* name);
enum SUResult SUAttributeDictionaryGetNumKeys(SUAttributeDictionaryRef dictionary, size_t* count);

// keys: strings that the caller has created; INVALID_OUTPUT if one of those to be filled is not.
enum SUResult SUAttributeDictionaryGetKeys(SUAttributeDictionaryRef dictionary, size_t len, SUStringRef keys[],
                                           size_t* count);

// Fills a value that the caller has created and may fill again. NO_DATA for an unknown key.
enum SUResult SUAttributeDictionaryGetValue(SUAttributeDictionaryRef dictionary, const char* key,
                                            SUTypedValueRef* value);

// ---- Typed values -----------------------------------------------------------------------------------------------

enum SUResult SUTypedValueCreate(SUTypedValueRef* value);
enum SUResult SUTypedValueRelease(SUTypedValueRef* value);

// Lengths, areas and angles are Double, points and vectors Vector3D, a transformation an Array of 16 Doubles.
enum SUResult SUTypedValueGetType(SUTypedValueRef value, enum SUTypedValueType* type);

// Each gives NO_DATA for a value of any other type; nothing is converted.
enum SUResult SUTypedValueGetByte(SUTypedValueRef value, char* byte_value);
enum SUResult SUTypedValueGetInt16(SUTypedValueRef value, int16_t* int16_value); // of type Short
enum SUResult SUTypedValueGetInt32(SUTypedValueRef value, int32_t* int32_value);
enum SUResult SUTypedValueGetFloat(SUTypedValueRef value, float* float_value);
enum SUResult SUTypedValueGetDouble(SUTypedValueRef value, double* double_value);
enum SUResult SUTypedValueGetBool(SUTypedValueRef value, bool* bool_value);
enum SUResult SUTypedValueGetColor(SUTypedValueRef value, struct SUColor* color);
enum SUResult SUTypedValueGetTime(SUTypedValueRef value, int64_t* seconds); // since 1970-01-01
enum SUResult SUTypedValueGetString(SUTypedValueRef value, SUStringRef* string);
enum SUResult SUTypedValueGetVector3d(SUTypedValueRef value, double vector[3]);

// The items belong to the array: they live until it is filled again or released, and are not to be released.
enum SUResult SUTypedValueGetNumArrayItems(SUTypedValueRef value, size_t* count);
enum SUResult SUTypedValueGetArrayItems(SUTypedValueRef value, size_t len, SUTypedValueRef items[], size_t* count);

// ---- Strings ----------------------------------------------------------------------------------------------------

enum SUResult SUStringCreate(SUStringRef* string);

// From text that ends with a null; what is no valid UTF-16 becomes U+FFFD.
enum SUResult SUStringCreateFromUTF8(SUStringRef* string, const char* text);
enum SUResult SUStringCreateFromUTF16(SUStringRef* string, const unichar* text);
enum SUResult SUStringRelease(SUStringRef* string);

// In code units, without the closing null.
enum SUResult SUStringGetUTF8Length(SUStringRef string, size_t* length);
enum SUResult SUStringGetUTF16Length(SUStringRef string, size_t* length);

// Copies at most max code units, whole characters only, and a closing null if there is room for it.
// copied: the number of units without the null.
enum SUResult SUStringGetUTF8(SUStringRef string, size_t max, char text[], size_t* copied);
enum SUResult SUStringGetUTF16(SUStringRef string, size_t max, unichar text[], size_t* copied);

// ---- Camera, scenes, options ------------------------------------------------------------------------------------

// Eye and target in inches, and the unit up vector.
enum SUResult SUCameraGetOrientation(SUCameraRef camera, struct SUPoint3D* position, struct SUPoint3D* target,
                                     struct SUVector3D* up);

// Whether it draws in perspective, and not in parallel.
enum SUResult SUCameraGetPerspective(SUCameraRef camera, bool* perspective);

// The field of view in degrees; NO_DATA for a parallel camera. The second: whether it is the angle of the view's
// height, and not of its width.
enum SUResult SUCameraGetPerspectiveFrustumFOV(SUCameraRef camera, double* field_of_view);
enum SUResult SUCameraGetFOVIsHeight(SUCameraRef camera, bool* is_height);

// The height of what a parallel camera shows, in inches; NO_DATA for one in perspective.
enum SUResult SUCameraGetOrthographicFrustumHeight(SUCameraRef camera, double* height);

// Width divided by height; NO_DATA for a camera that takes those of the window.
enum SUResult SUCameraGetAspectRatio(SUCameraRef camera, double* aspect_ratio);

enum SUResult SUSceneGetName(SUSceneRef scene, SUStringRef* name);

// NO_DATA if the scene keeps no camera.
enum SUResult SUSceneGetCamera(SUSceneRef scene, SUCameraRef* camera);

// NO_DATA for an unknown key. A rendering option that the file does not store has the value of a new model.
enum SUResult SURenderingOptionsGetValue(SURenderingOptionsRef options, const char* key, SUTypedValueRef* value);
enum SUResult SUShadowInfoGetValue(SUShadowInfoRef info, const char* key, SUTypedValueRef* value);

#if defined(__GNUC__) && !defined(_WIN32)
#pragma GCC visibility pop
#endif

#ifdef __cplusplus
}
#endif

// ---- Layout -----------------------------------------------------------------------------------------------------

static_assert(sizeof(SUModelRef) == sizeof(void*), "a handle travels in one register");
static_assert(sizeof(struct SUPoint3D) == 24, "three doubles");
static_assert(sizeof(struct SUBoundingBox3D) == 48, "two points");
static_assert(sizeof(struct SUTransformation) == 128, "sixteen doubles");
static_assert(sizeof(struct SUColor) == 4, "four bytes");
static_assert(sizeof(enum SUResult) == 4, "enumerations are plain ints");
static_assert(sizeof(bool) == 1, "a bool is one byte");
static_assert(sizeof(void*) != 8 || sizeof(struct SUComponentBehavior) == 16, "an int, three bytes, a size");
static_assert(offsetof(struct SUComponentBehavior, component_always_face_camera) == 5, "flags follow the int");
