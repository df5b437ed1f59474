// Lamps among other placements: where their blocks end, and what a lamp holds beside its own faces.

#include "tests/tessaline/run_fixture.h"

#include <algorithm>

namespace {

using sketchup::list_builder;
using sketchup::model_builder;
using sketchup::text;
using testing::ElementsAre;

class NestedLamps : public run_fixture {
protected:
    static void make_lamp(model_builder& m, sketchup::entity_place owner, const char* type) {
        m.attribute(owner, "qlw_lamp", "sorndll_lamp_type", text(type));
    }
    static void square_on(model_builder& m, list_builder list, const char* layer) {
        m.element(list.square(10)).layer = m.layer(layer);
    }
    // The values of the material that a line of the stream declares.
    std::string file_of_material(const std::string& line) const {
        const std::string stem = line.substr(5, line.find(".OrnMaterial") - 5);
        return batch.read("ZynBatch_Materials/" + stem + ".qlobj");
    }
};

TEST_F(NestedLamps, a_lamp_two_groups_down_ends_with_its_own_group) {
    model_builder m;
    list_builder outer = m.root().group();
    list_builder inner = outer.group();
    list_builder lamp = inner.group();
    make_lamp(m, lamp.placement(), "rect");
    lamp.square(10);
    square_on(m, inner, "after");
    square_on(m, outer, "last");
    const auto lines = body_of(m);
    EXPECT_THAT(tagged(lines, "LITE"), ElementsAre("LITE;0"));
    EXPECT_THAT(tagged(lines, "TLAY"), ElementsAre("TLAY;Layer0", "TLAY;after", "TLAY;last"));
    EXPECT_THAT(tagged(lines, "EMSH"), ElementsAre("EMSH; END OF LAMP", "EMSH;", "EMSH; Face", "EMSH;"));
    EXPECT_THAT(tagged(lines, "ADDV"), ElementsAre("ADDV;0", "ADDV;1", "ADDV;2", "ADDV;3", "ADDV;0", "ADDV;1", "ADDV;2",
                                                   "ADDV;3", "ADDV;0", "ADDV;1", "ADDV;2", "ADDV;3"));
}

TEST_F(NestedLamps, a_group_inside_a_lamp_two_groups_down_leaves_its_block_open) {
    model_builder m;
    list_builder lamp = m.root().group().group().group();
    make_lamp(m, lamp.placement(), "rect");
    square_on(m, lamp.group(), "inside");
    square_on(m, lamp, "behind");
    const auto lines = body_of(m);
    EXPECT_THAT(tagged(lines, "TLAY"), ElementsAre("TLAY;inside", "TLAY;behind"));
    EXPECT_THAT(tagged(lines, "EMSH"), ElementsAre("EMSH; END OF LAMP"));
}

// The part inherits the type of the group around it, but stands in its open block; the panel is a lamp without beams.
TEST_F(NestedLamps, a_component_in_an_open_block_wants_no_second_walk_of_the_lamp_behind_it) {
    model_builder m;
    list_builder part = m.component("part");
    square_on(m, part, "shade");
    list_builder spot = m.root().group();
    make_lamp(m, spot.placement(), "spot_beams");
    spot.instance(part);
    list_builder panel = m.component("panel");
    make_lamp(m, panel.list(), "rect");
    square_on(m, panel, "panel");
    square_on(m, panel, "QLW_Lamp_Beam_Glow");
    m.root().instance(panel);
    const auto lines = body_of(m);
    EXPECT_THAT(tagged(lines, "LITE"), ElementsAre("LITE;0", "LITE;1"));
    EXPECT_THAT(tagged(lines, "TLAY"), ElementsAre("TLAY;shade", "TLAY;panel"));
    EXPECT_THAT(tagged(lines, "EMSH"), ElementsAre("EMSH; END OF LAMP", "EMSH; END OF LAMP"));
    EXPECT_FALSE(reader.blocks.state().beam_pass_wanted);
}

// Both walks over the lamp meet them. The turns of the two plants are the first and the second number of the chance
// sequence: 147.6 and 241.2 degrees.
TEST_F(NestedLamps, a_plant_and_an_outside_object_in_a_spot_with_beams_stand_in_both_walks) {
    set_global_bool("bvl_plant_random_rotation", true);
    model_builder m;
    list_builder oak = m.component("oak");
    oak.square(10);
    m.attribute(oak.list(), "qlw_plant", "library", text("Trees"));
    list_builder car = m.component("car");
    car.square(10);
    m.attribute(car.list(), "ArchVision RPC", "Name", text("Car"));
    list_builder lamp = m.component("lamp");
    make_lamp(m, lamp.list(), "spot_beams");
    square_on(m, lamp, "QLW_Lamp_Beam_Glow");
    lamp.instance(oak);
    lamp.instance(car);
    m.root().instance(lamp);
    const auto lines = body_of(m);
    const auto end_of_lamp = std::find(lines.begin(), lines.end(), "EMSH; END OF LAMP");
    ASSERT_NE(end_of_lamp, lines.end());
    const std::vector<std::string> first(lines.begin(), end_of_lamp);
    const std::vector<std::string> second(end_of_lamp, lines.end());
    EXPECT_THAT(tagged(first, "PLRT"), ElementsAre("PLRT;147.600000"));
    EXPECT_THAT(tagged(second, "PLRT"), ElementsAre("PLRT;241.200000"));
    EXPECT_THAT(tagged(first, "RPCP"), ElementsAre("RPCP;(0,0,0)"));
    EXPECT_THAT(tagged(second, "RPCP"), ElementsAre("RPCP;(0,0,0)"));
}

// 60 percent: a reflection of 0.6.
TEST_F(NestedLamps, the_attributes_of_a_lamp_inside_a_lamp_apply_to_its_faces) {
    model_builder m;
    list_builder outer = m.root().group();
    make_lamp(m, outer.placement(), "rect");
    list_builder inner = outer.group();
    make_lamp(m, inner.placement(), "bulb");
    m.attribute(inner.placement(), "qlw_overrides", "reflection", sketchup::whole_number(60));
    const auto face = inner.square(10);
    m.element(face).material = m.face(face).back_material = m.material("Red", {200, 30, 20, 255});
    const auto lines = body_of(m);
    EXPECT_THAT(tagged(lines, "LITE"), ElementsAre("LITE;0"));
    const auto named = tagged(lines, "MATF;");
    ASSERT_EQ(named.size(), 1u);
    EXPECT_THAT(file_of_material(named[0]), testing::HasSubstr("Refl: 0.6\r\n"));
}

TEST_F(NestedLamps, the_attributes_of_a_component_inside_a_lamp_and_of_its_placement_apply_to_its_faces) {
    model_builder m;
    list_builder lamp = m.root().group();
    make_lamp(m, lamp.placement(), "rect");
    for (const bool on_placement : {true, false}) {
        list_builder part = m.component(on_placement ? "first" : "second");
        const auto face = part.square(10);
        m.element(face).material = m.face(face).back_material =
            m.material(on_placement ? "Red" : "Green", {200, 30, 20, 255});
        const auto placement = lamp.instance(part);
        m.attribute(on_placement ? placement : part.list(), "qlw_overrides", "reflection",
                    sketchup::whole_number(on_placement ? 60 : 30));
    }
    const auto named = tagged(body_of(m), "MATF;");
    ASSERT_EQ(named.size(), 2u);
    EXPECT_THAT(file_of_material(named[0]), testing::HasSubstr("Refl: 0.6\r\n"));
    EXPECT_THAT(file_of_material(named[1]), testing::HasSubstr("Refl: 0.3\r\n"));
}

} // namespace
