// The calls on textures: those of materials and those that a caller makes.

#include "sketchup/api/calls.h"
#include "sketchup/api/provider_state.h"
#include "sketchup/api/texture_file_name.h"
#include "sketchup/api/whole_file.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace {

using namespace sketchup::api;
using sketchup::picture;
using sketchup::texture;

constexpr size_t largest_picture_side = 65535;
constexpr double inches_of_new_tile = 10; // the host's width for a picture that was just loaded

// The stored picture; null if the file lacks it, and for a texture made from pixels.
const picture* picture_of(const texture& t) {
    return t.owner ? element_at(t.owner->pictures, t.picture) : nullptr;
}

loose_texture* loose(const texture& t) {
    for (const std::unique_ptr<loose_texture>& made : provider().loose_textures)
        if (made.get() == &t)
            return made.get();
    return nullptr;
}

std::unique_ptr<loose_texture> from_pixels(size_t width, size_t height, size_t bits_per_pixel, const SUByte pixels[]) {
    auto made = std::make_unique<loose_texture>();
    const size_t padded_row = (width * bits_per_pixel / 8 + 3) / 4 * 4;
    made->pixels.assign(pixels, pixels + padded_row * height);
    made->pixel_width = width;
    made->pixel_height = height;
    made->bits_per_pixel = bits_per_pixel;
    made->width = inches_of_new_tile;
    made->height = inches_of_new_tile * static_cast<double>(height) / static_cast<double>(width);
    return made;
}

} // namespace

SUResult SUTextureGetDimensions(SUTextureRef texture, size_t* width, size_t* height, double* s_scale, double* t_scale) {
    const sketchup::texture* t = object_of(texture);
    if (!t)
        return SU_ERROR_INVALID_INPUT;
    if (!width || !height || !s_scale || !t_scale)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    const loose_texture* made = t->owner ? nullptr : loose(*t);
    if (!made)
        return SU_ERROR_NO_DATA;
    *width = made->pixel_width;
    *height = made->pixel_height;
    *s_scale = 1 / made->width;
    *t_scale = 1 / made->height;
    return SU_ERROR_NONE;
}

SUResult SUTextureGetFileName(SUTextureRef texture, SUStringRef* name) {
    return give_text(texture, name, [](const sketchup::texture& t) {
        const picture* stored = picture_of(t);
        return texture_file_name(t.file_name, stored ? stored->format : 0);
    });
}

SUResult SUTextureWriteToFile(SUTextureRef texture, const char* file_path) {
    if (!object_of(texture))
        return SU_ERROR_INVALID_INPUT;
    return file_path ? SU_ERROR_SERIALIZATION : SU_ERROR_NULL_POINTER_INPUT;
}

SUResult SUTextureWriteOriginalToFile(SUTextureRef texture, const char* file_path) {
    const sketchup::texture* t = object_of(texture);
    if (!t)
        return SU_ERROR_INVALID_INPUT;
    if (!file_path)
        return SU_ERROR_NULL_POINTER_INPUT;
    return guarded([&] {
        const picture* stored = picture_of(*t);
        const bool written = stored && write_whole_file(file_path, stored->load());
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
        auto& kept = provider().loose_textures;
        kept.push_back(from_pixels(width, height, bits_per_pixel, pixel_data));
        *texture = handle_of<SUTextureRef>(*kept.back());
        return SU_ERROR_NONE;
    });
}

SUResult SUTextureCreateFromFile(SUTextureRef* texture, const char* file_path, double /*s_scale*/, double /*t_scale*/) {
    if (!file_path)
        return SU_ERROR_NULL_POINTER_INPUT;
    if (!texture)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    return texture->ptr ? SU_ERROR_OVERWRITE_VALID : SU_ERROR_SERIALIZATION;
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
