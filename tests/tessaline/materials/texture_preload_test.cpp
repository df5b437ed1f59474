// The order in which the pictures of a model are numbered.

#include "tests/tessaline/exported_pictures.h"
#include "tests/tessaline/run_fixture.h"

namespace {

using sketchup::list_builder;
using testing::UnorderedElementsAre;

class TexturePreload : public run_fixture {
protected:
    // A material with a picture of its own.
    sketchup::index textured(const char* name) {
        return m.textured_material(name, picture, std::string(name) + ".bmp", 10, 10);
    }
    // A square with that material on both sides.
    void put(list_builder list, double z, sketchup::index material) {
        const auto face = list.face({{0, 0, z}, {10, 0, z}, {10, 10, z}, {0, 10, z}});
        m.element(face).material = m.face(face).back_material = material;
    }

    const picture_bytes picture = encoded(gradient(2, 2), image::picture_format::bmp);
    sketchup::model_builder m;
};

// Each list gives its faces, its instances, its groups with all that is in them, its images; behind the model's own
// come the definitions. So: 1 the face, 2 the instance, 3 the face of the group, 4 the instance there, 5 the face of
// the group within, 6 and 7 the two images, 8 the face that only the definition has.
TEST_F(TexturePreload, faces_come_before_instances_then_groups_then_images_and_definitions_last) {
    const auto face = textured("Face");
    const auto instance = textured("Instance");
    const auto group_face = textured("GroupFace");
    const auto group_instance = textured("GroupInstance");
    const auto inner_face = textured("InnerFace");
    const auto definition_face = textured("DefinitionFace");
    list_builder first = m.component("first");
    put(first, 0, instance);
    put(first, 5, definition_face);
    list_builder second = m.component("second");
    put(second, 0, group_instance);
    m.root().image(m.image_definition(picture, "top.bmp", 2, 2));
    list_builder group = m.root().group();
    group.image(m.image_definition(picture, "within.bmp", 2, 2));
    put(group.group(), 0, inner_face);
    m.element(group.instance(second)).material = group_instance;
    put(group, 0, group_face);
    m.element(m.root().instance(first)).material = instance;
    put(m.root(), 0, face);
    EXPECT_THAT(
        tagged(body_of(m), "MATF;TEX"),
        UnorderedElementsAre("MATF;TEX%3a0001_Face.OrnMaterial", "MATF;TEX%3a0002_Instance.OrnMaterial",
                             "MATF;TEX%3a0003_GroupFace.OrnMaterial", "MATF;TEX%3a0004_GroupInstance.OrnMaterial",
                             "MATF;TEX%3a0005_InnerFace.OrnMaterial", "MATF;TEX%3a0008_DefinitionFace.OrnMaterial"));
}

TEST_F(TexturePreload, definitions_come_in_the_order_of_the_model_and_not_of_the_walk) {
    const auto of_first = textured("OfFirst");
    const auto of_second = textured("OfSecond");
    list_builder first = m.component("first");
    put(first, 0, of_first);
    list_builder second = m.component("second");
    put(second, 0, of_second);
    m.root().instance(second);
    m.root().instance(first);
    EXPECT_THAT(tagged(body_of(m), "MATF;TEX"),
                testing::ElementsAre("MATF;TEX%3a0002_OfSecond.OrnMaterial", "MATF;TEX%3a0001_OfFirst.OrnMaterial"));
}

} // namespace
