// Plants and outside objects, placed in the model or scattered over it.

#include "tests/batch/batch_runner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace sketchup;

void set_random_height(model_builder& m, int spread) {
    m.attribute(m.root().list(), "qlw_globals", "ivl_plant_random_height", whole_number(spread));
}

void describe(model_builder& m, list_builder component,
              const std::vector<std::pair<std::string, std::string>>& attributes) {
    for (const auto& [key, value] : attributes)
        m.attribute(component.list(), "qlw_plant", key, text(value));
}

// A library plant of 40 by 30 by 100 inches: 100 / 2 = 50 inches in diameter.
list_builder add_oak(model_builder& m, const std::string& name = "oak") {
    list_builder oak = m.component(name);
    oak.box({0, 0, 0}, {40, 30, 100});
    describe(m, oak, {{"library", "Trees"}, {"name", "Oak"}, {"hgt_to_diam", "2"}, {"wid_to_diam", "0.5"}});
    return oak;
}

list_builder add_plant(model_builder& m, const std::string& name,
                       const std::vector<std::pair<std::string, std::string>>& attributes) {
    list_builder plant = m.component(name);
    plant.square(10);
    describe(m, plant, attributes);
    return plant;
}

TEST(PlantsBatch, plants_come_from_libraries_from_files_and_from_data_and_objects_from_outside) {
    batch b;
    model_builder m;
    list_builder oak = add_oak(m);
    list_builder garden = m.root().group("garden", moved({1000, 0, 0}));
    m.element(garden.placement()).layer = m.layer("Garden");
    garden.instance(oak, moved({100, 0, 0}));
    list_builder top = m.root();
    top.instance(oak, moved({100, 0, 0}));
    top.instance(oak, after(moved({0, 200, 0}), after(turned_about_z(90), scaled(2, 2, 2))));
    top.instance(add_plant(m, "trees\\elm.plant", {{"ornplant_name", "other.plant"}, {"ornplant_data64", "RW\nxt\n"}}),
                 moved({200, 0, 0}));
    top.instance(add_plant(m, "fir.plant", {{"ornplant_name", "fir.plant"}, {"ornplant_data64", "RWxt"}}),
                 moved({300, 0, 0}));
    top.instance(
        add_plant(m, "yew", {{"library", "Hedges"}, {"name", "Yew"}, {"season", "3"}, {"season_override", "1"}}),
        moved({400, 0, 0}));
    m.element(top.instance(oak, moved({800, 0, 0}))).hidden = true;
    m.element(top.instance(oak, moved({900, 0, 0}))).layer = m.layer("off", false);
    list_builder car = m.component("car");
    car.square(10);
    m.attribute(car.list(), "ArchVision RPC", "Name", text("Sedan"));
    m.attribute(car.list(), "ArchVision RPC", "RPCTypeId", text("AV-17"));
    m.element(top.instance(car, after(moved({600, 0, 0}), after(turned_about_z(90), scaled(2, 3, 4))))).layer =
        m.layer("Street");
    top.instance(add_plant(m, "pine", {{"library", "Trees"}, {"render_plant_as_2d_image", "true"}}),
                 moved({700, 0, 0}));
    set_random_height(m, 0);
    b.put_model(m);
    b.put("Plants/fir.plant", "kept");
    expect_run(b, "plants");
}

// The first three numbers of the sequence end in 41, 67 and 34.
TEST(PlantsBatch, chance_is_the_same_in_every_run) {
    batch b;
    model_builder m;
    list_builder oak = add_oak(m);
    for (const double x : {0.0, 100.0, 200.0})
        m.root().instance(oak, moved({x, 0, 0}));
    set_random_height(m, 2);
    m.attribute(m.root().list(), "qlw_globals", "bvl_plant_random_rotation", truth(true));
    b.put_model(m);
    expect_run(b, "plants_by_chance");
    expect_run(b, "plants_by_chance");
}

TEST(PlantsBatch, a_plant_with_data_of_the_old_form_is_shown_and_placed_without_a_file) {
    batch b;
    b.expect_finding(batch_check::code::plant_missing);
    model_builder m;
    m.root().instance(add_plant(m, "old.plant", {{"ornplant_name", "old.plant"}, {"ornplant_data", "rubbish"}}));
    set_random_height(m, 0);
    b.put_model(m);
    const program_result outcome = b.run();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.errors, testing::HasSubstr("Error: 'Old 64' base Plant found:\nold.plant\n"
                                                   "Please send this model to Quillon Systems for testing.\n"));
    expect_batch(b, "plant_of_the_old_form");
}

TEST(PlantsBatch, scattered_ones_are_placed_line_by_line_among_plain_components) {
    batch b;
    model_builder m;
    m.component("pebble").square(10);
    add_oak(m, "oak; \"old\"");
    add_plant(m, "elm", {{"ornplant_name", "c:\\trees\\elm.plant"}, {"ornplant_data64", "RWxt"}});
    m.root().square(10);
    set_random_height(m, 0);
    b.put_model(m);
    b.put("skatter_insts.txt", "# scattered by hand\r\n"
                               "1;a;b;pebble;1;0;0;0;0;1;0;0;0;0;1;0;100;0;0;1\r\n"
                               "2;a;b;\"oak; \"\"old\"\"\";2;0;0;0;0;2;0;0;0;0;2;0;50;60;70;1\r\n"
                               "3;a;b;unknown;1;0;0;0;0;1;0;0;0;0;1;0;100;0;0;1\r\n"
                               "4;a;b;Pebble;1;0;0;0;0;1;0;0;0;0;1;0;100;0;0;1\r\n"
                               "#5;a;b;pebble;1;0;0;0;0;1;0;0;0;0;1;0;100;0;0;1\r\n"
                               "6;\"x;y\";b;elm;1;0;0;0;0;1;0;0;0;0;1;0;10;20;30;1\r\n"
                               "\r\n"
                               "7;\"x;y\";b; pebble ;1;0;0;0;0;1;0;0;0;0;1;0;200;0;0;1\r\n");
    expect_run(b, "scattered_plants");
}

// By height 0 / 2, by width 0 / 0.
TEST(PlantsBatch, a_scattered_plant_without_a_width_ratio_has_no_diameter_and_says_so_in_the_same_bytes_everywhere) {
    batch b;
    model_builder m;
    list_builder oak = m.component("oak");
    oak.box({0, 0, 0}, {40, 30, 100});
    describe(m, oak, {{"library", "Trees"}, {"name", "Oak"}, {"hgt_to_diam", "2"}});
    set_random_height(m, 0);
    b.put_model(m);
    b.put("skatter_insts.txt", "1;a;b;oak;1;0;0;0;0;1;0;0;0;0;1;0;100;200;0;1\r\n");
    expect_run(b, "scattered_plant_without_size");
}

} // namespace
