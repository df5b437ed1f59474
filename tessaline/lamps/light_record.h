#pragma once

// What the run keeps of a lamp once its file is written.

#include "qlw/qlw_math.h"

#include <string>

struct cl_lp_light {
    std::string name;
    bool enabled = false;
    int strength = 0; // lumens
    std::string strength_unit = "Lumens";
    int beam_angle = 45; // degrees
    int channel = 0;
    bool use_object_color = true;
    int color = 0xffffff; // 0xRRGGBB
    std::string mode = "Normal";
    fpt direction{0, 0, -1};
};
