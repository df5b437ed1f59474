// Writes the seeds of every fuzz target: FOLDER/<target>/<seed>.

#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/modern/formats.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "sketchup/skp/writer/material_document_writer.h"
#include "sketchup/skp/writer/modern_writer.h"
#include "tests/fuzz/archive_file.h"
#include "tests/fuzz/batch_text.h"
#include "tests/fuzz/modern_seeds.h"
#include "tests/fuzz/option_seeds.h"
#include "tests/fuzz/picture_seeds.h"
#include "tests/fuzz/text_seeds.h"
#include "tests/tools/small_batch.h"
#include "tools/command_line/answers.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace {

using namespace sketchup;

// Faces with holes, painted on both sides with mapped textures, and attributes of most types.
void add_faces(model_builder& m) {
    const std::vector<vec3> outline = {{0, 0, 0}, {8, 0, 0}, {8, 8, 0}, {0, 8, 0}};
    const std::vector<std::vector<vec3>> holes = {{{2, 2, 0}, {4, 2, 0}, {4, 4, 0}}};
    const entity_place face = m.root().face(outline, holes);
    m.face(face).material = m.material("Paint", {200, 30, 30, 255}, 0.5);
    m.face(face).back_material = m.textured_material("Tiles", {'B', 'M', 0, 0}, "tiles.bmp", 10, 20);
    m.mapping(face).back.positioned = true;
    m.attribute({entity_kind::material, m.face(face).back_material}, "kept", "text", text("a"));
    m.attribute(face, "numbers", "byte", {value_code::byte, std::int64_t{7}});
    m.attribute(face, "numbers", "array", {value_code::array, std::vector<typed_value>{text("a"), real_number(2)}});
    m.attribute(face, "numbers", "color", {value_code::color, rgba{1, 2, 3, 4}});
    m.attribute(m.dictionary(face, "numbers"), "nested", "point", {value_code::point, vec3{1, 2, 3}});
    m.attribute(m.root().list(), "qlw_globals", "ivl_2_sided_faces", whole_number(1));
}

void add_opening(model_builder& m) {
    list_builder window = m.component("window");
    window.square(2);
    m.definition(window).behavior.cuts_opening = true;
    const entity_place wall = m.root().square(10);
    m.root().glue(m.root().instance(window, moved({4, 4, 0})), wall);
}

void add_placements(model_builder& m) {
    list_builder group = m.root().group("group", moved({5, 0, 0}));
    m.element(group.placement()).layer = m.layer("Hidden", false);
    list_builder component = m.component("component");
    component.arc({0, 0, 0}, {3, 0, 0}, {0, 3, 0}, 0, 1, 2);
    const std::vector<vec3> points = {{5, 0, 0}, {6, 1, 0}, {7, 0, 0}};
    component.polyline_curve(points);
    group.instance(component, scaled(2, 2, -1), "mirrored");
    m.root().image(m.image_definition({'B', 'M', 0, 0}, "picture.bmp", 16, 16));
    add_opening(m);
}

void add_annotations(model_builder& m) {
    for (const annotation_kind what :
         {annotation_kind::guide_line, annotation_kind::guide_point, annotation_kind::text,
          annotation_kind::linear_dimension, annotation_kind::radial_dimension, annotation_kind::polyline})
        m.root().annotation(what);
    m.root().section_plane({0, 0, 1, -3}, true, "cut");
}

void add_scene(model_builder& m) {
    const sketchup::index made = m.scene("scene", true);
    m.scene_camera(made).eye = {1, 2, 3};
    scene& s = m.model().scenes[made];
    s.rendering_options.emplace();
    s.shadow_info.emplace();
    s.hidden_layers = {0};
    s.active_section_planes = {0};
    m.model().layers[1].folder = m.layer_folder("folder", m.layer_folder("outer"));
}

