// One number as "%.9g": the C library, the standard library's exact conversion, and ours, on the same values.

#include "tessaline/stream/write_number.h"

#include <benchmark/benchmark.h>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <random>
#include <vector>

namespace {

// More than a branch predictor learns by heart.
constexpr std::size_t value_count = 65536;

using maker = double (*)(std::mt19937_64&);

double uniform(std::mt19937_64& engine, double from, double to) {
    return std::uniform_real_distribution<double>(from, to)(engine);
}

double metres(std::mt19937_64& engine) {
    return uniform(engine, -500, 500);
}
double inches_on_a_grid(std::mt19937_64& engine) {
    return std::round(uniform(engine, -20000, 20000) * 16) / 16 * 0.0254;
}
double unit_component(std::mt19937_64& engine) {
    return std::sin(uniform(engine, -4, 4));
}

// What a textured vertex holds: three of nine numbers are a normal, six of ten of them along an axis; then texture
// coordinates and a world point, half of the points from inches on a grid.
double mixed(std::mt19937_64& engine) {
    switch (engine() % 3) {
    case 0:
        return engine() % 10 < 6 ? std::array{0.0, 0.0, 1.0}[engine() % 3] : unit_component(engine);
    case 1:
        return engine() % 3 == 0 ? 1.0 : uniform(engine, 0, 4);
    default:
        return engine() % 2 == 0 ? metres(engine) : inches_on_a_grid(engine);
    }
}

char* write_with_printf(char* out, double value) {
    return out + std::snprintf(out, 32, "%.9g", value);
}
char* write_with_to_chars(char* out, double value) {
    return std::to_chars(out, out + 32, value, std::chars_format::general, 9).ptr;
}

template<char* (*writer)(char*, double), maker make>
void number(benchmark::State& state) {
    std::mt19937_64 engine(1);
    std::vector<double> values(value_count);
    for (double& value : values)
        value = make(engine);
    std::vector<char> text(value_count * 16 + number_room);
    std::int64_t bytes = 0;
    for (auto _ : state) {
        char* out = text.data();
        for (const double value : values)
            out = writer(out, value);
        benchmark::DoNotOptimize(text.data());
        benchmark::ClobberMemory();
        bytes += out - text.data();
    }
    state.SetBytesProcessed(bytes);
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(value_count));
}

BENCHMARK(number<write_with_printf, mixed>)->Name("mixed/snprintf");
BENCHMARK(number<write_with_to_chars, mixed>)->Name("mixed/to_chars");
BENCHMARK(number<write_number, mixed>)->Name("mixed/write_number");
BENCHMARK(number<write_with_printf, metres>)->Name("metres/snprintf");
BENCHMARK(number<write_with_to_chars, metres>)->Name("metres/to_chars");
BENCHMARK(number<write_number, metres>)->Name("metres/write_number");
BENCHMARK(number<write_with_printf, inches_on_a_grid>)->Name("grid/snprintf");
BENCHMARK(number<write_with_to_chars, inches_on_a_grid>)->Name("grid/to_chars");
BENCHMARK(number<write_number, inches_on_a_grid>)->Name("grid/write_number");
BENCHMARK(number<write_with_printf, unit_component>)->Name("normals/snprintf");
BENCHMARK(number<write_with_to_chars, unit_component>)->Name("normals/to_chars");
BENCHMARK(number<write_number, unit_component>)->Name("normals/write_number");

} // namespace

BENCHMARK_MAIN();
