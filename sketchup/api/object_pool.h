#pragma once

#include "sketchup/api/provider_objects.h"

#include <deque>
#include <vector>

namespace sketchup::api {

// Objects that are taken and given back many times: those given back keep their memory and are taken first. Objects
// never move, and die with the pool or with empty().
template<class Object>
class object_pool {
public:
    // A cleared object, of its live kind.
    Object& take() {
        if (free_.empty())
            grow();
        Object& taken = *free_.back();
        free_.pop_back();
        taken.kind = Object::live_kind;
        return taken;
    }

    // Takes an object back; its kind tells from now on that it is no longer in use.
    void give_back(Object& object) noexcept {
        object.clear();
        object.kind = object_kind::released;
        free_.push_back(&object); // within the capacity that grow() made
    }

    void empty() {
        free_.clear();
        all_.clear();
    }

private:
    void grow() {
        Object& made = all_.emplace_back();
        if (free_.capacity() < all_.size())
            free_.reserve(2 * all_.size());
        free_.push_back(&made);
    }

    std::deque<Object> all_;
    std::vector<Object*> free_;
};

} // namespace sketchup::api
