#pragma once

// Colourised textures: how the program turns the colours of a picture towards the colour that the user chose. The rule
// is the one that its maker publishes as an example extension.

#include "image/picture.h"
#include "sketchup/model/model.h"

namespace sketchup {

// A colour by hue (degrees from 0 to below 360; -1 for a grey), lightness and saturation (0 to 1 each).
struct hue_colour {
    double hue = -1;
    double lightness = 0;
    double saturation = 0;
};
hue_colour hue_colour_of(double red, double green, double blue); // channels from 0 to 1

// What is done to every pixel.
struct color_change {
    bool sets_hue = false; // `hue` replaces the pixel's hue instead of being added
    double hue = 0;
    double lightness = 0; // added
    double saturation = 0;
};

// The change that turns the average colour `from` of a picture into `to`. tints: all pixels get the hue of `to`;
// else hues are shifted. Alpha plays no part.
color_change change_between(const rgba& from, const rgba& to, bool tints);

// One colour after the change; its alpha stays.
rgba changed_color(const rgba& color, const color_change& change);

// Applies the change to every pixel; alpha stays.
void change_colors(image::picture& pixels, const color_change& change);

// The average of a picture's channels, cut to whole numbers; alpha 255. Black for an empty picture.
rgba average_color(const image::picture& pixels);

// Whether the pictures of this material are shown in other colours than they are stored in.
bool is_recolored(const material& m);

// Recolours the stored picture of a texture as its material wants it; nothing is changed if it does not.
// The average colour stored with the texture is the picture's own, unless it equals the colour wanted: then the file
// holds the average of the result, and that of the picture is worked out.
void recolor(image::picture& stored, const texture& t, const material& m);

} // namespace sketchup
