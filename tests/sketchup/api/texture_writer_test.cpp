#include "tests/sketchup/api/painted_faces.h"
#include "tests/sketchup/api/test_model.h"

#include <array>
#include <gtest/gtest.h>

using sketchup::entity_place;
using sketchup::model_builder;
using sketchup::texture_mapping;

namespace {

struct test_writer {
    test_writer() { EXPECT_EQ(SUTextureWriterCreate(&ref), SU_ERROR_NONE); }
    test_writer(const test_writer&) = delete;
    test_writer& operator=(const test_writer&) = delete;
    ~test_writer() { SUTextureWriterRelease(&ref); }
    size_t count() const {
        size_t result = 0;
        SUTextureWriterGetNumTextures(ref, &result);
        return result;
    }
    SUTextureWriterRef ref = SU_INVALID;
};

struct side_ids {
    SUResult result = SU_ERROR_NONE;
    long front = 0;
    long back = 0;
    friend bool operator==(const side_ids&, const side_ids&) = default;
};

side_ids load(const test_writer& writer, SUFaceRef face) {
    side_ids ids;
    ids.result = SUTextureWriterLoadFace(writer.ref, face, &ids.front, &ids.back);
    return ids;
}

entity_place painted(model_builder& builder, sketchup::index front, sketchup::index back = sketchup::no_index) {
    const entity_place face = builder.root().square(20);
    builder.face(face).material = front;
    builder.face(face).back_material = back;
    return face;
}

} // namespace

TEST(TextureWriter, gives_one_number_for_all_affine_faces_of_a_material) {
    model_builder builder;
    const sketchup::index bricks = brick(builder), tiles = builder.textured_material("Tile", {}, "tile.png", 1, 1);
    painted(builder, bricks);
    position(builder, painted(builder, bricks), &texture_mapping::front, moved_by_1_2);
    painted(builder, tiles, bricks);
    test_model opened(builder);
    const test_writer writer;
    EXPECT_EQ(load(writer, opened.face(0)), (side_ids{SU_ERROR_NONE, 1, 0}));
    EXPECT_EQ(load(writer, opened.face(1)), (side_ids{SU_ERROR_NONE, 1, 0}));
    EXPECT_EQ(load(writer, opened.face(2)), (side_ids{SU_ERROR_NONE, 2, 1}));
    EXPECT_EQ(load(writer, opened.face(0)), (side_ids{SU_ERROR_NONE, 1, 0})) << "loading again adds nothing";
    EXPECT_EQ(writer.count(), 2u);
}

TEST(TextureWriter, gives_each_distorted_side_a_number_of_its_own) {
    model_builder builder;
    const sketchup::index bricks = brick(builder);
    for (int i = 0; i < 2; ++i) {
        const entity_place face = painted(builder, bricks, bricks);
        position(builder, face, &texture_mapping::front, distorted);
        position(builder, face, &texture_mapping::back, distorted);
    }
    test_model opened(builder);
    const test_writer writer;
    EXPECT_EQ(load(writer, opened.face(0)), (side_ids{SU_ERROR_NONE, 1, 2}));
    EXPECT_EQ(load(writer, opened.face(1)), (side_ids{SU_ERROR_NONE, 3, 4}));
    EXPECT_EQ(load(writer, opened.face(0)), (side_ids{SU_ERROR_NONE, 1, 2}));
    EXPECT_EQ(writer.count(), 4u);
    bool affine = true;
    EXPECT_EQ(SUTextureWriterIsTextureAffine(writer.ref, 3, &affine), SU_ERROR_NONE);
    EXPECT_FALSE(affine);
}

TEST(TextureWriter, does_not_take_a_plain_face) {
    model_builder builder;
    painted(builder, builder.material("Red", {255, 0, 0, 255}));
    test_model opened(builder);
    const test_writer writer;
    EXPECT_EQ(load(writer, opened.face()), (side_ids{SU_ERROR_GENERIC, 0, 0}));
    EXPECT_EQ(writer.count(), 0u);
}

