// What the attributes of a component say about the plant or the outside object that it stands for.

#include "tessaline/plants/plants.h"

#include "qlw/qlw_globals.h"
#include "tessaline/state/run_state.h"

#include <gtest/gtest.h>

namespace {

class Plants : public testing::Test {
protected:
    Plants() {
        reset_process();
        reset_settings();
    }
    ~Plants() override {
        reset_process();
        reset_settings();
    }

    static void plant_says(const std::string& key, const std::string& value) {
        attribute_list.push_back({"qlw_plant", key, value});
    }
    static void object_says(const std::string& key, const std::string& value) {
        attribute_list.push_back({"ArchVision RPC", key, value});
    }
};

TEST_F(Plants, every_key_of_a_plant_has_its_place) {
    plant_says("ornplant_name", "oak.plant");
    plant_says("ornplant_data64", "T2Fr");
    plant_says("ornplant_data", "old");
    plant_says("hgt_to_diam", "2.5");
    plant_says("library", "Trees");
    plant_says("name", "Oak");
    plant_says("season", "3");
    plant_says("season_override", "1");
    plant_says("wid_to_diam", "0.75");
    plant_says("render_plant_as_2d_image", "true");
    plant_says("Name", "no key of a plant");
    plant_description plant;
    EXPECT_TRUE(read_plant_description(plant));
    EXPECT_EQ(plant.plant_file_name, "oak.plant");
    EXPECT_EQ(plant.plant_data64, "T2Fr");
    EXPECT_EQ(plant.plant_data, "old");
    EXPECT_EQ(plant.height_to_diameter, 2.5);
    EXPECT_EQ(plant.library, "Trees");
    EXPECT_EQ(plant.name, "Oak");
    EXPECT_EQ(plant.season, 3);
    EXPECT_TRUE(plant.season_override);
    EXPECT_EQ(plant.width_to_diameter, 0.75);
    EXPECT_TRUE(plant.render_as_2d_image);
}

TEST_F(Plants, a_plant_of_which_nothing_is_said_has_the_season_1_and_nothing_else) {
    plant_description plant;
    EXPECT_FALSE(read_plant_description(plant));
    EXPECT_EQ(plant.season, 1);
    EXPECT_FALSE(plant.season_override);
    EXPECT_EQ(plant.height_to_diameter, 0);
    EXPECT_EQ(plant.width_to_diameter, 0);
    EXPECT_FALSE(plant.render_as_2d_image);
}

TEST_F(Plants, a_plant_is_one_by_its_file_or_by_its_library) {
    plant_says("name", "Oak");
    plant_says("ornplant_data64", "T2Fr");
    plant_description nameless;
    EXPECT_FALSE(read_plant_description(nameless));
    plant_says("library", "Trees");
    plant_description of_library;
    EXPECT_TRUE(read_plant_description(of_library));
    attribute_list.clear();
    plant_says("ornplant_name", "oak.plant");
    plant_description of_file;
    EXPECT_TRUE(read_plant_description(of_file));
}

TEST_F(Plants, of_two_equal_keys_the_later_wins) {
    plant_says("library", "Trees");
    plant_says("library", "");
    plant_description plant;
    EXPECT_FALSE(read_plant_description(plant));
}

TEST_F(Plants, keys_are_compared_with_their_case_and_other_dictionaries_do_not_count) {
    plant_says("Library", "Trees");
    attribute_list.push_back({"qlw_Plant", "library", "Trees"});
    object_says("library", "Trees");
    plant_description plant;
    EXPECT_FALSE(read_plant_description(plant));
}

TEST_F(Plants, a_season_override_is_a_number_and_not_the_word) {
    for (const auto& [value, is_override] :
         std::vector<std::pair<std::string, bool>>{{"true", false}, {"0", false}, {"2", true}, {"-1", true}}) {
        attribute_list.clear();
        plant_says("season_override", value);
        plant_description plant;
        read_plant_description(plant);
        EXPECT_EQ(plant.season_override, is_override) << value;
    }
}

TEST_F(Plants, a_2D_image_is_wanted_by_the_word_or_by_1_and_by_nothing_else) {
    for (const auto& [value, is_image] : std::vector<std::pair<std::string, bool>>{
             {"true", true}, {"1", true}, {"True", false}, {"2", false}, {"", false}}) {
        attribute_list.clear();
        plant_says("render_plant_as_2d_image", value);
        plant_description plant;
        read_plant_description(plant);
        EXPECT_EQ(plant.render_as_2d_image, is_image) << value;
    }
}

TEST_F(Plants, numbers_that_cannot_be_read_are_0) {
    plant_says("hgt_to_diam", "tall");
    plant_says("season", "spring");
    plant_description plant;
    plant.height_to_diameter = 9;
    read_plant_description(plant);
    EXPECT_EQ(plant.height_to_diameter, 0);
    EXPECT_EQ(plant.season, 0);
}

// 99999999999 does not fit 32 bits; C libraries differ in what they make of it.
TEST_F(Plants, a_season_beyond_32_bits_is_the_same_on_every_platform) {
    plant_says("season", "99999999999");
    plant_description plant;
    read_plant_description(plant);
    EXPECT_EQ(plant.season, -1);
}

TEST_F(Plants, an_outside_object_has_four_texts_and_is_one_by_its_name) {
    object_says("PreviewMode", "2");
    object_says("RPCTypeId", "AV-17");
    object_says("Type", "Car");
    rpc_description nameless;
    EXPECT_FALSE(read_rpc_description(nameless));
    object_says("Name", "Sedan");
    rpc_description object;
    EXPECT_TRUE(read_rpc_description(object));
    EXPECT_EQ(object.name, "Sedan");
    EXPECT_EQ(object.preview_mode, "2");
    EXPECT_EQ(object.type_id, "AV-17");
    EXPECT_EQ(object.type, "Car");
}

TEST_F(Plants, they_are_shown_as_what_they_hold_by_a_setting_and_always_for_a_document) {
    EXPECT_FALSE(shows_plants_as_images());
    set_global_bool("bvl_display_all_plants_as_2d_images", true);
    EXPECT_TRUE(shows_plants_as_images());
    set_global_bool("bvl_display_all_plants_as_2d_images", false);
    theApp.extract_mode = "QLW 3D PDF";
    EXPECT_TRUE(shows_plants_as_images());
}

} // namespace
