// Layers and layer folders of the archive container.

#include "sketchup/skp/modern/model_data.h"
#include "tests/sketchup/skp/modern/record_bytes.h"

#include <gtest/gtest.h>

using namespace record_bytes;
using sketchup::no_index;

namespace {

bytes folder(const std::string& name, const bytes& rest) {
    return rec(16000, entity(80) + rec(16001, text(name)) + rest);
}

bytes nested_folders(int depth) {
    bytes inner;
    for (int i = 0; i < depth; ++i)
        inner = rec(16003, folder("f", inner));
    return rec(15003, rec(16000, inner));
}

} // namespace

TEST(ModernLayers, have_their_fields_in_the_order_of_the_file) {
    const auto m = read_parts(
        layers(layer(11741, "Layer0") + layer(2, "walls", rec(15502, u8(1)) + rec(15504, i32(3)) + rec(15505, id(5)))));
    ASSERT_EQ(m->layers.size(), 2u);
    EXPECT_EQ(m->layers[0].name, "Layer0");
    EXPECT_EQ(m->layers[0].persistent_id, 11741);
    EXPECT_FALSE(m->layers[0].hidden);
    EXPECT_EQ(m->layers[1].name, "walls");
    EXPECT_TRUE(m->layers[1].hidden);
    EXPECT_EQ(m->layers[1].page_behavior, 3u);
}

TEST(ModernLayers, a_model_without_any_gets_the_default_layer) {
    const auto m = read_parts({});
    ASSERT_EQ(m->layers.size(), 1u);
    EXPECT_EQ(m->layers[0].name, "Layer0");
    EXPECT_NE(m->layers[0].id, 0);
}

TEST(ModernLayers, the_material_of_a_layer_is_private_to_it) {
    const bytes material = rec(15503, rec(13000, entity(90) + rec(13004, text("Layer_walls")) + rec(13002, u8(1))));
    const auto m =
        read_parts(materials(rec(13000, entity(91))) + layers(layer(1, "Layer0") + layer(2, "walls", material)));
    EXPECT_EQ(m->layers[0].material, no_index);
    ASSERT_EQ(m->layers[1].material, 1u);
    EXPECT_TRUE(m->materials[1].is_private);
    EXPECT_EQ(m->listed_materials, (std::vector<sketchup::index>{0}));
}

TEST(ModernLayers, stand_in_folders_and_folders_in_folders) {
    const bytes root =
        rec(16000, rec(16001) + rec(16004) +
                       rec(16003, folder("Site", rec(16002, u8(1)) + rec(16004, id_list({2})) +
                                                     rec(16003, folder("Trees", rec(16004, id_list({3, 99, 4})))))));
    const auto m =
        read_parts(layers(layer(1, "Layer0") + layer(2, "road") + layer(3, "oak") + layer(4, "elm"), rec(15003, root)));
    ASSERT_EQ(m->layer_folders.size(), 2u);
    EXPECT_EQ(m->layer_folders[0].name, "Site");
    EXPECT_EQ(m->layer_folders[0].parent, no_index);
    EXPECT_TRUE(m->layer_folders[0].hidden);
    EXPECT_EQ(m->layer_folders[1].name, "Trees");
    EXPECT_EQ(m->layer_folders[1].parent, 0u);
    EXPECT_FALSE(m->layer_folders[1].hidden);
    EXPECT_EQ(m->layers[0].folder, no_index);
    EXPECT_EQ(m->layers[1].folder, 0u);
    EXPECT_EQ(m->layers[2].folder, 1u);
    EXPECT_EQ(m->layers[3].folder, 1u);
}

TEST(ModernLayers, a_hidden_folder_leaves_the_flag_of_its_layers_as_stored) {
    const bytes root = rec(16000, rec(16003, folder("Site", rec(16002, u8(1)) + rec(16004, id_list({2})))));
    const auto m = read_parts(layers(layer(1, "Layer0") + layer(2, "road"), rec(15003, root)));
    EXPECT_FALSE(m->layers[1].hidden);
    EXPECT_TRUE(m->layer_folders[m->layers[1].folder].hidden);
}

TEST(ModernLayers, folders_nest_down_to_a_limit) {
    EXPECT_NO_THROW(read_parts(layers({}, nested_folders(skp::modern::deepest_containers))));
    EXPECT_THROW(read_parts(layers({}, nested_folders(skp::modern::deepest_containers + 1))), skp::format_error);
}
