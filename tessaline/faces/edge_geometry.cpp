// How thick the line of an edge is, and which directions stand square to it.

#include "tessaline/faces/edge_geometry.h"

#include <cmath>

line_frame frame_of(const fpt& line) {
    const bool is_steep = std::abs(line.z) > std::abs(line.x) && std::abs(line.z) > std::abs(line.y);
    const fpt reference = is_steep ? fpt{1, 0, 0} : fpt{0, 0, 1};
    const fpt a = cross(line, reference);
    return {a, cross(line, a)};
}

double perspective_size(double sine, double distance, double pixels, int pixel_height) {
    return sine * distance * pixels / pixel_height;
}

double parallel_size(double ortho_height, double pixels, int pixel_height) {
    return ortho_height / pixel_height * pixels;
}
