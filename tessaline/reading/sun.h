#pragma once

// The sun of the open model, on its way to the renderer: through the settings into the option file.

#include "qlw/qlw_math.h"

// Radians.
struct sun_angles {
    double azimuth = 0;  // from the x axis of the model towards its y axis, -pi to pi, whatever the model's north
    double altitude = 0; // above the ground, -pi/2 to pi/2
};

// to_sun: of any length. One straight up has the azimuth 0, the zero vector both angles 0.
sun_angles sun_angles_of(const fpt& to_sun);

// Stores where the sun stands and where and when that is. What the model does not say is stored as 0.
void read_sun();
