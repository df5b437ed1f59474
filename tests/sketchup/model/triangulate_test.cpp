#include "sketchup/model/triangulate.h"

#include "shapes.h"
#include "sketchup/model/face_area.h"
#include "sketchup/model/loop_corners.h"
#include "sketchup/model/vector_math.h"
#include "tests/sketchup/model/print_points.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <numbers>
#include <random>

namespace sketchup {

namespace {

using test::points;
using test::shapes;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr vec3 up{0, 0, 1};
constexpr vec3 down{0, 0, -1};

face_mesh mesh_of(const model& m, const face& f) {
    face_mesh mesh;
    tessellator().triangulate(m, f, mesh);
    return mesh;
}

face_mesh mesh_of(const points& outline, const vec3& normal) {
    shapes s;
    s.face(outline, normal);
    return mesh_of(s.model, s.model.faces.front());
}

double area_of(const face_mesh& mesh) {
    double sum = 0;
    for (std::size_t i = 0; i < mesh.triangles.size(); i += 3) {
        const vec3& a = mesh.vertices[mesh.triangles[i]];
        sum += length(cross(mesh.vertices[mesh.triangles[i + 1]] - a, mesh.vertices[mesh.triangles[i + 2]] - a)) / 2;
    }
    return sum;
}

TEST(Triangulate, a_square_looking_up_starts_at_the_corner_after_the_one_swept_first) {
    const face_mesh mesh = mesh_of({{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}}, up);
    EXPECT_THAT(mesh.vertices, ElementsAre(vec3{10, 0, 0}, vec3{0, 10, 0}, vec3{0, 0, 0}, vec3{10, 10, 0}));
    EXPECT_THAT(mesh.triangles, ElementsAre(0, 1, 2, 1, 0, 3));
}

TEST(Triangulate, a_square_looking_down_has_another_vertex_order) {
    const face_mesh mesh = mesh_of({{0, 0, 0}, {0, 10, 0}, {10, 10, 0}, {10, 0, 0}}, down);
    EXPECT_THAT(mesh.vertices, ElementsAre(vec3{10, 10, 0}, vec3{0, 0, 0}, vec3{0, 10, 0}, vec3{10, 0, 0}));
    EXPECT_THAT(mesh.triangles, ElementsAre(0, 1, 2, 1, 0, 3));
}

TEST(Triangulate, a_face_with_a_square_hole_has_the_vertices_and_triangles_of_the_host) {
    shapes s;
    const face& f = s.face({{{-1000, -1000, 0}, {-1000, 1000, 0}, {1000, 1000, 0}, {1000, -1000, 0}},
                            {{0, 0, 0}, {100, 0, 0}, {100, 100, 0}, {0, 100, 0}}},
                           down);
    const face_mesh mesh = mesh_of(s.model, f);
    EXPECT_THAT(mesh.vertices,
                ElementsAre(vec3{-1000, 1000, 0}, vec3{0, 100, 0}, vec3{-1000, -1000, 0}, vec3{1000, 1000, 0},
                            vec3{100, 100, 0}, vec3{100, 0, 0}, vec3{0, 0, 0}, vec3{1000, -1000, 0}));
    EXPECT_THAT(mesh.triangles, ElementsAre(0, 1, 2, 1, 0, 3, 1, 3, 4, 4, 3, 5, 2, 6, 7, 6, 2, 1, 7, 6, 5, 7, 5, 3));
}

TEST(Triangulate, a_tilted_quadrilateral_has_the_vertices_and_triangles_of_the_host) {
    const vec3 normal = vec3{-1, 2, -1} / std::sqrt(6.0);
    const face_mesh mesh = mesh_of({{0, 0, 0}, {3, 2, 1}, {2, 3, 4}, {1, 2, 3}}, normal);
    EXPECT_THAT(mesh.vertices, ElementsAre(vec3{1, 2, 3}, vec3{3, 2, 1}, vec3{0, 0, 0}, vec3{2, 3, 4}));
    EXPECT_THAT(mesh.triangles, ElementsAre(0, 1, 2, 1, 0, 3));
}

TEST(Triangulate, a_vertex_tells_the_corner_it_stands_for) {
    shapes s;
    s.face(points{{50, 0, 0}, {60, 0, 0}, {60, 10, 0}}, up);
    const face& f =
        s.face({{{0, 0, 0}, {30, 0, 0}, {30, 30, 0}, {0, 30, 0}}, {{10, 10, 0}, {10, 20, 0}, {20, 20, 0}}}, up);
    const face_mesh mesh = mesh_of(s.model, f);
    ASSERT_THAT(mesh.corners, SizeIs(7));
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_GE(mesh.corners[i], 3U) << "corners 0 to 2 belong to the other face";
        EXPECT_EQ(corner_position(s.model, mesh.corners[i]), mesh.vertices[i]);
    }
}

TEST(Triangulate, a_concave_outline_is_not_filled_over) {
    // An L of 3 unit squares.
    const face_mesh mesh = mesh_of({{0, 0, 0}, {2, 0, 0}, {2, 1, 0}, {1, 1, 0}, {1, 2, 0}, {0, 2, 0}}, up);
    EXPECT_THAT(mesh.vertices, SizeIs(6));
    EXPECT_THAT(mesh.triangles, SizeIs(4 * 3));
    EXPECT_DOUBLE_EQ(area_of(mesh), 3);
}

TEST(Triangulate, collinear_corners_stay_vertices) {
    const face_mesh mesh = mesh_of({{0, 0, 0}, {5, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}}, up);
    EXPECT_THAT(mesh.vertices, testing::Contains(vec3{5, 0, 0}));
    EXPECT_THAT(mesh.triangles, SizeIs(3 * 3));
    EXPECT_DOUBLE_EQ(area_of(mesh), 100);
}

TEST(Triangulate, corners_at_one_point_become_one_vertex) {
    // Two squares of one outline that meet in (1, 1): five edges of a walk that passes the point twice.
    const face_mesh mesh =
        mesh_of({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {2, 1, 0}, {2, 2, 0}, {1, 2, 0}, {1, 1, 0}, {0, 1, 0}}, up);
    EXPECT_EQ(std::count(mesh.vertices.begin(), mesh.vertices.end(), vec3{1, 1, 0}), 1);
    EXPECT_THAT(mesh.vertices, SizeIs(7));
    EXPECT_THAT(mesh.corners, testing::Not(testing::Contains(no_index)))
        << "the vertex stands for one of the two corners";
    EXPECT_DOUBLE_EQ(area_of(mesh), 2);
}

TEST(Triangulate, a_corner_given_twice_in_a_row_becomes_one_vertex) {
    const face_mesh mesh = mesh_of({{0, 0, 0}, {10, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}}, up);
    EXPECT_THAT(mesh.vertices, SizeIs(4));
    EXPECT_DOUBLE_EQ(area_of(mesh), 100);
}

TEST(Triangulate, a_tiny_face_is_kept) {
    const face_mesh mesh = mesh_of({{0, 0, 0}, {1e-6, 0, 0}, {1e-6, 1e-6, 0}, {0, 1e-6, 0}}, up);
    EXPECT_THAT(mesh.triangles, SizeIs(2 * 3));
    EXPECT_DOUBLE_EQ(area_of(mesh), 1e-12);
}

TEST(Triangulate, a_bow_tie_gets_a_vertex_where_its_lines_cross) {
    const face_mesh mesh = mesh_of({{0, 0, 0}, {2, 2, 0}, {2, 0, 0}, {0, 2, 0}}, up);
    EXPECT_THAT(mesh.vertices, testing::Contains(vec3{1, 1, 0}));
    EXPECT_THAT(mesh.corners, testing::Contains(no_index));
    EXPECT_DOUBLE_EQ(area_of(mesh), 2); // two triangles of base 2 and height 1
}

TEST(Triangulate, a_face_without_area_is_empty) {
    const face_mesh line = mesh_of({{0, 0, 0}, {1, 1, 0}, {2, 2, 0}}, up);
    EXPECT_THAT(line.vertices, IsEmpty());
    EXPECT_THAT(line.triangles, IsEmpty());
    EXPECT_THAT(mesh_of({{3, 4, 5}, {3, 4, 5}, {3, 4, 5}, {3, 4, 5}}, up).vertices, IsEmpty());
    EXPECT_THAT(mesh_of({{0, 0, 0}, {1, 0, 0}}, up).vertices, IsEmpty());
    EXPECT_THAT(mesh_of(shapes().model, face()).vertices, IsEmpty());
}

TEST(Triangulate, an_outline_that_stands_on_edge_to_its_normal_is_empty) {
    EXPECT_THAT(mesh_of({{0, 0, 0}, {1, 0, 0}, {1, 0, 1}, {0, 0, 1}}, up).triangles, IsEmpty());
}

TEST(Triangulate, a_coordinate_or_normal_that_is_no_usable_number_gives_an_empty_mesh) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const points square = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
    for (const double bad : {nan, infinity, -infinity, 1e200, std::numeric_limits<double>::max()}) {
        for (std::size_t corner = 0; corner < 4; ++corner) {
            for (double vec3::*coordinate : {&vec3::x, &vec3::y, &vec3::z}) {
                points damaged = square;
                damaged[corner].*coordinate = bad;
                face_mesh mesh;
                tessellator().triangulate(damaged, std::vector<index>{4}, up, mesh);
                EXPECT_THAT(mesh.vertices, IsEmpty()) << bad;
            }
        }
        face_mesh mesh;
        tessellator().triangulate(square, std::vector<index>{4}, {0, bad, 1}, mesh);
        EXPECT_THAT(mesh.vertices, IsEmpty()) << bad;
    }
    face_mesh mesh;
    tessellator().triangulate(square, std::vector<index>{4}, {0, 0, 0}, mesh);
    EXPECT_THAT(mesh.vertices, IsEmpty());
}

