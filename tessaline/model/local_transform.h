#pragma once

// The placement of a group, an instance or an image within its list.

#include "sketchup/SketchUpAPI.h"
#include "tessaline/model/transforms.h"

#include <algorithm>
#include <iterator>

// What `getter` gives for `handle`, in inches, normalised. A getter that fails leaves all elements 0, which the
// division turns into no numbers.
template<class Handle>
transform16 local_transform(SUResult (*getter)(Handle, SUTransformation*), Handle handle) {
    SUTransformation given{};
    getter(handle, &given);
    transform16 transform;
    std::copy(std::begin(given.values), std::end(given.values), transform.begin());
    normalise(transform);
    return transform;
}
