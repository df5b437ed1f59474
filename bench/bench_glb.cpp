// What a GLB file costs: a stream of half a million triangles as one, beside splitting the lines of that stream alone,
// which any reader has to do; with memory for all of it and with little; and a model of 100,000 placements of one
// definition. "bytes a placement" is what the file grows by for each, at most 200. A stream shall become a GLB file at
// 0.12 of the speed of splitting its lines or faster, whatever the memory: split_lines by stream_to_glb, in one run.

#include "platform/platform.h"
#include "sketchup/builder/model_builder.h"
#include "sketchup/SketchUpAPI.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tessaline/stream/geometry_stream.h"
#include "tests/support/temporary_folder.h"
#include "tools/batch_glb/batch_glb.h"
#include "tools/skp_glb/skp_glb.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>
#include <string>

namespace {

constexpr int blocks = 250000; // of four vertices and two triangles

// A stream as a furnished model gives it: small blocks, half of them textured, on a few layers.
struct batch_folder {
    batch_folder() {
        geometry_stream stream;
        stream.open((folder / "batch_file.txt").c_str(), "Tessaline");
        std::mt19937_64 engine(1);
        std::uniform_real_distribution<double> anywhere(-500, 500);
        for (int block = 0; block < blocks; ++block) {
            stream.write_mesh_opening();
            stream.write_layer_name("Layer" + std::to_string(block % 8));
            stream.write_culling(false);
            stream.write_front_material(0);
            stream.write_back_material(0);
            for (int i = 0; i < 4; ++i) {
                const fpt uvq = {anywhere(engine) / 100, anywhere(engine) / 100, 1};
                stream.write_vertex(i, {0, 0, 1}, block % 2 == 0 ? &uvq : nullptr,
                                    {anywhere(engine), anywhere(engine), anywhere(engine)});
            }
            stream.write_face(0, 1, 2);
            stream.write_face(1, 0, 3);
            stream.write_mesh_closing("");
        }
        stream.write_end();
    }

    const temporary_folder folder;
};

const batch_folder& batch() {
    static const batch_folder made;
    return made;
}

void count_bytes(benchmark::State& state) {
    const auto size = static_cast<std::int64_t>(std::filesystem::file_size(batch().folder / "batch_file.txt"));
    state.SetBytesProcessed(state.iterations() * size);
    state.counters["resident_MB"] = static_cast<double>(platform::working_set_bytes()) * 1e-6;
}

void split_lines(benchmark::State& state) {
    const std::string file = batch().folder / "batch_file.txt";
    for (auto _ : state) {
        file_lines lines;
        lines.open(file);
        std::string_view line;
        while (lines.next(line))
            benchmark::DoNotOptimize(line);
    }
    count_bytes(state);
}

void stream_to_glb(benchmark::State& state, std::size_t memory) {
    for (auto _ : state)
        if (!write_batch_glb(batch().folder.name(), batch().folder / "out.glb", memory).failure.empty())
            state.SkipWithError("no file was written");
    count_bytes(state);
}

std::string model_of_placements(const temporary_folder& folder, int count) {
    sketchup::model_builder m;
    sketchup::list_builder bolt = m.component("bolt");
    bolt.box({0, 0, 0}, {1, 1, 1});
    for (int i = 0; i < count; ++i)
        m.root().instance(bolt, sketchup::after(sketchup::moved({i * 1.37, i % 1000 * 0.731, i % 77 * 3.9}),
                                                sketchup::turned_about_z(i * 1.3)));
    const auto bytes = skp::write_classic(*m.finish(), skp::classic_version::v17);
    return folder.write("model.skp", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

std::uint64_t glb_of_model(const std::string& file, const std::string& glb) {
    SUModelRef model = SU_INVALID;
    SUModelCreateFromFile(&model, file.c_str());
    write_skp_glb(model, "model", glb);
    SUModelRelease(&model);
    return std::filesystem::file_size(glb);
}

void placements_to_glb(benchmark::State& state) {
    constexpr int count = 100000;
    const temporary_folder folder;
    const std::uint64_t content = glb_of_model(model_of_placements(folder, 1), folder / "out.glb");
    const std::string file = model_of_placements(folder, count);
    std::uint64_t size = 0;
    for (auto _ : state)
        size = glb_of_model(file, folder / "out.glb");
    state.counters["bytes a placement"] = static_cast<double>(size - content) / (count - 1);
}

BENCHMARK(split_lines)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(stream_to_glb, in_memory, std::size_t{1} << 30U)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(stream_to_glb, in_64_MiB, gltf::byte_spool::usual_memory)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(stream_to_glb, in_4_MiB, std::size_t{4} << 20U)->Unit(benchmark::kMillisecond);
BENCHMARK(placements_to_glb)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
