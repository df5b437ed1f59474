#include "tests/sketchup/api/test_model.h"

#include <gtest/gtest.h>

using sketchup::model_builder;

namespace {

SUBoundingBox3D box_of(SUDrawingElementRef element) {
    SUBoundingBox3D box{};
    EXPECT_EQ(SUDrawingElementGetBoundingBox(element, &box), SU_ERROR_NONE);
    return box;
}

} // namespace

TEST(DrawingElement, without_material_has_no_data) {
    model_builder builder;
    builder.root().square(1);
    test_model opened(builder);
    SUMaterialRef material = SU_INVALID;
    EXPECT_EQ(SUDrawingElementGetMaterial(SUFaceToDrawingElement(opened.face()), &material), SU_ERROR_NO_DATA);
    EXPECT_FALSE(SUIsValid(material));
}

TEST(DrawingElement, gives_its_material_and_its_layer) {
    model_builder builder;
    const sketchup::index red = builder.material("Red", {255, 0, 0, 255});
    const sketchup::index walls = builder.layer("Walls");
    const sketchup::entity_place group = builder.root().group("Lamp").placement();
    builder.placement(group).material = red;
    builder.placement(group).layer = walls;
    test_model opened(builder);
    const SUDrawingElementRef element = SUGroupToDrawingElement(opened.placement<SUGroupRef>());
    SUMaterialRef material = SU_INVALID;
    SULayerRef layer = SU_INVALID;
    EXPECT_EQ(SUDrawingElementGetMaterial(element, &material), SU_ERROR_NONE);
    EXPECT_EQ(SUDrawingElementGetLayer(element, &layer), SU_ERROR_NONE);
    EXPECT_TRUE(same(material, opened.material(red)));
    EXPECT_TRUE(same(layer, opened.layer(walls)));
}

TEST(DrawingElement, gives_its_own_flags_and_not_those_around_it) {
    model_builder builder;
    sketchup::list_builder group = builder.root().group("Lamp");
    const sketchup::entity_place face = group.square(1);
    builder.placement(group.placement()).hidden = true;
    builder.placement(group.placement()).casts_shadows = false;
    builder.face(face).receives_shadows = false;
    test_model opened(builder);
    const SUDrawingElementRef outer = SUGroupToDrawingElement(opened.placement<SUGroupRef>());
    const SUDrawingElementRef inner = SUFaceToDrawingElement(opened.face());
    bool hidden = false, casts = true, receives = false;
    EXPECT_EQ(SUDrawingElementGetHidden(outer, &hidden), SU_ERROR_NONE);
    EXPECT_EQ(SUDrawingElementGetCastsShadows(outer, &casts), SU_ERROR_NONE);
    EXPECT_EQ(SUDrawingElementGetReceivesShadows(outer, &receives), SU_ERROR_NONE);
    EXPECT_TRUE(hidden);
    EXPECT_FALSE(casts);
    EXPECT_TRUE(receives);
    SUDrawingElementGetHidden(inner, &hidden);
    SUDrawingElementGetCastsShadows(inner, &casts);
    SUDrawingElementGetReceivesShadows(inner, &receives);
    EXPECT_FALSE(hidden);
    EXPECT_TRUE(casts);
    EXPECT_FALSE(receives);
}

TEST(DrawingElement, a_placements_box_is_in_the_space_around_it) {
    model_builder builder;
    sketchup::list_builder chair = builder.component("Chair");
    chair.box({0, 0, 0}, {1, 2, 3});
    builder.root().instance(chair, sketchup::moved({10, 20, 30}));
    test_model opened(builder);
    const SUBoundingBox3D placed =
        box_of(SUComponentInstanceToDrawingElement(opened.placement<SUComponentInstanceRef>()));
    EXPECT_EQ(placed.min_point.x, 10);
    EXPECT_EQ(placed.max_point.z, 33);
    const SUBoundingBox3D own = box_of(SUComponentDefinitionToDrawingElement(opened.definition()));
    EXPECT_EQ(own.min_point.x, 0);
    EXPECT_EQ(own.max_point.z, 3);
}

TEST(DrawingElement, a_face_an_edge_and_a_level_section_plane_have_flat_boxes) {
    model_builder builder;
    builder.root().box({0, 0, 0}, {4, 4, 4});
    builder.root().section_plane({0, 0, 1, -3});
    test_model opened(builder);
    SUSectionPlaneRef plane = SU_INVALID;
    size_t count = 0;
    SUEntitiesGetSectionPlanes(opened.root(), 1, &plane, &count);
    const SUBoundingBox3D cut = box_of(SUSectionPlaneToDrawingElement(plane));
    EXPECT_EQ(cut.min_point.z, 3);
    EXPECT_EQ(cut.max_point.z, 3);
    const sketchup::vec3 start = opened.model().vertices[opened.model().edges[0].start].position;
    const SUBoundingBox3D edge = box_of(SUEdgeToDrawingElement(opened.edge()));
    EXPECT_LE(edge.min_point.x, start.x);
    EXPECT_GE(edge.max_point.x, start.x);
    const SUBoundingBox3D face = box_of(SUFaceToDrawingElement(opened.face()));
    EXPECT_TRUE(face.min_point.x == face.max_point.x || face.min_point.y == face.max_point.y ||
                face.min_point.z == face.max_point.z);
}
