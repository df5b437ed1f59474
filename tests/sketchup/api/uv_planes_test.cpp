// Texture coordinates on planes of any orientation, in scaled and mirrored instances: a point of the texture is carried
// onto the face by hand, and the helper must lead back from there.

#include "sketchup/model/vector_math.h"
#include "tests/sketchup/api/test_model.h"

#include <array>
#include <gtest/gtest.h>
#include <random>

using namespace sketchup;

namespace {

constexpr double tile_width = 10;
constexpr double tile_height = 20;

class random_numbers {
public:
    double between(double low, double high) {
        return low + (high - low) * static_cast<double>(engine()) / static_cast<double>(std::mt19937::max());
    }

private:
    std::mt19937 engine{20261121}; // the same numbers everywhere
};

struct axes {
    vec3 u, v, n;
};

// u = unit(Z × n), v = n × u; on level planes those of the ground, mirrored looking down.
axes axes_across(const vec3& n) {
    if (n.x == 0 && n.y == 0)
        return {{n.z > 0 ? 1.0 : -1.0, 0, 0}, {0, 1, 0}, n};
    const vec3 level = cross({0, 0, 1}, n);
    const vec3 u = level / length(level);
    return {u, cross(n, u), n};
}

std::vector<vec3> normals(random_numbers& random) {
    std::vector<vec3> all = {{0, 0, 1}, {0, 0, -1}, {1, 0, 0}, {-1, 0, 0}, {0, 1, 0}, {0, -1, 0}};
    for (int i = 0; i < 40; ++i) {
        const vec3 any = {random.between(-1, 1), random.between(-1, 1), random.between(-1, 1)};
        all.push_back(any / length(any));
    }
    return all;
}

std::array<double, 9> affine_matrix(random_numbers& random) {
    return {random.between(0.5, 2), random.between(-0.4, 0.4), 0, random.between(-0.4, 0.4), random.between(0.5, 2), 0,
            random.between(-9, 9),  random.between(-9, 9),     1};
}

// [s t 1] · matrix over its third number: where a point of the texture lies in the axes of the plane.
std::array<double, 2> carried(const std::array<double, 9>& m, double s, double t) {
    const double w = s * m[2] + t * m[5] + m[8];
    return {(s * m[0] + t * m[3] + m[6]) / w, (s * m[1] + t * m[4] + m[7]) / w};
}

// A face across n at that distance from the origin, painted on both sides, in a component that is placed mirrored and
// scaled. Its box need not matter: coordinates are asked for at any point of its plane.
struct painted_plane {
    painted_plane(const axes& a, double distance) {
        const sketchup::index bricks = builder.textured_material("Brick", {}, "brick.png", tile_width, tile_height);
        list_builder component = builder.component("wall");
        const vec3 o = a.n * distance;
        face = component.face({o, o + a.u * 9, o + a.u * 9 + a.v * 9, o + a.v * 9});
        builder.face(face).material = bricks;
        builder.face(face).back_material = bricks;
        builder.root().instance(component, after(turned_about_z(30), scaled(-2, 3, 0.5)));
    }
    model_builder builder;
    entity_place face;
};

struct both_sides {
    SUUVQ front, back;
};

both_sides coordinates_at(SUFaceRef face, const vec3& p) {
    const SUPoint3D point = {p.x, p.y, p.z};
    both_sides found{};
    SUUVHelperRef helper = SU_INVALID;
    SUFaceGetUVHelper(face, true, true, SU_INVALID, &helper);
    SUUVHelperGetFrontUVQ(helper, &point, &found.front);
    SUUVHelperGetBackUVQ(helper, &point, &found.back);
    SUUVHelperRelease(&helper);
    return found;
}

void expect_texture_point(const SUUVQ& found, double s, double t) {
    EXPECT_NEAR(found.u / found.q, s / tile_width, 1e-9);
    EXPECT_NEAR(found.v / found.q, t / tile_height, 1e-9);
}

} // namespace

TEST(TextureCoordinatesOnAnyPlane, of_an_unplaced_texture_count_tiles_from_the_origin_on_both_sides) {
    random_numbers random;
    for (const vec3& n : normals(random)) {
        const axes a = axes_across(n);
        const double distance = random.between(-50, 50);
        painted_plane made(a, distance);
        test_model opened(made.builder);
        const double s = random.between(-30, 30), t = random.between(-30, 30);
        const both_sides found = coordinates_at(opened.face(), a.n * distance + a.u * s + a.v * t);
        expect_texture_point(found.front, s, t);
        expect_texture_point(found.back, s, t);
    }
}

TEST(TextureCoordinatesOnAnyPlane, lead_back_through_the_mapping_of_each_side) {
    random_numbers random;
    for (const vec3& n : normals(random)) {
        const axes a = axes_across(n);
        const double distance = random.between(-50, 50);
        painted_plane made(a, distance);
        texture_mapping& mapping = made.builder.mapping(made.face);
        mapping.front.positioned = mapping.back.positioned = true;
        mapping.front.matrix = affine_matrix(random);
        mapping.back.matrix = affine_matrix(random);
        mapping.back.matrix[2] = random.between(-0.01, 0.01); // distorted
        mapping.back.matrix[5] = random.between(-0.01, 0.01);
        const std::array matrices = {mapping.front.matrix, mapping.back.matrix};
        test_model opened(made.builder);
        bool front_is_affine = false, back_is_affine = true;
        EXPECT_EQ(SUFaceIsFrontMaterialAffine(opened.face(), &front_is_affine), SU_ERROR_NONE);
        EXPECT_EQ(SUFaceIsBackMaterialAffine(opened.face(), &back_is_affine), SU_ERROR_NONE);
        EXPECT_TRUE(front_is_affine);
        EXPECT_FALSE(back_is_affine);
        const double s = random.between(-20, 20), t = random.between(-20, 20);
        const auto place = [&](const std::array<double, 9>& matrix) {
            const auto [x, y] = carried(matrix, s, t);
            return a.n * distance + a.u * x + a.v * y;
        };
        expect_texture_point(coordinates_at(opened.face(), place(matrices[0])).front, s, t);
        expect_texture_point(coordinates_at(opened.face(), place(matrices[1])).back, s, t);
        EXPECT_EQ(coordinates_at(opened.face(), place(matrices[0])).front.q, 1);
    }
}

TEST(TextureCoordinatesOnAnyPlane, of_a_projected_texture_are_those_on_the_plane_across_the_projection) {
    random_numbers random;
    for (const vec3& along : normals(random)) {
        const axes a = axes_across(along);
        const vec3 any = {random.between(-1, 1), random.between(-1, 1), random.between(-1, 1)};
        painted_plane made(axes_across(any / length(any)), 5);
        side_mapping& front = made.builder.mapping(made.face).front;
        front.positioned = front.projected = true;
        front.direction = along;
        front.matrix = affine_matrix(random);
        const auto matrix = front.matrix;
        test_model opened(made.builder);
        const double s = random.between(-20, 20), t = random.between(-20, 20);
        const auto [x, y] = carried(matrix, s, t);
        const vec3 anywhere_along = a.u * x + a.v * y + along * random.between(-40, 40);
        expect_texture_point(coordinates_at(opened.face(), anywhere_along).front, s, t);
    }
}
