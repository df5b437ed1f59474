#pragma once

// The parts of the furnished room. Lengths are inches: x to the right, y away from the camera, z up.

#include "sketchup/builder/model_builder.h"

#include <cstdint>
#include <vector>

inline constexpr double room_width = 180;
inline constexpr double room_depth = 150;
inline constexpr double room_height = 100;

// What things are made of.
struct room_materials {
    sketchup::index plaster, oak_floor, walnut, linen, cushion, brass, glass, mirror, glow_warm, glow_cold, shade, rug,
        beam, leaf, clay;
};

// The picture files of the floor and of the painting, drawn here and written as BMP, which has one way to be written.
std::vector<std::uint8_t> floor_picture();
std::vector<std::uint8_t> harbour_picture();

room_materials add_materials(sketchup::model_builder& m);

// Walls, floor, ceiling, and the window with its glass.
void add_shell(sketchup::model_builder& m, const room_materials& use);
// Table, chairs, sofa, shelf, rug, mirror, painting, a potted plant.
void add_furniture(sketchup::model_builder& m, const room_materials& use);
// A lamp of every type, and a glowing panel.
void add_lamps(sketchup::model_builder& m, const room_materials& use);

// ---- shapes

// A box of one material, as a group.
sketchup::list_builder add_box(sketchup::model_builder& m, sketchup::list_builder list, const char* name,
                               const sketchup::vec3& low, const sketchup::vec3& high, sketchup::index material);

// The outward sides of an upright drum or cone: a ring of that radius at each height, from the lowest up; a radius of 0
// is a point. Each end that is no point is closed if `closed`. sides: at least 3.
struct ring {
    double z;
    double radius;
};
void add_turned(sketchup::list_builder list, const sketchup::vec3& foot, const std::vector<ring>& rings, int sides,
                bool closed = true);
