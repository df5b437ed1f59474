#include "sketchup/model/vertex_normals.h"

#include "sketchup/model/loop_corners.h"
#include "sketchup/model/vector_math.h"

#include <algorithm>
#include <numbers>

namespace sketchup {

namespace {

constexpr index looks_against = 0x80000000;

// Corners in disjoint sets, each corner knowing whether its face looks the same way as that of its set's first corner.
class fan_forest {
public:
    explicit fan_forest(std::size_t corners) : parent_(corners), flipped_(corners, 0) {
        for (std::size_t i = 0; i < corners; ++i) {
            parent_[i] = static_cast<index>(i);
        }
    }

    struct place {
        index root = 0;
        bool flipped = false; // against the root
    };

    // Halves the path as it goes, so that long chains are walked once.
    place find(index corner) {
        bool flipped = false;
        while (parent_[corner] != corner) {
            const index above = parent_[corner];
            flipped_[corner] = flipped_[corner] != flipped_[above];
            parent_[corner] = parent_[above];
            flipped ^= flipped_[corner] != 0;
            corner = parent_[corner];
        }
        return {corner, flipped};
    }

    // The lower root stays, so that the result does not hang on the order. Where faces around a vertex cannot agree, as
    // on a band with one twist, what was united first holds.
    void unite(index a, index b, bool flipped) {
        const place of_a = find(a);
        const place of_b = find(b);
        if (of_a.root == of_b.root) {
            return;
        }
        const index lower = std::min(of_a.root, of_b.root);
        const index higher = std::max(of_a.root, of_b.root);
        parent_[higher] = lower;
        flipped_[higher] = (of_a.flipped != of_b.flipped) != flipped;
    }

private:
    std::vector<index> parent_;
    std::vector<std::uint8_t> flipped_; // against the parent; a root's stays 0
};

// Calls visit(face, previous corner, corner, next corner) for every corner of the model's faces, in their order.
template<typename Visit>
void for_each_corner(const model& m, const Visit& visit) {
    for (const face& f : m.faces) {
        for (index l = 0; l < f.loops.count; ++l) {
            const index_range uses = m.loops[f.loops.first + l].uses;
            for (index i = 0; i < uses.count; ++i) {
                const index before = uses.first + (i == 0 ? uses.count : i) - 1;
                const index after = uses.first + (i + 1 == uses.count ? 0 : i + 1);
                visit(f, before, uses.first + i, after);
            }
        }
    }
}

// The corners at the two ends of an edge of the first face that uses it.
struct first_use {
    index at_start = no_index;
    index at_end = no_index;
    bool reversed = false;
};

// Unites the corners that faces have at both ends of each smooth edge.
void unite_over_smooth_edges(const model& m, fan_forest& fans) {
    std::vector<first_use> first_uses(m.edges.size());
    for_each_corner(m, [&](const face&, index, index corner, index after) {
        const edge_use& use = m.edge_uses[corner];
        if (use.edge >= m.edges.size() || !m.edges[use.edge].smooth) {
            return;
        }
        const index at_start = use.reversed ? after : corner;
        const index at_end = use.reversed ? corner : after;
        first_use& first = first_uses[use.edge];
        if (first.at_start == no_index) {
            first = {at_start, at_end, use.reversed};
            return;
        }
        // Neighbours that look the same way run along their common edge in opposite directions.
        const bool flipped = first.reversed == use.reversed;
        fans.unite(first.at_start, at_start, flipped);
        fans.unite(first.at_end, at_end, flipped);
    });
}

// The angle that the face has at a corner, 0 to 2π; holes count as outside. 0 if a corner is missing.
double inner_angle(const model& m, const vec3& normal, index before, index corner, index after) {
    const vec3 p = corner_position(m, corner);
    const vec3 in = p - corner_position(m, before);
    const vec3 out = corner_position(m, after) - p;
    const double angle = std::numbers::pi - std::atan2(dot(normal, cross(in, out)), dot(in, out));
    return std::isfinite(angle) ? angle : 0;
}

bool has_smooth_edge(const model& m) {
    return std::any_of(m.edges.begin(), m.edges.end(), [](const edge& e) { return e.smooth; });
}

} // namespace

vertex_normals::vertex_normals(const model& m) {
    // The top bit of a fan's number is taken.
    if (!has_smooth_edge(m) || m.edge_uses.size() >= looks_against) {
        return;
    }
    fan_forest fans(m.edge_uses.size());
    unite_over_smooth_edges(m, fans);

    // A root is numbered when another corner of its fan turns up; corners alone keep their face's normal.
    fan_of_corner_.assign(m.edge_uses.size(), no_index);
    for (index corner = 0; corner < m.edge_uses.size(); ++corner) {
        const fan_forest::place place = fans.find(corner);
        if (place.root == corner) {
            continue;
        }
        if (fan_of_corner_[place.root] == no_index) {
            fan_of_corner_[place.root] = static_cast<index>(fan_normals_.size());
            fan_normals_.emplace_back();
        }
        fan_of_corner_[corner] = fan_of_corner_[place.root] | (place.flipped ? looks_against : 0);
    }

    for_each_corner(m, [&](const face& f, index before, index corner, index after) {
        const index fan = fan_of_corner_[corner];
        if (fan == no_index) {
            return;
        }
        const double angle = inner_angle(m, f.plane.normal(), before, corner, after);
        vec3& sum = fan_normals_[fan & ~looks_against];
        sum = sum + f.plane.normal() * ((fan & looks_against) != 0 ? -angle : angle);
    });
    for (vec3& normal : fan_normals_) {
        normal = normalized_or(normal, {});
    }
}

vec3 vertex_normals::at(const face& f, index corner) const {
    if (corner >= fan_of_corner_.size() || fan_of_corner_[corner] == no_index) {
        return f.plane.normal();
    }
    const index fan = fan_of_corner_[corner];
    const vec3& normal = fan_normals_[fan & ~looks_against];
    if (normal == vec3{}) {
        return f.plane.normal();
    }
    return (fan & looks_against) != 0 ? -normal : normal;
}

void vertex_normals::of_mesh(const face& f, const face_mesh& mesh, std::vector<vec3>& normals) const {
    normals.clear();
    for (const index corner : mesh.corners) {
        normals.push_back(at(f, corner));
    }
}

} // namespace sketchup
