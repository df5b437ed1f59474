// How many steps of progress the walk will report. Rough on purpose: it looks at no visibility and no attributes, so it
// counts hidden content too, and the display may end below 100.

#include "tessaline/walk/counting.h"

#include "qlw/qlw_globals.h"
#include "tessaline/faces/edge_choice.h"
#include "tessaline/model/handle_lists.h"
#include "tessaline/walk/SketchUpReader.h"

#include <cstddef>

namespace {

template<class Owner>
std::size_t count_by(SUResult (*count_of)(Owner, std::size_t*), Owner owner) {
    std::size_t count = 0;
    count_of(owner, &count);
    return count;
}

SUEntitiesRef content_of(SUGroupRef group) {
    SUEntitiesRef entities = SU_INVALID;
    SUGroupGetEntities(group, &entities);
    return entities;
}

SUEntitiesRef content_of(SUComponentInstanceRef instance) {
    SUComponentDefinitionRef definition = SU_INVALID;
    SUComponentInstanceGetDefinition(instance, &definition);
    SUEntitiesRef entities = SU_INVALID;
    SUComponentDefinitionGetEntities(definition, &entities);
    return entities;
}

std::size_t edge_count(SUEntitiesRef entities) {
    const int edge_lines = get_global_int("ivl_edge_lines");
    if (edge_lines == no_edges)
        return 0;
    std::size_t count = 0;
    SUEntitiesGetNumEdges(entities, edge_lines == stand_alone_edges, &count);
    return count;
}

} // namespace

int SketchUpReader::CountEntities(SUEntitiesRef entities) {
    for (const SUGroupRef group : all_handles(SUEntitiesGetNumGroups, SUEntitiesGetGroups, entities))
        CountEntities(content_of(group));
    for (const SUComponentInstanceRef instance :
         all_handles(SUEntitiesGetNumInstances, SUEntitiesGetInstances, entities))
        CountEntities(content_of(instance));
    add_items(items_done, count_by(SUEntitiesGetNumFaces, entities));
    add_items(items_done, count_by(SUEntitiesGetNumImages, entities));
    count_skatter_instances();
    add_items(items_done, edge_count(entities));
    return 1;
}
