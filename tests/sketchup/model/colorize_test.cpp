#include "sketchup/model/colorize.h"

#include "tests/image/pictures.h"

#include <gtest/gtest.h>

using namespace sketchup;

namespace {

constexpr bool shift = false;
constexpr bool tint = true;

material colorized(rgba color, std::uint32_t kind) {
    material m;
    m.type = material_type::colorized;
    m.color = color;
    m.colorize_type = kind;
    return m;
}

image::picture one_pixel(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    image::picture made = *image::picture::make({1, 1, 24});
    made.bytes() = {blue, green, red};
    return made;
}

} // namespace

TEST(HueColour, follows_the_double_cone) {
    const hue_colour red = hue_colour_of(1, 0, 0);
    EXPECT_EQ(red.hue, 0);
    EXPECT_EQ(red.lightness, 0.5);
    EXPECT_EQ(red.saturation, 1);
    EXPECT_EQ(hue_colour_of(0, 1, 0).hue, 120);
    EXPECT_EQ(hue_colour_of(0, 0, 1).hue, 240);
    EXPECT_EQ(hue_colour_of(1, 0, 0.5).hue, 330);
    EXPECT_EQ(hue_colour_of(0.5, 0.5, 0.5).hue, -1);
    EXPECT_EQ(hue_colour_of(0.5, 0.5, 0.5).saturation, 0);
    EXPECT_DOUBLE_EQ(hue_colour_of(1, 0.8, 0.8).saturation, 1); // 0.2 / (2 - 1.8)
    EXPECT_EQ(hue_colour_of(0.5, 0.5005, 0.5).hue, -1) << "closer than 0.001 is a grey";
}

// The figures that the rule is published with.
TEST(ColorChange, gives_the_published_figures) {
    const color_change change = change_between({105, 137, 98, 255}, {147, 154, 158, 255}, shift);
    EXPECT_NEAR(change.hue, 92.587410, 1e-5);
    EXPECT_NEAR(change.lightness, 0.137255, 1e-6);
    EXPECT_NEAR(change.saturation, -0.112299, 1e-6);
    EXPECT_EQ(changed_color({115, 137, 98, 9}, change), (rgba{147, 156, 158, 9}));
}

TEST(ColorChange, to_a_grey_takes_the_colour_out) {
    const color_change change = change_between({200, 100, 100, 255}, {90, 90, 90, 255}, shift);
    EXPECT_EQ(change.hue, 0);
    EXPECT_EQ(change.saturation, -1);
    const rgba grey = changed_color({200, 100, 100, 255}, change);
    EXPECT_EQ(grey.red, grey.green);
    EXPECT_EQ(grey.red, grey.blue);
    EXPECT_NEAR(grey.red, 90, 1);
}

TEST(ColorChange, from_a_grey_takes_hue_and_saturation_of_the_wanted_colour) {
    const color_change change = change_between({90, 90, 90, 255}, {0, 0, 255, 255}, shift);
    EXPECT_EQ(change.hue, 240);
    EXPECT_EQ(change.saturation, 1);
}

TEST(ColorChange, between_greys_changes_lightness_alone) {
    const color_change change = change_between({90, 90, 90, 255}, {141, 141, 141, 255}, shift);
    EXPECT_EQ(change.hue, 0);
    EXPECT_EQ(change.saturation, 0);
    EXPECT_NEAR(change.lightness, 0.2, 1e-6); // 51 / 255
}

TEST(ColorChange, by_tint_gives_all_pixels_one_hue) {
    const color_change change = change_between({200, 100, 100, 255}, {0, 0, 200, 255}, tint);
    for (const rgba pixel : {rgba{200, 100, 100, 255}, rgba{30, 90, 20, 255}, rgba{250, 240, 10, 255}}) {
        const rgba changed = changed_color(pixel, change);
        EXPECT_NEAR(hue_colour_of(changed.red / 255.0, changed.green / 255.0, changed.blue / 255.0).hue, 240, 2);
    }
}

TEST(ColorChange, never_leaves_the_range_of_a_channel) {
    const color_change up = change_between({10, 10, 10, 255}, {255, 255, 255, 255}, shift);
    EXPECT_EQ(changed_color({200, 200, 200, 255}, up), (rgba{255, 255, 255, 255}));
    const color_change down = change_between({250, 250, 250, 255}, {0, 0, 0, 255}, shift);
    EXPECT_EQ(changed_color({100, 100, 100, 255}, down), (rgba{2, 2, 2, 255})) << "no darker than 0.01 x 255 = 2.55";
}

TEST(AverageColor, is_the_mean_of_each_channel_cut_to_a_whole_number) {
    image::picture two = *image::picture::make({2, 1, 32});
    two.bytes() = {0, 10, 200, 0, 1, 20, 255, 255};
    EXPECT_EQ(average_color(two), (rgba{227, 15, 0, 255})); // 227.5, 15, 0.5
    EXPECT_EQ(average_color(image::picture()), (rgba{0, 0, 0, 255}));
}

TEST(Recolor, uses_the_stored_average_unless_it_is_the_colour_wanted) {
    texture t;
    t.average_color = {105, 137, 98, 0};
    const material wanted = colorized({147, 154, 158, 255}, 0);
    image::picture pixels = one_pixel(115, 137, 98);
    recolor(pixels, t, wanted);
    EXPECT_EQ(pixels, one_pixel(147, 156, 158));
    // Older files keep the average of the result there; the picture's own is worked out: it is this one pixel's colour,
    // which therefore becomes the colour wanted but for rounding.
    t.average_color = {147, 154, 158, 255};
    pixels = one_pixel(105, 137, 98);
    recolor(pixels, t, wanted);
    EXPECT_LE(greatest_difference(pixels, one_pixel(147, 154, 158)), 1);
}

TEST(Recolor, leaves_other_materials_alone) {
    material plain = colorized({147, 154, 158, 255}, 0);
    plain.type = material_type::textured;
    image::picture pixels = one_pixel(115, 137, 98);
    recolor(pixels, texture(), plain);
    EXPECT_EQ(pixels, one_pixel(115, 137, 98));
}

TEST(Recolor, keeps_alpha_of_every_pixel) {
    image::picture pixels = noise(16, 16, 32);
    const image::picture before = pixels;
    change_colors(pixels, change_between({105, 137, 98, 255}, {147, 154, 158, 255}, shift));
    EXPECT_NE(pixels, before);
    for (std::size_t at = 3; at < pixels.bytes().size(); at += 4)
        ASSERT_EQ(pixels.bytes()[at], before.bytes()[at]);
}