TEST(Triangulate, a_face_with_a_missing_vertex_is_empty) {
    shapes s;
    const face& f = s.face(points{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}, up);
    s.model.edges[1].start = no_index;
    EXPECT_THAT(mesh_of(s.model, f).vertices, IsEmpty());
    s.model.edges[1].start = 1;
    s.model.edge_uses[2].edge = no_index;
    EXPECT_THAT(mesh_of(s.model, f).vertices, IsEmpty());
}

TEST(Triangulate, an_empty_face_after_a_full_one_leaves_nothing_of_it) {
    tessellator t;
    face_mesh mesh;
    t.triangulate(points{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}}, std::vector<index>{3}, up, mesh);
    ASSERT_THAT(mesh.vertices, SizeIs(3));
    t.triangulate(points{{0, 0, 0}, {1, 0, 0}, {2, 0, 0}}, std::vector<index>{3}, up, mesh);
    EXPECT_THAT(mesh.vertices, IsEmpty());
    EXPECT_THAT(mesh.corners, IsEmpty());
    EXPECT_THAT(mesh.triangles, IsEmpty());
}

TEST(Triangulate, random_points_of_every_size_neither_crash_nor_hang) {
    std::mt19937_64 random(20261121);
    std::uniform_int_distribution<int> exponent(-120, 99);
    std::uniform_real_distribution<double> mantissa(-1, 1);
    tessellator t;
    face_mesh mesh;
    for (int round = 0; round < 20000; ++round) {
        points corners(3 + random() % 12);
        const bool one_size = round % 2 == 0;
        const int size = exponent(random);
        for (vec3& p : corners) {
            const auto coordinate = [&] { return mantissa(random) * std::pow(10, one_size ? size : exponent(random)); };
            p = {coordinate(), coordinate(), coordinate()};
        }
        const vec3 normal{mantissa(random), mantissa(random), mantissa(random)};
        t.triangulate(corners, std::vector<index>{static_cast<index>(corners.size())}, normal, mesh);
        ASSERT_EQ(mesh.triangles.size() % 3, 0U);
        for (const std::uint32_t i : mesh.triangles) {
            ASSERT_LT(i, mesh.vertices.size());
        }
    }
}

