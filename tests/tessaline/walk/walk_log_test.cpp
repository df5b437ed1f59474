// What a developer reads of a walk: the extraction log and the traces of its steps.

#include "tessaline/walk/walk_log.h"

#include "qlw/trace_state.h"
#include "tests/tessaline/run_fixture.h"

namespace {

using sketchup::list_builder;
using sketchup::model_builder;
using sketchup::moved;

// A developer's build opens the log.
class WalkLog : public run_fixture {
protected:
    WalkLog() {
        set_global_bool("bcomm_use_extraction_log_file", true);
        set_global_double("rvl_image_offset", 0);
        trace_state().extraction_log.open(batch / "log.txt", output_file_mode::quiet);
    }
    ~WalkLog() override { trace_state().extraction_log.close(); }

    // What the log holds behind the conversion, before it is closed: all of it was flushed.
    std::string log_of(model_builder& m) {
        body_of(m);
        return batch.read("log.txt");
    }
    static sketchup::index image_of(model_builder& m, const char* file_name) {
        return m.image_definition({1, 2, 3}, file_name, 2, 2);
    }
};

// Knob, Inner and Deep stand on Layer0 and inherit that of the group. The second instance has no name of its own.
TEST_F(WalkLog, names_each_group_and_instance_with_its_layer_and_its_place_in_the_world) {
    model_builder m;
    list_builder wall = m.root().group("Wall", moved({1, 2, 3}));
    m.element(wall.placement()).layer = m.layer("Brick");
    wall.group("Inner", moved({1, 0, 0})).group("Deep", moved({0, 0, 5}));
    wall.instance(m.component("Handle"), sketchup::identity_transform, "Knob");
    m.element(m.root().instance(m.component("Door"), moved({4, 5, 6}))).layer = m.layer("Doors");
    EXPECT_EQ(log_of(m), "\r\nGroup: Wall,  layer: Brick, loc: (1, 2, 3)\r\n"
                         " Group: Inner,  layer: Brick, loc: (2, 2, 3)\r\n"
                         "  Group: Deep,  layer: Brick, loc: (2, 2, 8)\r\n"
                         " Instance: Knob,  layer: Brick, loc: (1, 2, 3)\r\n"
                         "\r\nInstance: Door,  layer: Doors, loc: (4, 5, 6)\r\n"
                         "End of Process Entities");
}

TEST_F(WalkLog, announces_an_image_inside_a_group_and_puts_an_empty_line_before_one_at_the_top) {
    model_builder m;
    m.root().group("Frame").image(image_of(m, "Inside.png"));
    m.root().image(image_of(m, "Tree.png"), moved({1, 2, 3}));
    EXPECT_EQ(log_of(m), "\r\nGroup: Frame,  layer: Layer0, loc: (0, 0, 0)\r\n"
                         " ProcessImage\r\n"
                         "Image: Inside.png,  layer: Layer0, loc: (0, 0, 0)\r\n"
                         "\r\nImage: Tree.png,  layer: Layer0, loc: (1, 2, 3)\r\n"
                         "End of Process Entities");
}

// Their layers are off, and they are walked no further than to see that they are no lamps.
TEST_F(WalkLog, leaves_out_what_is_looked_at_for_lamps_only) {
    set_global_bool("bvl_process_invisible_lights", true);
    model_builder m;
    const auto off = m.layer("off", false);
    m.element(m.root().group("Wall").placement()).layer = off;
    m.element(m.root().instance(m.component("Door"))).layer = off;
    EXPECT_EQ(log_of(m), "End of Process Entities");
}

TEST_F(WalkLog, holds_each_line_as_soon_as_it_is_written) {
    log_placement("Group", "Wall", "Brick", identity16, 1);
    std::string text = " Group: Wall,  layer: Brick, loc: (0, 0, 0)\r\n";
    EXPECT_EQ(batch.read("log.txt"), text);
    log_image_step(2);
    EXPECT_EQ(batch.read("log.txt"), text += "  ProcessImage\r\n");
    log_image("Tree.png", "Layer0", {1, 2, 3});
    EXPECT_EQ(batch.read("log.txt"), text += "Image: Tree.png,  layer: Layer0, loc: (1, 2, 3)\r\n");
    log_end_of_walk();
    EXPECT_EQ(batch.read("log.txt"), text += "End of Process Entities");
}

TEST_F(WalkLog, stays_empty_while_its_setting_is_off) {
    set_global_bool("bcomm_use_extraction_log_file", false);
    model_builder m;
    list_builder frame = m.root().group("Frame");
    frame.image(image_of(m, "Inside.png"));
    m.root().image(image_of(m, "Tree.png"));
    m.root().instance(m.component("Door"));
    EXPECT_EQ(log_of(m), "");
}

class WalkTrace : public run_fixture {
protected:
    // The traces of the steps of a walk, in their order; one of level 0 has nothing in front of its text. The model
    // holds two images and an edge, one of the images and no edge in a group, and a spot whose beams are walked on
    // their own.
    std::vector<std::string> steps(int edge_lines) {
        set_global_int("ivl_edge_lines", edge_lines);
        model_builder m;
        const auto picture = m.image_definition({1, 2, 3}, "picture.bmp", 2, 2);
        m.root().group().image(picture);
        m.root().image(picture);
        list_builder spot = m.component("spot");
        m.attribute(spot.list(), "qlw_lamp", "sorndll_lamp_type", sketchup::text("spot_beams"));
        spot.image(picture);
        m.root().instance(spot);
        const trace_capture trace;
        body_of(m);
        std::istringstream text(trace.text_without_line_numbers());
        std::vector<std::string> found;
        for (std::string line; std::getline(text, line);)
            if (line.find("before ") != std::string::npos)
                found.push_back(line);
        return found;
    }

    static constexpr const char* image = "traversal(#): SketchUpReader::ProcessEntities():: before ProcessImage";
    static constexpr const char* edges = "traversal(#): SketchUpReader::ProcessEntities():: before Edge Lines";
};

TEST_F(WalkTrace, tells_each_image_and_no_edges_while_they_are_off) {
    EXPECT_THAT(steps(0), testing::ElementsAre(image, image, image));
}

// The group's list, the spot's first walk, the model's own list.
TEST_F(WalkTrace, tells_the_edges_of_each_list_behind_its_images) {
    EXPECT_THAT(steps(1), testing::ElementsAre(image, edges, image, edges, image, edges));
}

} // namespace
