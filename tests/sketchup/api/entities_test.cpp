#include "tests/sketchup/api/test_model.h"

#include <gtest/gtest.h>

using sketchup::model_builder;
using sketchup::vec3;

namespace {

std::vector<SUEdgeRef> edges(SUEntitiesRef list, bool standalone_only) {
    size_t count = 0;
    SUEntitiesGetNumEdges(list, standalone_only, &count);
    std::vector<SUEdgeRef> found(count);
    SUEntitiesGetEdges(list, standalone_only, count, found.data(), &count);
    found.resize(count);
    return found;
}

} // namespace

TEST(EntityList, lists_groups_instances_and_images_apart) {
    model_builder builder;
    builder.root().instance(builder.component("Chair"));
    builder.root().group("Lamp");
    builder.root().image(builder.image_definition({}, "picture.png", 8, 4));
    test_model opened(builder);
    const auto instances = all_of(SUEntitiesGetNumInstances, SUEntitiesGetInstances, opened.root());
    const auto groups = all_of(SUEntitiesGetNumGroups, SUEntitiesGetGroups, opened.root());
    const auto images = all_of(SUEntitiesGetNumImages, SUEntitiesGetImages, opened.root());
    ASSERT_EQ(instances.size(), 1u);
    ASSERT_EQ(groups.size(), 1u);
    ASSERT_EQ(images.size(), 1u);
    EXPECT_TRUE(same(instances[0], opened.placement<SUComponentInstanceRef>(0)));
    EXPECT_TRUE(same(groups[0], opened.placement<SUGroupRef>(1)));
    EXPECT_TRUE(same(images[0], opened.placement<SUImageRef>(2)));
}

TEST(EntityList, gives_faces_and_section_planes_in_the_order_of_the_file) {
    model_builder builder;
    builder.root().face({{0, 0, 5}, {1, 0, 5}, {0, 1, 5}});
    builder.root().square(1);
    builder.root().section_plane({0, 0, 1, -3});
    test_model opened(builder);
    const auto faces = all_of(SUEntitiesGetNumFaces, SUEntitiesGetFaces, opened.root());
    ASSERT_EQ(faces.size(), 2u);
    EXPECT_TRUE(same(faces[0], opened.face(0)));
    EXPECT_TRUE(same(faces[1], opened.face(1)));
    EXPECT_EQ(all_of(SUEntitiesGetNumSectionPlanes, SUEntitiesGetSectionPlanes, opened.root()).size(), 1u);
}

TEST(EntityList, is_the_same_for_the_model_each_time) {
    model_builder builder;
    test_model opened(builder);
    SUEntitiesRef first = SU_INVALID, second = SU_INVALID;
    EXPECT_EQ(SUModelGetEntities(opened.ref, &first), SU_ERROR_NONE);
    EXPECT_EQ(SUModelGetEntities(opened.ref, &second), SU_ERROR_NONE);
    EXPECT_TRUE(same(first, second));
}

TEST(EntityList, with_room_for_none_gives_none) {
    model_builder builder;
    builder.root().square(1);
    test_model opened(builder);
    size_t count = 9;
    EXPECT_EQ(SUEntitiesGetFaces(opened.root(), 0, nullptr, &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 0u);
}

TEST(EntityList, needs_an_array_and_a_count) {
    model_builder builder;
    builder.root().square(1);
    test_model opened(builder);
    size_t count = 9;
    SUFaceRef face = SU_INVALID;
    EXPECT_EQ(SUEntitiesGetFaces(opened.root(), 1, nullptr, &count), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUEntitiesGetFaces(opened.root(), 1, &face, nullptr), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(count, 9u);
    EXPECT_FALSE(SUIsValid(face));
}

TEST(StandaloneEdges, leave_out_those_of_faces_and_of_curves) {
    model_builder builder;
    builder.root().square(1); // edges 0 to 3
    builder.root().polyline_curve(std::vector<vec3>{{0, 0, 2}, {1, 0, 2}, {1, 1, 2}});
    const sketchup::entity_place lone = builder.root().edge({0, 0, 9}, {1, 0, 9});
    test_model opened(builder);
    EXPECT_EQ(edges(opened.root(), false).size(), 7u);
    const std::vector<SUEdgeRef> found = edges(opened.root(), true);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_TRUE(same(found[0], opened.edge(lone.at)));
}

TEST(StandaloneEdges, keep_to_the_room_given) {
    model_builder builder;
    builder.root().edge({0, 0, 0}, {1, 0, 0});
    builder.root().edge({0, 0, 5}, {1, 0, 5});
    test_model opened(builder);
    SUEdgeRef items[2] = {SU_INVALID, SU_INVALID};
    size_t count = 0;
    EXPECT_EQ(SUEntitiesGetEdges(opened.root(), true, 1, items, &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 1u);
    EXPECT_FALSE(SUIsValid(items[1]));
    EXPECT_EQ(SUEntitiesGetEdges(opened.root(), true, 1, nullptr, &count), SU_ERROR_NULL_POINTER_OUTPUT);
}

TEST(EntityList, without_content_has_an_inverted_box) {
    model_builder builder;
    test_model opened(builder);
    SUBoundingBox3D box{};
    EXPECT_EQ(SUEntitiesGetBoundingBox(opened.root(), &box), SU_ERROR_NONE);
    EXPECT_EQ(box.min_point.x, 1e30);
    EXPECT_EQ(box.max_point.z, -1e30);
}

TEST(EntityList, has_the_box_of_its_content) {
    model_builder builder;
    builder.root().box({1, 2, 3}, {4, 5, 6});
    test_model opened(builder);
    SUBoundingBox3D box{};
    EXPECT_EQ(SUEntitiesGetBoundingBox(opened.root(), &box), SU_ERROR_NONE);
    EXPECT_EQ(box.min_point.x, 1);
    EXPECT_EQ(box.min_point.y, 2);
    EXPECT_EQ(box.min_point.z, 3);
    EXPECT_EQ(box.max_point.x, 4);
    EXPECT_EQ(box.max_point.y, 5);
    EXPECT_EQ(box.max_point.z, 6);
}
