#pragma once

// Random figures, names and attribute values, the same for the same seed everywhere.

#include "sketchup/model/values.h"

#include <cstdint>
#include <string>

class random_values {
public:
    explicit random_values(std::uint64_t seed) : state_(seed) {}

    std::uint64_t bits();
    // 0 to count - 1.
    std::uint32_t below(std::uint32_t count) { return static_cast<std::uint32_t>(bits() % count); }
    bool chance(std::uint32_t one_in) { return below(one_in) == 0; }
    // -100 to 100 with fractions that no decimal of few digits states.
    double figure();
    sketchup::vec3 point() { return {figure(), figure(), figure()}; }
    sketchup::rgba color();
    sketchup::guid guid();
    // Letters of several alphabets, brackets, quotes, slashes; may be empty.
    std::string text();
    // A text that never occurs again.
    std::string name();
    sketchup::transform placement(); // mirrored, sheared or with a weight other than 1 at times
    // Of any type that attributes can have; arrays nest to that depth.
    sketchup::typed_value value(int depth = 2);

private:
    std::uint64_t state_;
    std::uint32_t names_ = 0;
};
