// The lamps of the room: one of every type, each where such a lamp would hang.

#include "room_parts.h"

#include <initializer_list>
#include <utility>

using namespace sketchup;

namespace {

using values = std::initializer_list<std::pair<const char*, typed_value>>;

// Makes a lamp of the object; the type comes first.
void make_lamp(model_builder& m, entity_place object, const char* type, values more) {
    m.attribute(object, "qlw_lamp", "sorndll_lamp_type", text(type));
    for (const auto& [key, value] : more)
        m.attribute(object, "qlw_lamp", key, value);
}

void paint(model_builder& m, const list_builder& group, sketchup::index material) {
    m.element(group.placement()).material = material;
}

// The cord and the bulb of a pendant above the table. A direct light: its shape is written, its light is a point.
void add_pendant(model_builder& m, const room_materials& use) {
    add_box(m, m.root(), "Cord", {89.75, 68.75, 72}, {90.25, 69.25, room_height}, use.walnut);
    list_builder bulb = m.root().group("Pendant bulb", moved({90, 69, 66}));
    paint(m, bulb, use.shade);
    add_turned(bulb, {0, 0, 0}, {{-3, 0}, {0, 3}, {6, 1}}, 8);
    make_lamp(m, bulb.placement(), "bulb",
              {{"rorndll_lamp_intensity", real_number(75)}, {"cqlw_lamp_color", text("#fff1d6")}});
}

// A globe on a stand beside the sofa, which glows as a whole.
void add_floor_lamp(model_builder& m, const room_materials& use) {
    list_builder stand = m.root().group("Stand", moved({160, 132, 0}));
    paint(m, stand, use.brass);
    add_turned(stand, {0, 0, 0}, {{0, 7}, {1, 7}}, 8);
    add_turned(stand, {0, 0, 1}, {{0, 0.5}, {51, 0.5}}, 6, false);
    list_builder globe = m.root().group("Globe", moved({160, 132, 60}));
    paint(m, globe, use.shade);
    add_turned(globe, {0, 0, 0}, {{-8, 0}, {-5.5, 5.5}, {0, 8}, {5.5, 5.5}, {8, 0}}, 8);
    make_lamp(m, globe.placement(), "bulb_glow",
              {{"rorndll_lamp_intensity_lumens", real_number(850)}, {"ivl_lamp_channel", whole_number(2)}});
}

// A lamp that shines down hangs upside down: its z axis is the direction of its light.
constexpr transform looking_down(double x, double y, double z) {
    return {1, 0, 0, 0, 0, -1, 0, 0, 0, 0, -1, 0, x, y, z, 1};
}

// Two spots in the ceiling ahead of the bookshelf; the second is dimmed where it is placed.
void add_spots(model_builder& m, const room_materials& use) {
    list_builder spot = m.component("Spot");
    add_turned(spot, {0, 0, 0}, {{0, 2.5}, {2, 2}}, 8);
    make_lamp(m, spot.list(), "spot",
              {{"rorndll_lamp_beam_angle", real_number(30)},
               {"rorndll_lamp_field_angle", real_number(45)},
               {"rorndll_lamp_size", real_number(2.5)},
               {"spotlight_shape", text("round")}});
    list_builder root = m.root();
    const entity_place first = root.instance(spot, looking_down(20, 126, room_height), "Left spot");
    m.element(first).material = use.brass;
    m.attribute(first, "qlw_placement_settings", "intensity_override_value", real_number(50));
    const entity_place second = root.instance(spot, looking_down(42, 126, room_height), "Right spot");
    m.element(second).material = use.brass;
    m.attribute(second, "qlw_placement_settings", "intensity_override_mode", text("lumens"));
    m.attribute(second, "qlw_placement_settings", "intensity_override_value", real_number(425));
}

// A downlight whose disc glows, above the sofa.
void add_downlight(model_builder& m, const room_materials& use) {
    list_builder light = m.root().group("Downlight", looking_down(162, 78, room_height - 0.5));
    paint(m, light, use.shade);
    add_turned(light, {0, 0, 0}, {{0, 4}, {0.5, 4}}, 8);
    make_lamp(m, light.placement(), "spot_glow",
              {{"rorndll_lamp_intensity", real_number(40)},
               {"rorndll_lamp_beam_angle", real_number(60)},
               {"rorndll_lamp_field_angle", real_number(40)}});
}

// A spot on the painting with the glow of its beam, which stands outside the lamp's block, and a helper shape, which is
// never shown.
void add_spot_with_beams(model_builder& m, const room_materials& use) {
    list_builder spot = m.component("Spot with beams");
    add_turned(spot, {0, 0, 0}, {{0, 2}, {3, 2.5}}, 8);
    const sketchup::index glow_layer = m.layer("QLW_Lamp_Beam_Glow");
    const sketchup::index helper_layer = m.layer("QLW_Lamp_Beams");
    list_builder glow = spot.group("Beam glow");
    paint(m, glow, use.beam);
    m.element(glow.placement()).layer = glow_layer;
    add_turned(glow, {0, 0, 3}, {{0, 2}, {24, 12}}, 8, false);
    m.element(spot.face({{-12, 0, 27}, {12, 0, 27}, {0, 0, 3}})).layer = helper_layer;
    make_lamp(m, spot.list(), "spot_beams",
              {{"rorndll_beam_length", real_number(27)},
               {"rorndll_lamp_beam_angle", real_number(45)},
               {"rorndll_lamp_field_angle", real_number(50)},
               {"rorndll_lamp_intensity", real_number(35)}});
    m.element(m.root().instance(spot, looking_down(127, 138, room_height), "Picture light")).material = use.brass;
}

// One face of the ceiling that is a lamp of its own, colder than its paint.
void add_ceiling_face(model_builder& m, const room_materials& use) {
    const double z = room_height - 0.25;
    const entity_place face = m.root().face({{70, 30, z}, {70, 50, z}, {110, 50, z}, {110, 30, z}});
    m.element(face).material = use.shade;
    make_lamp(m, face, "rect",
              {{"cqlw_lamp_color", text("rgb(220,235,255)")},
               {"rorndll_lamp_intensity", real_number(30)},
               {"rorndll_lamp_length", real_number(40)},
               {"rorndll_lamp_width", real_number(20)}});
}

// A panel in a frame on the ceiling; with channel 0 it joins the lamps of the ceiling.
void add_ceiling_panel(model_builder& m, const room_materials& use) {
    list_builder panel = m.root().group("Ceiling panel", looking_down(90, 110, room_height - 2));
    paint(m, panel, use.shade);
    panel.box({-24, -12, -2}, {24, 12, 0});
    make_lamp(m, panel.placement(), "rect_glow",
              {{"ivl_lamp_channel", whole_number(0)},
               {"rorndll_lamp_intensity", real_number(60)},
               {"rorndll_lamp_length", real_number(48)},
               {"rorndll_lamp_width", real_number(24)}});
}

// A strip of light under the top of the bookshelf, unseen itself.
void add_strip(model_builder& m, const room_materials& use) {
    list_builder strip = m.root().group("Strip", looking_down(29, 139, 70));
    paint(m, strip, use.shade);
    strip.box({-18, -0.5, 0}, {18, 0.5, 0.5});
    make_lamp(m, strip.placement(), "linear_glow",
              {{"bvl_lamp_hide", truth(true)},
               {"ivl_lamp_channel", whole_number(5)},
               {"rorndll_lamp_intensity", real_number(18)},
               {"rorndll_lamp_length", real_number(36)}});
}

// A round wall lamp above the sofa that takes its colour from its paint.
void add_wall_lamp(model_builder& m, const room_materials& use) {
    const transform on_right_wall = {0, -1, 0, 0, 0, 0, 1, 0, -1, 0, 0, 0, room_width, 40, 66, 1};
    list_builder lamp = m.root().group("Wall lamp", on_right_wall);
    paint(m, lamp, use.cushion);
    add_turned(lamp, {0, 0, 0}, {{0, 7}, {1.5, 6}}, 12);
    make_lamp(m, lamp.placement(), "round_glow", {{"rorndll_lamp_size", real_number(14)}});
    m.attribute(lamp.placement(), "Vellane_object_properties", "lamp_color", text("object"));
    m.attribute(lamp.placement(), "Vellane_object_properties", "lamp_intensity", real_number(25));
}

// Three warm fields in a row share one block of the stream; the cold one behind them has its own.
void add_glowing_panel(model_builder& m, const room_materials& use) {
    add_box(m, m.root(), "Panel frame", {54, room_depth - 1, 50}, {94, room_depth, 80}, use.walnut);
    const double y = room_depth - 1.25;
    list_builder panel = m.root().group("Glowing panel");
    for (int field = 0; field < 4; ++field) {
        const double x = 56 + field * 9.25;
        const entity_place face = panel.face({{x, y, 52}, {x + 8.25, y, 52}, {x + 8.25, y, 78}, {x, y, 78}});
        m.element(face).material = field < 3 ? use.glow_warm : use.glow_cold;
    }
}

} // namespace

void add_lamps(model_builder& m, const room_materials& use) {
    add_pendant(m, use);
    add_floor_lamp(m, use);
    add_spots(m, use);
    add_downlight(m, use);
    add_spot_with_beams(m, use);
    add_ceiling_face(m, use);
    add_ceiling_panel(m, use);
    add_strip(m, use);
    add_wall_lamp(m, use);
    add_glowing_panel(m, use);
}
