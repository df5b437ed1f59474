#pragma once

// The ids by which the records of model.dat refer to one another.

#include "sketchup/model/model.h"

#include <cstdint>
#include <unordered_map>
#include <utility>

namespace skp {

class id_book {
public:
    // Every element that can be referred to keeps its persistent id; without one, or with one that an element before it
    // has, it gets a fresh one.
    explicit id_book(const sketchup::model& m);

    // The id of a vertex, edge, face, curve, placement, section plane, annotation, definition, layer, folder of layers,
    // material or scene of the model.
    std::uint64_t of(const void* element) const { return ids_.at(element); }

    // An id for something that the model does not hold; the first of so many that follow one another.
    std::uint64_t fresh(std::uint64_t count = 1) { return std::exchange(next_, next_ + count); }
    // Larger than all that were given out.
    std::uint64_t next() const { return next_; }

private:
    std::unordered_map<const void*, std::uint64_t> ids_;
    std::uint64_t next_ = 1;
};

} // namespace skp
