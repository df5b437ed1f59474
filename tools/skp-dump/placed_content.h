#pragma once

// What a model shows once all its placements are flattened into world space.

#include "sketchup/SketchUpAPI.h"

#include <array>
#include <cstddef>

// Lengths in inches, areas in square inches. A box that holds nothing has its lowest corner above its highest.
struct placed_box {
    std::array<double, 3> low{1e300, 1e300, 1e300};
    std::array<double, 3> high{-1e300, -1e300, -1e300};
    void include(const std::array<double, 3>& point);
    bool is_empty() const { return low[0] > high[0]; }
};

struct placed_content {
    std::size_t faces = 0; // without those of images
    double area = 0;
    std::size_t images = 0;
    double image_area = 0;
    placed_box box;            // over the corners of faces and images
    placed_box box_with_edges; // over the ends of edges too
    std::size_t groups = 0;
    std::size_t instances = 0;
    std::size_t camera_facing = 0; // placements of components that always face the camera
    int depth = 0;                 // of the deepest placement; 0 without any
};

struct placing_rules {
    bool leave_out_hidden = false; // what is hidden or stands on an invisible layer, by the converter's rules
    bool turn_to_camera = false;   // components that always face the camera are turned to it
};

// Walks the whole model.
placed_content place_content(SUModelRef model, const placing_rules& rules);
