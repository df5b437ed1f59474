// The record of a plant: its place, size, turn and scale.

#include "tests/support/temporary_folder.h"
#include "tests/tessaline/reader_fixture.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

class ZynPlants : public reader_test {
protected:
    ZynPlants() {
        theApp.batch_folder = batch.name();
        library_plant.library = "Trees";
        library_plant.name = "Oak";
        library_plant.height_to_diameter = 2;
        library_plant.width_to_diameter = 0.5;
        file_plant.plant_file_name = "oak.plant";
    }

    // Makes the component that stands for the plant, 40 by 30 by 100 inches, and places it once.
    sketchup::entity_place place(const std::string& name = "oak") {
        auto component = builder.component(name);
        component.box({0, 0, 0}, {40, 30, 100});
        return builder.root().instance(component);
    }

    SUComponentInstanceRef instance() const {
        SUEntitiesRef entities = SU_INVALID;
        SUModelGetEntities(open_model, &entities);
        return all_handles(SUEntitiesGetNumInstances, SUEntitiesGetInstances, entities).front();
    }

    // The record of the model's one instance.
    std::string record(const plant_description& plant, const transform16& transform = identity16) {
        open();
        reader.Write_Zyn_plant(instance(), plant, transform, {}, {});
        return stream_text();
    }

    // The record of a scattered plant.
    std::string scattered(const plant_description& plant, const transform16& transform = identity16) {
        reader.Write_Zyn_plant(SU_INVALID, plant, transform, "Skatter", "Skatter");
        return stream_text();
    }

    static transform16 axes(double first, double second, double third) {
        return {first, 0, 0, 0, 0, second, 0, 0, 0, 0, third, 0, 0, 0, 0, 1};
    }

    temporary_folder batch;
    plant_description library_plant;
    plant_description file_plant;
};

TEST_F(ZynPlants, a_plant_of_a_library_has_its_diameter_from_its_box) {
    place();
    transform16 moved = identity16;
    moved[12] = 100;
    moved[13] = -50;
    moved[14] = 5e-8;
    // By height 100 / 2 = 50, by width 40 / 0.5 = 80: the smaller.
    EXPECT_EQ(record(library_plant, moved),
              lines({"#;PLANT", "PLLB;Trees", "PLNM;Oak", "PLLC;(100,-50,0)", "PLDM;50.000000", "PLSN;0",
                     "PLRT;90.000000", "PLSC;1.000000", "PLNT;1", "#"}));
}

TEST_F(ZynPlants, the_width_decides_where_it_gives_less) {
    place();
    library_plant.width_to_diameter = 1;
    EXPECT_THAT(record(library_plant), HasSubstr("PLDM;40.000000"));
}

TEST_F(ZynPlants, the_width_is_the_larger_of_both_extents) {
    auto component = builder.component("oak");
    component.box({-5, 0, 0}, {5, 70, 1000});
    builder.root().instance(component);
    library_plant.width_to_diameter = 1;
    EXPECT_THAT(record(library_plant), HasSubstr("PLDM;70.000000"));
}

TEST_F(ZynPlants, the_box_is_that_of_the_placed_component) {
    auto component = builder.component("oak");
    component.box({0, 0, 0}, {40, 30, 100});
    builder.root().instance(component, sketchup::scaled(3, 3, 3));
    EXPECT_THAT(record(library_plant), HasSubstr("PLDM;150.000000")); // 300 / 2
}

TEST_F(ZynPlants, ratios_of_0_give_an_infinite_diameter) {
    place();
    library_plant.height_to_diameter = 0;
    library_plant.width_to_diameter = 0;
    EXPECT_THAT(record(library_plant), HasSubstr("PLDM;inf\r\n"));
}

TEST_F(ZynPlants, a_height_ratio_of_0_leaves_the_width_to_decide) {
    place();
    library_plant.height_to_diameter = 0;
    EXPECT_THAT(record(library_plant), HasSubstr("PLDM;80.000000\r\n"));
}

TEST_F(ZynPlants, a_plant_with_a_file_and_no_library_has_a_diameter_of_1_times_its_scale) {
    place("oak.plant");
    const std::string file = batch / "Plants/oak.plant";
    EXPECT_EQ(record(file_plant, axes(3, 1, 3)),
              lines({"#;PLANT", "PLLB;OrnPlant", "PLNM;" + file, "PLLC;(0,0,0)", "PLDM;3.000000", "PLSN;0",
                     "PLRT;90.000000", "PLSC;3.000000", "PLNT;1", "#"}));
}

TEST_F(ZynPlants, a_plant_with_both_stands_by_its_file_and_has_the_diameter_of_the_library) {
    place("oak.plant");
    library_plant.plant_file_name = "elm.plant";
    const std::string text = record(library_plant);
    EXPECT_THAT(text, HasSubstr("PLLB;OrnPlant\r\nPLNM;" + batch / "Plants/oak.plant"));
    EXPECT_THAT(text, HasSubstr("PLDM;50.000000"));
}

