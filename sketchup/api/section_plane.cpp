// The calls on section planes.

#include "sketchup/api/calls.h"
#include "sketchup/api/plain_values.h"

#include <algorithm>

using namespace sketchup::api;
using sketchup::section_plane;

namespace {

bool is_active(const section_plane& s) {
    const sketchup::model& m = *s.owner;
    const auto position = static_cast<sketchup::index>(&s - m.section_planes.data());
    if (m.root.active_section_plane == position)
        return true;
    return std::any_of(m.definitions.begin(), m.definitions.end(), [position](const sketchup::component_definition& d) {
        return d.entities.active_section_plane == position;
    });
}

} // namespace

SUResult SUSectionPlaneGetPlane(SUSectionPlaneRef plane, SUPlane3D* equation) {
    return give(plane, equation, [](const section_plane& s) { return to_plane(s.plane); });
}

SUResult SUSectionPlaneIsActive(SUSectionPlaneRef plane, bool* is_active) {
    return give(plane, is_active, ::is_active);
}
