#pragma once

// The shapes that most calls of the C interface have: check the handle, the inputs, the outputs, then give something.

#include "sketchup/api/handles.h"
#include "sketchup/skp/format_error.h"

#include <algorithm>
#include <cstddef>
#include <new>
#include <string>
#include <string_view>
#include <vector>

namespace sketchup::api {

// What the caller is told about a file that cannot be read.
inline SUResult result_of(skp::failure why) {
    switch (why) {
    case skp::failure::not_a_model:
        return SU_ERROR_MODEL_INVALID;
    case skp::failure::too_new:
        return SU_ERROR_MODEL_VERSION;
    case skp::failure::damaged:
        break;
    }
    return SU_ERROR_SERIALIZATION;
}

// Runs what may throw; no exception crosses the C interface.
template<class Action>
SUResult guarded(Action action) noexcept {
    try {
        return action();
    } catch (const skp::format_error& error) {
        return result_of(error.why);
    } catch (const std::bad_alloc&) {
        return SU_ERROR_GENERIC;
    } catch (...) {
        return SU_ERROR_UNKNOWN_EXCEPTION;
    }
}

// Stores get(object) in *out.
template<class Handle, class Out, class Get>
SUResult give(Handle handle, Out* out, Get get) {
    const auto* object = object_of(handle);
    if (!object)
        return SU_ERROR_INVALID_INPUT;
    if (!out)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    return guarded([&] {
        *out = get(*object);
        return SU_ERROR_NONE;
    });
}

// Stores the handle of what find(object) points to; NO_DATA if that is null.
template<class Handle, class OutHandle, class Find>
SUResult give_handle(Handle handle, OutHandle* out, Find find) {
    auto* object = object_of(handle);
    if (!object)
        return SU_ERROR_INVALID_INPUT;
    if (!out)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    return guarded([&] {
        auto* found = find(*object);
        if (!found)
            return SU_ERROR_NO_DATA;
        *out = handle_of<OutHandle>(*found);
        return SU_ERROR_NONE;
    });
}

// Replaces the text of a created string by get(object).
template<class Handle, class Get>
SUResult give_text(Handle handle, SUStringRef* out, Get get) {
    const auto* object = object_of(handle);
    if (!object)
        return SU_ERROR_INVALID_INPUT;
    if (!out)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    string_object* string = object_of(*out);
    if (!string)
        return SU_ERROR_INVALID_OUTPUT;
    return guarded([&] {
        string->text = get(*object);
        return SU_ERROR_NONE;
    });
}

// Stores the first min(len, size) items as item(i). Room for none needs no array.
template<class Out, class Item>
SUResult fill_list(std::size_t size, std::size_t len, Out items[], std::size_t* count, Item item) {
    if ((!items && len > 0) || !count)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    const std::size_t stored = std::min(size, len);
    for (std::size_t i = 0; i < stored; ++i)
        items[i] = item(i);
    *count = stored;
    return SU_ERROR_NONE;
}

// The same for the elements of a model that a list of positions names: elements[chosen[i]].
template<class OutHandle, class Element>
SUResult fill_chosen(const std::vector<index>& chosen, std::vector<Element>& elements, std::size_t len,
                     OutHandle items[], std::size_t* count) {
    return fill_list(chosen.size(), len, items, count,
                     [&](std::size_t i) { return handle_of<OutHandle>(elements[chosen[i]]); });
}

// The same for the elements that accept(element) holds for, in their order.
template<class OutHandle, class Elements, class Accept>
SUResult fill_accepted(Elements& elements, std::size_t len, OutHandle items[], std::size_t* count, Accept accept) {
    if ((!items && len > 0) || !count)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    std::size_t stored = 0;
    for (auto& element : elements)
        if (stored < len && accept(element))
            items[stored++] = handle_of<OutHandle>(element);
    *count = stored;
    return SU_ERROR_NONE;
}

// The element at a position; null for no_index and for a position that does not exist.
template<class Element>
Element* element_at(std::vector<Element>& elements, index position) {
    return position < elements.size() ? &elements[position] : nullptr;
}

// Makes an object of a pool for the caller, who passes an invalid handle. prepare(made) fills it; if that throws, the
// object goes back and the handle stays invalid.
template<class Handle, class Pool, class Prepare>
SUResult create(Handle* out, Pool& pool, Prepare prepare) {
    if (!out)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    if (out->ptr)
        return SU_ERROR_OVERWRITE_VALID;
    return guarded([&] {
        auto& made = pool.take();
        try {
            prepare(made);
        } catch (...) {
            pool.give_back(made);
            throw;
        }
        *out = handle_of<Handle>(made);
        return SU_ERROR_NONE;
    });
}

// Gives an object back to its pool and nulls the caller's handle.
template<class Handle, class Pool>
SUResult release(Handle* handle, Pool& pool) {
    if (!handle)
        return SU_ERROR_NULL_POINTER_INPUT;
    auto* object = object_of(*handle);
    if (!object)
        return SU_ERROR_INVALID_INPUT;
    pool.give_back(*object);
    handle->ptr = nullptr;
    return SU_ERROR_NONE;
}

} // namespace sketchup::api
