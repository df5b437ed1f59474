#include "tests/sketchup/api/test_model.h"

#include <gtest/gtest.h>

using sketchup::model_builder;

TEST(Material, keeps_the_brackets_of_its_name_unless_asked_the_old_way) {
    model_builder builder;
    const sketchup::index brick = builder.material("[Brick]", {}), bracket = builder.material("[", {});
    test_model opened(builder);
    EXPECT_EQ(text_from(SUMaterialGetName, opened.material(brick)), "[Brick]");
    EXPECT_EQ(text_from(SUMaterialGetNameLegacyBehavior, opened.material(brick)), "Brick");
    EXPECT_EQ(text_from(SUMaterialGetNameLegacyBehavior, opened.material(bracket)), "[");
}

TEST(Material, is_opaque_unless_its_opacity_is_in_use) {
    model_builder builder;
    const sketchup::index unused = builder.material("Unused", {}), in_use = builder.material("Used", {});
    builder.model().materials[unused].transparency = 0.25;
    builder.model().materials[unused].use_transparency = false;
    builder.model().materials[in_use].transparency = 0.25;
    builder.model().materials[in_use].use_transparency = true;
    test_model opened(builder);
    double alpha = 0;
    bool used = true;
    EXPECT_EQ(SUMaterialGetOpacity(opened.material(unused), &alpha), SU_ERROR_NONE);
    EXPECT_EQ(SUMaterialGetUseOpacity(opened.material(unused), &used), SU_ERROR_NONE);
    EXPECT_EQ(alpha, 1);
    EXPECT_FALSE(used);
    EXPECT_EQ(SUMaterialGetOpacity(opened.material(in_use), &alpha), SU_ERROR_NONE);
    EXPECT_EQ(SUMaterialGetUseOpacity(opened.material(in_use), &used), SU_ERROR_NONE);
    EXPECT_EQ(alpha, 0.75);
    EXPECT_TRUE(used);
}

TEST(Material, gives_its_texture_if_it_has_one) {
    model_builder builder;
    const sketchup::index plain = builder.material("Plain", {});
    const sketchup::index brick = builder.textured_material("Brick", {}, "brick.png", 10, 20);
    test_model opened(builder);
    SUTextureRef texture = SU_INVALID;
    EXPECT_EQ(SUMaterialGetTexture(opened.material(plain), &texture), SU_ERROR_NO_DATA);
    EXPECT_FALSE(SUIsValid(texture));
    EXPECT_EQ(SUMaterialGetTexture(opened.material(brick), &texture), SU_ERROR_NONE);
    EXPECT_TRUE(same(texture, opened.texture()));
}

TEST(Material, tells_its_type) {
    model_builder builder;
    const sketchup::index plain = builder.material("Plain", {});
    const sketchup::index brick = builder.textured_material("Brick", {}, "brick.png", 10, 20);
    const sketchup::index tinted = builder.textured_material("Tinted", {}, "brick.png", 10, 20);
    builder.model().materials[tinted].type = sketchup::material_type::colorized;
    test_model opened(builder);
    std::vector<SUMaterialType> types;
    for (const sketchup::index i : {plain, brick, tinted}) {
        SUMaterialType type{};
        EXPECT_EQ(SUMaterialGetType(opened.material(i), &type), SU_ERROR_NONE);
        types.push_back(type);
    }
    EXPECT_EQ(types, std::vector({SUMaterialType_Colored, SUMaterialType_Textured, SUMaterialType_ColorizedTexture}));
}
