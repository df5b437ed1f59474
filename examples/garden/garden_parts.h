#pragma once

// The parts of the garden. Lengths are inches: x to the right, y away from the house, z up.

#include "sketchup/builder/model_builder.h"

inline constexpr double garden_width = 600;
inline constexpr double garden_depth = 480;

// What things are made of.
struct garden_materials {
    sketchup::index grass, gravel, soil, timber, stone, water, leaf;
};

garden_materials add_materials(sketchup::model_builder& m);

// Lawn with its ground cover, path, pond, and beds.
void add_ground(sketchup::model_builder& m, const garden_materials& use);
// Fence, pergola and bench, and the plane that cuts the fence open.
void add_timber(sketchup::model_builder& m, const garden_materials& use);
// Trees of a library, a shrub that brings its own file, a visitor from outside, and what is only scattered by the file
// beside the model: tufts, which are plants, and pebbles, which are not.
void add_plants(sketchup::model_builder& m, const garden_materials& use);

// A box of one material, as a group.
sketchup::list_builder add_box(sketchup::model_builder& m, sketchup::list_builder list, const char* name,
                               const sketchup::vec3& low, const sketchup::vec3& high, sketchup::index material);
