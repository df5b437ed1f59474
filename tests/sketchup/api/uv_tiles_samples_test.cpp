// Where whole texture coordinates fall on faces of real models, as the host's maker asserts it.

#include "sketchup/api/handles.h"
#include "tests/sketchup/api/sample_model.h"

#include <array>
#include <gtest/gtest.h>
#include <vector>

namespace {

struct tile_corner {
    SUPoint3D point;
    double u;
    double v;
};

enum class kind { affine, distorted };

struct tile {
    long long persistent_id; // 0: the first face at the top level
    kind mapping;
    std::vector<tile_corner> corners;
};

const sketchup::face* face_of(SUModelRef model, long long persistent_id) {
    const sketchup::model& m = *sketchup::api::object_of(model);
    if (persistent_id == 0)
        return m.root.faces.empty() ? nullptr : &m.faces[m.root.faces.front()];
    for (const sketchup::face& f : m.faces)
        if (f.persistent_id == persistent_id)
            return &f;
    return nullptr;
}

// The asserted figures are printed with three decimals: 0.001 inch on tiles of 10 inches and more.
constexpr double tolerance = 2e-4;

void expect_tiles(const std::string& file, const std::vector<tile>& tiles) {
    if (!has_sample(file))
        GTEST_SKIP() << file << " is not at hand";
    const sample_model opened(file);
    ASSERT_EQ(opened.result, SU_ERROR_NONE);
    for (const tile& expected : tiles) {
        const sketchup::face* found = face_of(opened.ref, expected.persistent_id);
        ASSERT_TRUE(found) << expected.persistent_id;
        const auto face = sketchup::api::handle_of<SUFaceRef>(*const_cast<sketchup::face*>(found));
        bool affine = false;
        EXPECT_EQ(SUFaceIsFrontMaterialAffine(face, &affine), SU_ERROR_NONE);
        EXPECT_EQ(affine, expected.mapping == kind::affine) << expected.persistent_id;
        SUUVHelperRef helper = SU_INVALID;
        ASSERT_EQ(SUFaceGetUVHelper(face, true, false, SU_INVALID, &helper), SU_ERROR_NONE);
        for (const tile_corner& corner : expected.corners) {
            SUUVQ at{};
            EXPECT_EQ(SUUVHelperGetFrontUVQ(helper, &corner.point, &at), SU_ERROR_NONE);
            EXPECT_NEAR(at.u / at.q, corner.u, tolerance) << expected.persistent_id;
            EXPECT_NEAR(at.v / at.q, corner.v, tolerance) << expected.persistent_id;
            EXPECT_TRUE(!affine || at.q == 1) << expected.persistent_id;
        }
        SUUVHelperRelease(&helper);
    }
}

} // namespace

TEST(SampleTiles, of_plain_and_positioned_faces_fall_where_the_host_has_them) {
    expect_tiles(
        "testup-uv_tile_at_variations.skp",
        {{27788,
          kind::affine,
          {{{60, 39.3778, 0}, 3, 0}, {{80, 39.3778, 0}, 4, 0}, {{80, 39.3778, 20}, 4, 1}, {{60, 39.3778, 20}, 3, 1}}},
         {27806,
          kind::affine,
          {{{20, 0, 20}, 2, 3},
           {{30, 0, 20}, 3, 3},
           {{30, 0, 40}, 3, 4},
           {{20, 0, 40}, 2, 4},
           {{20, 60, 20}, 2, 3}}}, // 60 inches off the plane
         {27824,
          kind::affine,
          {{{138.11, 0, -10}, 2, 3}, {{148.11, 0, -10}, 3, 3}, {{148.11, 0, 10}, 3, 4}, {{138.11, 0, 10}, 2, 4}}},
         {27851, kind::affine, {{{138.11, 69.6534, -10}, 2, 3}, {{148.11, 69.6534, 10}, 3, 4}}},
         {27870,
          kind::affine,
          {{{206.85, 0, 20}, 0, 3}, {{216.85, 0, 20}, 1, 3}, {{226.851, 0, 40}, 1, 4}, {{216.85, 0, 40}, 0, 4}}}});
}

TEST(SampleTiles, of_distorted_faces_fall_where_the_host_has_them) {
    expect_tiles("testup-uv_tile_at_variations.skp", {{28026,
                                                       kind::distorted,
                                                       {{{423.11, 69.6534, -20}, 1, 2},
                                                        {{443.11, 69.6534, -20}, 2, 2},
                                                        {{432.11, 69.6534, 20}, 2, 3},
                                                        {{420.11, 69.6534, 20}, 1, 3}}},
                                                      {27997,
                                                       kind::distorted,
                                                       {{{419.977, 38.2457, -20}, -8, 2},
                                                        {{429.977, 55.5662, -20}, -7, 2},
                                                        {{460.477, 108.394, 20}, -7, 3},
                                                        {{454.477, 98.0014, 20}, -8, 3}}},
                                                      {28006,
                                                       kind::distorted,
                                                       {{{453.11, 23.1102, -20}, -19, 2},
                                                        {{453.11, 43.1102, -20}, -18, 2},
                                                        {{453.11, 192.11, 20}, -18, 3},
                                                        {{453.11, 180.11, 20}, -19, 3}}}});
}

TEST(SampleTiles, of_projected_faces_fall_where_the_host_has_them) {
    const std::vector<tile_corner> at_an_angle = {
        {{543.11, 0, -20}, 2, 2}, {{563.11, 0, -20}, 3, 2}, {{544.11, 0, 20}, 3, 3}, {{532.11, 0, 20}, 2, 3}};
    expect_tiles(
        "testup-uv_tile_at_variations.skp",
        {{27916,
          kind::affine,
          {{{298.11, 0, 10}, 0, 4},
           {{308.11, 0, 10}, 1, 4},
           {{308.11, 0, 30}, 1, 5},
           {{298.11, 0, 30}, 0, 5},
           {{298.11, 69.6534, 10}, 0, 4}}}, // the last on the face
         {27934, kind::affine, {{{338.111, 0, -10}, 4, 3}, {{348.111, 0, 10}, 5, 4}}},
         {27952, kind::affine, {{{348.111, 0, 10}, 5, 4}, {{358.111, 0, 30}, 6, 5}}},
         {28090,
          kind::distorted,
          {{{523.11, 0, -20}, 1, 2}, {{543.11, 0, -20}, 2, 2}, {{532.11, 0, 20}, 2, 3}, {{520.11, 0, 20}, 1, 3}}},
         {28072, kind::distorted, at_an_angle},
         {28081, kind::distorted, at_an_angle}});
}

TEST(SampleTiles, of_a_stretched_face_on_the_ground_fall_where_the_host_has_them) {
    expect_tiles(
        "testup-uv_tile_at.skp",
        {{0, kind::affine, {{{20, 40, 0}, 1, 3}, {{30, 40, 0}, 2, 3}, {{30, 60, 0}, 2, 4}, {{20, 60, 0}, 1, 4}}}});
}

TEST(SampleTiles, of_a_wall_with_an_oblique_plane_fall_where_the_host_has_them) {
    expect_tiles("testup-SKEXT-3298.skp", {{28052,
                                            kind::affine,
                                            {{{3.72908, 393.77, 0}, -8, 0},
                                             {{2.22821, 344.581, 0}, -7, 0},
                                             {{2.22821, 344.581, 70.8661}, -7, 1},
                                             {{3.72908, 393.77, 70.8661}, -8, 1}}}});
}
