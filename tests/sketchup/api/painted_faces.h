#pragma once

// Faces with textures in every way they can lie.

#include "sketchup/builder/model_builder.h"

#include <array>

// A 10 × 20 inch tile.
inline sketchup::index brick(sketchup::model_builder& builder) {
    return builder.textured_material("Brick", {}, "brick.png", 10, 20);
}

// Positions the texture of a side by a 3 × 3 matrix.
inline void position(sketchup::model_builder& builder, sketchup::entity_place face,
                     sketchup::side_mapping sketchup::texture_mapping::*side, const std::array<double, 9>& matrix) {
    sketchup::model& m = builder.model();
    if (builder.face(face).texture_mapping == sketchup::no_index) {
        m.texture_mappings.emplace_back();
        builder.face(face).texture_mapping = static_cast<sketchup::index>(m.texture_mappings.size() - 1);
    }
    sketchup::side_mapping& mapping = m.texture_mappings[builder.face(face).texture_mapping].*side;
    mapping.positioned = true;
    mapping.matrix = matrix;
}

inline constexpr std::array<double, 9> moved_by_1_2 = {1, 0, 0, 0, 1, 0, 1, 2, 1};
inline constexpr std::array<double, 9> distorted = {1, 0, 0.1, 0, 1, 0, 0, 0, 1};
