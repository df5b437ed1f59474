#include "image/project_picture.h"

#include "tests/image/pictures.h"

#include <cmath>
#include <gtest/gtest.h>

using image::perspective;
using image::picture;
using image::project_picture;
using image::projected_place;

namespace {

// The source, so many times across and down.
perspective repeated(double across, double down) {
    return {{0, 0, 1}, {across, 0, 0}, {0, down, 0}};
}

// The colour at a place, between the middles of four pixels.
double mixed(const picture& source, double x, double y, std::size_t channel) {
    const double column = (x - std::floor(x)) * source.width() + source.width() - 0.5;
    const double row = (y - std::floor(y)) * source.height() + source.height() - 0.5;
    double sum = 0;
    for (const int right : {0, 1})
        for (const int below : {0, 1}) {
            const auto i = static_cast<std::uint32_t>(column + right) % source.width();
            const auto j = static_cast<std::uint32_t>(row + below) % source.height();
            const double across = column - std::floor(column);
            const double down = row - std::floor(row);
            sum += source.row(j)[i * source.bytes_per_pixel() + channel] * (right == 1 ? across : 1 - across) *
                   (below == 1 ? down : 1 - down);
        }
    return sum;
}

// What project_picture comes near: the mean of 12 x 12 places in each pixel.
std::vector<double> plainly_projected(const picture& source, const perspective& through, std::uint32_t width,
                                      std::uint32_t height) {
    constexpr int samples = 12;
    const std::size_t channels = source.bytes_per_pixel();
    std::vector<double> means(width * height * channels);
    for (std::uint32_t y = 0; y < height * samples; ++y)
        for (std::uint32_t x = 0; x < width * samples; ++x) {
            const double right = (x + 0.5) / (width * samples);
            const double below = (y + 0.5) / (height * samples);
            const auto at = [&](double projected_place::*part) {
                return through.start.*part + right * through.across.*part + below * through.down.*part;
            };
            const double q = at(&projected_place::q);
            for (std::size_t i = 0; i < channels; ++i)
                means[((y / samples) * width + x / samples) * channels + i] +=
                    mixed(source, at(&projected_place::x) / q, at(&projected_place::y) / q, i) / (samples * samples);
        }
    return means;
}

double mean_difference(const picture& found, const std::vector<double>& wanted) {
    double sum = 0;
    for (std::size_t i = 0; i < wanted.size(); ++i)
        sum += std::abs(found.bytes()[i] - wanted[i]);
    return sum / static_cast<double>(wanted.size());
}

// A disc on a ground of another colour: edges in all directions.
picture disc(std::uint32_t size, int bits) {
    picture made = *picture::make({size, size, bits});
    for (std::uint32_t y = 0; y < size; ++y)
        for (std::uint32_t x = 0; x < size; ++x)
            for (std::size_t i = 0; i < made.bytes_per_pixel(); ++i)
                made.row(y)[x * made.bytes_per_pixel() + i] =
                    std::hypot(x - size / 2.0, y - size / 2.0) < size / 3.0 ? static_cast<std::uint8_t>(40 * i) : 230;
    return made;
}

} // namespace

TEST(ProjectPicture, of_one_pixel_for_each_is_the_source) {
    for (const int bits : {24, 32}) {
        const picture source = noise(37, 21, bits);
        EXPECT_EQ(project_picture(source, repeated(1, 1), 37, 21), source) << bits;
    }
}

TEST(ProjectPicture, repeats_the_source_on_both_sides) {
    const picture source = noise(5, 3);
    const picture found = project_picture(source, {{-1, -2, 1}, {3, 0, 0}, {0, 3, 0}}, 15, 9);
    for (std::uint32_t y = 0; y < 9; ++y)
        for (std::uint32_t i = 0; i < 45; ++i)
            ASSERT_EQ(found.row(y)[i], source.row(y % 3)[i % 15]) << i << " " << y;
}

