#include "sketchup/model/straighten_texture.h"

#include "sketchup/model/model_builder.h"
#include "sketchup/model/straightened_side.h"
#include "sketchup/model/vector_math.h"
#include "sketchup/skp/link.h"
#include "tests/image/pictures.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace sketchup;

namespace {

// A face of the given corners with a picture of a 10 × 20 inch tile on both sides, both mapped by `matrix`.
std::unique_ptr<model> painted_model(std::initializer_list<vec3> corners, const std::array<double, 9>& matrix) {
    model_builder builder;
    const sketchup::index paint = builder.textured_material("Brick", {}, "brick.png", 10, 20);
    const entity_place made = builder.root().face(corners);
    builder.face(made).material = builder.face(made).back_material = paint;
    texture_mapping mapping;
    mapping.front.positioned = mapping.back.positioned = true;
    mapping.front.matrix = mapping.back.matrix = matrix;
    builder.model().texture_mappings.push_back(mapping);
    builder.face(made).texture_mapping = 0;
    auto built = builder.finish();
    skp::link(*built);
    return built;
}

// A colour wave that has no seam where the tiles meet, so that colours between pixels are never far off.
double wave(double u, double v, int channel) {
    constexpr double turn = 6.283185307179586;
    return 127.5 + 60 * std::sin(turn * (u + channel / 3.0)) + 60 * std::cos(turn * (v - channel / 5.0));
}

image::picture wave_picture(std::uint32_t size, int bits_per_pixel) {
    image::picture made = *image::picture::make({size, size, bits_per_pixel});
    for (std::uint32_t y = 0; y < size; ++y)
        for (std::uint32_t x = 0; x < size; ++x)
            for (std::size_t channel = 0; channel < made.bytes_per_pixel(); ++channel)
                made.row(y)[x * made.bytes_per_pixel() + channel] = static_cast<std::uint8_t>(
                    wave((x + 0.5) / size, 1 - (y + 0.5) / size, static_cast<int>(channel)) + 0.5);
    return made;
}

std::uint8_t nearest(const image::picture& p, double u, double v, std::size_t channel) {
    const auto at = [](double part, std::uint32_t size) {
        return static_cast<std::uint32_t>(std::clamp(std::floor(part * size), 0.0, size - 1.0));
    };
    return p.row(at(1 - v, p.height()))[at(u, p.width()) * p.bytes_per_pixel() + channel];
}

constexpr std::array<double, 9> perspective = {1.1, 0.2, 0.004, -0.1, 0.9, 0.006, 3, -2, 1};

} // namespace

TEST(StraightenTexture, shows_through_its_coordinates_what_the_distorted_mapping_shows) {
    // Level, upright and tilted planes; the corners span each.
    const std::initializer_list<vec3> planes[] = {
        {{0, 0, 0}, {30, 0, 0}, {30, 40, 0}, {0, 40, 0}},
        {{0, 40, 0}, {30, 40, 0}, {30, 0, 0}, {0, 0, 0}}, // the same, looking down
        {{5, 7, -3}, {25, 7, -3}, {25, 7, 30}, {5, 7, 30}},
        {{1, 2, 3}, {21, 12, 13}, {16, 42, 23}, {-4, 32, 13}},
    };
    for (const int bits : {24, 32})
        for (const auto& corners : planes) {
            const auto m = painted_model(corners, perspective);
            const face& f = m->faces[0];
            const image::picture source = wave_picture(256, bits);
            for (const face_side side : {face_side::front, face_side::back}) {
                const image::picture straight = straighten_texture(source, *m, f, side);
                ASSERT_EQ(straight.extent().bits_per_pixel, bits);
                const side_coordinates original = coordinates_of_side(*m, f, side);
                const side_coordinates rewritten = straightened_coordinates(*m, f);
                const std::vector<vec3> c(corners);
                std::minstd_rand random(1);
                for (int i = 0; i < 500; ++i) {
                    const double along = static_cast<double>(random() % 1000) / 1000;
                    const double up = static_cast<double>(random() % 1000) / 1000;
                    const vec3 p = c[0] + (c[1] - c[0]) * along + (c[3] - c[0]) * up;
                    const uvq before = original.at(p);
                    const uvq after = rewritten.at(p);
                    ASSERT_EQ(after.q, 1);
                    ASSERT_GE(after.u, -1e-9);
                    ASSERT_LE(after.v, 1 + 1e-9);
                    for (std::size_t channel = 0; channel < source.bytes_per_pixel(); ++channel)
                        // Half a pixel of 256 along either axis changes a wave by at most 60 x 2 pi / 512 = 0.74.
                        ASSERT_NEAR(nearest(straight, after.u, after.v, channel),
                                    wave(before.u / before.q, before.v / before.q, static_cast<int>(channel)), 3)
                            << along << " " << up << " channel " << channel;
                }
            }
        }
}

