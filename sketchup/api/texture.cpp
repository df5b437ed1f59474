// The calls on textures: those of materials and those that a caller makes.

#include "image/decode_picture.h"
#include "image/encode_picture.h"
#include "platform/platform.h"
#include "sketchup/api/calls.h"
#include "sketchup/api/padded_rows.h"
#include "sketchup/api/provider_state.h"
#include "sketchup/api/texture_file_name.h"
#include "sketchup/api/texture_pixels.h"
#include "sketchup/api/whole_file.h"
#include "sketchup/model/texture_coordinates.h"

#include <memory>
#include <utility>

namespace {

using namespace sketchup::api;
using sketchup::picture;

constexpr size_t largest_picture_side = 65535;
constexpr double inches_of_new_tile = 10; // the host's width for a picture that was just loaded

// A tile of that width with the picture's proportions.
std::unique_ptr<loose_texture> made_from(image::picture pixels) {
    auto made = std::make_unique<loose_texture>();
    made->width = inches_of_new_tile;
    made->height = inches_of_new_tile * pixels.height() / pixels.width();
    made->pixels = std::move(pixels);
    return made;
}

void keep(std::unique_ptr<loose_texture> made, SUTextureRef* handle) {
    auto& kept = provider().loose_textures;
    kept.push_back(std::move(made));
    *handle = handle_of<SUTextureRef>(*kept.back());
}

} // namespace

SUResult SUTextureGetDimensions(SUTextureRef texture, size_t* width, size_t* height, double* s_scale, double* t_scale) {
    const sketchup::texture* t = object_of(texture);
    if (!t)
        return SU_ERROR_INVALID_INPUT;
    if (!width || !height || !s_scale || !t_scale)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    return guarded([&] {
        if (!has_pixels(*t))
            return SU_ERROR_NO_DATA;
        const std::optional<image::picture_extent> extent = extent_of_pixels(*t);
        if (!extent)
            return SU_ERROR_GENERIC;
        *width = extent->width;
        *height = extent->height;
        *s_scale = 1 / sketchup::tile_size(t->width);
        *t_scale = 1 / sketchup::tile_size(t->height);
        return SU_ERROR_NONE;
    });
}

SUResult SUTextureGetFileName(SUTextureRef texture, SUStringRef* name) {
    return give_text(texture, name, [](const sketchup::texture& t) {
        const picture* stored = picture_of(t);
        return texture_file_name(t.file_name, stored ? stored->format : 0);
    });
}

SUResult SUTextureWriteToFile(SUTextureRef texture, const char* file_path) {
    const sketchup::texture* t = object_of(texture);
    if (!t)
        return SU_ERROR_INVALID_INPUT;
    if (!file_path)
        return SU_ERROR_NULL_POINTER_INPUT;
    return guarded(
        [&] { return write_texture(*t, platform::own_from_utf8(file_path)) ? SU_ERROR_NONE : SU_ERROR_SERIALIZATION; });
}

SUResult SUTextureWriteOriginalToFile(SUTextureRef texture, const char* file_path) {
    const sketchup::texture* t = object_of(texture);
    if (!t)
        return SU_ERROR_INVALID_INPUT;
    if (!file_path)
        return SU_ERROR_NULL_POINTER_INPUT;
    return guarded([&] {
        const picture* stored = picture_of(*t);
        const bool written = stored && image::write_picture_file(platform::own_from_utf8(file_path), stored->load());
        return written ? SU_ERROR_NONE : SU_ERROR_SERIALIZATION;
    });
}

SUResult SUTextureCreateFromImageData(SUTextureRef* texture, size_t width, size_t height, size_t bits_per_pixel,
                                      const SUByte pixel_data[]) {
    if (!pixel_data)
        return SU_ERROR_NULL_POINTER_INPUT;
    if (width - 1 >= largest_picture_side || height - 1 >= largest_picture_side ||
        (bits_per_pixel != 24 && bits_per_pixel != 32))
        return SU_ERROR_OUT_OF_RANGE;
    if (!texture)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    if (texture->ptr)
        return SU_ERROR_OVERWRITE_VALID;
    return guarded([&] {
        std::optional<image::picture> pixels = image::picture::make(
            {static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height), static_cast<int>(bits_per_pixel)});
        if (!pixels)
            return SU_ERROR_OUT_OF_RANGE;
        copy_from_padded_rows(pixel_data, *pixels);
        keep(made_from(std::move(*pixels)), texture);
        return SU_ERROR_NONE;
    });
}

SUResult SUTextureCreateFromFile(SUTextureRef* texture, const char* file_path, double s_scale, double t_scale) {
    if (!file_path)
        return SU_ERROR_NULL_POINTER_INPUT;
    if (!texture)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    if (texture->ptr)
        return SU_ERROR_OVERWRITE_VALID;
    return guarded([&] {
        const std::optional<std::vector<std::uint8_t>> bytes = read_whole_file(file_path);
        std::optional<image::picture> pixels = bytes ? image::decode_picture(*bytes) : std::nullopt;
        if (!pixels)
            return SU_ERROR_SERIALIZATION;
        std::unique_ptr<loose_texture> made = made_from(std::move(*pixels));
        made->file_name = file_path;
        // Here the scales are the tile's size in inches: the inverse of what SUTextureGetDimensions gives.
        if (s_scale > 0 && t_scale > 0) {
            made->width = s_scale;
            made->height = t_scale;
        }
        keep(std::move(made), texture);
        return SU_ERROR_NONE;
    });
}

SUResult SUTextureRelease(SUTextureRef* texture) {
    if (!texture)
        return SU_ERROR_NULL_POINTER_INPUT;
    const sketchup::texture* t = object_of(*texture);
    if (!t || t->owner)
        return SU_ERROR_INVALID_INPUT;
    const size_t released = std::erase_if(provider().loose_textures, [t](const auto& made) { return made.get() == t; });
    if (released == 0)
        return SU_ERROR_INVALID_INPUT;
    texture->ptr = nullptr;
    return SU_ERROR_NONE;
}
