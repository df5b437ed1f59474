// The calls on the content of the model or of one definition.

#include "sketchup/api/boxes.h"
#include "sketchup/api/calls.h"
#include "sketchup/api/plain_values.h"

#include <algorithm>
#include <vector>

namespace {

using namespace sketchup::api;
using sketchup::edge;
using sketchup::entity_list;
using sketchup::index;

// An edge of a free arc or polyline bounds no face either, but it belongs to its curve.
bool stands_alone(const edge& e) {
    return e.faces.count == 0 && e.curve == sketchup::no_index;
}

} // namespace

SUResult SUEntitiesGetBoundingBox(SUEntitiesRef entities, SUBoundingBox3D* box) {
    return give(entities, box, [](const entity_list& list) { return to_box(box_of(list)); });
}

SUResult SUEntitiesGetNumFaces(SUEntitiesRef entities, size_t* count) {
    return give(entities, count, [](const entity_list& list) { return list.faces.size(); });
}

SUResult SUEntitiesGetFaces(SUEntitiesRef entities, size_t len, SUFaceRef items[], size_t* count) {
    const entity_list* list = object_of(entities);
    if (!list)
        return SU_ERROR_INVALID_INPUT;
    return fill_chosen(list->faces, list->owner->faces, len, items, count);
}

SUResult SUEntitiesGetNumGroups(SUEntitiesRef entities, size_t* count) {
    return give(entities, count, [](const entity_list& list) { return list.groups.size(); });
}

SUResult SUEntitiesGetGroups(SUEntitiesRef entities, size_t len, SUGroupRef items[], size_t* count) {
    const entity_list* list = object_of(entities);
    if (!list)
        return SU_ERROR_INVALID_INPUT;
    return fill_chosen(list->groups, list->owner->placements, len, items, count);
}

SUResult SUEntitiesGetNumImages(SUEntitiesRef entities, size_t* count) {
    return give(entities, count, [](const entity_list& list) { return list.images.size(); });
}

SUResult SUEntitiesGetImages(SUEntitiesRef entities, size_t len, SUImageRef items[], size_t* count) {
    const entity_list* list = object_of(entities);
    if (!list)
        return SU_ERROR_INVALID_INPUT;
    return fill_chosen(list->images, list->owner->placements, len, items, count);
}

SUResult SUEntitiesGetNumInstances(SUEntitiesRef entities, size_t* count) {
    return give(entities, count, [](const entity_list& list) { return list.instances.size(); });
}

SUResult SUEntitiesGetInstances(SUEntitiesRef entities, size_t len, SUComponentInstanceRef items[], size_t* count) {
    const entity_list* list = object_of(entities);
    if (!list)
        return SU_ERROR_INVALID_INPUT;
    return fill_chosen(list->instances, list->owner->placements, len, items, count);
}

SUResult SUEntitiesGetNumSectionPlanes(SUEntitiesRef entities, size_t* count) {
    return give(entities, count, [](const entity_list& list) { return list.section_planes.size(); });
}

SUResult SUEntitiesGetSectionPlanes(SUEntitiesRef entities, size_t len, SUSectionPlaneRef items[], size_t* count) {
    const entity_list* list = object_of(entities);
    if (!list)
        return SU_ERROR_INVALID_INPUT;
    return fill_chosen(list->section_planes, list->owner->section_planes, len, items, count);
}

SUResult SUEntitiesGetNumEdges(SUEntitiesRef entities, bool standalone_only, size_t* count) {
    return give(entities, count, [standalone_only](const entity_list& list) {
        if (!standalone_only)
            return list.edges.size();
        const std::vector<edge>& edges = list.owner->edges;
        return static_cast<size_t>(
            std::count_if(list.edges.begin(), list.edges.end(), [&edges](index e) { return stands_alone(edges[e]); }));
    });
}

SUResult SUEntitiesGetEdges(SUEntitiesRef entities, bool standalone_only, size_t len, SUEdgeRef items[],
                            size_t* count) {
    const entity_list* list = object_of(entities);
    if (!list)
        return SU_ERROR_INVALID_INPUT;
    std::vector<edge>& edges = list->owner->edges;
    if (!standalone_only)
        return fill_chosen(list->edges, edges, len, items, count);
    if ((!items && len > 0) || !count)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    size_t stored = 0;
    for (const index e : list->edges)
        if (stored < len && stands_alone(edges[e]))
            items[stored++] = handle_of<SUEdgeRef>(edges[e]);
    *count = stored;
    return SU_ERROR_NONE;
}
