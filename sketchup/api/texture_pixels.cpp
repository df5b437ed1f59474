#include "sketchup/api/texture_pixels.h"

#include "image/decode_picture.h"
#include "image/encode_picture.h"
#include "image/reencode_picture.h"
#include "sketchup/api/calls.h"
#include "sketchup/api/provider_state.h"
#include "sketchup/model/colorize.h"

#include <memory>

namespace sketchup::api {
namespace {

// The texture as one that the caller made; null if it belongs to a model.
const loose_texture* loose(const texture& t) {
    if (t.owner)
        return nullptr;
    for (const std::unique_ptr<loose_texture>& made : provider().loose_textures)
        if (made.get() == &t)
            return made.get();
    return nullptr;
}

std::vector<std::uint8_t> stored_bytes(const texture& t) {
    const picture* stored = picture_of(t);
    return stored ? stored->load() : std::vector<std::uint8_t>();
}

const material* material_of(const texture& t) {
    return t.owner ? element_at(t.owner->materials, t.material) : nullptr;
}

bool is_shown_as_stored(const texture& t) {
    const material* m = material_of(t);
    return !m || !is_recolored(*m);
}

bool is_beyond_memory(const std::optional<image::picture_extent>& extent) {
    return extent && std::uint64_t{extent->width} * extent->height > image::most_pixels;
}

std::optional<image::picture> shown_pixels(const texture& t, const std::vector<std::uint8_t>& stored) {
    std::optional<image::picture> shown = image::decode_picture(stored);
    if (shown && !is_shown_as_stored(t))
        recolor(*shown, t, *material_of(t));
    return shown;
}

} // namespace

const picture* picture_of(const texture& t) {
    return t.owner ? element_at(t.owner->pictures, t.picture) : nullptr;
}

bool has_pixels(const texture& t) {
    return picture_of(t) || loose(t);
}

std::optional<image::picture_extent> extent_of_pixels(const texture& t) {
    if (const loose_texture* made = loose(t))
        return made->pixels.extent();
    const picture* stored = picture_of(t);
    open_model* opened = open_model_of(t.owner);
    if (!stored || !opened)
        return std::nullopt;
    const auto known = opened->picture_extents.find(stored);
    if (known != opened->picture_extents.end())
        return known->second;
    const std::optional<image::picture_extent> announced = image::picture_size(stored->load());
    opened->picture_extents.emplace(stored, announced);
    return announced;
}

std::optional<image::picture> shown_pixels(const texture& t) {
    if (const loose_texture* made = loose(t))
        return made->pixels;
    return shown_pixels(t, stored_bytes(t));
}

const image::picture_pyramid* kept_pixels(const texture& t) {
    open_model* opened = open_model_of(t.owner);
    if (!opened)
        return nullptr;
    if (opened->kept_texture != &t) {
        opened->kept_texture = nullptr;
        opened->kept_pixels = shown_pixels(t).value_or(image::picture());
        opened->kept_texture = &t;
    }
    return opened->kept_pixels.is_empty() ? nullptr : &opened->kept_pixels;
}

bool write_texture(const texture& t, const std::string& path) {
    const image::picture_format wanted = image::format_of_name(path);
    if (wanted == image::picture_format::unknown)
        return false;
    if (const loose_texture* made = loose(t))
        return image::write_picture(path, made->pixels);
    const std::vector<std::uint8_t> stored = stored_bytes(t);
    if (image::format_of_bytes(stored) == wanted && is_shown_as_stored(t))
        return image::picture_size(stored) && image::write_picture_file(path, stored);
    if (is_beyond_memory(image::picture_size(stored)))
        return is_shown_as_stored(t) && image::write_reencoded(path, stored);
    const std::optional<image::picture> shown = shown_pixels(t, stored);
    return shown && image::write_picture(path, *shown);
}

} // namespace sketchup::api
