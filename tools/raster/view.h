#pragma once

// From where something is looked at.

#include <array>

using vec = std::array<double, 3>;

struct view {
    vec eye{};
    vec target{};
    vec up{0, 0, 1};
    bool perspective = true;
    double field_of_view = 35; // degrees
    bool fov_is_vertical = true;
    double height = 0; // of a parallel view, in the units of the points
};

// Whether a picture can be drawn from there: the eye is not where it looks, and the angle or the height is above 0.
bool looks_somewhere(const view& seen);

// All of a box from a corner above it, seen in a picture of that aspect (width to height).
view view_of_box(const vec& low, const vec& high, double aspect);
