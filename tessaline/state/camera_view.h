#pragma once

// The camera of the run.

#include "qlw/qlw_math.h"

#include <string>

// All zero without a view file. Lengths are in the parent's unit and reach the edge lines as they are.
struct camera_view {
    fpt eye;
    fpt target;
    bool target_seen = false; // the x of a target was given
    std::string camera_type;  // as written, blanks included; "ortho" for a parallel view
    int pixel_width = 0;
    int pixel_height = 0;
    double field_of_view = 0; // degrees
    double margin_d = 0;
    double margin_l = 0;
    double margin_r = 0;
    double margin_b = 0;
    double margin_t = 0;
    double ortho_height = 0;
};
