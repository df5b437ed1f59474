// What openings cost faces that have none: the meshes and areas of squares in a model in which one wall is cut, against
// those of the same squares in a model without openings. Both ways ask the same of every face; what counts is the ratio
// of one_face_cut to none_cut, and that is 1.

#include "sketchup/api/handles.h"
#include "sketchup/api/provider_state.h"
#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/link.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

using namespace sketchup;

constexpr int squares = 4096;

// Squares of an inch side by side, and behind them a wall of 10 inches with a window, glued to it or not.
SUModelRef model_with_wall(bool is_cut) {
    model_builder m;
    for (int i = 0; i < squares; ++i) {
        const double x = 2 * i;
        m.root().face({{x, 0, 1}, {x + 1, 0, 1}, {x + 1, 1, 1}, {x, 1, 1}});
    }
    const entity_place wall = m.root().square(10);
    list_builder window = m.component("window");
    m.definition(window).behavior.cuts_opening = true;
    window.edge({0, 0, 0}, {2, 0, 0});
    window.edge({2, 0, 0}, {2, 3, 0});
    window.edge({2, 3, 0}, {0, 0, 0});
    const entity_place placed = m.root().instance(window, moved({4, 5, 0}));
    if (is_cut)
        m.root().glue(placed, wall);
    std::unique_ptr<model> made = m.finish();
    skp::link(*made);
    return api::adopt_model(std::move(made));
}

void measure(SUFaceRef face) {
    SUMeshHelperRef mesh = SU_INVALID;
    double area = 0;
    size_t vertices = 0;
    SUMeshHelperCreate(&mesh, face);
    SUMeshHelperGetNumVertices(mesh, &vertices);
    SUMeshHelperRelease(&mesh);
    SUFaceGetArea(face, &area);
    benchmark::DoNotOptimize(area);
    benchmark::DoNotOptimize(vertices);
}

void uncut_faces(benchmark::State& state, bool is_cut) {
    SUModelRef opened = model_with_wall(is_cut);
    std::vector<face>& faces = api::provider().models.back()->model->faces;
    measure(api::handle_of<SUFaceRef>(faces[squares])); // the wall; its cut is kept from now on
    for (auto _ : state)
        for (int i = 0; i < squares; ++i)
            measure(api::handle_of<SUFaceRef>(faces[static_cast<std::size_t>(i)]));
    state.SetItemsProcessed(state.iterations() * squares);
    SUModelRelease(&opened);
}

} // namespace

BENCHMARK_CAPTURE(uncut_faces, none_cut, false);
BENCHMARK_CAPTURE(uncut_faces, one_face_cut, true);

BENCHMARK_MAIN();
