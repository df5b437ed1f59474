#include "tests/sketchup/api/painted_faces.h"
#include "tests/sketchup/api/test_mesh.h"
#include "tests/sketchup/api/test_model.h"

#include <gtest/gtest.h>

using sketchup::model_builder;
using sketchup::vec3;

namespace {

// A face 2000 inches wide that looks down, with a square hole of 100 inches from the origin.
void square_with_hole_looking_down(model_builder& builder) {
    const std::vector<vec3> outline = {{-1000, -1000, 0}, {-1000, 1000, 0}, {1000, 1000, 0}, {1000, -1000, 0}};
    const std::vector<std::vector<vec3>> holes = {{{0, 0, 0}, {100, 0, 0}, {100, 100, 0}, {0, 100, 0}}};
    builder.root().face(outline, holes);
}

} // namespace

TEST(Mesh, of_a_face_with_a_hole_has_the_hosts_vertices_and_triangles) {
    model_builder builder;
    square_with_hole_looking_down(builder);
    test_model opened(builder);
    const test_mesh mesh(opened.face());
    EXPECT_EQ(mesh.vertices(), std::vector<vec3>({{-1000, 1000, 0},
                                                  {0, 100, 0},
                                                  {-1000, -1000, 0},
                                                  {1000, 1000, 0},
                                                  {100, 100, 0},
                                                  {100, 0, 0},
                                                  {0, 0, 0},
                                                  {1000, -1000, 0}}));
    EXPECT_EQ(mesh.indices(),
              std::vector<size_t>({0, 1, 2, 1, 0, 3, 1, 3, 4, 4, 3, 5, 2, 6, 7, 6, 2, 1, 7, 6, 5, 7, 5, 3}));
    EXPECT_EQ(mesh.normals(), std::vector<vec3>(8, vec3{0, 0, -1}));
}

TEST(Mesh, gives_inches_on_both_sides_of_an_unpainted_face_and_zeros_for_a_side_not_asked_for) {
    model_builder builder;
    square_with_hole_looking_down(builder);
    test_model opened(builder);
    SUUVHelperRef helper = SU_INVALID, front_only = SU_INVALID;
    SUFaceGetUVHelper(opened.face(), true, true, SU_INVALID, &helper);
    SUFaceGetUVHelper(opened.face(), true, false, SU_INVALID, &front_only);
    const std::vector<vec3> inches = {{1000, 1000, 1}, {0, 100, 1},  {1000, -1000, 1}, {-1000, 1000, 1},
                                      {-100, 100, 1},  {-100, 0, 1}, {0, 0, 1},        {-1000, -1000, 1}};
    const test_mesh mesh(opened.face(), helper), half(opened.face(), front_only), bare(opened.face());
    EXPECT_EQ(mesh.coordinates(SUMeshHelperGetFrontSTQCoords), inches);
    EXPECT_EQ(mesh.coordinates(SUMeshHelperGetBackSTQCoords), inches);
    EXPECT_EQ(half.coordinates(SUMeshHelperGetFrontSTQCoords), inches);
    EXPECT_EQ(half.coordinates(SUMeshHelperGetBackSTQCoords), std::vector<vec3>(8));
    EXPECT_EQ(bare.coordinates(SUMeshHelperGetFrontSTQCoords), std::vector<vec3>(8));
    SUUVHelperRelease(&helper);
    SUUVHelperRelease(&front_only);
}

TEST(Mesh, made_with_a_writer_has_the_coordinates_of_both_sides) {
    model_builder builder;
    square_with_hole_looking_down(builder);
    test_model opened(builder);
    SUTextureWriterRef writer = SU_INVALID;
    SUTextureWriterCreate(&writer);
    SUMeshHelperRef mesh = SU_INVALID;
    EXPECT_EQ(SUMeshHelperCreateWithTextureWriter(&mesh, opened.face(), writer), SU_ERROR_NONE);
    SUPoint3D front{}, back{};
    size_t count = 0;
    EXPECT_EQ(SUMeshHelperGetFrontSTQCoords(mesh, 1, &front, &count), SU_ERROR_NONE);
    EXPECT_EQ(SUMeshHelperGetBackSTQCoords(mesh, 1, &back, &count), SU_ERROR_NONE);
    EXPECT_EQ(front.x, 1000);
    EXPECT_EQ(back.z, 1);
    SUMeshHelperRelease(&mesh);
    SUTextureWriterRelease(&writer);
}

