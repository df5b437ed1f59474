#include "sketchup/model/straighten_texture.h"

#include "sketchup/builder/model_builder.h"
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
    // Not distorted: 10 x 20 inches hold 100 x 100 pixels, so 15 x 30 inches take 150 x 150.
    const auto m = painted_model({{0, 0, 0}, {15, 0, 0}, {15, 30, 0}, {0, 30, 0}}, {1, 0, 0, 0, 1, 0, 0, 0, 1});
    const image::picture straight = straighten_texture(noise(100, 100), *m, m->faces[0], face_side::front);
    EXPECT_EQ(straight.extent(), (image::picture_extent{150, 150, 24}));
}

// q = 1 + x / 20 is 1 at the left and 1.5 at the right edge. With 100 pixels to a tile the place is 10 x / q, 5 y / q.
// It moves fastest at the upper left, by 10 and -0.05 * 5 * 20 = -5 pixels for an inch along x, by 0 and 5 for one
// along y: 10 inches ask for the square root of 100 * 100 + 50 * 50 = 111.8, 20 inches for 100.
TEST(StraightenTexture, is_as_fine_as_the_corner_where_the_source_lies_closest) {
    const auto m = painted_model({{0, 0, 0}, {10, 0, 0}, {10, 20, 0}, {0, 20, 0}}, {1, 0, -0.05, 0, 1, 0, 0, 0, 1});
    const image::picture straight = straighten_texture(noise(100, 100), *m, m->faces[0], face_side::front);
    EXPECT_EQ(straight.extent(), (image::picture_extent{112, 100, 24}));
}

// Of 8 x 8 pixels four times as many are 256: as the horizon asks for endless pixels both ways, 16 x 16.
TEST(StraightenTexture, with_the_horizon_on_the_face_has_four_times_the_pixels_of_the_source) {
    const auto m = painted_model({{0, 0, 0}, {30, 0, 0}, {30, 40, 0}, {0, 40, 0}}, {1, 0, -0.1, 0, 1, -0.1, 0, 0, 1});
    const face& f = m->faces[0];
    EXPECT_EQ(straighten_texture(noise(8, 8), *m, f, face_side::front).extent(), (image::picture_extent{16, 16, 24}));
    EXPECT_EQ(straighten_texture(noise(1, 1), *m, f, face_side::front).extent(), (image::picture_extent{2, 2, 24}));
}

TEST(StraightenedExtent, is_what_the_face_asks_for_rounded_up) {
    const image::picture_extent source = {100, 50, 32};
    EXPECT_EQ(straightened_extent(80.5, 20, source), (image::picture_extent{81, 20, 32}));
    EXPECT_EQ(straightened_extent(80.001, 20, source), (image::picture_extent{80, 20, 32})) << "noise";
    EXPECT_EQ(straightened_extent(0, 0.3, source), (image::picture_extent{1, 1, 32}));
    EXPECT_EQ(straightened_extent(std::nan(""), -5, source), (image::picture_extent{1, 1, 32}));
    EXPECT_EQ(straightened_extent(200, 100, source), (image::picture_extent{200, 100, 32})) << "20000: just in bounds";
}

TEST(StraightenedExtent, takes_what_is_over_four_times_the_pixels_of_the_source_from_the_longer_side) {
    const double endless = std::numeric_limits<double>::infinity();
    const image::picture_extent source = {100, 50, 24}; // 4 x 5000 = 20000
    EXPECT_EQ(straightened_extent(50, 1000, source), (image::picture_extent{50, 400, 24}));
    EXPECT_EQ(straightened_extent(1000, 50, source), (image::picture_extent{400, 50, 24}));
    EXPECT_EQ(straightened_extent(900, 1000, source), (image::picture_extent{141, 141, 24})) << "141 x 141 = 19881";
    EXPECT_EQ(straightened_extent(endless, endless, source), (image::picture_extent{141, 141, 24}));
    EXPECT_EQ(straightened_extent(150, endless, source), (image::picture_extent{141, 141, 24}));
}

