#include "sketchup/model/opening_outlines.h"

#include "sketchup/model/loop_corners.h"
#include "sketchup/model/opening_tolerance.h"
#include "sketchup/model/vector_math.h"

#include <cmath>

namespace sketchup {

bool is_drawn(const model& m, const placement& p) {
    return !p.hidden && !(p.layer < m.layers.size() && m.layers[p.layer].hidden);
}

const std::vector<plane_outline>& opening_outlines::of(index definition) {
    const auto [found, is_new] = found_.try_emplace(definition);
    if (is_new)
        found->second = outlines_of(edges_in_plane(definition), opening_tolerance, allowance_);
    return found->second;
}

// False if the allowance is used up.
bool opening_outlines::add_edges(const entity_list& list, const transform& placed, std::vector<segment2>& found) {
    constexpr std::size_t steps_of_an_edge = 16;
    constexpr std::size_t steps_of_a_placement = 256;
    if (!allowance_.spend(steps_of_an_edge * list.edges.size() +
                          steps_of_a_placement * (1 + list.instances.size() + list.groups.size())))
        return false;
    const auto is_in_plane = [](const vec3& p) { return std::abs(p.z) <= opening_tolerance; }; // false for no number
    for (const index one : list.edges) {
        const vec3 from = transform_point(placed, vertex_position(m_, m_.edges[one].start));
        const vec3 to = transform_point(placed, vertex_position(m_, m_.edges[one].end));
        if (is_in_plane(from) && is_in_plane(to))
            found.push_back({{from.x, from.y}, {to.x, to.y}});
    }
    constexpr std::size_t most_segments = default_steps / 1024; // outlines_of takes no more
    return found.size() <= most_segments;
}

// Depth first with a stack of its own: definitions may nest deeper than the program's stack has room for.
std::vector<segment2> opening_outlines::edges_in_plane(index definition) {
    struct placed_list {
        index definition;
        transform placed;
    };
    std::vector<segment2> found;
    std::vector<placed_list> open{{definition, identity_transform}};
    while (!open.empty()) {
        const placed_list now = open.back();
        open.pop_back();
        const entity_list& list = m_.definitions[now.definition].entities;
        if (!add_edges(list, now.placed, found))
            return {};
        for (const std::vector<index>* children : {&list.groups, &list.instances})
            for (auto child = children->rbegin(); child != children->rend(); ++child) { // the first ends on top
                const placement& p = m_.placements[*child];
                if (p.definition != no_index && m_.definitions[p.definition].behavior.cuts_opening && is_drawn(m_, p))
                    open.push_back({p.definition, compose(now.placed, p.transform)});
            }
    }
    return found;
}

} // namespace sketchup
