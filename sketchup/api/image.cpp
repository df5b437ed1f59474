// The calls on placed images.

#include "sketchup/api/calls.h"
#include "sketchup/api/image_texture.h"
#include "sketchup/api/plain_values.h"
#include "sketchup/model/bounding_box.h"
#include "sketchup/model/texture_coordinates.h"
#include "sketchup/model/vector_math.h"

namespace sketchup::api {

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
    if (!object_of(image))
        return SU_ERROR_INVALID_INPUT;
    return width && height ? SU_ERROR_NO_DATA : SU_ERROR_NULL_POINTER_OUTPUT;
}

SUResult SUImageGetDataSize(SUImageRef image, size_t* data_size, size_t* bits_per_pixel) {
    if (!object_of(image))
        return SU_ERROR_INVALID_INPUT;
    return data_size && bits_per_pixel ? SU_ERROR_NO_DATA : SU_ERROR_NULL_POINTER_OUTPUT;
}

SUResult SUImageGetData(SUImageRef image, size_t /*data_size*/, SUByte pixel_data[]) {
    if (!object_of(image))
        return SU_ERROR_INVALID_INPUT;
    return pixel_data ? SU_ERROR_NO_DATA : SU_ERROR_NULL_POINTER_OUTPUT;
}

SUResult SUImageGetDefinition(SUImageRef image, SUComponentDefinitionRef* definition) {
    return give_handle(image, definition,
                       [](const placement& p) { return element_at(p.owner->definitions, p.definition); });
}
