// What the garden stands on.

#include "garden_parts.h"

#include <cmath>
#include <numbers>

using namespace sketchup;

namespace {

constexpr double lawn_level = 0;
constexpr double path_level = 0.5;

void add_lawn(model_builder& m, const garden_materials& use) {
    list_builder lawn = m.root().group("Lawn");
    m.element(lawn.placement()).material = use.grass;
    m.element(lawn.placement()).layer = m.layer("Ground");
    m.attribute(lawn.placement(), "Vellane_object_properties", "sgroundcover_file", text("meadow.cover"));
    m.attribute(lawn.placement(), "Vellane_object_properties", "igroundcover_orientation", whole_number(1));
    const double z = lawn_level;
    lawn.face({{0, 0, z}, {garden_width, 0, z}, {garden_width, garden_depth, z}, {0, garden_depth, z}});
}

void add_path(model_builder& m, const garden_materials& use) {
    list_builder path = m.root().group("Path");
    m.element(path.placement()).material = use.gravel;
    const double z = path_level;
    path.face({{270, 0, z}, {330, 0, z}, {340, 200, z}, {280, 200, z}});
    path.face({{280, 200, z}, {340, 200, z}, {330, 400, z}, {270, 400, z}});
}

// In steps of a thousandth of an inch, so that the same model is made wherever sines differ in their last digit.
double rounded(double length) {
    return std::round(length * 1000) / 1000;
}

// A round pond; every second chord of its rim is smooth, so that the rim shows as a dashed line.
void add_pond(model_builder& m, const garden_materials& use) {
    constexpr int chords = 20;
    constexpr double radius = 60;
    list_builder pond = m.root().group("Pond", moved({470, 300, 1}));
    m.element(pond.placement()).material = use.water;
    std::vector<vec3> rim;
    for (int i = 0; i < chords; ++i) {
        const double angle = 2 * std::numbers::pi * i / chords;
        rim.push_back({rounded(radius * std::cos(angle)), rounded(radius * std::sin(angle)), 0});
    }
    pond.face(rim);
    for (int i = 0; i < chords; i += 2)
        m.edge(pond.edge(rim[static_cast<std::size_t>(i)], rim[static_cast<std::size_t>((i + 1) % chords)])).smooth =
            true;
}

void add_beds(model_builder& m, const garden_materials& use) {
    for (const double y : {80.0, 180.0, 280.0}) {
        list_builder bed = m.root().group("Bed", moved({60, y, 0}));
        add_box(m, bed, "Rim", {0, 0, 0}, {140, 50, 14}, use.stone);
        list_builder soil = bed.group("Soil", moved({0, 0, 14.5}));
        m.element(soil.placement()).material = use.soil;
        soil.face({{4, 4, 0}, {136, 4, 0}, {136, 46, 0}, {4, 46, 0}});
    }
}

} // namespace

void add_ground(model_builder& m, const garden_materials& use) {
    add_lawn(m, use);
    add_path(m, use);
    add_pond(m, use);
    add_beds(m, use);
}
