// A whole run taken apart: opening the model, opening and walking it with the stream closed, and all with the stream
// written. The model is the one that TESSALINE_BENCH_MODEL names, else one of a million triangles made here.

#include "platform/platform.h"
#include "sketchup/builder/model_builder.h"
#include "sketchup/SketchUpAPI.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tessaline/state/run_state.h"
#include "tessaline/walk/SketchUpReader.h"
#include "tests/support/temporary_folder.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

constexpr int boxes_in_a_group = 100;
constexpr int groups = 833; // of 100 boxes of 12 triangles: 999,600
constexpr double spacing = 30;

struct batch_folder {
    batch_folder() {
        if (const char* named = std::getenv("TESSALINE_BENCH_MODEL"))
            std::filesystem::copy_file(named, model, std::filesystem::copy_options::overwrite_existing);
        else
            write_boxes();
    }

    const temporary_folder folder;
    const std::string model = folder / "geometry.qlm";

private:
    void write_boxes() const {
        sketchup::model_builder m;
        for (int g = 0; g < groups; ++g) {
            sketchup::list_builder group = m.root().group("boxes", sketchup::moved({0, g * spacing, 0}));
            for (int b = 0; b < boxes_in_a_group; ++b)
                group.box({b * spacing, 0, 0}, {b * spacing + 10.5, 11.25, 12.125});
        }
        const auto bytes = skp::write_classic(*m.finish(), skp::classic_version::v17);
        folder.write("geometry.qlm", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    }
};

const batch_folder& batch() {
    static const batch_folder made;
    return made;
}

void open_only(benchmark::State& state) {
    const std::string& file = batch().model; // made before the clock runs
    for (auto _ : state) {
        SUInitialize();
        SUModelRef model = SU_INVALID;
        if (SUModelCreateFromFile(&model, file.c_str()) != SU_ERROR_NONE)
            state.SkipWithError("the model does not open");
        else
            SUModelRelease(&model);
        SUTerminate();
    }
}

void read_into(benchmark::State& state, const std::string& stream) {
    for (auto _ : state) {
        reset_process();
        SketchUpReader reader;
        benchmark::DoNotOptimize(reader.ReadSkpFile(batch().model, stream));
    }
    state.counters["peak_MB"] = static_cast<double>(platform::working_set_bytes()) * 1e-6;
}

void open_and_walk(benchmark::State& state) {
    read_into(state, batch().folder / "no such folder/batch_file.txt");
}

void open_walk_and_write(benchmark::State& state) {
    read_into(state, batch().folder / "batch_file.txt");
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                            static_cast<std::int64_t>(std::filesystem::file_size(batch().folder / "batch_file.txt")));
}

BENCHMARK(open_only)->Unit(benchmark::kMillisecond);
BENCHMARK(open_and_walk)->Unit(benchmark::kMillisecond);
BENCHMARK(open_walk_and_write)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
