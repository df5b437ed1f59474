// The short cut for triangles and convex quadrilaterals against the sweep on the same faces. What counts is the ratio
// of sweep to triangulate; run with --benchmark_enable_random_interleaving=true --benchmark_repetitions=7.

#include "sketchup/model/triangulate.h"
#include "sketchup/model/vector_math.h"

#include <benchmark/benchmark.h>

#include <array>
#include <random>
#include <vector>

namespace {

using namespace sketchup;

struct convex_face {
    std::vector<vec3> corners;
    vec3 normal;
};

// Squares or right triangles of an inch in planes of any direction, pushed about; a few thousand more than a processor
// learns by heart.
std::vector<convex_face> random_faces(std::size_t corners) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> any(-1, 1);
    std::vector<convex_face> faces(65536);
    for (convex_face& f : faces) {
        f.normal = normalized_or({any(random), any(random), any(random)}, {0, 0, 1});
        const vec3 x = normalized_or(cross({any(random), any(random), any(random)}, f.normal), {1, 0, 0});
        const vec3 y = cross(f.normal, x);
        const vec3 origin{100 * any(random), 100 * any(random), 100 * any(random)};
        f.corners = {origin, origin + x, origin + x + y, origin + y};
        f.corners.resize(corners);
    }
    return faces;
}

using method = void (tessellator::*)(std::span<const vec3>, std::span<const index>, const vec3&, face_mesh&);

void run(benchmark::State& state, method way, std::size_t corners) {
    const std::vector<convex_face> faces = random_faces(corners);
    const std::array<index, 1> sizes = {static_cast<index>(corners)};
    tessellator t;
    face_mesh mesh;
    std::size_t next = 0;
    for (auto _ : state) {
        const convex_face& f = faces[next++ % faces.size()];
        (t.*way)(f.corners, sizes, f.normal, mesh);
        benchmark::DoNotOptimize(mesh.triangles.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations());
}

constexpr method short_cut = &tessellator::triangulate;

} // namespace

BENCHMARK_CAPTURE(run, triangle_short_cut, short_cut, 3);
BENCHMARK_CAPTURE(run, triangle_sweep, &tessellator::sweep, 3);
BENCHMARK_CAPTURE(run, quadrilateral_short_cut, short_cut, 4);
BENCHMARK_CAPTURE(run, quadrilateral_sweep, &tessellator::sweep, 4);

BENCHMARK_MAIN();
