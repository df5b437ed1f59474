// Writes the model of a small house that is built in stages, each on a layer of its own: what an animation switches on
// one after the other. All stages but the first are switched off in the model, and openings lie inside walls inside the
// house inside the site, so that layers nest four deep.

#include "examples/write_model.h"

using namespace sketchup;

namespace {

struct stage_layers {
    sketchup::index site, house, foundation, walls, openings, roof, scaffold;
};

struct stage_materials {
    sketchup::index earth, concrete, plaster, glass, tiles, steel;
};

stage_layers add_layers(model_builder& m) {
    stage_layers made{};
    made.site = m.layer("Site");
    made.house = m.layer("House");
    made.foundation = m.layer("Stage 1 Foundation");
    made.walls = m.layer("Stage 2 Walls", false);
    made.openings = m.layer("Stage 3 Openings", false);
    made.roof = m.layer("Stage 4 Roof", false);
    made.scaffold = m.layer("Scaffold", false);
    return made;
}

stage_materials add_materials(model_builder& m) {
    stage_materials made{};
    made.earth = m.material("Earth", {150, 130, 100, 255});
    made.concrete = m.material("Concrete", {170, 170, 168, 255});
    made.plaster = m.material("Plaster", {228, 222, 208, 255});
    made.glass = m.material("Glass", {160, 200, 210, 90}, 0.35);
    made.tiles = m.material("Tiles", {168, 84, 62, 255});
    made.steel = m.material("Steel", {110, 116, 122, 255});
    return made;
}

list_builder add_group(model_builder& m, list_builder list, const char* name, sketchup::index layer,
                       sketchup::index material, const transform& where = identity_transform) {
    list_builder group = list.group(name, where);
    m.element(group.placement()).layer = layer;
    m.element(group.placement()).material = material;
    return group;
}

// The windows share one component, which stands on "Layer0" and so on the layer of the group that holds it.
void add_openings(model_builder& m, list_builder walls, const stage_layers& on, const stage_materials& of) {
    list_builder window = m.component("Window");
    window.face({{0, 0, 0}, {40, 0, 0}, {40, 0, 50}, {0, 0, 50}});
    list_builder openings = add_group(m, walls, "Openings", on.openings, of.glass);
    for (const double x : {30.0, 130.0})
        openings.instance(window, moved({x, -0.5, 36}));
    openings.instance(window, after(moved({200.5, 60, 36}), turned_about_z(90)));
}

void add_walls(model_builder& m, list_builder house, const stage_layers& on, const stage_materials& of) {
    list_builder walls = add_group(m, house, "Walls", on.walls, of.plaster, moved({0, 0, 12}));
    const double w = 200;
    const double d = 160;
    const double h = 108;
    walls.face({{0, 0, 0}, {w, 0, 0}, {w, 0, h}, {0, 0, h}});
    walls.face({{w, 0, 0}, {w, d, 0}, {w, d, h}, {w, 0, h}});
    walls.face({{w, d, 0}, {0, d, 0}, {0, d, h}, {w, d, h}});
    walls.face({{0, d, 0}, {0, 0, 0}, {0, 0, h}, {0, d, h}});
    add_openings(m, walls, on, of);
}

void add_roof(model_builder& m, list_builder house, const stage_layers& on, const stage_materials& of) {
    list_builder roof = add_group(m, house, "Roof", on.roof, of.tiles, moved({-10, -10, 120}));
    roof.face({{0, 0, 0}, {220, 0, 0}, {220, 90, 60}, {0, 90, 60}});
    roof.face({{220, 180, 0}, {0, 180, 0}, {0, 90, 60}, {220, 90, 60}});
}

// Poles are nothing but painted edges.
void add_scaffold(model_builder& m, list_builder site, const stage_layers& on, const stage_materials& of) {
    list_builder scaffold = add_group(m, site, "Scaffold", on.scaffold, of.steel, moved({90, 80, 0}));
    for (double x = 0; x <= 220; x += 55)
        m.element(scaffold.edge({x, 0, 0}, {x, 0, 140})).material = of.steel;
    for (const double z : {50.0, 100.0})
        m.element(scaffold.edge({-10, 0, z}, {230, 0, z})).material = of.steel;
}

} // namespace

int main(int argc, char** argv) {
    model_builder m;
    const stage_layers on = add_layers(m);
    const stage_materials of = add_materials(m);
    list_builder site = add_group(m, m.root(), "Site", on.site, of.earth);
    site.face({{0, 0, 0}, {400, 0, 0}, {400, 360, 0}, {0, 360, 0}});
    list_builder house = add_group(m, site, "House", on.house, of.concrete, moved({100, 100, 0}));
    add_group(m, house, "Foundation", on.foundation, of.concrete).box({-6, -6, 0}, {206, 166, 12});
    add_walls(m, house, on, of);
    add_roof(m, house, on, of);
    add_scaffold(m, site, on, of);
    camera& view = m.model().camera; // the same as that of the view file, which is in metres
    view.eye = {500, -300, 350};
    view.target = {200, 180, 60};
    view.perspective = false;
    view.height = 420;
    return write_model(argc, argv, m);
}