TEST_F(ZynPlants, the_file_of_an_instance_goes_by_the_name_of_its_component) {
    place("trees/big oak.plant");
    file_plant.plant_data64 = "T2Fr";
    EXPECT_THAT(record(file_plant), HasSubstr("PLNM;" + batch / "Plants/big oak.plant"));
    EXPECT_EQ(batch.read("Plants/big oak.plant"), "Oak");
}

TEST_F(ZynPlants, the_file_of_a_scattered_plant_goes_by_its_own_name) {
    file_plant.plant_file_name = "c:\\trees\\oak.plant";
    file_plant.plant_data64 = "T2Fr";
    EXPECT_THAT(scattered(file_plant), HasSubstr("PLNM;" + batch / "Plants/oak.plant"));
    EXPECT_EQ(batch.read("Plants/oak.plant"), "Oak");
}

TEST_F(ZynPlants, data_of_the_older_form_leave_the_record_without_a_file) {
    file_plant.plant_data = "rubbish";
    EXPECT_THAT(scattered(file_plant), HasSubstr("PLNM;" + batch / "Plants/oak.plant"));
    EXPECT_FALSE(batch.has("Plants/oak.plant"));
}

TEST_F(ZynPlants, a_scattered_plant_has_no_size_of_its_own) {
    EXPECT_EQ(scattered(library_plant), lines({"#;PLANT", "PLLB;Trees", "PLNM;Oak", "PLLC;(0,0,0)", "PLDM;0.000000",
                                               "PLSN;0", "PLRT;90.000000", "PLSC;1.000000", "PLNT;1", "#"}));
}

// By height 0 / 2; by width 0 / 0, which is no number and so not larger.
TEST_F(ZynPlants, a_scattered_plant_without_a_width_ratio_has_a_diameter_that_is_no_number) {
    library_plant.width_to_diameter = 0;
    EXPECT_EQ(scattered(library_plant), lines({"#;PLANT", "PLLB;Trees", "PLNM;Oak", "PLLC;(0,0,0)", "PLDM;nan",
                                               "PLSN;0", "PLRT;90.000000", "PLSC;1.000000", "PLNT;1", "#"}));
}

TEST_F(ZynPlants, a_scattered_plant_without_a_height_ratio_has_the_diameter_of_its_width) {
    library_plant.height_to_diameter = 0;
    EXPECT_THAT(scattered(library_plant), HasSubstr("PLDM;0.000000\r\n")); // 0 / 0.5
}

// ---- what is not written

TEST_F(ZynPlants, a_hidden_instance_stops_here_and_takes_no_random_number) {
    builder.element(place()).hidden = true;
    EXPECT_EQ(record(library_plant), "");
    EXPECT_EQ(plant_chance.next(), 41); // the first of the sequence
}

TEST_F(ZynPlants, a_hidden_instance_stops_in_an_animation_too) {
    theApp.is_doing_animation = true;
    builder.element(place()).hidden = true;
    EXPECT_EQ(record(library_plant), "");
}

TEST_F(ZynPlants, an_instance_on_a_layer_that_is_off_stops) {
    builder.element(place()).layer = builder.layer("off", false);
    EXPECT_EQ(record(library_plant), "");
}

TEST_F(ZynPlants, an_animation_holds_the_plants_of_all_layers) {
    theApp.is_doing_animation = true;
    builder.element(place()).layer = builder.layer("off", false);
    EXPECT_THAT(record(library_plant), HasSubstr("PLNM;Oak"));
}

TEST_F(ZynPlants, while_Layer0_is_off_the_inherited_layer_decides) {
    builder.model().layers[0].hidden = true;
    builder.layer("on");
    reader.layer0_hidden = true;
    place();
    set_layer(*current_oparms, "on");
    EXPECT_THAT(record(library_plant), HasSubstr("PLNM;Oak"));
}

// ---- season

TEST_F(ZynPlants, the_season_is_that_of_the_settings) {
    set_global_int("ivl_plant_season", 4);
    library_plant.season = 2;
    EXPECT_THAT(scattered(library_plant), HasSubstr("PLSN;4"));
}

TEST_F(ZynPlants, a_plant_may_have_a_season_of_its_own) {
    set_global_int("ivl_plant_season", 4);
    library_plant.season = 2;
    library_plant.season_override = true;
    EXPECT_THAT(scattered(library_plant), HasSubstr("PLSN;2"));
}

TEST_F(ZynPlants, a_season_of_0_is_none) {
    set_global_int("ivl_plant_season", 4);
    library_plant.season = 0;
    library_plant.season_override = true;
    EXPECT_THAT(scattered(library_plant), HasSubstr("PLSN;4"));
}

// ---- turn