// One of everything that a model can hold, in as few bytes as that takes.
std::unique_ptr<model> one_of_everything() {
    model_builder m;
    add_faces(m);
    add_placements(m);
    add_annotations(m);
    add_scene(m);
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

bool write_text(const std::filesystem::path& file, std::string_view text) {
    return write(file, {text.begin(), text.end()});
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

// Whole files for the target that opens either container, and the archives in them.
bool write_archive_seeds(const std::filesystem::path& folder) {
    using enum skp::modern_version;
    bool written = true;
    for (const auto& [name, version] : {std::pair("21", v21), std::pair("25", v25)})
        for (const auto& [content, model] : {std::pair("empty_", empty()), std::pair("all_", one_of_everything())}) {
            const std::vector<std::uint8_t> file = skp::write_modern(*model, version);
            written = write(folder / "fuzz_classic" / (std::string(content) + name), file) &&
                      write(folder / "fuzz_archive" / (std::string(content) + name), archive_of_file(file)) && written;
        }
    return written;
}

// The documents of all materials, in the words of either layout.
bool write_document_seeds(const std::filesystem::path& folder) {
    const auto m = one_of_everything();
    bool written = true;
    for (const std::uint16_t format : {skp::modern::format_2021, skp::modern::format_2025})
        for (std::size_t i = 0; i < m->materials.size(); ++i)
            written = write_text(folder / ("material_" + std::to_string(i) + "_" + std::to_string(format)),
                                 skp::material_document_text(*m, m->materials[i], "./picture.png", format)) &&
                      written;
    return written;
}

// Documents of a model alone: small ones by hand, and those that stand in whole files.
bool write_modern_seeds(const std::filesystem::path& folder) {
    using enum skp::modern_version;
    return write(folder / "empty", record_bytes::rec(500)) &&
           write(folder / "all", modern_seeds::one_of_everything()) &&
           write(folder / "empty_25", skp::modern_model_data(*empty(), v25)) &&
           write(folder / "all_21", skp::modern_model_data(*one_of_everything(), v21)) &&
           write(folder / "all_25", skp::modern_model_data(*one_of_everything(), v25));
}

bool write_picture_seeds(const std::filesystem::path& folder) {
    bool written = true;
    for (const auto& [name, bytes] : picture_seeds())
        written = write(folder / name, bytes) && written;
    return written;
}

// A perspective of a square, and one whose horizon crosses it: as many numbers as the target takes, then a size.
bool write_straighten_seeds(const std::filesystem::path& folder) {
    const auto seed = [](double q_across, double q_up) {
        const double numbers[] = {1, 0.5, q_across, 0, 1, q_up, 0, 0, 1, 0, 0, 10, 0, 10, 10, 0, 10};
        std::vector<std::uint8_t> bytes(sizeof numbers + 3, 31);
        std::memcpy(bytes.data(), numbers, sizeof numbers);
        return bytes;
    };
    return write(folder / "perspective", seed(0.01, 0.05)) && write(folder / "horizon", seed(-0.2, 0.15));
}

// A window of 4 by 6 that is glued to a wall; and the same inside another component, and mirrored, on a slope.
bool write_outline_seeds(const std::filesystem::path& folder) {
    return write(folder / "window", {0x3C, 0, 0, 0, 0, 4, 6, 0, 7, 0, 0, 10, 20}) &&
           write(folder / "nested", {0x3F, 0, 0, 0, 0, 4, 6, 0, 13, 6, 0, 0, 5, 0, 7, 1, 2, 10, 20, 7, 9});
}

// All files of a batch in one text: the target takes them apart again.
std::string one_text(const small_batch::files_by_name& files) {
    std::string text;
    for (const auto& [name, bytes] : files)
        text += batch_text::beginning_of_file + name + '\n' + bytes;
    return text;
}

bool write_batch_seeds(const std::filesystem::path& folder) {
    const small_batch::files_by_name still = small_batch::still();
    return write_text(folder / "still", one_text(still)) &&
           write_text(folder / "animation", one_text(small_batch::animation())) &&
           write_text(folder / "stream", one_text({{"batch_file.txt", still.at("batch_file.txt")}}));
}

bool write_option_seeds(const std::filesystem::path& folder) {
    return write_text(folder / "fuzz_option_file" / "all", option_seeds::option_file) &&
           write_text(folder / "fuzz_view_file" / "all", option_seeds::view_file);
}

} // namespace

int main(int argc, char** argv) {
    constexpr std::string_view usage = "usage: make_seeds FOLDER\n";
    if (const auto status = answer_at_once(argc, argv, "make_seeds", usage))
        return *status;
    if (argc != 2)
        return refuse_command_line(usage);
    const std::filesystem::path folder = argv[1];
    if (write_classic_seeds(folder / "fuzz_classic") && write_archive_seeds(folder) &&
        write_document_seeds(folder / "fuzz_document") && write_modern_seeds(folder / "fuzz_modern") &&
        write_picture_seeds(folder / "fuzz_picture") && write_straighten_seeds(folder / "fuzz_straighten_texture") &&
        write_batch_seeds(folder / "fuzz_batch_check") && write_option_seeds(folder) &&
        write_outline_seeds(folder / "fuzz_outlines") && write_text_seeds(argv[1]))
        return 0;
    std::fprintf(stderr, "make_seeds: cannot write below %s\n", argv[1]);
    return 1;
}
