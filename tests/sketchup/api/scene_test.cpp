#include "tests/sketchup/api/test_model.h"

#include <gtest/gtest.h>

using sketchup::model_builder;

TEST(Camera, gives_eye_target_and_a_unit_up_vector) {
    model_builder builder;
    builder.model().camera.eye = {1, 2, 3};
    builder.model().camera.target = {4, 5, 6};
    builder.model().camera.up = {0, 3, 4};
    test_model opened(builder);
    SUCameraRef camera = SU_INVALID;
    EXPECT_EQ(SUModelGetCamera(opened.ref, &camera), SU_ERROR_NONE);
    SUPoint3D eye{}, target{};
    SUVector3D up{};
    EXPECT_EQ(SUCameraGetOrientation(camera, &eye, &target, &up), SU_ERROR_NONE);
    EXPECT_EQ(eye.x, 1);
    EXPECT_EQ(target.z, 6);
    EXPECT_EQ(up.y, 0.6);
    EXPECT_EQ(up.z, 0.8);
    EXPECT_EQ(SUCameraGetOrientation(camera, &eye, nullptr, &up), SU_ERROR_NULL_POINTER_OUTPUT);
}

TEST(Camera, in_perspective_has_a_field_of_view_and_no_height) {
    model_builder builder;
    builder.model().camera.perspective = true;
    builder.model().camera.field_of_view = 40;
    builder.model().camera.fov_is_vertical = false;
    builder.model().camera.height = 70;
    builder.model().camera.aspect = 1.5;
    test_model opened(builder);
    SUCameraRef camera = SU_INVALID;
    ASSERT_EQ(SUModelGetCamera(opened.ref, &camera), SU_ERROR_NONE);
    bool perspective = false;
    bool is_height = true;
    double number = 0;
    EXPECT_EQ(SUCameraGetPerspective(camera, &perspective), SU_ERROR_NONE);
    EXPECT_TRUE(perspective);
    EXPECT_EQ(SUCameraGetPerspectiveFrustumFOV(camera, &number), SU_ERROR_NONE);
    EXPECT_EQ(number, 40);
    EXPECT_EQ(SUCameraGetFOVIsHeight(camera, &is_height), SU_ERROR_NONE);
    EXPECT_FALSE(is_height);
    EXPECT_EQ(SUCameraGetAspectRatio(camera, &number), SU_ERROR_NONE);
    EXPECT_EQ(number, 1.5);
    EXPECT_EQ(SUCameraGetOrthographicFrustumHeight(camera, &number), SU_ERROR_NO_DATA);
    EXPECT_EQ(SUCameraGetPerspectiveFrustumFOV(camera, nullptr), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUCameraGetAspectRatio(SU_INVALID, &number), SU_ERROR_INVALID_INPUT);
}

TEST(Camera, in_parallel_has_a_height_and_no_field_of_view) {
    model_builder builder;
    builder.model().camera.perspective = false;
    builder.model().camera.height = 70;
    builder.model().camera.aspect = 0;
    test_model opened(builder);
    SUCameraRef camera = SU_INVALID;
    ASSERT_EQ(SUModelGetCamera(opened.ref, &camera), SU_ERROR_NONE);
    bool perspective = true;
    double number = 0;
    EXPECT_EQ(SUCameraGetPerspective(camera, &perspective), SU_ERROR_NONE);
    EXPECT_FALSE(perspective);
    EXPECT_EQ(SUCameraGetOrthographicFrustumHeight(camera, &number), SU_ERROR_NONE);
    EXPECT_EQ(number, 70);
    EXPECT_EQ(SUCameraGetPerspectiveFrustumFOV(camera, &number), SU_ERROR_NO_DATA);
    EXPECT_EQ(SUCameraGetAspectRatio(camera, &number), SU_ERROR_NO_DATA);
}

TEST(Scene, gives_its_own_camera_if_it_keeps_one) {
    model_builder builder;
    builder.scene("Bare");
    const sketchup::index kept = builder.scene("Kept", true);
    builder.model().scenes[0].camera = sketchup::no_index;
    builder.model().cameras.emplace_back().eye = {9, 0, 0};
    builder.model().scenes[kept].camera = static_cast<sketchup::index>(builder.model().cameras.size() - 1);
    test_model opened(builder);
    const auto scenes = all_of(SUModelGetNumScenes, SUModelGetScenes, opened.ref);
    SUCameraRef camera = SU_INVALID;
    EXPECT_EQ(SUSceneGetCamera(scenes[0], &camera), SU_ERROR_NO_DATA);
    EXPECT_EQ(SUSceneGetCamera(scenes[kept], &camera), SU_ERROR_NONE);
    SUPoint3D eye{}, target{};
    SUVector3D up{};
    EXPECT_EQ(SUCameraGetOrientation(camera, &eye, &target, &up), SU_ERROR_NONE);
    EXPECT_EQ(eye.x, 9);
}

TEST(RenderingOptions, are_found_by_name) {
    model_builder builder;
    builder.model().rendering_options.values = {
        {"DrawGround", sketchup::truth(true)},
        {"FaceFrontColor", {sketchup::value_code::color, sketchup::rgba{1, 2, 3, 255}}},
    };
    test_model opened(builder);
    SURenderingOptionsRef options = SU_INVALID;
    EXPECT_EQ(SUModelGetRenderingOptions(opened.ref, &options), SU_ERROR_NONE);
    test_value value;
    EXPECT_EQ(SURenderingOptionsGetValue(options, "FaceFrontColor", &value.ref), SU_ERROR_NONE);
    EXPECT_EQ(value.type(), SUTypedValueType_Color);
    EXPECT_EQ(SURenderingOptionsGetValue(options, "DrawGround", &value.ref), SU_ERROR_NONE);
    EXPECT_EQ(value.type(), SUTypedValueType_Bool);
    EXPECT_EQ(SURenderingOptionsGetValue(options, "NoSuchOption", &value.ref), SU_ERROR_NO_DATA);
    EXPECT_EQ(SURenderingOptionsGetValue(options, nullptr, &value.ref), SU_ERROR_NULL_POINTER_INPUT);
    EXPECT_EQ(SURenderingOptionsGetValue(SU_INVALID, "DrawGround", &value.ref), SU_ERROR_INVALID_INPUT);
}

TEST(RenderingOptions, that_the_file_does_not_store_have_the_values_of_a_new_model) {
    model_builder builder;
    test_model opened(builder);
    SURenderingOptionsRef options = SU_INVALID;
    EXPECT_EQ(SUModelGetRenderingOptions(opened.ref, &options), SU_ERROR_NONE);
    test_value value;
    int32_t mode = 0;
    EXPECT_EQ(SURenderingOptionsGetValue(options, "RenderMode", &value.ref), SU_ERROR_NONE);
    EXPECT_EQ(SUTypedValueGetInt32(value.ref, &mode), SU_ERROR_NONE);
    EXPECT_EQ(mode, 2);
    EXPECT_EQ(SURenderingOptionsGetValue(options, "FaceColorMode", &value.ref), SU_ERROR_NO_DATA);
}
