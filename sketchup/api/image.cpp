// The calls on placed images.

#include "sketchup/api/calls.h"
#include "sketchup/api/image_texture.h"
#include "sketchup/api/padded_rows.h"
#include "sketchup/api/plain_values.h"
#include "sketchup/api/texture_pixels.h"
#include "sketchup/model/bounding_box.h"
#include "sketchup/model/texture_coordinates.h"
#include "sketchup/model/vector_math.h"

namespace sketchup::api {

using image::picture_extent;

const texture* image_texture(const placement& image) {
    const component_definition* definition = element_at(image.owner->definitions, image.definition);
    if (!definition)
        return nullptr;
    for (const index f : definition->entities.faces)
        for (const face_side side : {face_side::front, face_side::back})
            if (const texture* found = texture_of_side(*image.owner, image.owner->faces[f], side))
                return found;
    return nullptr;
}

namespace {

// The corner of an image's rectangle across from its origin, in the image's own space, where a unit is a pixel.
vec3 rectangle_size(const placement& image) {
    const component_definition* definition = element_at(image.owner->definitions, image.definition);
    if (!definition || definition->entities.faces.empty())
        return {};
    const box rectangle = face_box(*image.owner, image.owner->faces[definition->entities.faces.front()]);
    return rectangle.is_empty() ? vec3{} : rectangle.maximum - rectangle.minimum;
}

// What `answer` makes of the announced size of an image's picture; NO_DATA if the file lacks the picture, GENERIC if
// its header is damaged.
template<class Answer>
SUResult with_extent(const placement& image, Answer answer) {
    return guarded([&]() -> SUResult {
        const texture* found = image_texture(image);
        if (!found || !has_pixels(*found))
            return SU_ERROR_NO_DATA;
        const std::optional<picture_extent> extent = extent_of_pixels(*found);
        return extent ? answer(*extent) : SU_ERROR_GENERIC;
    });
}

} // namespace
} // namespace sketchup::api

using namespace sketchup::api;
using sketchup::placement;
using sketchup::vec3;

SUResult SUImageGetTransform(SUImageRef image, SUTransformation* transform) {
    return give(image, transform, [](const placement& p) { return to_transformation(p.transform); });
}

SUResult SUImageGetFileName(SUImageRef image, SUStringRef* name) {
    return give_text(image, name, [](const placement& p) {
        const sketchup::texture* found = image_texture(p);
        return found ? found->file_name : std::string();
    });
}

SUResult SUImageGetDimensions(SUImageRef image, double* width, double* height) {
    const placement* p = object_of(image);
    if (!p)
        return SU_ERROR_INVALID_INPUT;
    if (!width || !height)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    const vec3 size = rectangle_size(*p);
    *width = sketchup::length(sketchup::transform_vector(p->transform, {size.x, 0, 0}));
    *height = sketchup::length(sketchup::transform_vector(p->transform, {0, size.y, 0}));
    return SU_ERROR_NONE;
}

SUResult SUImageGetPixelDimensions(SUImageRef image, size_t* width, size_t* height) {
    const placement* p = object_of(image);
    if (!p)
        return SU_ERROR_INVALID_INPUT;
    if (!width || !height)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    return with_extent(*p, [&](const picture_extent& extent) {
        *width = extent.width;
        *height = extent.height;
        return SU_ERROR_NONE;
    });
}

SUResult SUImageGetDataSize(SUImageRef image, size_t* data_size, size_t* bits_per_pixel) {
    const placement* p = object_of(image);
    if (!p)
        return SU_ERROR_INVALID_INPUT;
    if (!data_size || !bits_per_pixel)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    return with_extent(*p, [&](const picture_extent& extent) {
        *data_size = padded_size(extent);
        *bits_per_pixel = static_cast<size_t>(extent.bits_per_pixel);
        return SU_ERROR_NONE;
    });
}

SUResult SUImageGetData(SUImageRef image, size_t data_size, SUByte pixel_data[]) {
    const placement* p = object_of(image);
    if (!p)
        return SU_ERROR_INVALID_INPUT;
    if (!pixel_data)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    return with_extent(*p, [&](const picture_extent& extent) {
        if (data_size < padded_size(extent))
            return SU_ERROR_INSUFFICIENT_SIZE;
        const std::optional<image::picture> shown = shown_pixels(*image_texture(*p));
        if (!shown || shown->extent() != extent)
            return SU_ERROR_SERIALIZATION;
        copy_to_padded_rows(*shown, pixel_data);
        return SU_ERROR_NONE;
    });
}

SUResult SUImageGetDefinition(SUImageRef image, SUComponentDefinitionRef* definition) {
    return give_handle(image, definition,
                       [](const placement& p) { return element_at(p.owner->definitions, p.definition); });
}
