// Whole vertices: NORM, UVQ, VERT, ADDV and a third of a FACE, nine numbers and two integers. Ours, a formatted print
// for each line, and constant text of the same length, which shows what the numbers cost. The sink is the null device,
// so that the disk has no say, or a file in the temporary folder.

#include "tessaline/stream/geometry_stream.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int vertex_count = 65536 * 3;

struct vertex {
    fpt normal;
    fpt uvq;
    fpt position;
};

// Six normals of ten along an axis, half of the points from inches on a grid, no two neighbours alike.
std::vector<vertex> some_vertices() {
    std::mt19937_64 engine(1);
    const auto uniform = [&](double from, double to) {
        return std::uniform_real_distribution<double>(from, to)(engine);
    };
    std::vector<vertex> vertices(vertex_count);
    for (vertex& v : vertices) {
        v.normal = {uniform(-1, 1), uniform(-1, 1), uniform(-1, 1)};
        v.normal.make_unit(1);
        if (engine() % 10 < 6)
            v.normal = {engine() % 2 ? 1.0 : -1.0, 0, 0};
        v.uvq = {uniform(0, 4), uniform(0, 4), 1};
        v.position = {uniform(-500, 500), uniform(-500, 500), uniform(-500, 500)};
        if (engine() % 2)
            v.position = {std::round(uniform(-20000, 20000)) * 0.0254, std::round(uniform(-20000, 20000)) * 0.0254, 0};
    }
    return vertices;
}

void write_ours(const std::vector<vertex>& vertices, const char* path) {
    geometry_stream stream;
    stream.open(path, "Tessaline");
    for (int i = 0; i != vertex_count; ++i) {
        const vertex& v = vertices[static_cast<std::size_t>(i)];
        stream.write_vertex(i, v.normal, &v.uvq, v.position);
        if (i % 3 == 2)
            stream.write_face(i - 2, i - 1, i);
    }
}

void write_constant_text(const std::vector<vertex>&, const char* path) {
    static constexpr std::string_view text = "NORM;(0.123456789,-0.1234567,0)\r\nUVQ;(1.23456789,2.34567891,1)\r\n"
                                             "VERT;(-123.456789,234.567891,12.3456789)\r\nADDV;123456\r\n";
    std::vector<char> buffer(geometry_stream::usual_block + 4096);
    platform::file file;
    file.open(path, platform::open_mode::write);
    std::size_t size = 0;
    for (int i = 0; i != vertex_count; ++i) {
        text.copy(buffer.data() + size, text.size());
        size += text.size();
        if (size > geometry_stream::usual_block) {
            file.write_all({buffer.data(), size});
            size = 0;
        }
    }
    file.write_all({buffer.data(), size});
}

void write_with_printf(const std::vector<vertex>& vertices, const char* path) {
    std::FILE* const file = std::fopen(path, "wb");
    for (int i = 0; i != vertex_count; ++i) {
        const vertex& v = vertices[static_cast<std::size_t>(i)];
        std::fprintf(file, "NORM;(%.9g,%.9g,%.9g)\r\n", v.normal.x, v.normal.y, v.normal.z);
        std::fprintf(file, "UVQ;(%.9g,%.9g,%.9g)\r\n", v.uvq.x, v.uvq.y, v.uvq.z);
        std::fprintf(file, "VERT;(%.9g,%.9g,%.9g)\r\n", v.position.x, v.position.y, v.position.z);
        std::fprintf(file, "ADDV;%d\r\n", i);
        if (i % 3 == 2)
            std::fprintf(file, "FACE;%d,%d,%d\r\n", i - 2, i - 1, i);
    }
    std::fclose(file);
}

std::string null_device() {
    return "/dev/null";
}
std::string new_file() {
    std::string name = platform::temporary_folder();
    name.append("/bench_stream.txt");
    platform::delete_file(name);
    return name;
}

template<void (*writer)(const std::vector<vertex>&, const char*), std::string (*sink)()>
void vertices_to(benchmark::State& state) {
    const std::vector<vertex> vertices = some_vertices();
    for (auto _ : state)
        writer(vertices, sink().c_str());
    state.SetItemsProcessed(state.iterations() * vertex_count);
}

BENCHMARK(vertices_to<write_with_printf, null_device>)->Name("null/printf");
BENCHMARK(vertices_to<write_ours, null_device>)->Name("null/write_vertex");
BENCHMARK(vertices_to<write_constant_text, null_device>)->Name("null/constant");
BENCHMARK(vertices_to<write_with_printf, new_file>)->Name("file/printf");
BENCHMARK(vertices_to<write_ours, new_file>)->Name("file/write_vertex");
BENCHMARK(vertices_to<write_constant_text, new_file>)->Name("file/constant");

} // namespace

BENCHMARK_MAIN();
