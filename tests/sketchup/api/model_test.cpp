#include "tests/sketchup/api/test_model.h"

#include "sketchup/api/inspect.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

using sketchup::model_builder;

namespace {

SUResult open(const std::string& path) {
    SUModelRef model = SU_INVALID;
    const SUResult result = SUModelCreateFromFile(&model, path.c_str());
    EXPECT_EQ(SUIsValid(model), result == SU_ERROR_NONE) << "a failed call leaves the handle alone";
    SUModelRelease(&model);
    return result;
}

} // namespace

TEST(OpeningAModel, a_missing_file_is_a_reading_error) {
    EXPECT_EQ(open(temporary_folder() / "nowhere.skp"), SU_ERROR_SERIALIZATION);
}

TEST(OpeningAModel, a_folder_is_a_reading_error) {
    EXPECT_EQ(open(temporary_folder().name()), SU_ERROR_SERIALIZATION);
}

TEST(OpeningAModel, an_empty_file_is_no_model) {
    const temporary_folder folder;
    folder.write("empty.skp", "");
    EXPECT_EQ(open(folder / "empty.skp"), SU_ERROR_MODEL_INVALID);
}

TEST(OpeningAModel, twenty_bytes_of_text_are_no_model) {
    const temporary_folder folder;
    folder.write("text.skp", "twenty bytes of text");
    EXPECT_EQ(open(folder / "text.skp"), SU_ERROR_MODEL_INVALID);
}

