#include "sketchup/model/face_cuts.h"

#include "sketchup/model/face_area.h"

#include <algorithm>

namespace sketchup {

const face_cut& face_cuts::of(const face& f, const std::vector<opening>& openings) {
    const auto known = kept_.find(&f);
    return known != kept_.end() ? known->second : kept_.emplace(&f, cut(f, openings)).first->second;
}

face_cut face_cuts::cut(const face& f, const std::vector<opening>& openings) {
    face_cut result;
    std::vector<vec3> points;
    std::vector<index> sizes;
    for (const opening& o : openings) {
        points.insert(points.end(), o.points.begin(), o.points.end());
        sizes.push_back(static_cast<index>(o.points.size()));
    }
    corners_.take(model_, f);
    cut_limits limits;
    limits.most_pairs = std::min(limits.most_pairs, pairs_left_);
    const plane_cut left = cut_openings({corners_.points, corners_.sizes}, f.plane.normal(), {points, sizes}, limits);
    pairs_left_ -= left.pairs;
    result.is_whole = left.is_whole;
    result.sizes = left.sizes;
    result.pieces = left.is_whole ? 1 : left.pieces;
    result.area = left.is_whole ? face_area(model_, f) : left.area;
    for (const cut_point& p : left.points) {
        result.points.push_back(p.position);
        result.corners.push_back(p.origin == cut_origin::face ? corners_.corners[p.number] : no_index);
    }
    return result;
}

void triangulate_cut(tessellator& tessellator, const face& f, const face_cut& cut, face_mesh& out) {
    if (cut.is_whole) {
        tessellator.triangulate(*f.owner, f, out);
        return;
    }
    tessellator.triangulate(cut.points, cut.sizes, f.plane.normal(), out);
    for (index& corner : out.corners) {
        corner = corner == no_index ? no_index : cut.corners[corner];
    }
}

} // namespace sketchup
