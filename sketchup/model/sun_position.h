#pragma once

// Where the sun stands over a model, and when it rises and sets there. Both follow from the clock, the place and the
// north of the shadow settings; no file stores them.
//
// The formulas are those of low accuracy for the sun's place in Jean Meeus, "Astronomical Algorithms", second edition,
// chapters 12, 13, 15 and 25. From 1900 to 2100 they agree with almanacs within 0.01 degrees. Left out are refraction
// (half a degree at the horizon, nothing overhead), since light in a model knows no air, the parallax of the sun
// (0.0025 degrees), nutation (0.005) and the minute between clock time and dynamical time (0.001).

#include "sketchup/model/model.h"

#include <cstdint>
#include <optional>

namespace sketchup {

// The unit vector towards the centre of the sun, in the axes of the model; z is below 0 at night.
// info.north: its z does not count; one without a direction is taken as the y axis.
// Nothing if the place or the time zone is not a finite number, or so large that the result is none.
std::optional<vec3> sun_direction(const shadow_info& info);

// Moments on the local clock, in seconds since 1970 as if it were UTC, like shadow_info::time.
struct daylight {
    std::int64_t rise = 0;
    std::int64_t set = 0;
};

// When the upper edge of the sun comes up and goes down, seen through the air over a flat horizon (its centre 50
// minutes of arc below), around the noon that is nearest to the middle of the local date. To a minute away from the
// polar circles. Nothing where the sun does not cross the horizon that day, or for a place that is none.
std::optional<daylight> sunrise_and_sunset(const shadow_info& info);

} // namespace sketchup
