#pragma once

// Lists of handles, fetched whole by the pair of calls that the SketchUp interface has for each list.

#include "sketchup/SketchUpAPI.h"

#include <cstddef>
#include <vector>

// All handles of one kind that `owner` has, in the model's order; empty if the count or the fetch fails.
template<class Handle, class Owner>
std::vector<Handle> all_handles(SUResult (*count_of)(Owner, std::size_t*),
                                SUResult (*fetch)(Owner, std::size_t, Handle*, std::size_t*), Owner owner) {
    std::size_t count = 0;
    count_of(owner, &count);
    std::vector<Handle> handles(count);
    if (count != 0)
        fetch(owner, handles.size(), handles.data(), &count);
    handles.resize(count < handles.size() ? count : handles.size());
    return handles;
}

// The edges of a list. standalone_only: those alone that bound no face.
std::vector<SUEdgeRef> edges_of(SUEntitiesRef entities, bool standalone_only);
