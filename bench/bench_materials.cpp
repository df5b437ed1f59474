// What materials cost: the same boxes converted without any, with plain ones and with textured ones on both sides. The
// figures to compare are the times of one run of this program.

#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tessaline/state/run_state.h"
#include "tessaline/walk/SketchUpReader.h"
#include "tests/support/temporary_folder.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

constexpr int boxes_in_a_group = 100;
constexpr int groups = 200; // 120,000 faces
constexpr int kinds = 50;   // of material
constexpr double spacing = 30;

enum class paint { none, plain, textured };

// A picture of one pixel, so that its own bytes cost nothing.
std::vector<std::uint8_t> tiny_bmp() {
    std::vector<std::uint8_t> file(58);
    file[0] = 'B';
    file[1] = 'M';
    file[2] = 58;  // bytes of the file
    file[10] = 54; // of the headers
    file[14] = 40; // of the second of them
    file[18] = file[22] = file[26] = 1;
    file[28] = 24; // bits a pixel
    return file;
}

class painted_batch {
public:
    explicit painted_batch(paint kind) {
        sketchup::model_builder m;
        m.attribute(m.root().list(), "qlw_globals", "ivl_2_sided_faces", sketchup::whole_number(0));
        const std::vector<sketchup::index> materials = materials_of(m, kind);
        int next = 0;
        for (int g = 0; g != groups; ++g) {
            sketchup::list_builder group = m.root().group("boxes", sketchup::moved({0, g * spacing, 0}));
            for (int b = 0; b != boxes_in_a_group; ++b)
                for (const sketchup::entity_place& face :
                     group.box({b * spacing, 0, 0}, {b * spacing + 10.5, 11.25, 12.125})) {
                    if (materials.empty())
                        continue;
                    const sketchup::index material = materials[static_cast<std::size_t>(next++ % kinds)];
                    m.element(face).material = material;
                    m.face(face).back_material = material;
                }
        }
        const auto bytes = skp::write_classic(*m.finish(), skp::classic_version::v17);
        folder.write("geometry.qlm", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    }

    const temporary_folder folder;

private:
    static std::vector<sketchup::index> materials_of(sketchup::model_builder& m, paint kind) {
        std::vector<sketchup::index> made;
        for (int i = 0; kind != paint::none && i != kinds; ++i) {
            const std::string name = "A material with a name as people give them " + std::to_string(i);
            made.push_back(kind == paint::plain ? m.material(name, {200, 100, 50, 255})
                                                : m.textured_material(name, tiny_bmp(), "tiny.bmp", 10, 10));
        }
        return made;
    }
};

void convert(benchmark::State& state, paint kind) {
    const painted_batch made(kind);
    for (auto _ : state) {
        reset_process();
        SketchUpReader reader;
        benchmark::DoNotOptimize(reader.ReadSkpFile(made.folder / "geometry.qlm", made.folder / "batch_file.txt"));
    }
}

BENCHMARK_CAPTURE(convert, without_materials, paint::none)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(convert, with_plain_materials, paint::plain)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(convert, with_textured_materials, paint::textured)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