// An outline around several holes, each a star about a point, so that the loops don't meet.
struct holed_face {
    std::vector<points> loops;
    vec3 normal;
};

points star(std::mt19937_64& random, const vec3& center, double least, double most, bool clockwise) {
    std::uniform_real_distribution<double> radius(least, most);
    const std::size_t count = 3 + random() % 9;
    points corners;
    for (std::size_t i = 0; i < count; ++i) {
        const double angle = 2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(count);
        const double r = radius(random);
        corners.push_back(center + vec3{r * std::cos(angle), r * std::sin(angle), 0});
    }
    if (clockwise) {
        std::reverse(corners.begin(), corners.end());
    }
    return corners;
}

// The outline keeps 4.5 away from the middle even along its sides: a triangle of radius 9 comes as near as 9 / 2.
holed_face random_face(std::mt19937_64& random) {
    std::uniform_real_distribution<double> any(-1, 1);
    const vec3 normal = normalized_or({any(random), any(random), any(random)}, up);
    const vec3 height{0, 0, 100 * any(random)};
    holed_face f{{test::in_plane_of(normal, star(random, height, 9, 15, false))}, normal};
    for (const vec3& center : {vec3{2, 0, 0}, vec3{-2, 1, 0}, vec3{-1, -2, 0}}) {
        if (random() % 2 == 0) {
            f.loops.push_back(test::in_plane_of(normal, star(random, center + height, 0.2, 1.2, true)));
        }
    }
    return f;
}

TEST(Triangulate, the_triangles_cover_the_area_of_the_face_and_look_to_its_front) {
    std::mt19937_64 random(7);
    tessellator t;
    face_mesh mesh;
    for (int round = 0; round < 3000; ++round) {
        const holed_face random_shape = random_face(random);
        shapes s;
        const face& f = s.face(random_shape.loops, random_shape.normal);
        t.triangulate(s.model, f, mesh);
        const double area = face_area(s.model, f);
        ASSERT_NEAR(area_of(mesh), area, 1e-9 * area) << "round " << round;
        for (std::size_t i = 0; i < mesh.triangles.size(); i += 3) {
            const vec3& a = mesh.vertices[mesh.triangles[i]];
            const vec3& b = mesh.vertices[mesh.triangles[i + 1]];
            const vec3& c = mesh.vertices[mesh.triangles[i + 2]];
            ASSERT_GT(dot(cross(b - a, c - a), f.plane.normal()), -1e-9) << "round " << round;
        }
    }
}

