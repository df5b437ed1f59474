#pragma once

// From a texture to its picture. A texture is one of a model, whose picture is a stored file, or one that the caller
// made from pixels. These throw skp::format_error if the stored bytes cannot be unpacked.

#include "image/picture_pyramid.h"
#include "sketchup/api/provider_objects.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace sketchup::api {

// The stored picture; null if the model lacks it, and for a texture that the caller made.
const picture* picture_of(const texture& t);

// Whether there is a picture at all, sound or not.
bool has_pixels(const texture& t);

// The size that the picture announces, worked out once. Nothing if there is no picture or its header is damaged.
std::optional<image::picture_extent> extent_of_pixels(const texture& t);

// The picture as the material shows it, recoloured if need be. Nothing if there is none or it is damaged or too large.
std::optional<image::picture> shown_pixels(const texture& t);

// The same with its smaller copies, kept until the next call for another texture of the model. Null if there is none.
// Only for textures of a model.
const image::picture_pyramid* kept_pixels(const texture& t);

// Writes the picture as shown, in the format of the name's extension. Stored bytes that have this format already, and
// that no material recolours, are written unchanged: nothing is lost, nothing has to be decoded, and any size will do.
// What is too large for memory can otherwise be written only as image::write_reencoded does, and never recoloured.
// False, and no file is left, if there is no sound picture or it cannot be written.
bool write_texture(const texture& t, const std::string& path);

} // namespace sketchup::api
