#pragma once

// Pictures as they stand inside a GLB: JPEG and PNG, the only formats that it knows.

#include "tools/gltf/glb_writer.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

// How a picture covers what lies behind it.
enum class coverage {
    opaque, // every pixel
    mask,   // each pixel wholly or not at all
    blend,  // some pixels in part
};

struct embedded_picture {
    std::vector<std::uint8_t> bytes;
    const char* mime_type = "image/png";
    coverage covers = coverage::opaque;
};

// A picture file as it goes into a GLB: JPEG as it is, unless it has been cut off; PNG as it is, unless it carries what
// viewers disagree about (colour profiles, gamma, pixels that are not square, animation); all else as PNG. Every
// picture is decoded once, for a viewer has to: nothing for bytes that are none, that are damaged, or that would be
// more than image::most_pixels.
std::optional<embedded_picture> picture_for_glb(std::span<const std::uint8_t> file);

// Adds the picture and a texture that shows it; gives the number of the texture. name: for people.
std::size_t add_texture(gltf::glb_writer& to, const embedded_picture& picture, const std::string& name);

// The "samplers" of the document: the one that every texture uses, which repeats the picture in both directions.
gltf::json repeating_samplers();

// Gives a material its picture's way to cover: "alphaMode", and the bound for a mask.
void set_coverage(gltf::json& material, coverage covers);
