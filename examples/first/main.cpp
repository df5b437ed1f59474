// Writes a small model: a table with four legs that share one component, on a floor, beside a box on a layer of its
// own.

#include "sketchup/model/model_builder.h"
#include "sketchup/skp/writer/classic_writer.h"

#include <cstdio>
#include <fstream>

namespace {

using namespace sketchup;

constexpr double table_height = 29; // inches
constexpr double leg_width = 3;
constexpr double table_length = 60;
constexpr double table_depth = 32;

void add_table(model_builder& m, sketchup::index wood) {
    list_builder leg = m.component("Leg");
    leg.box({0, 0, 0}, {leg_width, leg_width, table_height - 1});
    list_builder table = m.root().group("Table", moved({20, 30, 0}));
    m.element(table.placement()).material = wood;
    table.box({0, 0, table_height - 1}, {table_length, table_depth, table_height});
    for (const double x : {0.0, table_length - leg_width})
        for (const double y : {0.0, table_depth - leg_width})
            table.instance(leg, moved({x, y, 0}));
}

std::unique_ptr<model> small_room() {
    model_builder m;
    const sketchup::index wood = m.material("Wood", {160, 110, 60, 255});
    const sketchup::index furniture = m.layer("Furniture");
    m.root().face({{0, 0, 0}, {120, 0, 0}, {120, 100, 0}, {0, 100, 0}});
    add_table(m, wood);
    list_builder box = m.root().group("Box", after(moved({95, 20, 0}), turned_about_z(30)));
    m.element(box.placement()).layer = furniture;
    box.box({0, 0, 0}, {16, 16, 12});
    m.attribute(m.root().list(), "qlw_globals", "bvl_ground_plane", truth(true));
    return m.finish();
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: example_first MODEL.skp\n", stderr);
        return 2;
    }
    const std::vector<std::uint8_t> bytes = skp::write_classic(*small_room(), skp::classic_version::v17);
    std::ofstream out(argv[1], std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) {
        std::fprintf(stderr, "example_first: cannot write %s\n", argv[1]);
        return 1;
    }
    return 0;
}
