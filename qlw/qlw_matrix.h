#pragma once

// A placement in space that keeps both directions at once, so that neither is computed twice.

#include "qlw/qlw_math.h"

#include <array>
#include <cstdint>

using matrix4 = std::array<std::array<double, 4>, 4>; // [row][column]

inline constexpr matrix4 identity4{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};

// Constructed as the identity. A plain value: copy and assign it freely.
class cl_matrix {
public:
    // Makes the placement whose local origin is `point` and whose local x and y run along the given vectors.
    // x_axis: becomes unit length. y_axis: is replaced by the unit vector square to x in the plane of the two.
    // scale: local units for one world unit, along each axis.
    // Gives false, with matrix and vectors as they were, if y_axis is zero or the two are co-linear; the latter is
    // reported at level 1.
    bool create_from_vectors(const fpt& point, fpt& x_axis, fpt& y_axis, const fpt& scale);

    // Makes a placement in the plane through `point` with that normal. normal: any length.
    // How it lies in that plane depends on where the point is. A normal that is parallel to the helper point (see the
    // body) leaves the matrix as it stands. Always gives true.
    bool create_from_normal(const fpt& point, const fpt& normal);

    // Multiplies the columns of `forward` and divides the rows of `inverse`; a row is not divided by a scale of 0.
    void scale(double sx, double sy, double sz);

    // The local point of a world point.
    fpt forward_transform(const fpt& world) const;

    // The world point of a local point; a component below 1e-8 in size becomes exactly 0.
    fpt inverse_transform(const fpt& local) const;

    // Fills the 3 by 3 part of `forward` with the inverse of that of `inverse`.
    // Gives 1, or 0 with nothing changed if the determinant is exactly 0.
    int invert_axes();

    // The scale along each axis of `forward`; x carries the sign, negative if the placement is mirrored along any one
    // axis. Fills `rotation`; a column of zero scale stays as it was.
    fpt decompose_scale();

    fpt base_point;               // not used by the mappings
    fpt origin;                   // world point subtracted before `forward` and added after `inverse`
    matrix4 forward = identity4;  // 3 by 3: world offset to local, on column vectors; row 3: translation added after it
    matrix4 inverse = identity4;  // 3 by 3: local to world; column c is local axis c in world terms
    matrix4 rotation = identity4; // the 3 by 3 part of `forward` without its scale
    std::int32_t flags = 0;       // not used by the mappings
};

// Two points beside a point, one along each of the local axes.
struct axis_points {
    fpt x;
    fpt y;
};

// Where a new placement puts the local points (1, 0, 0) and (0, 1, 0) once create_from_normal(point, normal) has laid
// it: the two results of inverse_transform, to the last bit, without the placement, of which a vertex needs no more.
axis_points axis_points_of_plane(const fpt& point, const fpt& normal);
