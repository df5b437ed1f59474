#pragma once

#include "sketchup/model/model.h"
#include "sketchup/model/plane_outlines.h"

#include <map>
#include <vector>

namespace sketchup {

// Whether a group or an instance is drawn as far as it and its layer tell, not what holds it. Only what is drawn cuts.
// The folder of a layer has no say, as nowhere in the provider.
bool is_drawn(const model& m, const placement& p);

// The outlines of the holes that definitions cut, each found once. What counts are the edges whose ends both lie within
// the tolerance of the plane z = 0 of the definition's own axes, hidden, soft and those of curves too; and those of
// drawn groups and instances in it whose definitions cut as well, likewise once they are placed, at any depth.
class opening_outlines {
public:
    // What all definitions of a model may cost together: about a second. Those that are asked for when it is used up
    // have no outlines. A flattened edge costs 16 steps, one in the plane 1024 more, a placement 256.
    static constexpr std::size_t default_steps = std::size_t{1} << 30;

    // m: linked; must outlive this object unchanged.
    explicit opening_outlines(const model& m, std::size_t steps = default_steps) : m_(m), allowance_(steps) {}

    // In inches of the definition's own x and y, see outlines_of. definition: a position in model::definitions. The
    // reference holds as long as this object.
    const std::vector<plane_outline>& of(index definition);

private:
    std::vector<segment2> edges_in_plane(index definition);
    bool add_edges(const entity_list& list, const transform& placed, std::vector<segment2>& found);

    const model& m_;
    work_allowance allowance_;
    std::map<index, std::vector<plane_outline>> found_;
};

} // namespace sketchup
