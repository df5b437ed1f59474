// What grows in the garden, and what lies and stands about in it.

#include "garden_parts.h"

#include <initializer_list>
#include <utility>

using namespace sketchup;

namespace {

using values = std::initializer_list<std::pair<const char*, typed_value>>;

// A component that stands for a plant: in the model it is only a block of the plant's size.
list_builder add_plant(model_builder& m, const char* name, const vec3& size, sketchup::index leaf, values says) {
    list_builder plant = m.component(name);
    for (const entity_place& side : plant.box({-size.x / 2, -size.y / 2, 0}, {size.x / 2, size.y / 2, size.z}))
        m.element(side).material = leaf;
    for (const auto& [key, value] : says)
        m.attribute(plant.list(), "qlw_plant", key, value);
    return plant;
}

void add_trees(model_builder& m, const garden_materials& use) {
    const list_builder birch = add_plant(m, "Birch", {90, 90, 260}, use.leaf,
                                         {{"library", text("Broadleaf")},
                                          {"name", text("Silver Birch")},
                                          {"hgt_to_diam", real_number(2.6)},
                                          {"wid_to_diam", real_number(0.9)}});
    const list_builder maple = add_plant(m, "Maple", {120, 120, 200}, use.leaf,
                                         {{"library", text("Broadleaf")},
                                          {"name", text("Field Maple")},
                                          {"hgt_to_diam", real_number(1.6)},
                                          {"wid_to_diam", real_number(1)},
                                          {"season", whole_number(3)},
                                          {"season_override", truth(true)}});
    list_builder grove = m.root().group("Grove", moved({60, 400, 0}));
    m.element(grove.placement()).layer = m.layer("Trees");
    grove.instance(birch);
    grove.instance(birch, after(moved({80, 20, 0}), scaled(0.8, 0.8, 0.8)));
    m.root().instance(maple, after(moved({520, 420, 0}), turned_about_z(45)));
    m.element(m.root().instance(maple, moved({300, 240, 0}))).hidden = true; // felled for the path
}

// The shrub travels with the model: its file is the text "A shrub of thirty leaves." in base64.
void add_shrubs(model_builder& m, const garden_materials& use) {
    const list_builder shrub = add_plant(m, "box-shrub.plant", {30, 30, 36}, use.leaf,
                                         {{"ornplant_name", text("box-shrub.plant")},
                                          {"ornplant_data64", text("QSBzaHJ1YiBvZiB0aGly\ndHkgbGVhdmVzLg==\n")}});
    for (const double x : {250.0, 350.0})
        m.root().instance(shrub, moved({x, 20, 0}));
}

void add_visitor(model_builder& m) {
    list_builder visitor = m.component("Visitor");
    visitor.box({-9, -5, 0}, {9, 5, 66});
    m.attribute(visitor.list(), "ArchVision RPC", "Name", text("Visitor"));
    m.attribute(visitor.list(), "ArchVision RPC", "RPCTypeId", text("visitor-12"));
    m.root().instance(visitor, after(moved({305, 120, 0}), turned_about_z(90)));
}

// Placed by the file of scattered components alone. The edges of pebbles are soft, as those of round things are. The
// file of the tufts is the text "A tuft of fescue.".
void add_scattered(model_builder& m, const garden_materials& use) {
    list_builder pebble = m.component("Pebble");
    for (const entity_place& side : pebble.box({-3, -2, 0}, {3, 2, 2}))
        m.element(side).material = use.stone;
    for (const sketchup::index each : m.definition(pebble).entities.edges)
        m.model().edges[each].soft = true;
    add_plant(m, "Tuft", {8, 8, 10}, use.leaf,
              {{"ornplant_name", text("tuft.plant")}, {"ornplant_data64", text("QSB0dWZ0IG9mIGZlc2N1ZS4=")}});
}

} // namespace

void add_plants(model_builder& m, const garden_materials& use) {
    add_trees(m, use);
    add_shrubs(m, use);
    add_visitor(m);
    add_scattered(m, use);
}
