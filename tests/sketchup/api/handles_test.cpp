#include "tests/sketchup/api/cut_wall.h"
#include "tests/sketchup/api/test_model.h"

#include <gtest/gtest.h>

using sketchup::model_builder;

namespace {

// A null handle, one of another kind and a null output are refused by a call of the shape get(handle, out).
template<class Handle, class Out>
void expect_refusals(SUResult (*get)(Handle, Out*), Handle valid, void* of_another_kind, const char* call) {
    Out out{};
    EXPECT_EQ(get(Handle{nullptr}, &out), SU_ERROR_INVALID_INPUT) << call;
    EXPECT_EQ(get(Handle{of_another_kind}, &out), SU_ERROR_INVALID_INPUT) << call;
    EXPECT_EQ(get(valid, nullptr), SU_ERROR_NULL_POINTER_OUTPUT) << call;
    EXPECT_EQ(get(Handle{nullptr}, nullptr), SU_ERROR_INVALID_INPUT) << call << ": the handle is checked first";
}

} // namespace

#define EXPECT_REFUSALS(get, valid, other) expect_refusals(get, valid, (other).ptr, #get)

TEST(Handles, that_are_null_or_of_another_kind_are_refused_by_each_kind_of_object) {
    model_builder builder;
    builder.root().square(1);
    builder.root().section_plane({0, 0, 1, -3});
    builder.root().group("Lamp");
    builder.root().instance(builder.component("Chair"));
    builder.root().image(builder.image_definition({}, "picture.png", 8, 4));
    builder.scene("Front", true);
    builder.attribute(builder.root().list(), "d", "k", sketchup::text("v"));
    test_model opened(builder);
    const SUFaceRef face = opened.face();
    const SUEdgeRef edge = opened.edge();
    const auto vertex = sketchup::api::handle_of<SUVertexRef>(opened.model().vertices[0]);
    const auto section = sketchup::api::handle_of<SUSectionPlaneRef>(opened.model().section_planes[0]);
    const auto scene = sketchup::api::handle_of<SUSceneRef>(opened.model().scenes[0]);

    EXPECT_REFUSALS(SUModelGetEntities, opened.ref, face);
    EXPECT_REFUSALS(SUModelGetNumLayers, opened.ref, face);
    EXPECT_REFUSALS(SUModelGetCamera, opened.ref, face);
    EXPECT_REFUSALS(SUModelGetActiveScene, opened.ref, face);
    EXPECT_REFUSALS(SUEntitiesGetNumFaces, opened.root(), face);
    EXPECT_REFUSALS(SUEntitiesGetBoundingBox, opened.root(), face);
    EXPECT_REFUSALS(SUEntityGetID, SUFaceToEntity(face), opened.ref);
    EXPECT_REFUSALS(SUDrawingElementGetLayer, SUFaceToDrawingElement(face), opened.layer());
    EXPECT_REFUSALS(SUDrawingElementGetHidden, SUFaceToDrawingElement(face), opened.layer());
    EXPECT_REFUSALS(SUFaceGetFrontMaterial, face, edge);
    EXPECT_REFUSALS(SUFaceIsFrontMaterialAffine, face, edge);
    EXPECT_REFUSALS(SUFaceGetNumEdges, face, edge);
    EXPECT_REFUSALS(SUEdgeGetStartVertex, edge, face);
    EXPECT_REFUSALS(SUEdgeGetSoft, edge, face);
    EXPECT_REFUSALS(SUVertexGetPosition, vertex, face);
    EXPECT_REFUSALS(SUGroupGetTransform, opened.placement<SUGroupRef>(0), opened.placement<SUComponentInstanceRef>(1));
    EXPECT_REFUSALS(SUComponentInstanceGetTransform, opened.placement<SUComponentInstanceRef>(1),
                    opened.placement<SUImageRef>(2));
    EXPECT_REFUSALS(SUImageGetTransform, opened.placement<SUImageRef>(2), opened.placement<SUGroupRef>(0));
    EXPECT_REFUSALS(SUComponentDefinitionGetBehavior, opened.definition(), face);
    EXPECT_REFUSALS(SUSectionPlaneGetPlane, section, face);
    EXPECT_REFUSALS(SULayerGetVisibility, opened.layer(), face);
    EXPECT_REFUSALS(SULayerGetName, opened.layer(), face);
    EXPECT_REFUSALS(SUMaterialGetColor, opened.material(), face);
    EXPECT_REFUSALS(SUMaterialGetName, opened.material(), face);
    EXPECT_REFUSALS(SUTextureGetFileName, opened.texture(), face);
    EXPECT_REFUSALS(SUAttributeDictionaryGetNumKeys, opened.dictionary(), face);
    EXPECT_REFUSALS(SUSceneGetName, scene, face);
}

