#include "tools/raster/model_pictures.h"

#include "image/decode_picture.h"
#include "platform/platform.h"

#include <algorithm>

namespace {

std::optional<image::picture> pixels_of(SUImageRef image) {
    std::size_t width = 0;
    std::size_t height = 0;
    std::size_t size = 0;
    std::size_t bits = 0;
    if (SUImageGetPixelDimensions(image, &width, &height) != SU_ERROR_NONE ||
        SUImageGetDataSize(image, &size, &bits) != SU_ERROR_NONE)
        return std::nullopt;
    std::vector<SUByte> data(size);
    auto picture = image::picture::make(
        {static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height), static_cast<int>(bits)});
    if (!picture || SUImageGetData(image, data.size(), data.data()) != SU_ERROR_NONE)
        return std::nullopt;
    const std::size_t padded_row = size / height;
    for (std::uint32_t y = 0; y < picture->height(); ++y)
        std::copy_n(&data[y * padded_row], picture->bytes_per_row(), picture->row(y));
    return picture;
}

} // namespace

model_pictures::~model_pictures() {
    platform::delete_file(file);
}

const image::picture* model_pictures::written_to(const void* key, SUResult result) {
    std::optional<image::picture>& kept = found[key];
    const auto bytes = platform::read_file(file, std::uint64_t{1} << 32U);
    if (result == SU_ERROR_NONE && bytes)
        kept = image::decode_picture({reinterpret_cast<const std::uint8_t*>(bytes->data()), bytes->size()});
    return kept ? &*kept : nullptr;
}

const image::picture* model_pictures::of(SUTextureRef texture) {
    const auto known = found.find(texture.ptr);
    if (known != found.end())
        return known->second ? &*known->second : nullptr;
    return written_to(texture.ptr, SUTextureWriteToFile(texture, file.c_str()));
}

const image::picture* model_pictures::of(SUTextureWriterRef writer, long number) {
    const void* key = &numbers[number];
    const auto known = found.find(key);
    if (known != found.end())
        return known->second ? &*known->second : nullptr;
    return written_to(key, SUTextureWriterWriteTexture(writer, number, file.c_str(), false));
}

const image::picture* model_pictures::of(SUImageRef image) {
    auto [at, is_new] = found.try_emplace(image.ptr);
    if (is_new)
        at->second = pixels_of(image);
    return at->second ? &*at->second : nullptr;
}
