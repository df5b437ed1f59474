#include "tools/model_opening/placed_image.h"

#include <algorithm>
#include <cstdint>
#include <vector>

image_rectangle rectangle_of(SUImageRef image) {
    SUComponentDefinitionRef definition = SU_INVALID;
    SUEntitiesRef inside = SU_INVALID;
    SUBoundingBox3D box{};
    SUImageGetDefinition(image, &definition);
    if (SUComponentDefinitionGetEntities(definition, &inside) == SU_ERROR_NONE &&
        SUEntitiesGetBoundingBox(inside, &box) == SU_ERROR_NONE && box.min_point.x < box.max_point.x)
        return {{box.min_point.x, box.min_point.y, 0}, {box.max_point.x, box.max_point.y, 0}};
    std::size_t wide = 0;
    std::size_t high = 0;
    SUImageGetPixelDimensions(image, &wide, &high);
    return {{0, 0, 0}, {static_cast<double>(wide), static_cast<double>(high), 0}};
}

std::optional<image::picture> pixels_of(SUImageRef image) {
    std::size_t width = 0;
    std::size_t height = 0;
    std::size_t size = 0;
    std::size_t bits = 0;
    if (SUImageGetPixelDimensions(image, &width, &height) != SU_ERROR_NONE ||
        SUImageGetDataSize(image, &size, &bits) != SU_ERROR_NONE)
        return std::nullopt;
    auto picture = image::picture::make(
        {static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height), static_cast<int>(bits)});
    if (!picture)
        return std::nullopt;
    std::vector<SUByte> data(size);
    if (SUImageGetData(image, data.size(), data.data()) != SU_ERROR_NONE)
        return std::nullopt;
    const std::size_t padded_row = size / height;
    for (std::uint32_t y = 0; y < picture->height(); ++y)
        std::copy_n(&data[y * padded_row], picture->bytes_per_row(), picture->row(y));
    return picture;
}
