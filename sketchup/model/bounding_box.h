#pragma once

// Axis-aligned boxes of everything that is drawn. Hidden content counts; guides, texts and dimensions don't.

#include "sketchup/model/model.h"

#include <cstddef>
#include <vector>

namespace sketchup {

// The box of the corners of a face, in the space of the list that holds it.
box face_box(const model& m, const face& f);

// The box of the two ends of an edge.
box edge_box(const model& m, const edge& e);

// The box of a box's corners through a placement; empty for an empty box.
box transformed_box(const transform& t, const box& b);

// The box of the part of a plane inside `around`; where there is none, the point of the plane nearest to the origin. Of
// a plane across an axis, minimum and maximum agree in that axis' coordinate. A plane without normal gives the origin.
box plane_box(const plane& p, const box& around);

// The boxes of a linked model's lists and placements, each found when first asked for and then kept.
//
// A placement's box is that of its transformed content, which can be much smaller than the transformed box of the
// content. The two are the same where axes map to axes; elsewhere the content is visited, save those parts whose
// transformed box lies inside what is found already. The work so spent on one model is limited: past `exact_visits`
// vertices and placements, which no model drawn by hand comes near, turned placements get the transformed box, which is
// never too small. Limits what a file of placements nested and doubled thirty times can cost.
class box_cache {
public:
    static constexpr std::size_t default_exact_visits = 200'000'000;

    // `m` must outlive this object unchanged.
    explicit box_cache(const model& m, std::size_t exact_visits = default_exact_visits);

    // The box of a list in its own space; empty for a list without content. The list must be the model's root or belong
    // to one of its definitions.
    box of_list(const entity_list& list);

    // The box of a group, component instance or image in the space of the list that holds it.
    box of_placement(const placement& p);

    // The box of a section plane in the space of its list: plane_box with the box of that list, which for a plane in no
    // list is empty.
    box of_section_plane(const section_plane& s);

private:
    struct kept_box {
        box value;
        bool known = false;
    };

    struct placed_content {
        const entity_list* list;
        transform placed;
    };

    kept_box& kept_of(const entity_list& list);
    const entity_list* placed_list(const placement& p) const;
    template<typename Visit>
    void for_each_placement(const entity_list& list, const Visit& visit) const;
    box box_of_content(const entity_list& list);
    void include_placement(const placement& placed, box& found);
    bool spend(std::size_t visits);
    const entity_list* list_of_section_plane(std::size_t section_plane);

    const model& model_;
    std::size_t visits_left_;
    kept_box root_;
    std::vector<kept_box> definitions_;
    std::vector<kept_box> placements_;
    std::vector<placed_content> pending_;                     // scratch
    std::vector<const entity_list*> lists_of_section_planes_; // filled when the first section plane is asked for
};

} // namespace sketchup
