// The openings that are cut into the faces of the samples, against the figures of a reader that shares no code with
// this one.

#include "sketchup/model/area_vector.h"
#include "sketchup/model/face_openings.h"
#include "sketchup/model/loop_corners.h"
#include "sketchup/model/opening_tolerance.h"
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
using sketchup::index;
using points = std::vector<vec3>;

constexpr double relative_tolerance = 1e-6;
constexpr double rounding = 1e-6; // figures have six decimals

void expect_near(double found, double expected, const std::string& what) {
    EXPECT_NEAR(found, expected, rounding + relative_tolerance * std::abs(expected)) << what;
}

std::vector<const entity_list*> lists_of(const model& m) {
    std::vector<const entity_list*> lists{&m.root};
    for (const component_definition& d : m.definitions)
        lists.push_back(&d.entities);
    return lists;
}

points loop_points(const model& m, index loop) {
    points corners;
    const index_range uses = m.loops[loop].uses;
    for (index i = 0; i < uses.count; ++i)
        corners.push_back(corner_position(m, uses.first + i));
    return corners;
}

double area_of(const points& polygon) {
    return length(area_vector(polygon)) / 2;
}

double gross_area(const model& m, const face& f) {
    double area = area_of(loop_points(m, f.loops.first));
    for (index l = 1; l < f.loops.count; ++l)
        area -= area_of(loop_points(m, f.loops.first + l));
    return area;
}

// Points at which a polygon turns by more than a millionth.
std::size_t corners_of(const points& polygon) {
    std::size_t corners = 0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const vec3& before = polygon[(i + polygon.size() - 1) % polygon.size()];
        const vec3& after = polygon[(i + 1) % polygon.size()];
        const vec3 a = normalized_or(polygon[i] - before, {}), b = normalized_or(after - polygon[i], {});
        corners += length(cross(a, b)) > 1e-6 ? 1 : 0;
    }
    return corners;
}

double distance_to_side(const vec3& p, const vec3& a, const vec3& b) {
    const double part = std::clamp(dot(p - a, b - a) / dot(b - a, b - a), 0.0, 1.0);
    return length(p - (a + (b - a) * part));
}

// Of two polygons that do not cross.
double distance_between(const points& one, const points& other) {
    double nearest = std::numeric_limits<double>::infinity();
    for (const auto& [corners, sides] : {std::pair(&one, &other), std::pair(&other, &one)})
        for (const vec3& p : *corners)
            for (std::size_t i = 0; i < sides->size(); ++i)
                nearest = std::min(nearest, distance_to_side(p, (*sides)[i], (*sides)[(i + 1) % sides->size()]));
    return nearest;
}

double distance_to_border(const model& m, const face& f, const points& polygon) {
    double nearest = std::numeric_limits<double>::infinity();
    for (index l = 0; l < f.loops.count; ++l)
        nearest = std::min(nearest, distance_between(polygon, loop_points(m, f.loops.first + l)));
    return nearest;
}

bool is_mirrored(const transform& t) {
    const vec3 x = {t[0], t[1], t[2]}, y = {t[4], t[5], t[6]}, z = {t[8], t[9], t[10]};
    return dot(cross(x, y), z) < 0;
}

bool has_edges_in_plane(const model& m, const entity_list& list) {
    return std::ranges::any_of(list.edges, [&m](index e) {
        return std::abs(m.vertices[m.edges[e].start].position.z) <= opening_tolerance &&
               std::abs(m.vertices[m.edges[e].end].position.z) <= opening_tolerance;
    });
}

// An opening with the placement that it comes from.
struct found_opening {
    const placement* cutter;
    points polygon;
    box extent;
};

std::vector<found_opening> openings_of(const model& m, face_openings& openings, const face& f) {
    opening_outlines outlines(m);
    std::vector<found_opening> found;
    std::vector<opening> left = openings.of(f);
    std::ranges::reverse(left);
    for (index c = f.cutters.first; c < f.cutters.first + f.cutters.count; ++c) {
        const placement& cutter = m.placements[m.cutters[c]];
        for (std::size_t i = is_drawn(m, cutter) ? outlines.of(cutter.definition).size() : 0; i > 0; --i) {
            found_opening& one = found.emplace_back(found_opening{&cutter, left.back().points, {}});
            left.pop_back();
            for (const vec3& p : one.polygon)
                include(one.extent, p);
        }
    }
    EXPECT_TRUE(left.empty());
    return found;
}

