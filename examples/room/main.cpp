// Writes the model of a furnished room: textured floor, window, table with a glass top, chairs, sofa, books, a mirror,
// a painting, a glowing panel, and a lamp of every type.

#include "room_parts.h"
#include "sketchup/skp/writer/classic_writer.h"

#include <cstdio>
#include <fstream>

namespace {

using namespace sketchup;

std::unique_ptr<model> furnished_room() {
    model_builder m;
    const room_materials use = add_materials(m);
    add_shell(m, use);
    add_furniture(m, use);
    add_lamps(m, use);
    camera& view = m.model().camera; // the same as that of the view file
    view.eye = {78, -118, 64};
    view.target = {92, 150, 44};
    view.field_of_view = 42;
    shadow_info& sun = m.model().shadow_info;
    sun.time = 1782054000; // 21 June 2026, three in the afternoon
    sun.latitude = 48.14;
    sun.longitude = 11.58;
    sun.time_zone = 1;
    sun.daylight_saving = true;
    return m.finish();
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: example_room MODEL.skp\n", stderr);
        return 2;
    }
    const std::vector<std::uint8_t> bytes = skp::write_classic(*furnished_room(), skp::classic_version::v17);
    std::ofstream out(argv[1], std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) {
        std::fprintf(stderr, "example_room: cannot write %s\n", argv[1]);
        return 1;
    }
    return 0;
}