TEST(TextureWriter, needs_a_place_for_the_number_of_a_textured_side_only) {
    model_builder builder;
    painted(builder, brick(builder));
    test_model opened(builder);
    const test_writer writer;
    long id = 0;
    EXPECT_EQ(SUTextureWriterLoadFace(writer.ref, opened.face(), nullptr, &id), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(writer.count(), 0u);
    EXPECT_EQ(SUTextureWriterLoadFace(writer.ref, opened.face(), &id, nullptr), SU_ERROR_NONE);
    EXPECT_EQ(id, 1);
}

TEST(TextureWriter, tells_the_number_of_a_side_only_once_loaded) {
    model_builder builder;
    const sketchup::index bricks = brick(builder);
    painted(builder, bricks);
    position(builder, painted(builder, bricks), &texture_mapping::front, distorted);
    test_model opened(builder);
    const test_writer writer;
    long id = 7;
    EXPECT_EQ(SUTextureWriterGetTextureIdForFace(writer.ref, opened.face(0), true, &id), SU_ERROR_GENERIC);
    EXPECT_EQ(id, 7);
    load(writer, opened.face(0));
    EXPECT_EQ(SUTextureWriterGetTextureIdForFace(writer.ref, opened.face(0), true, &id), SU_ERROR_NONE);
    EXPECT_EQ(id, 1);
    EXPECT_EQ(SUTextureWriterGetTextureIdForFace(writer.ref, opened.face(0), false, &id), SU_ERROR_GENERIC);
    EXPECT_EQ(SUTextureWriterGetTextureIdForFace(writer.ref, opened.face(1), true, &id), SU_ERROR_GENERIC);
    load(writer, opened.face(1));
    EXPECT_EQ(SUTextureWriterGetTextureIdForFace(writer.ref, opened.face(1), true, &id), SU_ERROR_NONE);
    EXPECT_EQ(id, 2);
}

TEST(TextureWriter, takes_what_placements_and_layers_are_painted_with_under_the_materials_number) {
    model_builder builder;
    const sketchup::index bricks = brick(builder);
    painted(builder, bricks);
    builder.placement(builder.root().group("Lamp").placement()).material = bricks;
    builder.placement(builder.root().instance(builder.component("Chair"))).material = bricks;
    const sketchup::index walls = builder.layer("Walls");
    builder.model().layers[walls].material = bricks;
    test_model opened(builder);
    const test_writer writer;
    long id = 0;
    EXPECT_EQ(SUTextureWriterLoadEntity(writer.ref, SUGroupToEntity(opened.placement<SUGroupRef>(0)), &id),
              SU_ERROR_NONE);
    EXPECT_EQ(id, 1);
    const SUEntityRef instance = SUComponentInstanceToEntity(opened.placement<SUComponentInstanceRef>(1));
    EXPECT_EQ(SUTextureWriterLoadEntity(writer.ref, instance, &id), SU_ERROR_NONE);
    EXPECT_EQ(SUTextureWriterLoadEntity(writer.ref, SULayerToEntity(opened.layer(walls)), &id), SU_ERROR_NONE);
    EXPECT_EQ(load(writer, opened.face()).front, 1);
    EXPECT_EQ(SUTextureWriterGetTextureIdForEntity(writer.ref, instance, &id), SU_ERROR_NONE);
    EXPECT_EQ(id, 1);
    EXPECT_EQ(writer.count(), 1u);
}

TEST(TextureWriter, takes_the_picture_of_an_image) {
    model_builder builder;
    builder.root().image(builder.image_definition({}, "lake.png", 8, 4));
    test_model opened(builder);
    const test_writer writer;
    long id = 0;
    EXPECT_EQ(SUTextureWriterLoadEntity(writer.ref, SUImageToEntity(opened.placement<SUImageRef>()), &id),
              SU_ERROR_NONE);
    EXPECT_EQ(id, 1);
}

TEST(TextureWriter, takes_no_unpainted_placement_and_no_other_kind) {
    model_builder builder;
    painted(builder, brick(builder));
    builder.root().group("Lamp");
    test_model opened(builder);
    const test_writer writer;
    long id = 7;
    EXPECT_EQ(SUTextureWriterLoadEntity(writer.ref, SUGroupToEntity(opened.placement<SUGroupRef>()), &id),
              SU_ERROR_GENERIC);
    EXPECT_EQ(SUTextureWriterLoadEntity(writer.ref, SUFaceToEntity(opened.face()), &id), SU_ERROR_GENERIC);
    EXPECT_EQ(SUTextureWriterLoadEntity(writer.ref, SUMaterialToEntity(opened.material()), &id), SU_ERROR_GENERIC);
    EXPECT_EQ(id, 7);
}

TEST(TextureWriter, refuses_numbers_it_never_gave_out) {
    model_builder builder;
    painted(builder, brick(builder));
    test_model opened(builder);
    const test_writer writer;
    load(writer, opened.face());
    bool affine = false;
    EXPECT_EQ(SUTextureWriterIsTextureAffine(writer.ref, 1, &affine), SU_ERROR_NONE);
    EXPECT_TRUE(affine);
    for (const long id : {-1L, 0L, 2L}) {
        EXPECT_EQ(SUTextureWriterIsTextureAffine(writer.ref, id, &affine), SU_ERROR_INVALID_INPUT) << id;
        EXPECT_EQ(SUTextureWriterWriteTexture(writer.ref, id, "a.png", false), SU_ERROR_INVALID_INPUT) << id;
    }
    EXPECT_EQ(SUTextureWriterWriteTexture(writer.ref, 1, nullptr, false), SU_ERROR_NULL_POINTER_INPUT);
}

TEST(TextureWriter, forgets_everything_when_released) {
    model_builder builder;
    painted(builder, brick(builder));
    test_model opened(builder);
    {
        const test_writer writer;
        load(writer, opened.face());
    }
    const test_writer next;
    EXPECT_EQ(next.count(), 0u);
    long id = 0;
    EXPECT_EQ(SUTextureWriterGetTextureIdForFace(next.ref, opened.face(), true, &id), SU_ERROR_GENERIC);
}

TEST(TextureWriter, keeps_its_numbers_when_a_side_loses_its_paint) {
    model_builder builder;
    const sketchup::index bricks = brick(builder);
    const entity_place face = painted(builder, bricks, bricks);
    position(builder, face, &texture_mapping::front, distorted);
    test_model opened(builder);
    const test_writer writer;
    EXPECT_EQ(load(writer, opened.face()), (side_ids{SU_ERROR_NONE, 1, 2}));
    EXPECT_EQ(SUFaceSetFrontMaterial(opened.face(), SU_INVALID), SU_ERROR_NONE);
    EXPECT_EQ(SUFaceSetBackMaterial(opened.face(), SU_INVALID), SU_ERROR_NONE);
    EXPECT_EQ(writer.count(), 2u);
    bool affine = true;
    EXPECT_EQ(SUTextureWriterIsTextureAffine(writer.ref, 1, &affine), SU_ERROR_NONE);
    EXPECT_FALSE(affine);
    long id = 7;
    EXPECT_EQ(SUTextureWriterGetTextureIdForFace(writer.ref, opened.face(), true, &id), SU_ERROR_GENERIC);
    EXPECT_EQ(id, 7);
    // Without paint the coordinates are inches, although the distorted side is still known.
    SUUVHelperRef helper = SU_INVALID;
    SUFaceGetUVHelper(opened.face(), true, true, writer.ref, &helper);
    const SUPoint3D point = {5, 6, 0};
    SUUVQ at{};
    EXPECT_EQ(SUUVHelperGetFrontUVQ(helper, &point, &at), SU_ERROR_NONE);
    EXPECT_EQ((std::array{at.u, at.v, at.q}), (std::array{5.0, 6.0, 1.0}));
    SUUVHelperRelease(&helper);
    EXPECT_EQ(SUFaceSetFrontMaterial(opened.face(), opened.material(bricks)), SU_ERROR_NONE);
    EXPECT_EQ(SUFaceSetBackMaterial(opened.face(), opened.material(bricks)), SU_ERROR_NONE);
    EXPECT_EQ(load(writer, opened.face()), (side_ids{SU_ERROR_NONE, 1, 2}));
    EXPECT_EQ(writer.count(), 2u);
}
