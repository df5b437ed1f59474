#pragma once

// The triangles that cover a face, in the order and with the vertex numbering of the host.

#include "sketchup/model/loop_corners.h"
#include "sketchup/model/model.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace sketchup {

// The mesh of one face, in the space of the list that holds the face.
struct face_mesh {
    std::vector<vec3> vertices; // inches, in the order of their first use by a triangle
    // For each vertex the corner it stands for, as a position in model::edge_uses (of the raw form: in its points);
    // with several corners at one point, one of them. no_index for a vertex that lies where lines of the outline cross.
    std::vector<index> corners;
    std::vector<std::uint32_t> triangles; // three vertices each, counter-clockwise seen against the face's normal

    void clear();
};

// Makes meshes of faces. Keeps its scratch memory, so that a further face costs no allocation; one object serves one
// thread. The sweep is that of libGLU's tessellator with the face normal, the odd winding rule and independent
// triangles, which is what the host runs: triangles and vertex numbers agree one for one. Triangles and convex
// quadrilaterals, the bulk of every model, take a short cut with the same result.
class tessellator {
public:
    tessellator();
    ~tessellator();
    tessellator(const tessellator&) = delete;
    tessellator& operator=(const tessellator&) = delete;

    // Fills `out` with the mesh of a face, whose loops may run in any direction and begin at any corner. Collinear
    // corners stay vertices, corners at one point become one vertex. A face without area gives an empty mesh; so does
    // one with a missing corner, with a corner or a normal that is not finite or beyond 1e100, and one that crosses
    // itself so often that its mesh would be out of all proportion (see sweep_cost.h). Never fails.
    void triangulate(const model& m, const face& f, face_mesh& out);

    // The same over bare points: `points` holds the loops one after the other, `loop_sizes` how many points each has.
    // normal: of any length but zero, which gives an empty mesh.
    void triangulate(std::span<const vec3> points, std::span<const index> loop_sizes, const vec3& normal,
                     face_mesh& out);

    // The general way alone, without the short cut; the short cut is tested and timed against it.
    void sweep(std::span<const vec3> points, std::span<const index> loop_sizes, const vec3& normal, face_mesh& out);

private:
    struct glu_sweep;
    std::unique_ptr<glu_sweep> sweep_;
    face_corners face_;
};

} // namespace sketchup
