#include "tests/sketchup/api/test_model.h"

#include <gtest/gtest.h>

using sketchup::model_builder;

TEST(Layer, the_default_one_keeps_its_name_and_is_shown_as_untagged) {
    model_builder builder;
    const sketchup::index walls = builder.layer("Walls");
    test_model opened(builder);
    EXPECT_EQ(text_from(SULayerGetName, opened.layer(0)), "Layer0");
    EXPECT_EQ(text_from(SULayerGetDisplayName, opened.layer(0)), "Untagged");
    EXPECT_EQ(text_from(SULayerGetName, opened.layer(walls)), "Walls");
    EXPECT_EQ(text_from(SULayerGetDisplayName, opened.layer(walls)), "Walls");
}

TEST(Layer, has_a_material_with_its_colour) {
    model_builder builder;
    const sketchup::index walls = builder.layer("Walls", true, {10, 20, 30, 255});
    test_model opened(builder);
    SUMaterialRef material = SU_INVALID;
    EXPECT_EQ(SULayerGetMaterial(opened.layer(walls), &material), SU_ERROR_NONE);
    SUColor color{};
    EXPECT_EQ(SUMaterialGetColor(material, &color), SU_ERROR_NONE);
    EXPECT_EQ(std::vector<int>({color.red, color.green, color.blue, color.alpha}), std::vector<int>({10, 20, 30, 255}));
}

TEST(Layer, shows_its_own_flag_and_not_that_of_its_folder) {
    model_builder builder;
    const sketchup::index shown = builder.layer("Shown"), off = builder.layer("Off", false);
    builder.model().layer_folders.push_back({"Folder", sketchup::no_index, true});
    builder.model().layers[shown].folder = 0;
    test_model opened(builder);
    bool visible = false;
    EXPECT_EQ(SULayerGetVisibility(opened.layer(shown), &visible), SU_ERROR_NONE);
    EXPECT_TRUE(visible);
    EXPECT_EQ(SULayerGetVisibility(opened.layer(off), &visible), SU_ERROR_NONE);
    EXPECT_FALSE(visible);
}