TEST(OpeningAModel, null_pointers_are_told_apart) {
    SUModelRef model = SU_INVALID;
    EXPECT_EQ(SUModelCreateFromFile(&model, nullptr), SU_ERROR_NULL_POINTER_INPUT);
    EXPECT_EQ(SUModelCreateFromFile(nullptr, "a.skp"), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(SUModelCreateFromFile(nullptr, nullptr), SU_ERROR_NULL_POINTER_INPUT);
}

TEST(OpeningAModel, an_open_model_is_not_overwritten) {
    model_builder builder;
    test_model opened(builder);
    const SUModelRef before = opened.ref;
    EXPECT_EQ(SUModelCreateFromFile(&opened.ref, "a.skp"), SU_ERROR_OVERWRITE_VALID);
    EXPECT_TRUE(same(opened.ref, before));
}

TEST(ClosingAModel, nulls_the_handle) {
    model_builder builder;
    test_model opened(builder);
    EXPECT_EQ(SUModelRelease(&opened.ref), SU_ERROR_NONE);
    EXPECT_FALSE(SUIsValid(opened.ref));
    EXPECT_EQ(SUModelRelease(&opened.ref), SU_ERROR_INVALID_INPUT);
    EXPECT_EQ(SUModelRelease(nullptr), SU_ERROR_NULL_POINTER_INPUT);
}

TEST(ClosingAModel, leaves_other_models_open) {
    model_builder first_builder, second_builder;
    first_builder.model().version = {8, 0, 1};
    second_builder.model().version = {17, 2, 3};
    test_model second(second_builder);
    { test_model first(first_builder); }
    int major = 0, minor = 0, build = 0;
    EXPECT_EQ(SUModelGetVersion(second.ref, &major, &minor, &build), SU_ERROR_NONE);
    EXPECT_EQ(major, 17);
}

TEST(EndOfTheLibrary, closes_what_is_open) {
    model_builder builder;
    test_model opened(builder);
    SUTerminate();
    opened.ref = SU_INVALID;
    model_builder next;
    EXPECT_TRUE(SUIsValid(test_model(next).ref)) << "and can be used again";
}

TEST(Library, tells_the_interface_of_2025) {
    size_t major = 0, minor = 9;
    SUInitialize();
    SUGetAPIVersion(&major, &minor);
    EXPECT_EQ(major, 13u);
    EXPECT_EQ(minor, 0u);
    SUGetAPIVersion(nullptr, nullptr);
}

TEST(Model, gives_the_three_numbers_of_the_program_that_saved_it) {
    model_builder builder;
    builder.model().version = {21, 0, 394};
    const test_model opened(builder);
    int major = 0, minor = 0, build = 0;
    EXPECT_EQ(SUModelGetVersion(opened.ref, &major, &minor, &build), SU_ERROR_NONE);
    EXPECT_EQ(std::vector({major, minor, build}), std::vector({21, 0, 394}));
}

TEST(Model, gives_no_part_of_the_version_if_one_pointer_is_null) {
    model_builder builder;
    const test_model opened(builder);
    int major = -1, minor = -1;
    EXPECT_EQ(SUModelGetVersion(opened.ref, &major, &minor, nullptr), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_EQ(major, -1);
    EXPECT_EQ(minor, -1);
}

TEST(Model, lists_the_definitions_of_components_groups_and_images_apart) {
    model_builder builder;
    builder.component("Chair").square(1);
    builder.root().group("Lamp").square(1);
    builder.image_definition({}, "picture.png", 8, 4);
    builder.component("Table").square(1);
    test_model opened(builder);

    const auto components = all_of(SUModelGetNumComponentDefinitions, SUModelGetComponentDefinitions, opened.ref);
    const auto groups = all_of(SUModelGetNumGroupDefinitions, SUModelGetGroupDefinitions, opened.ref);
    const auto images = all_of(SUModelGetNumImageDefinitions, SUModelGetImageDefinitions, opened.ref);
    ASSERT_EQ(components.size(), 2u);
    ASSERT_EQ(groups.size(), 1u);
    ASSERT_EQ(images.size(), 1u);
    EXPECT_EQ(text_from(SUComponentDefinitionGetName, components[0]), "Chair");
    EXPECT_EQ(text_from(SUComponentDefinitionGetName, components[1]), "Table");
    EXPECT_TRUE(same(groups[0], opened.definition(1)));
    EXPECT_TRUE(same(images[0], opened.definition(2)));
}

TEST(Model, fills_no_more_definitions_than_there_is_room_for) {
    model_builder builder;
    builder.component("Chair");
    builder.component("Table");
    test_model opened(builder);
    SUComponentDefinitionRef items[2] = {SU_INVALID, SU_INVALID};
    size_t count = 9;
    EXPECT_EQ(SUModelGetComponentDefinitions(opened.ref, 1, items, &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 1u);
    EXPECT_TRUE(same(items[0], opened.definition(0)));
    EXPECT_FALSE(SUIsValid(items[1]));
}

TEST(Model, lists_the_users_materials_without_those_of_layers_and_images) {
    model_builder builder;
    builder.layer("Walls");
    const sketchup::index red = builder.material("Red", {255, 0, 0, 255});
    builder.image_definition({}, "picture.png", 8, 4);
    test_model opened(builder);
    const auto materials = all_of(SUModelGetNumMaterials, SUModelGetMaterials, opened.ref);
    ASSERT_EQ(materials.size(), 1u);
    EXPECT_TRUE(same(materials[0], opened.material(red)));
}

TEST(Model, lists_the_default_layer_first) {
    model_builder builder;
    builder.layer("Walls");
    test_model opened(builder);
    const auto layers = all_of(SUModelGetNumLayers, SUModelGetLayers, opened.ref);
    ASSERT_EQ(layers.size(), 2u);
    EXPECT_EQ(text_from(SULayerGetName, layers[0]), "Layer0");
    EXPECT_EQ(text_from(SULayerGetName, layers[1]), "Walls");
    SULayerRef first = SU_INVALID;
    EXPECT_EQ(SUModelGetDefaultLayer(opened.ref, &first), SU_ERROR_NONE);
    EXPECT_TRUE(same(first, layers[0]));
}

TEST(Model, has_no_active_scene_unless_one_is_active) {
    model_builder builder;
    builder.scene("Front");
    const test_model opened(builder);
    SUSceneRef scene = SU_INVALID;
    EXPECT_EQ(SUModelGetActiveScene(opened.ref, &scene), SU_ERROR_NO_DATA);
    EXPECT_FALSE(SUIsValid(scene));
}

TEST(Model, gives_the_active_scene_only_into_an_invalid_handle) {
    model_builder builder;
    builder.scene("Front");
    builder.scene("Back", true);
    const test_model opened(builder);
    SUSceneRef scene = SU_INVALID;
    EXPECT_EQ(SUModelGetActiveScene(opened.ref, &scene), SU_ERROR_NONE);
    EXPECT_EQ(text_from(SUSceneGetName, scene), "Back");
    EXPECT_EQ(SUModelGetActiveScene(opened.ref, &scene), SU_ERROR_OVERWRITE_VALID);
    EXPECT_EQ(all_of(SUModelGetNumScenes, SUModelGetScenes, opened.ref).size(), 2u);
}

TEST(Model, can_be_looked_into_by_the_projects_own_tools) {
    model_builder builder;
    test_model opened(builder);
    EXPECT_EQ(sketchup::model_behind(opened.ref), &opened.model());
    EXPECT_EQ(sketchup::model_behind(SU_INVALID), nullptr);
}