bool has_box(const box& found, const json& expected) {
    const double lows[] = {found.minimum.x, found.minimum.y, found.minimum.z};
    const double highs[] = {found.maximum.x, found.maximum.y, found.maximum.z};
    for (std::size_t i = 0; i < 3; ++i)
        if (std::abs(lows[i] - expected[0][i].get<double>()) > 1e-5 ||
            std::abs(highs[i] - expected[1][i].get<double>()) > 1e-5)
            return false;
    return true;
}

void expect_opening(const model& m, const face& f, const found_opening& found, const json& expected) {
    const component_definition& d = m.definitions[found.cutter->definition];
    EXPECT_EQ(d.name, expected["definition"]);
    EXPECT_EQ(found.cutter->kind == entity_kind::group ? "group" : "instance", expected["kind"]);
    EXPECT_EQ(is_drawn(m, *found.cutter), expected["visible"]);
    EXPECT_EQ(has_edges_in_plane(m, d.entities) ? "own" : "nested", expected["outline"]);
    EXPECT_EQ(found.polygon.size(), expected["points"]);
    EXPECT_EQ(corners_of(found.polygon), expected["corners"]);
    EXPECT_EQ(is_mirrored(found.cutter->transform), expected["mirrored"]);
    expect_near(area_of(found.polygon), expected["area"], "area of an opening");
    expect_near(distance_to_border(m, f, found.polygon), expected["distance_to_border"], "distance to the border");
}

void expect_face(const model& m, face_openings& openings, const face& f, const json& expected) {
    expect_near(gross_area(m, f), expected["area"], "area of the stored face");
    EXPECT_EQ(f.loops.count, expected["loops"]);
    std::size_t corners = 0;
    for (index l = 0; l < f.loops.count; ++l)
        corners += m.loops[f.loops.first + l].uses.count;
    EXPECT_EQ(corners, expected["points"]);
    const std::vector<found_opening> found = openings_of(m, openings, f);
    EXPECT_EQ(found.size(), expected["openings"]);
    for (const json& one : expected["each"]) {
        const auto here = std::ranges::find_if(found, [&](const auto& o) { return has_box(o.extent, one["box"]); });
        ASSERT_NE(here, found.end()) << "no opening in " << one["box"];
        expect_opening(m, f, *here, one);
    }
}

class SampleOpenings : public testing::TestWithParam<std::string> {};

TEST_P(SampleOpenings, agree_with_those_of_an_independent_reader) {
    const json& expected = expected_openings()[GetParam()];
    const auto m = skp::read_model(file_bytes(samples_folder() + GetParam()));
    std::size_t glued = 0, cutting = 0, cut_faces = 0;
    face_openings openings(*m);
    for (const entity_list* list : lists_of(*m)) {
        glued += list->glue.size();
        for (const glue_relation& one : list->glue)
            cutting += m->definitions[m->placements[one.glued.at].definition].behavior.cuts_opening ? 1 : 0;
        for (const index f : list->faces)
            cut_faces += openings.of(m->faces[f]).empty() ? 0 : 1;
    }
    EXPECT_EQ(glued, expected["glued"]);
    EXPECT_EQ(cutting, expected["cutting"]);
    EXPECT_EQ(cut_faces, expected["faces"].size());
    for (const json& face : expected["faces"]) {
        SCOPED_TRACE("face " + face["face"].dump() + " of " + face["list"].dump());
        const entity_list& list = list_named(*m, face["list"]);
        expect_face(*m, openings, m->faces[list.faces.at(face["face"])], face);
    }
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SampleOpenings);
INSTANTIATE_TEST_SUITE_P(Samples, SampleOpenings, testing::ValuesIn(names_of_openings()),
                         [](const auto& sample) { return test_name_of(sample.param); });

} // namespace
