#include "sketchup/skp/writer/written_boxes.h"

#include "sketchup/model/bounding_box.h"
#include "sketchup/model/vector_math.h"
#include "sketchup/skp/writer/definition_order.h"

namespace skp {

using sketchup::index;

written_boxes::written_boxes(const sketchup::model& m) : model_(m), definitions_(m.definitions.size()) {
    for (const index one : definitions_children_first(m))
        definitions_[one] = box_of(m.definitions[one].entities);
    root_ = box_of(m.root);
}

sketchup::box written_boxes::box_of(const sketchup::entity_list& list) const {
    sketchup::box found;
    for (const index edge : list.edges)
        include(found, edge_box(model_, model_.edges[edge]));
    for (const index face : list.faces)
        include(found, face_box(model_, model_.faces[face]));
    for (const std::vector<index>* placements : {&list.instances, &list.groups, &list.images})
        for (const index one : *placements) {
            const sketchup::placement& p = model_.placements[one];
            include(found, transformed_box(p.transform, definitions_[p.definition]));
        }
    return found;
}

} // namespace skp
