// Ids of entities and the attribute dictionaries that hang on them.

#include "sketchup/api/calls.h"
#include "sketchup/api/provider_state.h"

#include <algorithm>
#include <deque>
#include <span>
#include <string_view>

namespace {

using namespace sketchup::api;
using sketchup::attribute_dictionary;
using sketchup::entity;
using sketchup::index_range;
using sketchup::model;

std::span<attribute_dictionary> dictionaries_of(const entity& e) {
    if (!e.owner || e.dictionaries.count == 0)
        return {};
    return std::span(e.owner->dictionaries).subspan(e.dictionaries.first, e.dictionaries.count);
}

SUResult list_dictionaries(const entity& e, size_t len, SUAttributeDictionaryRef items[], size_t* count) {
    const std::span<attribute_dictionary> all = dictionaries_of(e);
    return fill_list(all.size(), len, items, count,
                     [all](size_t i) { return handle_of<SUAttributeDictionaryRef>(all[i]); });
}

template<class Dictionaries>
attribute_dictionary* named(Dictionaries&& dictionaries, std::string_view name) {
    const auto found = std::find_if(dictionaries.begin(), dictionaries.end(),
                                    [name](const attribute_dictionary& d) { return d.name == name; });
    return found == dictionaries.end() ? nullptr : &*found;
}

// The dictionary that earlier asking has made, else a new one. Kept apart from the model's, so that no list shows it.
attribute_dictionary& made_dictionary(const entity& e, std::string_view name) {
    std::deque<attribute_dictionary>& made = open_model_of(e.owner)->made_by_asking[&e];
    if (attribute_dictionary* known = named(made, name))
        return *known;
    attribute_dictionary& dictionary = made.emplace_back();
    dictionary.name = name;
    dictionary.owner = e.owner;
    dictionary.id = e.owner->give_id();
    return dictionary;
}

} // namespace

SUResult SUEntityGetID(SUEntityRef entity, int32_t* id) {
    return give(entity, id, [](const sketchup::entity& e) { return e.id; });
}

SUResult SUEntityGetPersistentID(SUEntityRef entity, int64_t* id) {
    return give(entity, id, [](const sketchup::entity& e) { return e.persistent_id; });
}

SUResult SUEntityGetNumAttributeDictionaries(SUEntityRef entity, size_t* count) {
    return give(entity, count, [](const sketchup::entity& e) { return dictionaries_of(e).size(); });
}

SUResult SUEntityGetAttributeDictionaries(SUEntityRef entity, size_t len, SUAttributeDictionaryRef items[],
                                          size_t* count) {
    const sketchup::entity* e = object_of(entity);
    if (!e)
        return SU_ERROR_INVALID_INPUT;
    return list_dictionaries(*e, len, items, count);
}

SUResult SUEntityGetAttributeDictionary(SUEntityRef entity, const char* name, SUAttributeDictionaryRef* dictionary) {
    const sketchup::entity* e = object_of(entity);
    if (!e || !e->owner)
        return SU_ERROR_INVALID_INPUT;
    if (!name)
        return SU_ERROR_NULL_POINTER_INPUT;
    return give_handle(entity, dictionary, [name](const sketchup::entity& found) {
        attribute_dictionary* stored = named(dictionaries_of(found), name);
        return stored ? stored : &made_dictionary(found, name);
    });
}

// The user's dictionaries of a model hang on its top-level list.
SUResult SUModelGetNumAttributeDictionaries(SUModelRef model, size_t* count) {
    return give(model, count, [](const sketchup::model& m) { return dictionaries_of(m.root).size(); });
}

SUResult SUModelGetAttributeDictionaries(SUModelRef model, size_t len, SUAttributeDictionaryRef items[],
                                         size_t* count) {
    const sketchup::model* m = object_of(model);
    if (!m)
        return SU_ERROR_INVALID_INPUT;
    return list_dictionaries(m->root, len, items, count);
}
