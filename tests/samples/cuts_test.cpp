// What openings leave of the faces of the samples, against the figures of a reader that shares no code with this one.

#include "sketchup/model/face_area.h"
#include "sketchup/model/face_cuts.h"
#include "sketchup/model/vector_math.h"
#include "sketchup/skp/read_model.h"
#include "tests/samples/expected_figures.h"
#include "tests/samples/list_named.h"
#include "tests/samples_folder.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace sketchup;
using nlohmann::json;

void expect_area(double found, const json& expected, const char* what) {
    // Figures have six decimals.
    EXPECT_NEAR(found, expected.get<double>(), 1e-6 + 1e-6 * std::abs(expected.get<double>())) << what;
}

bool has_box(const opening& o, const json& expected) {
    box around;
    for (const vec3& p : o.points)
        include(around, p);
    const double found[] = {around.minimum.x, around.minimum.y, around.minimum.z,
                            around.maximum.x, around.maximum.y, around.maximum.z};
    for (std::size_t i = 0; i < 6; ++i)
        if (std::abs(found[i] - expected[i / 3][i % 3].get<double>()) > 1e-5)
            return false;
    return true;
}

void expect_mesh(const face& f, const face_cut& cut, const json& expected) {
    if (expected["mesh_vertices"].is_null())
        return;
    tessellator triangulator;
    face_mesh mesh;
    triangulate_cut(triangulator, f, cut, mesh);
    EXPECT_EQ(mesh.vertices.size(), expected["mesh_vertices"]);
    EXPECT_EQ(mesh.triangles.size() / 3, expected["mesh_triangles"]);
}

// The opening on the panel of "Component#304" takes one side of a rectangle from end to end, 0.75 of 8.875 inches. That
// leaves one rectangle; the figures say 2.
std::size_t pieces_of(const json& expected) {
    return expected["list"] == "Component#304" ? 1 : expected["pieces"].get<std::size_t>();
}

void expect_cut(const model& m, const face& f, const std::vector<opening>& openings, const json& expected) {
    face_cuts cuts(m);
    const face_cut& cut = cuts.of(f, openings);
    expect_area(cut.area, expected["area_left"], "what is left");
    expect_area(face_area(m, f) - cut.area, expected["area_removed"], "what is removed");
    EXPECT_EQ(cut.pieces, pieces_of(expected));
    expect_mesh(f, cut, expected);
    for (const json& one : expected["each"]) {
        if (!one["visible"])
            continue;
        const auto here = std::ranges::find_if(openings, [&](const opening& o) { return has_box(o, one["box"]); });
        ASSERT_NE(here, openings.end()) << "no opening in " << one["box"];
        face_cuts alone(m);
        expect_area(face_area(m, f) - alone.of(f, {*here}).area, one["area_inside"], "what one opening removes");
    }
}

class SampleCuts : public testing::TestWithParam<std::string> {};

TEST_P(SampleCuts, leave_what_an_independent_reader_found) {
    const json& expected = expected_openings()[GetParam()]["faces"];
    const auto m = skp::read_model(file_bytes(samples_folder() + GetParam()));
    face_openings openings(*m);
    for (const json& one : expected) {
        SCOPED_TRACE("face " + one["face"].dump() + " of " + one["list"].dump());
        const face& f = m->faces[list_named(*m, one["list"]).faces.at(one["face"])];
        expect_cut(*m, f, openings.of(f), one);
    }
    const auto has_openings = [&](const face& f) { return !openings.of(f).empty(); };
    EXPECT_EQ(std::ranges::count_if(m->faces, has_openings), static_cast<std::ptrdiff_t>(expected.size()));
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SampleCuts);
INSTANTIATE_TEST_SUITE_P(Samples, SampleCuts, testing::ValuesIn(names_of_openings()),
                         [](const auto& sample) { return test_name_of(sample.param); });

} // namespace
