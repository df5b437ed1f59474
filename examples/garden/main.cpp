// Writes the model of a garden: lawn, path, pond, beds, fence and pergola, plants and pebbles, cut by a section plane.

#include "examples/write_model.h"
#include "garden_parts.h"

using namespace sketchup;

garden_materials add_materials(model_builder& m) {
    garden_materials made{};
    made.grass = m.material("Grass", {104, 142, 64, 255});
    made.gravel = m.material("Gravel", {196, 188, 170, 255});
    made.soil = m.material("Soil", {92, 66, 48, 255});
    made.timber = m.material("Timber", {150, 108, 70, 255});
    made.stone = m.material("Stone", {150, 150, 144, 255});
    made.water = m.material("Water", {70, 120, 140, 160}, 0.6);
    made.leaf = m.material("Leaf", {60, 110, 50, 255});
    return made;
}

list_builder add_box(model_builder& m, list_builder list, const char* name, const vec3& low, const vec3& high,
                     sketchup::index material) {
    list_builder group = list.group(name);
    m.element(group.placement()).material = material;
    group.box(low, high);
    return group;
}

int main(int argc, char** argv) {
    model_builder m;
    const garden_materials use = add_materials(m);
    add_ground(m, use);
    add_timber(m, use);
    add_plants(m, use);
    camera& view = m.model().camera; // the same as that of the view file, which is in metres
    view.eye = {300, -300, 200};
    view.target = {300, 240, 20};
    view.field_of_view = 40;
    return write_model(argc, argv, m);
}
