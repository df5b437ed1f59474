#pragma once

// An edge as the walk collected it, for the edge block at the end of the stream.

#include "qlw/qlw_math.h"

#include <cstdint>

struct cl_tsl_edge {
    fpt start; // world inches
    fpt end;
    bool enabled = true;
    std::int32_t layer = 0; // every edge counts as being on one layer
};
