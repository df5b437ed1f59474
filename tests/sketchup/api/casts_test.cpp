#include "tests/sketchup/api/test_model.h"

#include <gtest/gtest.h>

using sketchup::model_builder;

TEST(Casts, keep_the_pointer_up_and_down) {
    model_builder builder;
    builder.root().square(1);
    test_model opened(builder);
    const SUFaceRef face = opened.face();
    const SUDrawingElementRef element = SUFaceToDrawingElement(face);
    const SUEntityRef entity = SUFaceToEntity(face);
    EXPECT_EQ(element.ptr, face.ptr);
    EXPECT_EQ(entity.ptr, face.ptr);
    EXPECT_EQ(SUDrawingElementToEntity(element).ptr, entity.ptr);
    EXPECT_EQ(SUFaceFromEntity(entity).ptr, face.ptr);
    EXPECT_EQ(SUFaceFromDrawingElement(element).ptr, face.ptr);
    EXPECT_EQ(SUDrawingElementFromEntity(entity).ptr, element.ptr);
}

TEST(Casts, of_an_invalid_handle_give_an_invalid_handle) {
    EXPECT_FALSE(SUIsValid(SUFaceToEntity(SU_INVALID)));
    EXPECT_FALSE(SUIsValid(SUGroupToDrawingElement(SU_INVALID)));
    EXPECT_FALSE(SUIsValid(SUImageFromEntity(SU_INVALID)));
    EXPECT_FALSE(SUIsValid(SUGroupToComponentInstance(SU_INVALID)));
}

TEST(Casts, to_another_kind_give_an_invalid_handle) {
    model_builder builder;
    builder.root().square(1);
    test_model opened(builder);
    const SUEntityRef face = SUFaceToEntity(opened.face());
    EXPECT_FALSE(SUIsValid(SUEdgeFromEntity(face)));
    EXPECT_FALSE(SUIsValid(SUMaterialFromEntity(face)));
    EXPECT_FALSE(SUIsValid(SUDrawingElementFromEntity(SULayerToEntity(opened.layer()))));
}

TEST(Casts, a_group_is_an_instance_but_not_the_other_way) {
    model_builder builder;
    builder.root().group("Lamp");
    builder.root().instance(builder.component("Chair"));
    test_model opened(builder);
    const SUComponentInstanceRef as_instance = SUGroupToComponentInstance(opened.placement<SUGroupRef>(0));
    EXPECT_TRUE(SUIsValid(as_instance));
    EXPECT_TRUE(same(SUGroupFromComponentInstance(as_instance), opened.placement<SUGroupRef>(0)));
    EXPECT_FALSE(SUIsValid(SUGroupFromComponentInstance(opened.placement<SUComponentInstanceRef>(1))));
    EXPECT_EQ(text_from(SUComponentInstanceGetName, as_instance), "Lamp");
}

TEST(Casts, an_image_is_no_instance) {
    model_builder builder;
    builder.root().image(builder.image_definition({}, "picture.png", 8, 4));
    test_model opened(builder);
    const SUEntityRef image = SUImageToEntity(opened.placement<SUImageRef>());
    EXPECT_FALSE(SUIsValid(SUComponentInstanceFromEntity(image)));
    EXPECT_TRUE(SUIsValid(SUImageFromEntity(image)));
}

TEST(Casts, work_for_definitions_layers_materials_and_textures) {
    model_builder builder;
    builder.component("Chair");
    builder.textured_material("Brick", {}, "brick.png", 8, 4);
    test_model opened(builder);
    EXPECT_TRUE(
        same(SUComponentDefinitionFromDrawingElement(SUComponentDefinitionToDrawingElement(opened.definition())),
             opened.definition()));
    EXPECT_TRUE(same(SULayerFromEntity(SULayerToEntity(opened.layer())), opened.layer()));
    EXPECT_TRUE(same(SUMaterialFromEntity(SUMaterialToEntity(opened.material())), opened.material()));
    EXPECT_TRUE(same(SUTextureFromEntity(SUTextureToEntity(opened.texture())), opened.texture()));
}
