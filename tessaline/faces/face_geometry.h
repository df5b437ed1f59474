#pragma once

// The arithmetic of a face on its way to the world: points, normals, and corners that fall together.

#include "qlw/qlw_math.h"
#include "tessaline/model/transforms.h"

#include <span>

// The image of a point, in the unit of the point: x times row 0, plus y times row 1, plus z times row 2, plus row 3.
// There is no division: the weight of a placement in the walk is 1.
fpt transform_point(const transform16& matrix, const fpt& point);

// The unit world normal of a vertex. normal: in the model; parts nearer to zero than 1e-7 count as 0.
// point: the vertex's place in the world. It decides how the two directions that span the vertex's plane lie in it.
// The normal is the cross product of the images of those directions and not the image of the normal, which a scale that
// differs by axis would tilt. Zero if the images are co-linear; a mirroring matrix turns it round.
// A normal for which no plane can be laid through the point (cl_matrix::create_from_normal leaves the placement alone)
// takes the unit points of the x and y axes as they are, seen from the point.
fpt transform_normal(const transform16& matrix, const fpt& normal, const fpt& point);

// Whether two corners of a triangle fall together. world inches. Each component must agree to 1e-7, or, of large
// coordinates, to 1e-8 of the larger value.
bool corners_coincide(const fpt& p, const fpt& q);

// The directed ends of an edge.
struct edge_ends {
    fpt start;
    fpt end;
};

// The vector of the longest edge, the first one of several; (0, 1, 0) if there is none with a length. Only x runs from
// end to start, y and z run from start to end: nothing reads the vector, and its signs are kept as they always were.
fpt longest_edge_vector(std::span<const edge_ends> edges);