TEST(ProjectPicture, mirrors_and_turns_the_source_without_loss) {
    const picture source = noise(6, 4);
    const picture mirrored = project_picture(source, {{1, 0, 1}, {-1, 0, 0}, {0, 1, 0}}, 6, 4);
    const picture turned = project_picture(source, {{0, 0, 1}, {0, 1, 0}, {1, 0, 0}}, 4, 6);
    for (std::uint32_t y = 0; y < 4; ++y)
        for (std::uint32_t x = 0; x < 6; ++x)
            for (std::uint32_t i = 0; i < 3; ++i) {
                ASSERT_EQ(mirrored.row(y)[3 * x + i], source.row(y)[3 * (5 - x) + i]);
                ASSERT_EQ(turned.row(x)[3 * y + i], source.row(y)[3 * x + i]);
            }
}

TEST(ProjectPicture, mixes_two_neighbours_alike_half_a_pixel_on_and_the_last_with_the_first) {
    const picture source = noise(5, 3);
    const picture right = project_picture(source, {{0.5 / 5, 0, 1}, {1, 0, 0}, {0, 1, 0}}, 5, 3);
    const picture below = project_picture(source, {{0, 0.5 / 3, 1}, {1, 0, 0}, {0, 1, 0}}, 5, 3);
    for (std::uint32_t y = 0; y < 3; ++y)
        for (std::uint32_t i = 0; i < 15; ++i) {
            ASSERT_EQ(right.row(y)[i], (source.row(y)[i] + source.row(y)[(i + 3) % 15] + 1) / 2) << i << " " << y;
            ASSERT_EQ(below.row(y)[i], (source.row(y)[i] + source.row((y + 1) % 3)[i] + 1) / 2) << i << " " << y;
        }
}

// A colour is mixed of 256 parts: a thousandth of a pixel is none.
TEST(ProjectPicture, takes_a_place_next_to_the_middle_of_a_pixel_for_the_middle) {
    const picture source = noise(8, 8);
    for (const double beside : {-0.001, 0.001})
        EXPECT_EQ(project_picture(source, {{beside / 8, beside / 8, 1}, {1, 0, 0}, {0, 1, 0}}, 8, 8), source) << beside;
}

// The place 3.8 t / (1 + 3 t) runs from 0 to 0.95, four times as fast at the left as the whole and 16 times as fast as
// at the right. The source is as blue as its column, so that a place in it is its colour and half a pixel more.
TEST(ProjectPicture, keeps_to_the_perspective_within_a_row) {
    picture source = *picture::make({256, 1, 24});
    for (std::uint32_t x = 0; x < 256; ++x)
        source.row(0)[3 * x] = static_cast<std::uint8_t>(x);
    const picture found = project_picture(source, {{0, 0, 1}, {3.8, 0, 3}, {0, 1, 0}}, 400, 1);
    for (std::uint32_t x = 1; x < 400; ++x) { // the first pixel reaches over the left edge
        const double t = (x + 0.5) / 400;
        ASSERT_NEAR(found.row(0)[3 * x], 256 * 3.8 * t / (1 + 3 * t) - 0.5, 1) << x;
    }
}

// All pixels of the row lie on one place, the upper edge, but q runs from 1 to 4, and their height is a q-th of the
// source. A quarter of the source beside that edge is white: a quarter of the whole at the left, all there is at the
// right.
TEST(ProjectPicture, fits_areas_that_change_along_a_row) {
    picture source = *picture::make({1, 64, 24});
    for (std::uint32_t y = 0; y < 64; ++y)
        std::fill_n(source.row(y), 3, static_cast<std::uint8_t>(y < 8 || y >= 56 ? 255 : 0));
    const picture found = project_picture(source, {{0.5, -0.5, 1}, {1.5, 0, 3}, {0, 1, 0}}, 16, 1);
    EXPECT_NEAR(found.row(0)[0], 255 / 4.0, 25);
    EXPECT_NEAR(found.row(0)[3 * 15], 255, 10);
}

