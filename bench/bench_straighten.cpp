// What distorted textures cost: twelve squares converted with their texture straight, in a perspective, and in one
// whose horizon crosses them. The figures to compare are the times of one run of this program; a straight texture is
// written once for all squares.

#include "image/encode_picture.h"
#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tessaline/state/run_state.h"
#include "tessaline/walk/SketchUpReader.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

constexpr int squares = 12;
constexpr std::uint32_t picture_side = 512;
constexpr double square_side = 30;
constexpr double tile_side = 20;

// Lines two pixels wide on white, as the texture of a drawing has them.
image::picture lines() {
    image::picture made = *image::picture::make({picture_side, picture_side, 24});
    for (std::uint32_t y = 0; y < picture_side; ++y)
        for (std::uint32_t x = 0; x < picture_side; ++x)
            for (std::size_t i = 0; i < 3; ++i)
                made.row(y)[3 * x + i] = x % 64 < 2 || y % 48 < 2 || (x + 2 * y) % 200 < 2 ? 0 : 255;
    return made;
}

struct distorted_batch {
    distorted_batch(const std::string& name, double q_across, double q_up)
        : folder((std::filesystem::temp_directory_path() / ("tessaline_bench_straighten_" + name)).string()) {
        std::filesystem::create_directories(folder);
        sketchup::model_builder m;
        const sketchup::index paint = m.textured_material(
            "Lines", image::encode_picture(lines(), image::picture_format::png), "lines.png", tile_side, tile_side);
        for (int i = 0; i < squares; ++i) {
            const double z = i * square_side;
            const sketchup::entity_place made =
                m.root().face({{0, 0, z}, {square_side, 0, z}, {square_side, square_side, z}, {0, square_side, z}});
            m.face(made).material = paint;
            m.mapping(made).front.positioned = true;
            m.mapping(made).front.matrix = {1, 0, q_across, 0, 1, q_up, 0, 0, 1};
        }
        const auto bytes = skp::write_classic(*m.finish(), skp::classic_version::v17);
        std::ofstream(folder + "/geometry.qlm", std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
    ~distorted_batch() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
    distorted_batch(const distorted_batch&) = delete;
    distorted_batch& operator=(const distorted_batch&) = delete;

    const std::string folder;
};

// q_across, q_up: by how much the homogeneous part falls for each inch of the square, from 1 at its lower left corner.
void convert(benchmark::State& state, const std::string& name, double q_across, double q_up) {
    const distorted_batch made(name, q_across, q_up);
    for (auto _ : state) {
        reset_process();
        SketchUpReader reader;
        benchmark::DoNotOptimize(reader.ReadSkpFile(made.folder + "/geometry.qlm", made.folder + "/batch_file.txt"));
    }
}

BENCHMARK_CAPTURE(convert, straight, "straight", 0, 0)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(convert, in_perspective, "in_perspective", 0.002, 0.01)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(convert, with_the_horizon, "with_the_horizon", 0.03, 0.05)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
