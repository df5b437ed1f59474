#pragma once

// From the steps of a loop to its corners.

#include "sketchup/model/model.h"

#include <limits>
#include <vector>

namespace sketchup {

// The vertex that a step of a loop leaves from: the edge's end if the step is reversed, else its start. no_index if the
// file left out the edge.
inline index corner_vertex(const model& m, const edge_use& use) {
    if (use.edge >= m.edges.size()) {
        return no_index;
    }
    const edge& e = m.edges[use.edge];
    return use.reversed ? e.end : e.start;
}

// The same, of a step given by its position in model::edge_uses. Such a position names a corner of a face for good.
inline index corner_vertex(const model& m, index corner) {
    return corner_vertex(m, m.edge_uses[corner]);
}

// Where a vertex lies; no number in any coordinate if the file left out the vertex.
inline vec3 vertex_position(const model& m, index vertex) {
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    return vertex < m.vertices.size() ? m.vertices[vertex].position : vec3{none, none, none};
}

inline vec3 corner_position(const model& m, index corner) {
    return vertex_position(m, corner_vertex(m, corner));
}

// Appends the corners of a loop in its order, as positions in model::vertices. Corners on the same vertex are kept.
inline void append_loop_corners(const model& m, const loop& l, std::vector<index>& corners) {
    for (index i = 0; i < l.uses.count; ++i) {
        corners.push_back(corner_vertex(m, l.uses.first + i));
    }
}

// The corners of all loops of a face, one loop after the other.
struct face_corners {
    std::vector<vec3> points;
    std::vector<index> corners; // positions in model::edge_uses
    std::vector<index> sizes;   // of the loops

    // Keeps its memory, so that a further face costs no allocation.
    void take(const model& m, const face& f) {
        points.clear();
        corners.clear();
        sizes.clear();
        for (index l = 0; l < f.loops.count; ++l) {
            const index_range uses = m.loops[f.loops.first + l].uses;
            sizes.push_back(uses.count);
            for (index corner = uses.first; corner < uses.first + uses.count; ++corner) {
                corners.push_back(corner);
                points.push_back(corner_position(m, corner));
            }
        }
    }
};

} // namespace sketchup
