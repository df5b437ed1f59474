// How real models are looked at: their cameras, scenes, rendering options and sun, through the C interface.

#include "tests/sketchup/api/test_model.h"

#include "tests/samples_folder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <array>
#include <cmath>
#include <fstream>

namespace {

using nlohmann::json;

double length(const SUVector3D& v) {
    return std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
}

class ViewsOfSamples : public testing::Test {
protected:
    void SetUp() override {
        if (samples_folder().empty())
            GTEST_SKIP() << "no samples";
    }

    // Calls check(model, what is known of it) for every sample that opens.
    template<class Check>
    static void for_each_sample(const Check& check) {
        int opened = 0;
        const json samples = json::parse(std::ifstream(samples_folder() + "expected.json"));
        for (const auto& [name, expected] : samples.items()) {
            if (!expected["opens"])
                continue;
            SCOPED_TRACE(name);
            SUModelRef model = SU_INVALID;
            ASSERT_EQ(SUModelCreateFromFile(&model, (samples_folder() + name).c_str()), SU_ERROR_NONE);
            check(model, expected);
            SUModelRelease(&model);
            ++opened;
        }
        EXPECT_GT(opened, 100);
    }
};

void expect_a_view(SUCameraRef camera) {
    SUPoint3D eye{}, target{};
    SUVector3D up{};
    ASSERT_EQ(SUCameraGetOrientation(camera, &eye, &target, &up), SU_ERROR_NONE);
    const SUVector3D sight = {target.x - eye.x, target.y - eye.y, target.z - eye.z};
    EXPECT_TRUE(std::isfinite(length(sight)));
    EXPECT_GT(length(sight), 0);
    EXPECT_NEAR(length(up), 1, 1e-9);
    // Up stands across the line of sight.
    EXPECT_NEAR((up.x * sight.x + up.y * sight.y + up.z * sight.z) / length(sight), 0, 1e-6);
}

} // namespace

TEST_F(ViewsOfSamples, every_model_has_a_camera_that_looks_somewhere) {
    for_each_sample([](SUModelRef model, const json&) {
        SUCameraRef camera = SU_INVALID;
        ASSERT_EQ(SUModelGetCamera(model, &camera), SU_ERROR_NONE);
        expect_a_view(camera);
    });
}

TEST_F(ViewsOfSamples, scenes_have_the_names_established_for_them_and_cameras_that_look_somewhere) {
    for_each_sample([](SUModelRef model, const json& expected) {
        json names = json::array();
        for (const SUSceneRef scene : all_of(SUModelGetNumScenes, SUModelGetScenes, model)) {
            names.push_back(text_from(SUSceneGetName, scene));
            SUCameraRef camera = SU_INVALID;
            if (SUSceneGetCamera(scene, &camera) == SU_ERROR_NONE)
                expect_a_view(camera);
        }
        EXPECT_EQ(names.dump(), expected["scenes"].dump());
    });
}

TEST_F(ViewsOfSamples, the_active_scene_is_one_of_the_scenes) {
    int active_scenes = 0;
    for_each_sample([&active_scenes](SUModelRef model, const json& expected) {
        SUSceneRef active = SU_INVALID;
        const SUResult result = SUModelGetActiveScene(model, &active);
        EXPECT_EQ(result == SU_ERROR_NO_DATA, expected["scenes"].empty());
        if (result != SU_ERROR_NONE)
            return;
        ++active_scenes;
        bool found = false;
        for (const SUSceneRef scene : all_of(SUModelGetNumScenes, SUModelGetScenes, model))
            found = found || same(scene, active);
        EXPECT_TRUE(found);
    });
    EXPECT_GT(active_scenes, 0);
}

TEST_F(ViewsOfSamples, every_model_answers_the_options_that_all_versions_have) {
    constexpr std::array<std::pair<const char*, SUTypedValueType>, 7> options = {{
        {"FaceFrontColor", SUTypedValueType_Color},
        {"FaceBackColor", SUTypedValueType_Color},
        {"DrawGround", SUTypedValueType_Bool},
        {"DisplayColorByLayer", SUTypedValueType_Bool},
        {"EdgeColorMode", SUTypedValueType_Int32},
        {"RenderMode", SUTypedValueType_Int32},
        {"EdgeDisplayMode", SUTypedValueType_Int32},
    }};
    for_each_sample([&options](SUModelRef model, const json&) {
        SURenderingOptionsRef handle = SU_INVALID;
        ASSERT_EQ(SUModelGetRenderingOptions(model, &handle), SU_ERROR_NONE);
        for (const auto& [key, type] : options) {
            test_value value;
            EXPECT_EQ(SURenderingOptionsGetValue(handle, key, &value.ref), SU_ERROR_NONE) << key;
            EXPECT_EQ(value.type(), type) << key;
        }
        test_value none;
        EXPECT_EQ(SURenderingOptionsGetValue(handle, "NoSuchOption", &none.ref), SU_ERROR_NO_DATA);
    });
}

TEST_F(ViewsOfSamples, every_model_has_a_place_a_clock_and_a_direction_to_the_sun) {
    for_each_sample([](SUModelRef model, const json&) {
        SUShadowInfoRef info = SU_INVALID;
        ASSERT_EQ(SUModelGetShadowInfo(model, &info), SU_ERROR_NONE);
        const auto number = [info](const char* key) {
            test_value value;
            double result = std::nan("");
            EXPECT_EQ(SUShadowInfoGetValue(info, key, &value.ref), SU_ERROR_NONE) << key;
            EXPECT_EQ(SUTypedValueGetDouble(value.ref, &result), SU_ERROR_NONE) << key;
            return result;
        };
        EXPECT_LE(std::abs(number("Latitude")), 90);
        EXPECT_LE(std::abs(number("Longitude")), 180);
        EXPECT_LE(std::abs(number("TZOffset")), 14);
        test_value value;
        SUVector3D to_sun{};
        double numbers[3] = {};
        EXPECT_EQ(SUShadowInfoGetValue(info, "SunDirection", &value.ref), SU_ERROR_NONE);
        EXPECT_EQ(SUTypedValueGetVector3d(value.ref, numbers), SU_ERROR_NONE);
        to_sun = {numbers[0], numbers[1], numbers[2]};
        EXPECT_NEAR(length(to_sun), 1, 1e-9);
    });
}