TEST(Handles, of_the_providers_own_objects_are_told_from_those_of_a_model) {
    model_builder builder;
    add_cut_wall(builder);
    test_model opened(builder);
    const test_string string;
    const test_value value;
    SUTextureWriterRef writer = SU_INVALID;
    SUTextureWriterCreate(&writer);
    SUUVHelperRef uv = SU_INVALID;
    SUFaceGetUVHelper(opened.face(), true, true, SU_INVALID, &uv);
    SUMeshHelperRef mesh = SU_INVALID;
    SUMeshHelperCreate(&mesh, opened.face());
    EXPECT_REFUSALS(SUStringGetUTF8Length, string.ref, value.ref);
    EXPECT_REFUSALS(SUStringGetUTF16Length, string.ref, opened.face());
    EXPECT_REFUSALS(SUTypedValueGetType, value.ref, string.ref);
    EXPECT_REFUSALS(SUTextureWriterGetNumTextures, writer, mesh);
    EXPECT_REFUSALS(SUMeshHelperGetNumVertices, mesh, uv);
    SUOpeningRef opening = SU_INVALID;
    size_t count = 0;
    SUFaceGetOpenings(opened.face(), 1, &opening, &count);
    EXPECT_REFUSALS(SUFaceGetNumEdges, opened.face(), string.ref);
    EXPECT_REFUSALS(SUFaceGetNumOpenings, opened.face(), opening);
    EXPECT_REFUSALS(SUOpeningGetNumPoints, opening, mesh);
    SUOpeningRelease(&opening);
    SUMeshHelperRelease(&mesh);
    SUUVHelperRelease(&uv);
    SUTextureWriterRelease(&writer);
}

TEST(Handles, of_names_need_a_created_string) {
    model_builder builder;
    builder.root().group("Lamp");
    builder.material("Red", {255, 0, 0, 255});
    test_model opened(builder);
    SUStringRef not_created = SU_INVALID;
    EXPECT_EQ(SUGroupGetName(opened.placement<SUGroupRef>(), &not_created), SU_ERROR_INVALID_OUTPUT);
    EXPECT_EQ(SULayerGetName(opened.layer(), &not_created), SU_ERROR_INVALID_OUTPUT);
    EXPECT_EQ(SUMaterialGetName(opened.material(), &not_created), SU_ERROR_INVALID_OUTPUT);
    EXPECT_EQ(SUComponentDefinitionGetName(opened.definition(), &not_created), SU_ERROR_INVALID_OUTPUT);
}

TEST(Handles, of_one_object_are_equal_however_it_is_reached) {
    model_builder builder;
    const sketchup::index red = builder.material("Red", {255, 0, 0, 255});
    for (int i = 0; i < 2; ++i)
        builder.face(builder.root().face({{0, 0, 1.0 * i}, {1, 0, 1.0 * i}, {0, 1, 1.0 * i}})).material = red;
    test_model opened(builder);
    SUMaterialRef first = SU_INVALID, second = SU_INVALID;
    SUFaceGetFrontMaterial(opened.face(0), &first);
    SUDrawingElementGetMaterial(SUFaceToDrawingElement(opened.face(1)), &second);
    EXPECT_TRUE(SUAreEqual(first, second));
    EXPECT_TRUE(same(first, all_of(SUModelGetNumMaterials, SUModelGetMaterials, opened.ref)[0]));
}
