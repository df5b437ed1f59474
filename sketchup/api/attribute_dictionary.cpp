// The calls on attribute dictionaries.

#include "sketchup/api/calls.h"
#include "sketchup/api/key_lookup.h"
#include "sketchup/api/typed_values.h"

#include <algorithm>

using namespace sketchup::api;
using sketchup::attribute;
using sketchup::attribute_dictionary;

SUResult SUAttributeDictionaryGetName(SUAttributeDictionaryRef dictionary, SUStringRef* name) {
    return give_text(dictionary, name, [](const attribute_dictionary& d) { return d.name; });
}

SUResult SUAttributeDictionaryGetNumKeys(SUAttributeDictionaryRef dictionary, size_t* count) {
    return give(dictionary, count, [](const attribute_dictionary& d) { return d.entries.size(); });
}

SUResult SUAttributeDictionaryGetKeys(SUAttributeDictionaryRef dictionary, size_t len, SUStringRef keys[],
                                      size_t* count) {
    const attribute_dictionary* d = object_of(dictionary);
    if (!d)
        return SU_ERROR_INVALID_INPUT;
    if ((!keys && len > 0) || !count)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    const size_t stored = std::min(len, d->entries.size());
    if (std::any_of(keys, keys + stored, [](SUStringRef key) { return !object_of(key); }))
        return SU_ERROR_INVALID_OUTPUT;
    return guarded([&] {
        for (size_t i = 0; i < stored; ++i)
            object_of(keys[i])->text = d->entries[i].key;
        *count = stored;
        return SU_ERROR_NONE;
    });
}

SUResult SUAttributeDictionaryGetValue(SUAttributeDictionaryRef dictionary, const char* key, SUTypedValueRef* value) {
    const attribute_dictionary* d = object_of(dictionary);
    if (!d)
        return SU_ERROR_INVALID_INPUT;
    return give_value(key, value, [d](std::string_view wanted) -> const sketchup::typed_value* {
        const attribute* found = find_attribute(*d, wanted);
        return found ? &found->value : nullptr;
    });
}
