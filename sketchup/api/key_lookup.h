#pragma once

#include "sketchup/model/model.h"

#include <string_view>
#include <vector>

namespace sketchup::api {

// Finds the entries of one large dictionary by key, in logarithmic time.
class key_lookup {
public:
    explicit key_lookup(const attribute_dictionary& dictionary);

    // The last entry of that key; null if there is none.
    const attribute* find(std::string_view key) const;

private:
    const attribute_dictionary* dictionary_;
    std::vector<index> by_key_; // positions in its entries, sorted by key, equal keys in their order
};

// The last entry of that key in any dictionary of an open model; null if there is none. Small dictionaries are searched
// from the end, for large ones the model keeps a key_lookup.
const attribute* find_attribute(const attribute_dictionary& dictionary, std::string_view key);

} // namespace sketchup::api
