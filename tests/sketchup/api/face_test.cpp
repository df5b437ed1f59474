#include "tests/sketchup/api/painted_faces.h"
#include "tests/sketchup/api/test_model.h"

#include <gtest/gtest.h>

using sketchup::model_builder;
using sketchup::texture_mapping;
using sketchup::vec3;

TEST(FacePaint, of_front_and_back_are_independent) {
    model_builder builder;
    const sketchup::index red = builder.material("Red", {255, 0, 0, 255});
    const sketchup::entity_place face = builder.root().square(1);
    builder.face(face).back_material = red;
    test_model opened(builder);
    SUMaterialRef material = SU_INVALID;
    EXPECT_EQ(SUFaceGetFrontMaterial(opened.face(), &material), SU_ERROR_NO_DATA);
    EXPECT_FALSE(SUIsValid(material));
    EXPECT_EQ(SUFaceGetBackMaterial(opened.face(), &material), SU_ERROR_NONE);
    EXPECT_TRUE(same(material, opened.material(red)));
}

TEST(FacePaint, can_be_put_on_and_taken_off) {
    model_builder builder;
    const sketchup::index red = builder.material("Red", {255, 0, 0, 255});
    builder.root().square(1);
    test_model opened(builder);
    SUMaterialRef material = SU_INVALID;
    EXPECT_EQ(SUFaceSetFrontMaterial(opened.face(), opened.material(red)), SU_ERROR_NONE);
    EXPECT_EQ(SUFaceGetFrontMaterial(opened.face(), &material), SU_ERROR_NONE);
    EXPECT_TRUE(same(material, opened.material(red)));
    EXPECT_EQ(SUFaceGetBackMaterial(opened.face(), &material), SU_ERROR_NO_DATA);
    EXPECT_EQ(SUFaceSetFrontMaterial(opened.face(), SU_INVALID), SU_ERROR_NONE);
    EXPECT_EQ(SUFaceGetFrontMaterial(opened.face(), &material), SU_ERROR_NO_DATA);
    EXPECT_EQ(SUFaceSetBackMaterial(opened.face(), opened.material(red)), SU_ERROR_NONE);
    EXPECT_EQ(SUFaceGetBackMaterial(opened.face(), &material), SU_ERROR_NONE);
}

TEST(FacePaint, from_another_model_is_refused) {
    model_builder builder, other_builder;
    builder.root().square(1);
    other_builder.material("Red", {255, 0, 0, 255});
    test_model opened(builder), other(other_builder);
    EXPECT_EQ(SUFaceSetFrontMaterial(opened.face(), other.material()), SU_ERROR_INVALID_INPUT);
    const SUMaterialRef no_material = {opened.face().ptr};
    EXPECT_EQ(SUFaceSetBackMaterial(opened.face(), no_material), SU_ERROR_INVALID_INPUT);
    EXPECT_EQ(SUFaceSetFrontMaterial(SU_INVALID, other.material()), SU_ERROR_INVALID_INPUT);
}

TEST(FaceTextures, are_affine_unless_distorted) {
    model_builder builder;
    const sketchup::index bricks = brick(builder);
    const sketchup::entity_place face = builder.root().square(1);
    builder.face(face).material = bricks;
    builder.face(face).back_material = bricks;
    position(builder, face, &texture_mapping::front, moved_by_1_2);
    position(builder, face, &texture_mapping::back, distorted);
    test_model opened(builder);
    bool affine = false;
    EXPECT_EQ(SUFaceIsFrontMaterialAffine(opened.face(), &affine), SU_ERROR_NONE);
    EXPECT_TRUE(affine);
    EXPECT_EQ(SUFaceIsBackMaterialAffine(opened.face(), &affine), SU_ERROR_NONE);
    EXPECT_FALSE(affine);
}

TEST(FaceTextures, have_no_answer_where_there_is_no_texture) {
    model_builder builder;
    const sketchup::index red = builder.material("Red", {255, 0, 0, 255});
    const sketchup::entity_place face = builder.root().square(1);
    builder.face(face).material = red;
    test_model opened(builder);
    bool affine = true;
    EXPECT_EQ(SUFaceIsFrontMaterialAffine(opened.face(), &affine), SU_ERROR_NO_DATA);
    EXPECT_EQ(SUFaceIsBackMaterialAffine(opened.face(), &affine), SU_ERROR_NO_DATA);
    EXPECT_TRUE(affine);
}

TEST(FaceEdges, are_those_of_the_outline_then_those_of_the_holes) {
    model_builder builder;
    const std::vector<vec3> outline = {{0, 0, 0}, {9, 0, 0}, {9, 9, 0}, {0, 9, 0}};
    const std::vector<std::vector<vec3>> holes = {{{1, 1, 0}, {1, 2, 0}, {2, 1, 0}}};
    builder.root().face(outline, holes);
    test_model opened(builder);
    size_t count = 0;
    EXPECT_EQ(SUFaceGetNumEdges(opened.face(), &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 7u);
    const auto edges = all_of(SUFaceGetNumEdges, SUFaceGetEdges, opened.face());
    ASSERT_EQ(edges.size(), 7u);
    for (sketchup::index i = 0; i < 7; ++i)
        EXPECT_TRUE(same(edges[i], opened.edge(i))) << i;
    SUEdgeRef few[2] = {SU_INVALID, SU_INVALID};
    EXPECT_EQ(SUFaceGetEdges(opened.face(), 1, few, &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 1u);
    EXPECT_FALSE(SUIsValid(few[1]));
    EXPECT_EQ(SUFaceGetEdges(opened.face(), 1, nullptr, &count), SU_ERROR_NULL_POINTER_OUTPUT);
}

TEST(FacePlane, normal_and_area_are_those_of_the_face) {
    model_builder builder;
    builder.root().face({{0, 0, 5}, {4, 0, 5}, {4, 3, 5}, {0, 3, 5}});
    test_model opened(builder);
    SUVector3D normal{};
    SUPlane3D plane{};
    double area = 0;
    EXPECT_EQ(SUFaceGetNormal(opened.face(), &normal), SU_ERROR_NONE);
    EXPECT_EQ(SUFaceGetPlane(opened.face(), &plane), SU_ERROR_NONE);
    EXPECT_EQ(SUFaceGetArea(opened.face(), &area), SU_ERROR_NONE);
    EXPECT_EQ(normal.z, 1);
    EXPECT_EQ(plane.c, 1);
    EXPECT_EQ(plane.d, -5);
    EXPECT_EQ(area, 12);
}
