// Which section planes clip the rendered scene, and where they stand.

#include "qlw/qlw_globals.h"
#include "tessaline/model/drawing_elements.h"
#include "tessaline/state/run_state.h"
#include "tessaline/stream/length_units.h"
#include "tessaline/walk/SketchUpReader.h"

namespace {

// What "ivl_section_planes" may say. Any other number is written_all.
enum section_plane_mode {
    written_by_host = 0, // those that clip in SketchUp
    written_if_shown = 1,
    written_all = 2,
    written_none = 3,
};

struct plane_state {
    bool active = false;
    bool hidden = false;
};

plane_state state_of(SUSectionPlaneRef plane) {
    plane_state state;
    SUSectionPlaneIsActive(plane, &state.active);
    state.hidden = is_hidden(SUSectionPlaneToDrawingElement(plane));
    return state;
}

// Models below version 7 hide a plane that is not to clip; later ones have an active plane.
bool clips_in_host(const plane_state& plane, int version_major) {
    constexpr int first_with_active_plane = 7;
    return version_major < first_with_active_plane ? !plane.hidden : plane.active;
}

int wanted_mode() {
    const int mode = get_global_int("ivl_section_planes");
    if (get_global_string("sqlw_extract_mode") != "3dpdf")
        return mode;
    return get_global_int("iql3d_pdf_section_planes") != 0 ? written_none : written_by_host;
}

bool is_written(const plane_state& plane, int version_major) {
    if (get_global_bool("bvl_lowend_render_mode"))
        return get_global_bool("bvl_lowend_section_planes") && clips_in_host(plane, version_major);
    switch (wanted_mode()) {
    case written_by_host:
        return clips_in_host(plane, version_major);
    case written_if_shown:
        return !plane.hidden;
    case written_none:
        return false;
    default:
        return true;
    }
}

fpt normal_of(SUSectionPlaneRef plane) {
    SUPlane3D equation{};
    SUSectionPlaneGetPlane(plane, &equation);
    return {equation.a, equation.b, equation.c};
}

// The lowest corner of its box. Of a slanted plane it need not lie on the plane; the renderer expects it so.
fpt point_of(SUSectionPlaneRef plane) {
    SUBoundingBox3D box{};
    SUDrawingElementGetBoundingBox(SUSectionPlaneToDrawingElement(plane), &box);
    return {box.min_point.x, box.min_point.y, box.min_point.z};
}

} // namespace

int SketchUpReader::process_section_plane(SUSectionPlaneRef plane) {
    if (!is_written(state_of(plane), version_major))
        return 0;
    stream.write_clip_plane(normal_of(plane), metres_from_inches(point_of(plane)));
    return 1;
}
