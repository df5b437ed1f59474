#include "tests/sketchup/api/test_model.h"

#include <gtest/gtest.h>

using sketchup::model_builder;

TEST(Group, gives_name_definition_and_the_list_that_copies_share) {
    model_builder builder;
    sketchup::list_builder lamp = builder.root().group("Lamp");
    builder.root().copy_of_group(lamp, sketchup::moved({5, 0, 0}));
    test_model opened(builder);
    const SUGroupRef first = opened.placement<SUGroupRef>(0), copy = opened.placement<SUGroupRef>(1);
    EXPECT_EQ(text_from(SUGroupGetName, first), "Lamp");
    SUComponentDefinitionRef definition = SU_INVALID;
    EXPECT_EQ(SUGroupGetDefinition(first, &definition), SU_ERROR_NONE);
    EXPECT_TRUE(same(definition, opened.definition()));
    SUEntitiesRef list = SU_INVALID, list_of_copy = SU_INVALID, list_of_definition = SU_INVALID;
    EXPECT_EQ(SUGroupGetEntities(first, &list), SU_ERROR_NONE);
    EXPECT_EQ(SUGroupGetEntities(copy, &list_of_copy), SU_ERROR_NONE);
    EXPECT_EQ(SUComponentDefinitionGetEntities(definition, &list_of_definition), SU_ERROR_NONE);
    EXPECT_TRUE(same(list, list_of_copy));
    EXPECT_TRUE(same(list, list_of_definition));
}

TEST(Placement, without_a_name_gives_the_empty_text) {
    model_builder builder;
    builder.root().group();
    builder.root().instance(builder.component("Chair"));
    test_model opened(builder);
    EXPECT_EQ(text_from(SUGroupGetName, opened.placement<SUGroupRef>(0)), "");
    EXPECT_EQ(text_from(SUComponentInstanceGetName, opened.placement<SUComponentInstanceRef>(1)), "");
}

TEST(Placement, gives_its_sixteen_numbers_as_stored_weight_included) {
    model_builder builder;
    sketchup::transform stored = sketchup::moved({1, 2, 3});
    stored[15] = 0.5;
    builder.root().instance(builder.component("Chair"), stored);
    builder.root().group("Lamp", sketchup::moved({4, 5, 6}));
    test_model opened(builder);
    SUTransformation found{};
    EXPECT_EQ(SUComponentInstanceGetTransform(opened.placement<SUComponentInstanceRef>(0), &found), SU_ERROR_NONE);
    EXPECT_EQ(std::vector<double>(found.values, found.values + 16),
              std::vector<double>({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 1, 2, 3, 0.5}));
    EXPECT_EQ(SUGroupGetTransform(opened.placement<SUGroupRef>(1), &found), SU_ERROR_NONE);
    EXPECT_EQ(found.values[14], 6);
}

TEST(Placement, of_a_component_gives_its_definition) {
    model_builder builder;
    builder.root().instance(builder.component("Chair"));
    test_model opened(builder);
    SUComponentDefinitionRef definition = SU_INVALID;
    EXPECT_EQ(SUComponentInstanceGetDefinition(opened.placement<SUComponentInstanceRef>(), &definition), SU_ERROR_NONE);
    EXPECT_EQ(text_from(SUComponentDefinitionGetName, definition), "Chair");
}

TEST(ComponentDefinition, tells_what_it_defines) {
    model_builder builder;
    builder.component("Chair");
    builder.root().group("Lamp");
    builder.image_definition({}, "picture.png", 8, 4);
    test_model opened(builder);
    std::vector<SUComponentType> types;
    for (sketchup::index i = 0; i < 3; ++i) {
        SUComponentType type{};
        EXPECT_EQ(SUComponentDefinitionGetType(opened.definition(i), &type), SU_ERROR_NONE);
        types.push_back(type);
    }
    EXPECT_EQ(types, std::vector({SUComponentType_Normal, SUComponentType_Group, SUComponentType_Image}));
}

TEST(ComponentDefinition, gives_its_behaviour) {
    model_builder builder;
    sketchup::list_builder tree = builder.component("Tree");
    builder.definition(tree).behavior = {true, true, 2, true, true, 0x47};
    builder.component("Stone");
    test_model opened(builder);
    SUComponentBehavior found{};
    EXPECT_EQ(SUComponentDefinitionGetBehavior(opened.definition(0), &found), SU_ERROR_NONE);
    EXPECT_EQ(found.component_snap, SUComponentBehavior::SUSnapToBehavior_Vertical);
    EXPECT_TRUE(found.component_cuts_opening);
    EXPECT_TRUE(found.component_always_face_camera);
    EXPECT_TRUE(found.component_shadows_face_sun);
    EXPECT_EQ(found.component_no_scale_mask, 0x47u);
    EXPECT_EQ(SUComponentDefinitionGetBehavior(opened.definition(1), &found), SU_ERROR_NONE);
    EXPECT_EQ(found.component_snap, SUComponentBehavior::SUSnapToBehavior_None);
    EXPECT_FALSE(found.component_always_face_camera);
}