TEST(ProjectPicture, gives_the_means_of_whole_pixels) {
    const picture source = noise(24, 24, 32);
    for (const auto& [across, down] : {std::pair(2u, 2u), {4u, 2u}, {1u, 8u}, {3u, 1u}}) {
        const picture found = project_picture(source, repeated(1, 1), 24 / across, 24 / down);
        for (std::uint32_t y = 0; y < 24 / down; ++y)
            for (std::uint32_t x = 0; x < 24 / across; ++x)
                for (std::uint32_t channel = 0; channel < 4; ++channel) {
                    std::uint32_t sum = 0;
                    for (std::uint32_t j = 0; j < down; ++j)
                        for (std::uint32_t i = 0; i < across; ++i)
                            sum += source.row(y * down + j)[4 * (x * across + i) + channel];
                    ASSERT_NEAR(found.row(y)[4 * x + channel], 1.0 * sum / (across * down), 0.5001)
                        << across << " x " << down << " at " << x << " " << y;
                }
    }
}

TEST(ProjectPicture, mixes_alpha_like_any_other_channel) {
    picture source = *picture::make({2, 1, 32});
    source.bytes() = {0, 100, 200, 0, 100, 200, 0, 255};
    EXPECT_EQ(project_picture(source, repeated(1, 1), 1, 1).bytes(), (std::vector<std::uint8_t>{50, 150, 100, 128}));
}

TEST(ProjectPicture, of_a_huge_area_is_the_mean_of_the_source) {
    image::picture half = *picture::make({8, 8, 24});
    for (std::uint32_t y = 0; y < 4; ++y)
        std::fill_n(half.row(y), half.bytes_per_row(), std::uint8_t{200});
    const picture found = project_picture(half, repeated(12345.6, 98765.4), 5, 7);
    EXPECT_EQ(found.bytes(), std::vector<std::uint8_t>(5 * 7 * 3, 100));
}

TEST(ProjectPicture, is_near_the_means_of_many_places) {
    const perspective views[] = {
        {{0, 0, 1}, {1.3, 0.2, 0}, {-0.4, 0.9, 0}},       // turned and skewed
        {{0, 0, 1}, {3.7, 0.3, 0}, {3.1, 0.9, 0}},        // hardly more than a line
        {{0.2, 0.1, 1}, {1, 0.1, 0.8}, {0.2, 1.4, -0.3}}, // a perspective
        {{-0.5, 0.5, 1}, {1.2, 0, 0}, {0.3, 1, -0.8}},    // one that goes five times as far at the lower edge
    };
    for (const int bits : {24, 32})
        for (const perspective& through : views) {
            const picture source = disc(64, bits);
            const picture found = project_picture(source, through, 40, 48);
            ASSERT_EQ(found.extent(), (image::picture_extent{40, 48, bits}));
            EXPECT_LT(mean_difference(found, plainly_projected(source, through, 40, 48)), 2)
                << through.across.x << " " << bits;
        }
}

TEST(ProjectPicture, where_there_is_no_place_is_the_mean_of_the_source) {
    picture source = *picture::make({4, 1, 24});
    source.bytes() = {0, 10, 20, 100, 110, 120, 100, 110, 120, 0, 10, 20};
    const std::vector<std::uint8_t> mean = {50, 60, 70};
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    constexpr double endless = std::numeric_limits<double>::infinity();
    for (const double bad : {none, endless, -endless, 1e300, -1e300}) {
        EXPECT_EQ(project_picture(source, {{bad, 0, 1}, {0.25, 0, 0}, {0, 1, 0}}, 1, 1).bytes(), mean) << bad;
        EXPECT_EQ(project_picture(source, {{0, 0, 1}, {1, 0, 0}, {0, bad, 0}}, 1, 1).bytes(), mean) << bad;
    }
    EXPECT_EQ(project_picture(source, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, 1, 1).bytes(), mean) << "q is 0 everywhere";
    EXPECT_EQ(project_picture(source, {{0, -0.5, 1e-310}, {0, 0, 0}, {0, 1, 0}}, 1, 1).bytes(), mean)
        << "a place whose movement is endless";
}

TEST(ProjectPicture, of_a_size_that_no_picture_has_is_empty) {
    EXPECT_TRUE(project_picture(noise(2, 2), repeated(1, 1), 0, 5).is_empty());
    EXPECT_TRUE(project_picture(noise(2, 2), repeated(1, 1), 1u << 31, 1u << 31).is_empty());
}
