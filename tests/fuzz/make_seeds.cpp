// Writes the seeds of every fuzz target: FOLDER/<target>/<seed>.

#include "sketchup/model/model_builder.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tests/fuzz/text_seeds.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

using namespace sketchup;

// One of everything that a model can hold, in as few bytes as that takes.
std::unique_ptr<model> one_of_everything() {
    model_builder m;
    const index layer = m.layer("Hidden", false);
    const index paint = m.material("Paint", {200, 30, 30, 255}, 0.5);
    const index tiles = m.textured_material("Tiles", {'B', 'M', 0, 0}, "tiles.bmp", 10, 20);
    const entity_place face = m.root().face({{0, 0, 0}, {9, 0, 0}, {9, 9, 0}, {0, 9, 0}});
    m.face(face).material = paint;
    m.face(face).back_material = tiles;
    m.attribute(face, "numbers", "byte", {value_code::byte, std::int64_t{7}});
    m.attribute(face, "numbers", "array", {value_code::array, std::vector<typed_value>{text("a"), real_number(2)}});
    m.attribute(face, "numbers", "color", {value_code::color, rgba{1, 2, 3, 4}});
    m.attribute(face, "numbers", "point", {value_code::point, vec3{1, 2, 3}});
    list_builder group = m.root().group("group", moved({5, 0, 0}));
    m.element(group.placement()).layer = layer;
    const std::vector<vec3> outline = {{0, 0, 0}, {8, 0, 0}, {8, 8, 0}, {0, 8, 0}};
    const std::vector<std::vector<vec3>> holes = {{{2, 2, 0}, {4, 2, 0}, {4, 4, 0}}};
    group.face(outline, holes);
    list_builder component = m.component("component");
    component.polyline_curve(outline);
    group.instance(component, scaled(2, 2, -1), "mirrored");
    m.root().section_plane({0, 0, 1, -3}, true, "cut");
    m.root().image(m.image_definition({'B', 'M', 0, 0}, "picture.bmp", 16, 16));
    m.scene("scene", true);
    m.attribute(m.root().list(), "qlw_globals", "ivl_2_sided_faces", whole_number(1));
    return m.finish();
}

std::unique_ptr<model> empty() {
    return model_builder().finish();
}

bool write(const std::filesystem::path& file, const std::vector<std::uint8_t>& bytes) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    return out.good();
}

bool write_classic_seeds(const std::filesystem::path& folder) {
    using enum skp::classic_version;
    bool written = true;
    for (const auto& [name, version] :
         {std::pair("6", v6), std::pair("8", v8), std::pair("17", v17), std::pair("20", v20)}) {
        written = write(folder / (std::string("empty_") + name), skp::write_classic(*empty(), version)) && written;
        written =
            write(folder / (std::string("all_") + name), skp::write_classic(*one_of_everything(), version)) && written;
    }
    return written;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: make_seeds FOLDER\n", stderr);
        return 2;
    }
    if (write_classic_seeds(std::filesystem::path(argv[1]) / "fuzz_classic") && write_text_seeds(argv[1]))
        return 0;
    std::fprintf(stderr, "make_seeds: cannot write below %s\n", argv[1]);
    return 1;
}
