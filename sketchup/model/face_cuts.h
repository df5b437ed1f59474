#pragma once

// Faces with their openings taken off.

#include "sketchup/model/face_openings.h"
#include "sketchup/model/plane_cut.h"
#include "sketchup/model/triangulate.h"

#include <cstddef>
#include <unordered_map>
#include <vector>

namespace sketchup {

// What the openings of a face leave of it, as contours that the odd rule fills, in the space of the face's list.
struct face_cut {
    bool is_whole = true; // nothing is taken off: the face's own loops hold, and the contours are empty
    std::vector<vec3> points;
    std::vector<index> corners; // for each point the corner of the face, as a position in model::edge_uses, or no_index
    std::vector<index> sizes;   // of the contours; none if nothing is left
    std::size_t pieces = 0;     // polygons that are left
    double area = 0;            // square inches, net of openings; also of a whole face
};

// The cuts of the faces of a model, each worked out when first asked for and then kept.
class face_cuts {
public:
    // Pairs of lines side by side that are worth looking at for a whole model, about 10 s; faces past that stay whole.
    // A house takes some hundred thousand.
    static constexpr std::size_t default_most_pairs = 500'000'000;

    // m: linked; must outlive this object unchanged.
    explicit face_cuts(const model& m, std::size_t most_pairs = default_most_pairs)
        : model_(m), pairs_left_(most_pairs) {}

    // f: a face of the model; openings: those of that face. The reference holds as long as this object.
    const face_cut& of(const face& f, const std::vector<opening>& openings);

private:
    face_cut cut(const face& f, const std::vector<opening>& openings);

    const model& model_;
    std::size_t pairs_left_;
    std::unordered_map<const face*, face_cut> kept_;
    face_corners corners_; // scratch
};

// Fills `out` with the mesh of what is left; empty if that is nothing. f: the face that was cut.
void triangulate_cut(tessellator& tessellator, const face& f, const face_cut& cut, face_mesh& out);

} // namespace sketchup
