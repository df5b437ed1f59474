#pragma once

// The boxes that a file states of its entity lists.

#include "sketchup/model/model.h"

#include <vector>

namespace skp {

class written_boxes {
public:
    // m: need not be linked; must outlive this object unchanged. A definition that contains itself counts as empty
    // within itself.
    explicit written_boxes(const sketchup::model& m);

    // The box around edges, faces and placements of a list, in the list's own space; empty for a list without any. Like
    // those that the program writes it is never too small, but can be too large: a turned placement gets the box around
    // its turned box.
    const sketchup::box& of_definition(sketchup::index definition) const { return definitions_[definition]; }
    const sketchup::box& of_root() const { return root_; }

private:
    sketchup::box box_of(const sketchup::entity_list& list) const;

    const sketchup::model& model_;
    std::vector<sketchup::box> definitions_;
    sketchup::box root_;
};

} // namespace skp