// The same loops begun at other corners and half of them reversed.
holed_face turned_face(std::mt19937_64& random, holed_face f) {
    for (points& l : f.loops) {
        std::rotate(l.begin(), l.begin() + static_cast<std::ptrdiff_t>(random() % l.size()), l.end());
        if (random() % 2 == 0) {
            std::reverse(l.begin(), l.end());
        }
    }
    return f;
}

face_mesh mesh_of(const holed_face& f) {
    shapes s;
    return mesh_of(s.model, s.face(f.loops, f.normal));
}

// The triangles by their corners' positions, each begun at its smallest, in sorted order.
std::vector<std::array<std::array<double, 3>, 3>> triangle_set(const face_mesh& mesh) {
    std::vector<std::array<std::array<double, 3>, 3>> result;
    for (std::size_t i = 0; i < mesh.triangles.size(); i += 3) {
        auto& triangle = result.emplace_back();
        for (std::size_t k = 0; k < 3; ++k) {
            const vec3& p = mesh.vertices[mesh.triangles[i + k]];
            triangle[k] = {p.x, p.y, p.z};
        }
        std::rotate(triangle.begin(), std::min_element(triangle.begin(), triangle.end()), triangle.end());
    }
    std::sort(result.begin(), result.end());
    return result;
}

// The numbers of vertices may change, so that loops must be handed on as the file has them.
TEST(Triangulate, start_corners_and_directions_never_change_the_set_of_triangles) {
    std::mt19937_64 random(13);
    for (int round = 0; round < 1000; ++round) {
        const holed_face shape = random_face(random);
        ASSERT_EQ(triangle_set(mesh_of(turned_face(random, shape))), triangle_set(mesh_of(shape))) << "round " << round;
    }
}

TEST(Triangulate, a_square_with_a_square_hole_is_numbered_alike_from_all_start_corners_in_both_directions) {
    const holed_face shape = {{{{-1000, -1000, 0}, {-1000, 1000, 0}, {1000, 1000, 0}, {1000, -1000, 0}},
                               {{0, 0, 0}, {100, 0, 0}, {100, 100, 0}, {0, 100, 0}}},
                              down};
    const face_mesh expected = mesh_of(shape);
    for (int way = 0; way < 64; ++way) {
        holed_face turned = shape;
        std::rotate(turned.loops[0].begin(), turned.loops[0].begin() + way % 4, turned.loops[0].end());
        std::rotate(turned.loops[1].begin(), turned.loops[1].begin() + way / 4 % 4, turned.loops[1].end());
        for (const std::size_t l : {0U, 1U}) {
            if ((way / 16 >> l) % 2 == 1) {
                std::reverse(turned.loops[l].begin(), turned.loops[l].end());
            }
        }
        const face_mesh mesh = mesh_of(turned);
        ASSERT_EQ(mesh.vertices, expected.vertices) << "way " << way;
        ASSERT_EQ(mesh.triangles, expected.triangles) << "way " << way;
    }
}

// n lines of which nearly every two cross.
points pencil_of_lines(std::size_t n) {
    points corners;
    for (std::size_t i = 0; i < n; ++i) {
        const double angle = std::numbers::pi * (1 - 1 / static_cast<double>(n)) * static_cast<double>(i);
        corners.push_back({1000 * std::cos(angle), 1000 * std::sin(angle), 0});
    }
    return corners;
}

TEST(Triangulate, a_face_that_crosses_itself_without_end_is_empty_instead_of_filling_the_memory) {
    EXPECT_THAT(mesh_of(pencil_of_lines(101), up).triangles, testing::Not(IsEmpty()));
    face_mesh mesh;
    tessellator().triangulate(pencil_of_lines(100'001), std::vector<index>{100'001}, up, mesh);
    EXPECT_THAT(mesh.triangles, IsEmpty());
}

TEST(Triangulate, a_comb_of_many_teeth_is_meshed) {
    points comb = {{3000, -1, 0}, {3000, 0, 0}};
    for (int tooth = 1499; tooth >= 0; --tooth) {
        comb.push_back({2.0 * tooth + 1, 0, 0});
        comb.push_back({2.0 * tooth + 0.5, 500, 0});
        comb.push_back({2.0 * tooth, 0, 0});
    }
    comb.push_back({0, -1, 0});
    face_mesh mesh;
    tessellator().triangulate(comb, std::vector<index>{static_cast<index>(comb.size())}, up, mesh);
    // 1500 teeth of base 1 and height 500, on a bar of 3000 by 1.
    EXPECT_NEAR(area_of(mesh), 1500 * 250 + 3000, 1e-6);
}

} // namespace
} // namespace sketchup