TEST(Mesh, of_a_face_without_area_is_empty) {
    model_builder builder;
    builder.root().face({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}});
    test_model opened(builder);
    const test_mesh mesh(opened.face());
    EXPECT_TRUE(mesh.vertices().empty());
    EXPECT_TRUE(mesh.indices().empty());
    EXPECT_TRUE(mesh.normals().empty());
}

TEST(Mesh, averages_normals_over_a_smooth_edge) {
    model_builder builder;
    // Two squares that meet at a right angle along the y axis: one looks up, one along +x.
    builder.root().face({{-1, 0, 0}, {0, 0, 0}, {0, 1, 0}, {-1, 1, 0}});
    builder.root().face({{0, 0, -1}, {0, 1, -1}, {0, 1, 0}, {0, 0, 0}});
    for (sketchup::edge& e : builder.model().edges) {
        const vec3 a = builder.model().vertices[e.start].position, b = builder.model().vertices[e.end].position;
        e.smooth = e.soft = a.x == 0 && a.z == 0 && b.x == 0 && b.z == 0;
    }
    test_model opened(builder);
    const test_mesh mesh(opened.face(0));
    const std::vector<vec3> vertices = mesh.vertices(), normals = mesh.normals();
    ASSERT_EQ(normals.size(), 4u);
    for (size_t i = 0; i < 4; ++i) {
        const double slanted = vertices[i].x == 0 ? 0.70710678118654752 : 0;
        EXPECT_NEAR(normals[i].x, slanted, 1e-12);
        EXPECT_NEAR(normals[i].z, vertices[i].x == 0 ? slanted : 1, 1e-12);
    }
}

TEST(Mesh, fills_no_more_than_there_is_room_for) {
    model_builder builder;
    builder.root().square(1);
    test_model opened(builder);
    const test_mesh mesh(opened.face());
    size_t indices[4] = {9, 9, 9, 9}, count = 0;
    EXPECT_EQ(SUMeshHelperGetVertexIndices(mesh.ref, 3, indices, &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 3u);
    EXPECT_EQ(indices[3], 9u);
    SUPoint3D vertices[4] = {};
    EXPECT_EQ(SUMeshHelperGetVertices(mesh.ref, 2, vertices, &count), SU_ERROR_NONE);
    EXPECT_EQ(count, 2u);
}

TEST(Mesh, is_made_into_an_invalid_handle_from_real_ones) {
    model_builder builder;
    builder.root().square(1);
    test_model opened(builder);
    SUMeshHelperRef mesh = SU_INVALID;
    EXPECT_EQ(SUMeshHelperCreate(&mesh, SU_INVALID), SU_ERROR_INVALID_INPUT);
    EXPECT_EQ(SUMeshHelperCreateWithUVHelper(&mesh, opened.face(), SU_INVALID), SU_ERROR_INVALID_INPUT);
    EXPECT_EQ(SUMeshHelperCreateWithTextureWriter(&mesh, opened.face(), SU_INVALID), SU_ERROR_INVALID_INPUT);
    EXPECT_EQ(SUMeshHelperCreate(nullptr, opened.face()), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_FALSE(SUIsValid(mesh));
    EXPECT_EQ(SUMeshHelperCreate(&mesh, opened.face()), SU_ERROR_NONE);
    EXPECT_EQ(SUMeshHelperCreate(&mesh, opened.face()), SU_ERROR_OVERWRITE_VALID);
    EXPECT_EQ(SUMeshHelperRelease(&mesh), SU_ERROR_NONE);
    EXPECT_FALSE(SUIsValid(mesh));
    EXPECT_EQ(SUMeshHelperRelease(&mesh), SU_ERROR_INVALID_INPUT);
}

TEST(Mesh, that_was_released_serves_the_next_face) {
    model_builder builder;
    builder.root().square(1);
    builder.root().face({{0, 0, 5}, {1, 0, 5}, {0, 1, 5}});
    test_model opened(builder);
    SUMeshHelperRef mesh = SU_INVALID;
    SUMeshHelperCreate(&mesh, opened.face(0));
    const SUMeshHelperRef first = mesh;
    SUMeshHelperRelease(&mesh);
    size_t count = 0;
    EXPECT_EQ(SUMeshHelperGetNumVertices(first, &count), SU_ERROR_INVALID_INPUT) << "it is no longer in use";
    SUMeshHelperCreate(&mesh, opened.face(1));
    EXPECT_EQ(mesh.ptr, first.ptr) << "no memory is asked for again";
    SUMeshHelperGetNumVertices(mesh, &count);
    EXPECT_EQ(count, 3u);
    SUMeshHelperRelease(&mesh);
}
