#include "tests/sketchup/api/painted_faces.h"
#include "tests/sketchup/api/test_model.h"

#include <gtest/gtest.h>

using sketchup::model_builder;
using sketchup::texture_mapping;

namespace {

constexpr SUPoint3D point = {5, 6, 0};

void expect_uvq(const SUUVQ& found, double u, double v, double q) {
    EXPECT_NEAR(found.u, u, 1e-12);
    EXPECT_NEAR(found.v, v, 1e-12);
    EXPECT_NEAR(found.q, q, 1e-12);
}

struct both_sides {
    SUUVQ front{9, 9, 9};
    SUUVQ back{9, 9, 9};
};

both_sides coordinates(SUFaceRef face, bool front, bool back, SUTextureWriterRef writer = SU_INVALID) {
    both_sides result;
    SUUVHelperRef helper = SU_INVALID;
    EXPECT_EQ(SUFaceGetUVHelper(face, front, back, writer, &helper), SU_ERROR_NONE);
    EXPECT_EQ(SUUVHelperGetFrontUVQ(helper, &point, &result.front), SU_ERROR_NONE);
    EXPECT_EQ(SUUVHelperGetBackUVQ(helper, &point, &result.back), SU_ERROR_NONE);
    EXPECT_EQ(SUUVHelperRelease(&helper), SU_ERROR_NONE);
    EXPECT_FALSE(SUIsValid(helper));
    return result;
}

// A square of 20 inches, painted with a brick of 10 × 20 inches on both sides.
sketchup::entity_place painted_square(model_builder& builder) {
    const sketchup::index bricks = brick(builder);
    const sketchup::entity_place face = builder.root().square(20);
    builder.face(face).material = bricks;
    builder.face(face).back_material = bricks;
    return face;
}

} // namespace

TEST(TextureCoordinates, of_a_side_without_texture_are_inches) {
    model_builder builder;
    builder.root().square(20);
    test_model opened(builder);
    const both_sides found = coordinates(opened.face(), true, true);
    expect_uvq(found.front, 5, 6, 1);
    expect_uvq(found.back, 5, 6, 1);
}

TEST(TextureCoordinates, of_a_side_not_asked_for_are_zero) {
    model_builder builder;
    painted_square(builder);
    test_model opened(builder);
    expect_uvq(coordinates(opened.face(), true, false).back, 0, 0, 0);
    expect_uvq(coordinates(opened.face(), false, true).front, 0, 0, 0);
}

TEST(TextureCoordinates, of_a_texture_not_positioned_count_tiles_and_are_not_mirrored_on_the_back) {
    model_builder builder;
    painted_square(builder);
    test_model opened(builder);
    const both_sides found = coordinates(opened.face(), true, true);
    expect_uvq(found.front, 0.5, 0.3, 1); // 5 / 10, 6 / 20
    expect_uvq(found.back, 0.5, 0.3, 1);
}

TEST(TextureCoordinates, of_a_positioned_texture_go_through_its_mapping) {
    model_builder builder;
    const sketchup::entity_place face = painted_square(builder);
    position(builder, face, &texture_mapping::front, moved_by_1_2);
    test_model opened(builder);
    const both_sides found = coordinates(opened.face(), true, true);
    expect_uvq(found.front, 0.4, 0.2, 1); // (5 - 1) / 10, (6 - 2) / 20
    expect_uvq(found.back, 0.5, 0.3, 1);
}

TEST(TextureCoordinates, of_a_distorted_texture_are_multiplied_by_a_q_that_varies) {
    model_builder builder;
    const sketchup::entity_place face = painted_square(builder);
    position(builder, face, &texture_mapping::front, distorted);
    test_model opened(builder);
    // The inverse of rows (1, 0, 0.1), (0, 1, 0), (0, 0, 1) has -0.1 for 0.1: (5, 6, 1) becomes (5, 6, 1 - 0.5).
    expect_uvq(coordinates(opened.face(), true, true).front, 0.5, 0.3, 0.5);
}

TEST(TextureCoordinates, of_a_projected_texture_ignore_the_faces_own_plane) {
    model_builder builder;
    const sketchup::entity_place face = painted_square(builder);
    position(builder, face, &texture_mapping::front, moved_by_1_2);
    builder.model().texture_mappings[0].front.projected = true;
    builder.model().texture_mappings[0].front.direction = {0, -1, 0};
    test_model opened(builder);
    // Across -y: u axis = Z × -Y = X, v axis = -Y × X = Z. So (5, 6, 0) lies at (5, 0): (5 - 1) / 10, (0 - 2) / 20.
    expect_uvq(coordinates(opened.face(), true, true).front, 0.4, -0.1, 1);
}

TEST(TextureCoordinates, for_a_writer_that_knows_the_distorted_side_are_those_of_its_straight_picture) {
    model_builder builder;
    const sketchup::entity_place face = painted_square(builder);
    position(builder, face, &texture_mapping::front, distorted);
    test_model opened(builder);
    SUTextureWriterRef writer = SU_INVALID;
    SUTextureWriterCreate(&writer);
    expect_uvq(coordinates(opened.face(), true, true, writer).front, 0.5, 0.3, 0.5);
    long front = 0, back = 0;
    EXPECT_EQ(SUTextureWriterLoadFace(writer, opened.face(), &front, &back), SU_ERROR_NONE);
    const both_sides found = coordinates(opened.face(), true, true, writer);
    expect_uvq(found.front, 0.25, 0.3, 1); // 5 / 20, 6 / 20: the picture covers the square once
    expect_uvq(found.back, 0.5, 0.3, 1);   // not distorted
    SUTextureWriterRelease(&writer);
}

TEST(UVHelper, is_made_into_an_invalid_handle_of_a_real_face) {
    model_builder builder;
    builder.root().square(1);
    test_model opened(builder);
    SUUVHelperRef helper = SU_INVALID;
    EXPECT_EQ(SUFaceGetUVHelper(SU_INVALID, true, true, SU_INVALID, &helper), SU_ERROR_INVALID_INPUT);
    EXPECT_EQ(SUFaceGetUVHelper(opened.face(), true, true, {opened.face().ptr}, &helper), SU_ERROR_INVALID_INPUT);
    EXPECT_EQ(SUFaceGetUVHelper(opened.face(), true, true, SU_INVALID, nullptr), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUFaceGetUVHelper(opened.face(), true, true, SU_INVALID, &helper), SU_ERROR_NONE);
    EXPECT_EQ(SUFaceGetUVHelper(opened.face(), true, true, SU_INVALID, &helper), SU_ERROR_OVERWRITE_VALID);
    SUUVQ uvq{};
    EXPECT_EQ(SUUVHelperGetFrontUVQ(helper, nullptr, &uvq), SU_ERROR_NULL_POINTER_INPUT);
    EXPECT_EQ(SUUVHelperGetFrontUVQ(helper, &point, nullptr), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUUVHelperGetBackUVQ(SU_INVALID, &point, &uvq), SU_ERROR_INVALID_INPUT);
    EXPECT_EQ(SUUVHelperRelease(&helper), SU_ERROR_NONE);
    EXPECT_EQ(SUUVHelperRelease(&helper), SU_ERROR_INVALID_INPUT);
    EXPECT_EQ(SUUVHelperRelease(nullptr), SU_ERROR_NULL_POINTER_INPUT);
}