TEST(StraightenTexture, has_pixels_as_fine_as_those_of_the_source) {
    // Not distorted: 10 x 20 inches hold 100 x 100 pixels, so 30 x 40 inches take 300 x 200.
    const auto m = painted_model({{0, 0, 0}, {30, 0, 0}, {30, 40, 0}, {0, 40, 0}}, {1, 0, 0, 0, 1, 0, 0, 0, 1});
    const image::picture straight = straighten_texture(noise(100, 100), *m, m->faces[0], face_side::front);
    EXPECT_NEAR(straight.width(), 300, 1);
    EXPECT_NEAR(straight.height(), 200, 1);
}

TEST(StraightenTexture, of_a_straight_mapping_is_the_source_itself) {
    const auto m = painted_model({{0, 0, 0}, {10, 0, 0}, {10, 20, 0}, {0, 20, 0}}, {1, 0, 0, 0, 1, 0, 0, 0, 1});
    const image::picture source = gradient(32, 64);
    const image::picture straight = straighten_texture(source, *m, m->faces[0], face_side::front, 32);
    ASSERT_EQ(straight.width(), 32u);
    EXPECT_EQ(straight.height(), 32u); // kept to the longest side; two rows of the source are mixed
    EXPECT_NEAR(straight.row(3)[5 * 3 + 1], (source.row(6)[5 * 3 + 1] + source.row(7)[5 * 3 + 1]) / 2.0, 1);
}

TEST(StraightenTexture, keeps_to_the_longest_side_however_large_the_face_is) {
    const auto m = painted_model({{0, 0, 0}, {1e6, 0, 0}, {1e6, 1e6, 0}, {0, 1e6, 0}}, perspective);
    const image::picture straight = straighten_texture(noise(8, 8), *m, m->faces[0], face_side::front, 64);
    EXPECT_LE(straight.width(), 64u);
    EXPECT_LE(straight.height(), 64u);
}

TEST(StraightenTexture, survives_a_horizon_on_the_face_and_numbers_that_are_none) {
    // q is 0 along a line through the face.
    const std::array<double, 9> horizon = {1, 0, -0.1, 0, 1, -0.1, 0, 0, 1};
    const auto m = painted_model({{0, 0, 0}, {30, 0, 0}, {30, 40, 0}, {0, 40, 0}}, horizon);
    EXPECT_FALSE(straighten_texture(noise(8, 8), *m, m->faces[0], face_side::front, 64).is_empty());
    for (const double bad : {std::nan(""), std::numeric_limits<double>::infinity(), 1e300, -1e300}) {
        for (sketchup::vertex& v : m->vertices)
            v.position.x = bad;
        EXPECT_FALSE(straighten_texture(noise(8, 8), *m, m->faces[0], face_side::front, 64).is_empty()) << bad;
        m->texture_mappings[0].front.matrix[2] = bad;
        EXPECT_FALSE(straighten_texture(noise(8, 8), *m, m->faces[0], face_side::front, 64).is_empty()) << bad;
    }
}

TEST(StraightenTexture, of_a_face_without_area_is_one_pixel) {
    auto m = painted_model({{0, 0, 0}, {30, 0, 0}, {30, 40, 0}, {0, 40, 0}}, perspective);
    for (sketchup::vertex& v : m->vertices)
        v.position = {3, 4, 0};
    const image::picture straight = straighten_texture(noise(8, 8), *m, m->faces[0], face_side::front);
    EXPECT_EQ(straight.extent(), (image::picture_extent{1, 1, 24}));
}
