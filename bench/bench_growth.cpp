// Whether ten times as much costs ten times as much: each of the large models at a tenth of a size and at that size.
// The counter "tenfold" is the ratio of the two times, at most 10.5; the time of the row is that of the larger one.

#include "bench/models/large_models.h"
#include "tessaline/state/run_state.h"
#include "tessaline/walk/SketchUpReader.h"
#include "tests/support/temporary_folder.h"

#include <benchmark/benchmark.h>

#include <ctime>
#include <string>

namespace {

struct grown_model {
    const char* name;
    std::uint32_t size;
};

// Small enough for a run of all of them in a minute, large enough for a tenth to be well above the start of a run.
constexpr grown_model grown_models[] = {
    {"grid", 200000},    {"faces", 300000}, {"definitions", 20000}, {"placements", 100000},
    {"materials", 1000}, {"layers", 10000}, {"attributes", 20000},  {"depth", 4000},
};

class batch_folder {
public:
    batch_folder(const large_model& which, std::uint32_t size) {
        const auto bytes = large_model_file(which, size, model_container::classic);
        folder.write("geometry.qlm", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    }

    // The seconds that the processor spends on a conversion.
    double convert() const {
        const std::clock_t begin = std::clock();
        reset_process();
        SketchUpReader reader;
        benchmark::DoNotOptimize(reader.ReadSkpFile(folder / "geometry.qlm", folder / "batch_file.txt"));
        return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    }

private:
    const temporary_folder folder;
};

void grow(benchmark::State& state, const grown_model& what) {
    const large_model& which = *find_large_model(what.name);
    const batch_folder tenth(which, what.size / 10);
    const batch_folder whole(which, what.size);
    double of_tenth = 0;
    double of_whole = 0;
    for (auto _ : state) {
        for (int i = 0; i != 10; ++i)
            of_tenth += tenth.convert() / 10;
        const double once = whole.convert();
        of_whole += once;
        state.SetIterationTime(once);
    }
    state.counters["tenfold"] = of_whole / of_tenth;
}

} // namespace

int main(int argc, char** argv) {
    for (const grown_model& what : grown_models)
        benchmark::RegisterBenchmark(what.name, grow, what)->UseManualTime()->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
