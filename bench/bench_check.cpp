// Checking a stream against splitting it into lines alone, in memory: what the checker of batches costs beyond what
// anything that reads lines must pay. The stream is of face blocks, four textured vertices and two triangles each, with
// numbers as a turned model has them (nine digits) and as one on a grid has them. What counts is the ratio of the bytes
// a second of check to those of lines_alone; it is to stay above 0.12.

#include "tests/support/files_in_memory.h"
#include "tools/batch_check/check_stream.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <random>
#include <string>

namespace {

constexpr int faces = 20000;

std::string triple(const char* tag, double x, double y, double z) {
    char line[120];
    std::snprintf(line, sizeof line, "%s;(%.9g,%.9g,%.9g)\r\n", tag, x, y, z);
    return line;
}

void add_face(std::string& text, std::mt19937_64& random, bool is_turned) {
    const auto uniform = [&](double to) { return std::uniform_real_distribution<double>(-to, to)(random); };
    text += "#; ProcessFace MESH\r\nMESH;\r\nTLAY;Layer0\r\nCULL;0\r\nMPUV;1\r\nMATL;10\r\nMPU2;1\r\nMAT2;10\r\n";
    const double angle = uniform(3);
    for (int corner = 0; corner < 4; ++corner) {
        const int row = corner / 2;
        text += is_turned ? triple("NORM", std::cos(angle), std::sin(angle), 0) : triple("NORM", 0, 0, 1);
        text += is_turned ? triple("UVQ", uniform(4), uniform(4), 1) : triple("UVQ", corner % 2, row, 1);
        text += is_turned ? triple("VERT", uniform(500), uniform(500), uniform(50))
                          : triple("VERT", std::round(uniform(900)) * 0.0254 + 0.0,
                                   std::round(uniform(900)) * 0.0254 + 0.0, 2.54);
        text += "ADDV;" + std::to_string(corner) + "\r\n";
    }
    text += "FACE;0,1,2\r\nFACE;2,3,0\r\nEMSH;\r\n";
}

std::string stream(bool is_turned) {
    std::mt19937_64 random(1);
    std::string text = "#;Tessaline Geometry, new extractor\r\n#;09/09/2001  01:46:40 GMT\r\nDFFC;ffffff\r\n"
                       "DFBC;ffffff\r\nDFEC;000000\r\n#;\r\n#;\r\nPASS;0\r\n#;\r\n"
                       "MATF;TEX%3a0001_Brick.OrnMaterial\r\nMTX2;1\r\nMATI;10\r\n";
    for (int i = 0; i < faces; ++i) {
        if (i > 0)
            text += "EMSH; Face\r\n";
        add_face(text, random, is_turned);
    }
    return text + "#;\r\nEND;\r\n";
}

void lines_alone(benchmark::State& state, bool is_turned) {
    const std::string text = stream(is_turned);
    for (auto _ : state) {
        const char* const end = text.data() + text.size();
        std::size_t lines = 0;
        for (const char* at = text.data(); at != end; ++lines)
            at = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at))) + 1;
        benchmark::DoNotOptimize(lines);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(text.size()) * state.iterations());
}

void check(benchmark::State& state, bool is_turned) {
    const std::string text = stream(is_turned);
    for (auto _ : state) {
        batch_check::findings found;
        files_in_memory::bytes_in_memory bytes(text);
        benchmark::DoNotOptimize(batch_check::check_stream(bytes, "batch_file.txt", found));
        if (!found.kept().empty())
            state.SkipWithError("the stream is not right");
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(text.size()) * state.iterations());
}

} // namespace

BENCHMARK_CAPTURE(lines_alone, turned, true);
BENCHMARK_CAPTURE(check, turned, true);
BENCHMARK_CAPTURE(lines_alone, on_a_grid, false);
BENCHMARK_CAPTURE(check, on_a_grid, false);

BENCHMARK_MAIN();
