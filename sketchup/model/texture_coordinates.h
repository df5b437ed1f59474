#pragma once

// Where a picture lies on a face: from a point to texture coordinates.

#include "sketchup/model/model.h"

#include <array>

namespace sketchup {

// Texture coordinates with their homogeneous part: the picture is looked up at (u / q, v / q), v upwards, one tile from
// 0 to 1. q is 1 unless the mapping is a perspective one, where it may be anything, zero included.
struct uvq {
    double u = 0;
    double v = 0;
    double q = 0;
    friend bool operator==(const uvq&, const uvq&) = default;
};

enum class face_side { front, back };

// The two unit axes in which texture positions on a plane are measured.
struct plane_axes {
    vec3 u;
    vec3 v;
};

// The axes of the plane across a unit direction n: u = Z × n, v = n × u. Where the plane is level, that is the sine of
// its tilt is below 0.001, u = Y × n instead: (1, 0, 0) looking up, (-1, 0, 0) looking down. The limit lies between
// tilts of real models that follow the one rule and the other.
plane_axes axes_of_plane(const vec3& n);

// The material and the texture of a side: null if it has none of its own.
const material* material_of_side(const model& m, const face& f, face_side side);
const texture* texture_of_side(const model& m, const face& f, face_side side);

// The side of a tile in inches as it is divided by: 1 for a stored size of zero or none at all.
double tile_size(double stored);

// How the texture of a side was placed by hand; the default mapping if it was not.
const side_mapping& mapping_of_side(const model& m, const face& f, face_side side);

// Whether the mapping keeps parallels: q is the same everywhere. Moving, turning, scaling and skewing do, a perspective
// distortion doesn't. Of a projected side the mapping alone is judged.
bool is_affine(const side_mapping& mapping);

// A mapping made ready: one object serves all points of a face side.
class side_coordinates {
public:
    // Plain inches in the axes of the plane across `normal`, as of a side without texture.
    explicit side_coordinates(const vec3& normal);

    // A texture with tiles of width × height inches, placed by `mapping` on a face of this unit normal. A mapping that
    // has no inverse counts as not positioned, a projection without direction as none, a tile size of zero as 1.
    side_coordinates(const vec3& normal, const side_mapping& mapping, double width, double height);

    // The coordinates at a point in the space of the list that holds the face; the point need not lie on the face.
    uvq at(const vec3& point) const;

private:
    plane_axes axes_;
    std::array<double, 9> inverse_{1, 0, 0, 0, 1, 0, 0, 0, 1}; // [x y 1] · inverse = [s t q], row by row
    bool is_affine_ = true;
    double width_ = 1;
    double height_ = 1;
};

// The coordinates of one side of a face as the host gives them. Front and back use the same axes, those of the front
// normal, so that an unplaced back is not mirrored. A side without texture of its own gives inches, even where a
// placement by hand has outlived its texture.
side_coordinates coordinates_of_side(const model& m, const face& f, face_side side);

} // namespace sketchup