TEST(StraightenedExtent, has_no_side_above_the_longest_however_large_the_source_is) {
    const double endless = std::numeric_limits<double>::infinity();
    EXPECT_EQ(straightened_extent(endless, endless, {8192, 8192, 32}), (image::picture_extent{2048, 2048, 32}));
    EXPECT_EQ(straightened_extent(1, 1e300, {512, 512, 24}), (image::picture_extent{1, 2048, 24}));
    EXPECT_EQ(straightened_extent(4096, 16, {4096, 16, 24}), (image::picture_extent{2048, 16, 24}));
}

TEST(StraightenTexture, of_a_straight_mapping_is_the_source_itself) {
    const auto m = painted_model({{0, 0, 0}, {10, 0, 0}, {10, 20, 0}, {0, 20, 0}}, {1, 0, 0, 0, 1, 0, 0, 0, 1});
    for (const int bits : {24, 32}) {
        const image::picture source = noise(32, 64, bits);
        EXPECT_EQ(straighten_texture(source, *m, m->faces[0], face_side::front), source) << bits;
    }
}

TEST(StraightenTexture, of_a_straight_mapping_on_half_the_rows_mixes_two_and_two) {
    const auto m = painted_model({{0, 0, 0}, {10, 0, 0}, {10, 20, 0}, {0, 20, 0}}, {1, 0, 0, 0, 1, 0, 0, 0, 1});
    const image::picture source = gradient(32, 64);
    const image::picture straight = straighten_texture(source, *m, m->faces[0], face_side::front, 32);
    ASSERT_EQ(straight.extent(), (image::picture_extent{32, 32, 24}));
    for (std::uint32_t y = 0; y < 32; ++y)
        for (std::uint32_t i = 0; i < 32 * 3; ++i)
            ASSERT_EQ(straight.row(y)[i], (source.row(2 * y)[i] + source.row(2 * y + 1)[i] + 1) / 2) << i << " " << y;
}

// Fields of one pixel: what is far from the eye is an even grey, and nothing is anything but a mixture.
TEST(StraightenTexture, of_a_chequered_floor_is_grey_towards_the_horizon) {
    image::picture chequers = *image::picture::make({64, 64, 24});
    for (std::uint32_t y = 0; y < 64; ++y)
        for (std::uint32_t i = 0; i < 64 * 3; ++i)
            chequers.row(y)[i] = (i / 3 + y) % 2 == 0 ? 255 : 0;
    // q = 1 - y / 40.001 is near 0 at the upper edge.
    const auto m =
        painted_model({{0, 0, 0}, {10, 0, 0}, {10, 40, 0}, {0, 40, 0}}, {1, 0, 0, 0, 1, 1 / 40.001, 0, 0, 1});
    const image::picture straight = straighten_texture(chequers, *m, m->faces[0], face_side::front);
    ASSERT_EQ(straight.extent(), (image::picture_extent{128, 128, 24}));
    for (std::uint32_t i = 0; i < 128 * 3; ++i)
        EXPECT_NEAR(straight.row(0)[i], 127.5, 1) << i;
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

TEST(StraightenTexture, where_there_is_no_place_is_the_mean_of_the_source) {
    auto m = painted_model({{0, 0, 0}, {30, 0, 0}, {30, 40, 0}, {0, 40, 0}}, perspective);
    image::picture source = *image::picture::make({2, 1, 32});
    source.bytes() = {10, 20, 30, 0, 30, 60, 90, 200};
    for (sketchup::vertex& v : m->vertices)
        v.position.x = std::nan("");
    const image::picture straight = straighten_texture(source, *m, m->faces[0], face_side::front);
    ASSERT_EQ(straight.extent(), (image::picture_extent{1, 1, 32}));
    EXPECT_EQ(straight.bytes(), (std::vector<std::uint8_t>{20, 40, 60, 100}));
}

TEST(StraightenTexture, of_a_face_without_area_is_one_pixel) {
    auto m = painted_model({{0, 0, 0}, {30, 0, 0}, {30, 40, 0}, {0, 40, 0}}, perspective);
    for (sketchup::vertex& v : m->vertices)
        v.position = {3, 4, 0};
    const image::picture straight = straighten_texture(noise(8, 8), *m, m->faces[0], face_side::front);
    EXPECT_EQ(straight.extent(), (image::picture_extent{1, 1, 24}));
}
