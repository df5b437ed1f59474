// What a window that is glued to a wall changes about the wall, and what not.

#include "tests/sketchup/api/cut_wall.h"
#include "tests/sketchup/api/painted_faces.h"
#include "tests/sketchup/api/test_mesh.h"

#include <gmock/gmock.h>

using sketchup::model_builder;
using sketchup::vec3;
using testing::Each;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

namespace {

const std::vector<vec3> wall_with_window = {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0},
                                            {4, 5, 0}, {6, 5, 0},  {6, 8, 0},   {4, 8, 0}};

double area_of(SUFaceRef face) {
    double area = -1;
    EXPECT_EQ(SUFaceGetArea(face, &area), SU_ERROR_NONE);
    return area;
}

double area_of(const test_mesh& mesh) {
    const std::vector<vec3> vertices = mesh.vertices();
    const std::vector<size_t> corners = mesh.indices();
    double doubled = 0;
    for (size_t i = 0; i < corners.size(); i += 3) {
        const vec3 &a = vertices[corners[i]], &b = vertices[corners[i + 1]], &c = vertices[corners[i + 2]];
        doubled += (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
    }
    return doubled / 2;
}

// A window as large as the wall.
void add_wall_that_is_all_window(model_builder& builder) {
    const sketchup::entity_place placed = add_cut_wall(builder);
    builder.placement(placed).transform = {5, 0, 0, 0, 0, 10.0 / 3, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
}

} // namespace

TEST(CutFace, has_the_corners_of_the_window_in_its_mesh_and_a_hole_between_them) {
    model_builder builder;
    add_cut_wall(builder);
    test_model opened(builder);
    const test_mesh mesh(opened.face());
    EXPECT_THAT(mesh.vertices(), UnorderedElementsAreArray(wall_with_window));
    EXPECT_EQ(mesh.indices().size(), 3 * 8u); // 8 vertices, 1 hole: 8 + 2 - 2 triangles
    EXPECT_EQ(area_of(mesh), 94);             // counter-clockwise seen from the front
    EXPECT_THAT(mesh.normals(), Each(vec3{0, 0, 1}));
}

TEST(CutFace, has_the_area_that_is_left) {
    model_builder builder;
    add_cut_wall(builder);
    test_model opened(builder);
    EXPECT_EQ(area_of(opened.face()), 94); // 10 x 10 - 2 x 3
}

TEST(CutFace, is_whole_again_with_its_window_hidden) {
    model_builder builder;
    builder.placement(add_cut_wall(builder)).hidden = true;
    test_model opened(builder);
    EXPECT_EQ(area_of(opened.face()), 100);
    EXPECT_EQ(test_mesh(opened.face()).vertices().size(), 4u);
}

TEST(CutFace, has_texture_coordinates_at_the_corners_of_the_window) {
    model_builder builder;
    add_cut_wall(builder);
    builder.model().faces[0].material = brick(builder); // 10 x 20 inches
    test_model opened(builder);
    SUUVHelperRef helper = SU_INVALID;
    SUFaceGetUVHelper(opened.face(), true, true, SU_INVALID, &helper);
    SUTextureWriterRef writer = SU_INVALID;
    SUTextureWriterCreate(&writer);
    const test_mesh with_helper(opened.face(), helper), with_writer(opened.face(), writer);
    for (const test_mesh* mesh : {&with_helper, &with_writer}) {
        EXPECT_THAT(mesh->vertices(), UnorderedElementsAreArray(wall_with_window));
        EXPECT_THAT(mesh->coordinates(SUMeshHelperGetFrontSTQCoords),
                    UnorderedElementsAre(vec3{0, 0, 1}, vec3{1, 0, 1}, vec3{1, 0.5, 1}, vec3{0, 0.5, 1},
                                         vec3{0.4, 0.25, 1}, vec3{0.6, 0.25, 1}, vec3{0.6, 0.4, 1}, vec3{0.4, 0.4, 1}));
    }
    SUTextureWriterRelease(&writer);
    SUUVHelperRelease(&helper);
}

TEST(CutFace, keeps_its_smooth_corners_and_is_flat_at_those_of_the_window) {
    model_builder builder;
    add_cut_wall(builder);
    // A square at a right angle to the wall along the y axis, that looks along -x.
    builder.root().face({{0, 0, 0}, {0, 10, 0}, {0, 10, -10}, {0, 0, -10}});
    for (sketchup::edge& e : builder.model().edges) {
        const vec3 a = builder.model().vertices[e.start].position, b = builder.model().vertices[e.end].position;
        e.smooth = a.x == 0 && a.z == 0 && b.x == 0 && b.z == 0 && std::abs(a.y - b.y) == 10;
    }
    test_model opened(builder);
    const test_mesh mesh(opened.face());
    const std::vector<vec3> vertices = mesh.vertices(), normals = mesh.normals();
    ASSERT_EQ(vertices.size(), 8u);
    for (size_t i = 0; i < 8; ++i) {
        const double slanted = vertices[i].x == 0 ? 0.70710678118654752 : 0;
        EXPECT_NEAR(normals[i].x, -slanted, 1e-12);
        EXPECT_NEAR(normals[i].z, vertices[i].x == 0 ? slanted : 1, 1e-12);
    }
}

TEST(CutFace, keeps_edges_and_plane) {
    model_builder builder;
    add_cut_wall(builder);
    test_model opened(builder);
    size_t edges = 0;
    EXPECT_EQ(SUFaceGetNumEdges(opened.face(), &edges), SU_ERROR_NONE);
    EXPECT_EQ(edges, 4u);
    SUPlane3D plane{};
    EXPECT_EQ(SUFaceGetPlane(opened.face(), &plane), SU_ERROR_NONE);
    EXPECT_EQ(plane.c, 1);
}

TEST(CutFace, of_which_nothing_is_left_has_no_vertices_no_triangles_and_no_area) {
    model_builder builder;
    add_wall_that_is_all_window(builder);
    test_model opened(builder);
    const test_mesh mesh(opened.face());
    EXPECT_TRUE(mesh.vertices().empty());
    EXPECT_TRUE(mesh.indices().empty());
    EXPECT_TRUE(mesh.normals().empty());
    EXPECT_EQ(area_of(opened.face()), 0);
}
