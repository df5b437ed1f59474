#include "sketchup/api/key_lookup.h"

#include "sketchup/api/provider_state.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace sketchup::api {
namespace {

// Up to here a search through all entries beats a lookup that must be made first: most dictionaries hold a few keys and
// are asked for each of them once.
constexpr std::size_t most_entries_searched_through = 64;

} // namespace

key_lookup::key_lookup(const attribute_dictionary& dictionary)
    : dictionary_(&dictionary), by_key_(dictionary.entries.size()) {
    std::iota(by_key_.begin(), by_key_.end(), index{0});
    const auto& entries = dictionary.entries;
    std::stable_sort(by_key_.begin(), by_key_.end(),
                     [&entries](index a, index b) { return entries[a].key < entries[b].key; });
}

const attribute* key_lookup::find(std::string_view key) const {
    const auto& entries = dictionary_->entries;
    const auto behind = std::upper_bound(by_key_.begin(), by_key_.end(), key,
                                         [&entries](std::string_view k, index i) { return k < entries[i].key; });
    if (behind == by_key_.begin() || entries[*(behind - 1)].key != key)
        return nullptr;
    return &entries[*(behind - 1)];
}

const attribute* find_attribute(const attribute_dictionary& dictionary, std::string_view key) {
    const auto& entries = dictionary.entries;
    open_model* open = open_model_of(dictionary.owner);
    if (entries.size() > most_entries_searched_through && open)
        return open->key_lookups.try_emplace(&dictionary, dictionary).first->second.find(key);
    const auto found =
        std::find_if(entries.rbegin(), entries.rend(), [key](const attribute& a) { return a.key == key; });
    return found == entries.rend() ? nullptr : &*found;
}

} // namespace sketchup::api
