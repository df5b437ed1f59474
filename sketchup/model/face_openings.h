#pragma once

#include "sketchup/model/model.h"
#include "sketchup/model/opening_outlines.h"

#include <cstddef>
#include <unordered_map>
#include <vector>

namespace sketchup {

// A hole that something glued to a face cuts into it: a closed polygon in the face's plane and in the coordinates of
// the face's list, in inches; at least three points, all finite, the last not repeated. It runs the other way than the
// face's outline. It may touch itself in a point, and reach over the face, over its holes and over other openings.
struct opening {
    std::vector<vec3> points;
};

// Whether something that cuts openings is glued to a face. It may still have no opening.
inline bool may_have_openings(const face& f) {
    return f.cutters.count != 0;
}

// The openings of the faces of a model: those of a face worked out once, and only when they are asked for.
class face_openings {
public:
    // So many points have the openings of all faces together at most, about 100 MB. From the placement on with which
    // there would be more, in the order of model::cutters, nothing is cut. A house has some thousand.
    static constexpr std::size_t most_points = std::size_t{1} << 22;

    // m: linked; must outlive this object unchanged. Finds the outlines of all definitions that cut into a face.
    explicit face_openings(const model& m, std::size_t points = most_points,
                           std::size_t steps = opening_outlines::default_steps);

    // One opening for each outline of each drawn placement that cuts into the face, in the order of the file. An
    // outline that a placement squeezes to nothing or throws beyond all numbers gives none. f: a face of the model. The
    // reference holds as long as this object.
    const std::vector<opening>& of(const face& f);

private:
    const model& m_;
    opening_outlines outlines_;
    index usable_cutters_ = 0; // the first of model::cutters; the points of the others are too many
    std::unordered_map<index, std::vector<opening>> found_; // by face
    const std::vector<opening> none_;
};

} // namespace sketchup
