// The lists whose calls take more than their owner.

#include "tessaline/model/handle_lists.h"

std::vector<SUEdgeRef> edges_of(SUEntitiesRef entities, bool standalone_only) {
    std::size_t count = 0;
    SUEntitiesGetNumEdges(entities, standalone_only, &count);
    std::vector<SUEdgeRef> edges(count);
    if (count != 0)
        SUEntitiesGetEdges(entities, standalone_only, edges.size(), edges.data(), &count);
    edges.resize(count < edges.size() ? count : edges.size());
    return edges;
}
