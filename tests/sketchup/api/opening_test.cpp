#include "tests/sketchup/api/cut_wall.h"
#include "tests/sketchup/api/test_model.h"

#include <gtest/gtest.h>

#include <array>

using sketchup::model_builder;

namespace {

SUOpeningRef only_opening(test_model& opened) {
    SUOpeningRef opening = SU_INVALID;
    size_t count = 0;
    EXPECT_EQ(SUFaceGetOpenings(opened.face(), 1, &opening, &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 1u);
    return opening;
}

std::vector<std::array<double, 3>> points_of(SUOpeningRef opening) {
    size_t count = 0;
    EXPECT_EQ(SUOpeningGetNumPoints(opening, &count), SU_ERROR_NONE);
    std::vector<SUPoint3D> points(count);
    EXPECT_EQ(SUOpeningGetPoints(opening, points.size(), points.data(), &count), SU_ERROR_NONE);
    EXPECT_EQ(count, points.size());
    std::vector<std::array<double, 3>> result;
    for (const SUPoint3D& p : points)
        result.push_back({p.x, p.y, p.z});
    return result;
}

} // namespace

TEST(Openings, are_given_with_their_corners) {
    model_builder builder;
    add_cut_wall(builder);
    test_model opened(builder);
    size_t count = 0;
    EXPECT_EQ(SUFaceGetNumOpenings(opened.face(), &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 1u);
    SUOpeningRef opening = only_opening(opened);
    EXPECT_EQ(points_of(opening), (std::vector<std::array<double, 3>>{{4, 8, 0}, {6, 8, 0}, {6, 5, 0}, {4, 5, 0}}));
    EXPECT_EQ(SUOpeningRelease(&opening), SU_ERROR_NONE);
}

TEST(Openings, of_a_face_that_nothing_is_glued_to_are_none) {
    model_builder builder;
    builder.root().square(10);
    test_model opened(builder);
    size_t count = 9;
    EXPECT_EQ(SUFaceGetNumOpenings(opened.face(), &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 0u);
    count = 9;
    SUOpeningRef opening = SU_INVALID;
    EXPECT_EQ(SUFaceGetOpenings(opened.face(), 1, &opening, &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 0u);
    EXPECT_TRUE(SUIsInvalid(opening));
}

TEST(Openings, of_a_hidden_window_are_none) {
    model_builder builder;
    builder.placement(add_cut_wall(builder)).hidden = true;
    test_model opened(builder);
    size_t count = 9;
    EXPECT_EQ(SUFaceGetNumOpenings(opened.face(), &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 0u);
}

TEST(Openings, are_no_more_than_there_is_room_for) {
    model_builder builder;
    add_cut_wall(builder);
    test_model opened(builder);
    size_t count = 9;
    EXPECT_EQ(SUFaceGetOpenings(opened.face(), 0, nullptr, &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 0u);
    SUOpeningRef opening = only_opening(opened);
    SUPoint3D point = {};
    EXPECT_EQ(SUOpeningGetPoints(opening, 1, &point, &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 1u);
    EXPECT_EQ(point.y, 8);
    SUOpeningRelease(&opening);
}

TEST(Openings, are_each_the_callers_own) {
    model_builder builder;
    add_cut_wall(builder);
    test_model opened(builder);
    SUOpeningRef first = only_opening(opened), second = only_opening(opened);
    EXPECT_FALSE(SUAreEqual(first, second));
    EXPECT_EQ(SUOpeningRelease(&first), SU_ERROR_NONE);
    EXPECT_EQ(points_of(second).size(), 4u);
    SUOpeningRelease(&second);
}

TEST(Openings, outlast_their_model) {
    model_builder builder;
    add_cut_wall(builder);
    test_model opened(builder);
    SUOpeningRef opening = only_opening(opened);
    EXPECT_EQ(SUModelRelease(&opened.ref), SU_ERROR_NONE);
    EXPECT_EQ(points_of(opening).size(), 4u);
    EXPECT_EQ(SUOpeningRelease(&opening), SU_ERROR_NONE);
}

TEST(Openings, are_released_once) {
    model_builder builder;
    add_cut_wall(builder);
    test_model opened(builder);
    SUOpeningRef opening = only_opening(opened);
    SUOpeningRef copy = opening;
    EXPECT_EQ(SUOpeningRelease(&opening), SU_ERROR_NONE);
    EXPECT_TRUE(SUIsInvalid(opening));
    EXPECT_EQ(SUOpeningRelease(&opening), SU_ERROR_INVALID_INPUT);
    EXPECT_EQ(SUOpeningRelease(&copy), SU_ERROR_INVALID_INPUT);
    EXPECT_EQ(SUOpeningRelease(nullptr), SU_ERROR_NULL_POINTER_INPUT);
    size_t count = 0;
    EXPECT_EQ(SUOpeningGetNumPoints(copy, &count), SU_ERROR_INVALID_INPUT);
}

TEST(Openings, need_somewhere_to_go) {
    model_builder builder;
    add_cut_wall(builder);
    test_model opened(builder);
    SUOpeningRef opening = SU_INVALID;
    size_t count = 0;
    EXPECT_EQ(SUFaceGetOpenings(opened.face(), 1, &opening, nullptr), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUFaceGetOpenings(opened.face(), 1, nullptr, &count), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUFaceGetOpenings(SUFaceRef{}, 1, &opening, &count), SU_ERROR_INVALID_INPUT);
    EXPECT_TRUE(SUIsInvalid(opening));
    opening = only_opening(opened);
    EXPECT_EQ(SUOpeningGetPoints(opening, 4, nullptr, &count), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUOpeningGetNumPoints(opening, nullptr), SU_ERROR_NULL_POINTER_OUTPUT);
    SUOpeningRelease(&opening);
}
