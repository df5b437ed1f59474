#pragma once

// Lists and texts of the C interface as values.

#include "sketchup/SketchUpAPI.h"

#include <cstddef>
#include <string>
#include <vector>

// All elements that a pair of a count call and a list call gives.
template<class Item, class Owner>
std::vector<Item> su_list(Owner owner, SUResult (*count)(Owner, std::size_t*),
                          SUResult (*list)(Owner, std::size_t, Item[], std::size_t*)) {
    std::size_t size = 0;
    count(owner, &size);
    std::vector<Item> items(size, Item{});
    if (size > 0) {
        list(owner, size, items.data(), &size);
        items.resize(size);
    }
    return items;
}

// The text that a name getter gives; empty if it fails.
template<class Owner>
std::string su_text(Owner owner, SUResult (*get)(Owner, SUStringRef*)) {
    SUStringRef string = SU_INVALID;
    SUStringCreate(&string);
    std::string result;
    if (get(owner, &string) == SU_ERROR_NONE) {
        std::size_t length = 0;
        SUStringGetUTF8Length(string, &length);
        result.resize(length);
        SUStringGetUTF8(string, length, result.data(), &length);
    }
    SUStringRelease(&string);
    return result;
}

inline std::vector<SUEdgeRef> su_edges(SUEntitiesRef entities) {
    std::size_t size = 0;
    SUEntitiesGetNumEdges(entities, false, &size);
    std::vector<SUEdgeRef> edges(size, SUEdgeRef{});
    if (size > 0)
        SUEntitiesGetEdges(entities, false, size, edges.data(), &size);
    return edges;
}
