#include "tools/raster/model_pictures.h"

#include "image/decode_picture.h"
#include "platform/platform.h"
#include "tools/model_opening/placed_image.h"

#include <algorithm>

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
    return written_to(texture.ptr, SUTextureWriteToFile(texture, platform::utf8_from_own(file).c_str()));
}

const image::picture* model_pictures::of(SUTextureWriterRef writer, long number) {
    const void* key = &numbers[number];
    const auto known = found.find(key);
    if (known != found.end())
        return known->second ? &*known->second : nullptr;
    const std::string name = platform::utf8_from_own(file);
    return written_to(key, SUTextureWriterWriteTexture(writer, number, name.c_str(), false));
}

const image::picture* model_pictures::of(SUImageRef image) {
    auto [at, is_new] = found.try_emplace(image.ptr);
    if (is_new)
        at->second = pixels_of(image);
    return at->second ? &*at->second : nullptr;
}

std::size_t model_pictures::missing() const {
    return static_cast<std::size_t>(
        std::count_if(found.begin(), found.end(), [](const auto& entry) { return !entry.second; }));
}
