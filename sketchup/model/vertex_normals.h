#pragma once

// The normals of a face's mesh: flat, or smoothed over edges that are marked smooth.

#include "sketchup/model/model.h"
#include "sketchup/model/triangulate.h"

#include <vector>

namespace sketchup {

// The smoothed normals of all corners of a model, found once. The faces around a vertex that can be reached from one
// another by crossing smooth edges form a fan; its normal is the sum of the faces' normals, each weighted by the angle
// of the face at the vertex. A face whose front looks the other way than its neighbour's is turned for the sum, and
// gets the fan's normal turned back. Soft edges that are not smooth part fans as hard ones do. All fans together take
// time and memory in proportion to the corners of the model, whatever the number of faces at one vertex, because
// corners are united in a disjoint-set forest and not walked around.
class vertex_normals {
public:
    // `m` must be linked and must outlive this object unchanged.
    explicit vertex_normals(const model& m);

    // The unit normal of a face at one of its corners (a position in model::edge_uses), pointing to the face's front.
    // The face's own normal if no smooth edge ends there or the sum has no direction.
    vec3 at(const face& f, index corner) const;

    // Fills `normals` with one normal for each vertex of the face's mesh. A vertex that is no corner gets the face's
    // own.
    void of_mesh(const face& f, const face_mesh& mesh, std::vector<vec3>& normals) const;

private:
    // A fan's number in `fan_normals_`, its top bit set where the face looks against the fan; no_index without a fan.
    // Empty if the model has no smooth edge.
    std::vector<index> fan_of_corner_;
    std::vector<vec3> fan_normals_; // unit, or zero without direction
};

} // namespace sketchup