TEST_F(ZynPlants, the_turn_is_the_heading_of_the_first_axis_and_90_degrees_more) {
    const transform16 turned = {0, 2, 0, 0, -2, 0, 0, 0, 0, 0, 2, 0, 0, 0, 0, 1}; // by 90 degrees
    EXPECT_THAT(scattered(library_plant, turned), HasSubstr("PLRT;180.000000"));
}

TEST_F(ZynPlants, a_turn_of_nearly_0_is_0_without_a_sign) {
    transform16 turned = identity16;
    turned[0] = -1e-12;
    turned[1] = -1; // -90 degrees and a trifle more
    EXPECT_THAT(scattered(library_plant, turned), HasSubstr("PLRT;0.000000"));
}

TEST_F(ZynPlants, an_axis_that_points_up_has_no_heading) {
    const transform16 tilted = {0, 0, 1, 0, 0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 0, 1};
    EXPECT_THAT(scattered(library_plant, tilted), HasSubstr("PLRT;90.000000"));
}

TEST_F(ZynPlants, a_random_turn_takes_hundredths_of_a_circle_from_the_sequence) {
    set_global_bool("bvl_plant_random_rotation", true);
    reader.Write_Zyn_plant(SU_INVALID, library_plant, identity16, {}, {});
    reader.Write_Zyn_plant(SU_INVALID, library_plant, identity16, {}, {});
    const std::string text = stream_text();
    EXPECT_THAT(text, HasSubstr("PLRT;147.600000")); // 41 modulo 100: 0.41 x 360
    EXPECT_THAT(text, HasSubstr("PLRT;241.200000")); // 18467 modulo 100: 0.67 x 360
}

TEST_F(ZynPlants, a_plant_takes_one_number_even_if_nothing_is_left_to_chance) {
    scattered(library_plant);
    EXPECT_EQ(plant_chance.next(), 18467); // the second of the sequence
}

// ---- scale

// 0.41 x 0.2 + 0.9 and 0.41 x 0.4 + 0.8
TEST_F(ZynPlants, random_heights_spread_by_10_or_by_20_percent) {
    for (const int spread : {0, 1, 2, 3}) {
        set_global_int("ivl_plant_random_height", spread);
        plant_chance = {};
        reader.Write_Zyn_plant(SU_INVALID, file_plant, identity16, {}, {});
    }
    const std::string text = stream_text();
    std::vector<std::string> scales;
    for (auto at = text.find("PLSC;"); at != std::string::npos; at = text.find("PLSC;", at + 1))
        scales.push_back(text.substr(at + 5, 8));
    EXPECT_THAT(scales, testing::ElementsAre("1.000000", "0.982000", "0.964000", "1.000000"));
}

TEST_F(ZynPlants, turn_and_height_share_one_random_number) {
    set_global_bool("bvl_plant_random_rotation", true);
    set_global_int("ivl_plant_random_height", 2);
    EXPECT_THAT(scattered(file_plant), HasSubstr("PLRT;147.600000\r\nPLSC;0.964000"));
}

TEST_F(ZynPlants, a_first_axis_without_length_scales_nothing) {
    EXPECT_THAT(scattered(file_plant, axes(0, 2, 2)),
                HasSubstr("PLDM;1.000000\r\nPLSN;0\r\nPLRT;90.000000\r\nPLSC;1.000000"));
}

// An empty box runs from +1e30 to -1e30, so its height is -2e30 and counts as 2e30. By height that is 1e30, by width
// -2e30 / -0.5 = 4e30: the smaller.
TEST_F(ZynPlants, the_height_of_a_component_without_content_counts_without_its_sign) {
    builder.root().instance(builder.component("oak"));
    library_plant.width_to_diameter = -0.5;
    EXPECT_THAT(record(library_plant), HasSubstr("PLDM;1000000000000000019884624838656.000000\r\n"));
}

TEST_F(ZynPlants, the_scale_is_the_smaller_of_the_first_and_third_axis_whatever_the_second) {
    EXPECT_THAT(scattered(file_plant, axes(4, 0.5, 3)), HasSubstr("PLSC;3.000000"));
}

TEST_F(ZynPlants, the_first_axis_decides_where_it_is_shorter) {
    EXPECT_THAT(scattered(file_plant, axes(2, 0.5, 3)), HasSubstr("PLSC;2.000000"));
}

TEST_F(ZynPlants, an_axis_without_length_does_not_scale) {
    EXPECT_THAT(scattered(file_plant, axes(2, 2, 0)), HasSubstr("PLSC;1.000000"));
}

TEST_F(ZynPlants, the_scale_of_the_axes_multiplies_the_random_one_and_the_diameter) {
    place();
    set_global_int("ivl_plant_random_height", 1);
    EXPECT_THAT(record(library_plant, axes(2, 2, 2)),
                HasSubstr("PLDM;98.200000\r\nPLSN;0\r\nPLRT;90.000000\r\nPLSC;1.964000")); // 50 x 1.964
}

} // namespace
