// What becomes of the components that the parent's list scatters.

#include "tests/tessaline/run_fixture.h"

namespace {

using sketchup::list_builder;
using sketchup::model_builder;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class SkatterInstances : public run_fixture {
protected:
    static list_builder add_pebble(model_builder& m) {
        list_builder pebble = m.component("pebble");
        pebble.square(10);
        return pebble;
    }

    static list_builder add_oak(model_builder& m) {
        list_builder oak = m.component("oak");
        oak.square(10);
        m.attribute(oak.list(), "qlw_plant", "library", sketchup::text("Trees"));
        return oak;
    }

    void list(const std::string& lines) { batch.write("skatter_insts.txt", lines); }
};

TEST_F(SkatterInstances, a_component_is_walked_at_the_place_that_its_line_names) {
    model_builder m;
    add_pebble(m);
    list("# a comment\n"
         "a;b;c;pebble;1;0;0;0;0;1;0;0;0;0;1;0;100;0;0;1\n"
         "a;b;c;Pebble;1;0;0;0;0;1;0;0;0;0;1;0;200;0;0;1\n");
    // Names are compared exactly, so only the first line is walked: x from 100 to 110 inches.
    EXPECT_THAT(tagged(body_of(m), "VERT"), UnorderedElementsAre("VERT;(2.54,0,0)", "VERT;(2.794,0,0)",
                                                                 "VERT;(2.794,0.254,0)", "VERT;(2.54,0.254,0)"));
    EXPECT_FALSE(in_skatter_instances);
}

TEST_F(SkatterInstances, of_two_components_with_one_name_the_first_is_meant) {
    model_builder m;
    add_pebble(m);
    m.component("pebble").square(20);
    list("a;b;c;pebble;1;0;0;0;0;1;0;0;0;0;1;0;100;0;0;1\n");
    EXPECT_THAT(tagged(body_of(m), "VERT"), UnorderedElementsAre("VERT;(2.54,0,0)", "VERT;(2.794,0,0)",
                                                                 "VERT;(2.794,0.254,0)", "VERT;(2.54,0.254,0)"));
}

// Of a placement that is divided by its last element, 2, the square would be half as large and half as far away.
TEST_F(SkatterInstances, a_placement_is_taken_as_it_stands) {
    model_builder m;
    add_pebble(m);
    list("a;b;c;pebble;1;0;0;0;0;1;0;0;0;0;1;0;100;0;0;2\n");
    EXPECT_THAT(tagged(body_of(m), "VERT"), UnorderedElementsAre("VERT;(2.54,0,0)", "VERT;(2.794,0,0)",
                                                                 "VERT;(2.794,0.254,0)", "VERT;(2.54,0.254,0)"));
}

TEST_F(SkatterInstances, they_stand_behind_groups_and_instances_and_ahead_of_faces) {
    model_builder m;
    list_builder pebble = add_pebble(m);
    m.root().square(10);
    m.root().instance(pebble, sketchup::moved({0, 0, 100}));
    m.root().group({}, sketchup::moved({0, 0, 200})).square(10);
    list("a;b;c;pebble;1;0;0;0;0;1;0;0;0;0;1;0;0;0;300;1\n");
    std::vector<std::string> heights; // of the first vertex of each square
    for (const std::string& line : tagged(body_of(m), "VERT;(0.254,0,"))
        heights.push_back(line);
    EXPECT_THAT(heights,
                ElementsAre("VERT;(0.254,0,5.08)", "VERT;(0.254,0,2.54)", "VERT;(0.254,0,7.62)", "VERT;(0.254,0,0)"));
}

TEST_F(SkatterInstances, a_list_beside_a_model_without_components_leaves_their_flag_set) {
    model_builder m;
    m.root().square(10);
    list("a;b;c;pebble;1;0;0;0;0;1;0;0;0;0;1;0;100;0;0;1\n");
    body_of(m);
    EXPECT_TRUE(in_skatter_instances);
}

TEST_F(SkatterInstances, a_plant_is_written_as_one_even_if_it_wants_to_be_a_2D_image) {
    model_builder m;
    list_builder oak = add_oak(m);
    m.attribute(oak.list(), "qlw_plant", "render_plant_as_2d_image", sketchup::text("true"));
    list("a;b;c;oak;1;0;0;0;0;1;0;0;0;0;1;0;100;0;0;1\n");
    const auto lines = body_of(m);
    EXPECT_THAT(tagged(lines, "PLLC"), ElementsAre("PLLC;(100,0,0)"));
    EXPECT_THAT(tagged(lines, "MESH"), IsEmpty());
}

TEST_F(SkatterInstances, the_setting_for_2D_images_walks_every_plant) {
    set_global_bool("bvl_display_all_plants_as_2d_images", true);
    model_builder m;
    add_oak(m);
    list("a;b;c;oak;1;0;0;0;0;1;0;0;0;0;1;0;100;0;0;1\n");
    const auto lines = body_of(m);
    EXPECT_THAT(tagged(lines, "PLLC"), IsEmpty());
    EXPECT_THAT(tagged(lines, "MESH"), ElementsAre("MESH;"));
}

TEST_F(SkatterInstances, a_3D_document_holds_what_plants_hold) {
    theApp.extract_mode = "QLW 3D PDF";
    model_builder m;
    add_oak(m);
    list("a;b;c;oak;1;0;0;0;0;1;0;0;0;0;1;0;100;0;0;1\n");
    const auto lines = body_of(m);
    EXPECT_THAT(tagged(lines, "PLLC"), IsEmpty());
    EXPECT_THAT(tagged(lines, "MESH"), ElementsAre("MESH;"));
}

TEST_F(SkatterInstances, an_outside_object_is_walked) {
    model_builder m;
    list_builder car = m.component("car");
    car.square(10);
    m.attribute(car.list(), "ArchVision RPC", "Name", sketchup::text("Sedan"));
    list("a;b;c;car;1;0;0;0;0;1;0;0;0;0;1;0;100;0;0;1\n");
    const auto lines = body_of(m);
    EXPECT_THAT(tagged(lines, "RPCP"), IsEmpty());
    EXPECT_THAT(tagged(lines, "MESH"), ElementsAre("MESH;"));
}

} // namespace
