#pragma once

// Numbers as a GLB holds them: single precision, colours without their gamma.

#include <cstdint>

namespace gltf {

inline constexpr double metres_in_an_inch = 0.0254; // exact by definition

// The number that the shortest decimal text of its nearest single-precision number means: nine digits at most in JSON.
// What is not finite, or beyond single precision, becomes 0, for JSON has no word for it.
double short_number(double number);

// A channel of a colour as pictures and models give it, 0 to 1, as light that adds up (the sRGB curve).
double linear_channel(double channel);

} // namespace gltf
