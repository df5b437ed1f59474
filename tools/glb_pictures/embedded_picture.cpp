#include "tools/glb_pictures/embedded_picture.h"

#include "image/decode_picture.h"
#include "image/encode_picture.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace {

using bytes_view = std::span<const std::uint8_t>;

// A PNG without anything but what every viewer shows alike. The file is a signature of 8 bytes and then chunks: a
// length of 4 bytes, the greatest first, a name, so many bytes, a checksum.
bool is_plain_png(bytes_view file) {
    constexpr std::string_view plain[] = {"IHDR", "PLTE", "IDAT", "IEND", "tRNS", "sRGB", "tEXt",
                                          "zTXt", "iTXt", "tIME", "bKGD", "hIST", "sBIT"};
    std::size_t at = 8;
    while (at + 12 <= file.size()) {
        std::size_t length = 0;
        for (std::size_t i = 0; i < 4; ++i)
            length = length << 8U | file[at + i];
        const std::string_view name(reinterpret_cast<const char*>(&file[at + 4]), 4);
        if (std::find(std::begin(plain), std::end(plain), name) == std::end(plain) || length > file.size() - at - 12)
            return false;
        if (name == "IEND")
            return at + 12 + length == file.size();
        at += 12 + length;
    }
    return false;
}

// A JPEG that comes to its end: segments, each the byte 255, a name, and a length of 2 bytes that counts itself; behind
// those that begin pixels, the pixels, in which 255 is followed by 0 or by the name of a restart. Decoders fill up what
// has been cut off, but each in its own way.
bool is_whole_jpeg(bytes_view file) {
    constexpr std::uint8_t end = 0xd9;
    constexpr std::uint8_t pixels = 0xda;
    std::size_t at = 2;
    while (at + 1 < file.size()) {
        const std::uint8_t name = file[at + 1];
        const bool is_marker = file[at] == 255 && name != 0 && name != 255 && (name < 0xd0 || name > 0xd7);
        if (!is_marker) {
            ++at;
            continue;
        }
        if (name == end)
            return true;
        if (name == pixels) {
            at += 2; // its own segment holds no 255
            continue;
        }
        if (at + 3 >= file.size())
            return false;
        at += std::size_t{2} + (std::size_t{file[at + 2]} << 8U | file[at + 3]);
    }
    return false;
}

coverage coverage_of(const image::picture& shown) {
    if (!shown.has_alpha())
        return coverage::opaque;
    bool some_clear = false;
    for (std::size_t at = 3; at < shown.bytes().size(); at += 4) {
        const std::uint8_t alpha = shown.bytes()[at];
        if (alpha != 0 && alpha != 255)
            return coverage::blend;
        some_clear = some_clear || alpha == 0;
    }
    return some_clear ? coverage::mask : coverage::opaque;
}

} // namespace

std::optional<embedded_picture> picture_for_glb(bytes_view file) {
    const std::optional<image::picture> shown = image::decode_picture(file);
    if (!shown)
        return std::nullopt;
    embedded_picture result;
    const image::picture_format format = image::format_of_bytes(file);
    const bool is_jpeg = format == image::picture_format::jpeg && is_whole_jpeg(file);
    if (is_jpeg)
        result.mime_type = "image/jpeg";
    if (is_jpeg || (format == image::picture_format::png && is_plain_png(file)))
        result.bytes.assign(file.begin(), file.end());
    else
        result.bytes = image::encode_picture(*shown, image::picture_format::png);
    result.covers = coverage_of(*shown);
    return result.bytes.empty() ? std::nullopt : std::optional(std::move(result));
}

std::size_t add_texture(gltf::glb_writer& to, const embedded_picture& picture, const std::string& name) {
    const std::uint64_t offset = to.put({reinterpret_cast<const char*>(picture.bytes.data()), picture.bytes.size()});
    const std::size_t view =
        to.add(gltf::list::bufferViews, {{"buffer", 0}, {"byteOffset", offset}, {"byteLength", picture.bytes.size()}});
    const std::size_t image =
        to.add(gltf::list::images, {{"bufferView", view}, {"mimeType", picture.mime_type}, {"name", name}});
    return to.add(gltf::list::textures, {{"sampler", 0}, {"source", image}});
}

gltf::json repeating_samplers() {
    constexpr int repeat = 10497; // the three numbers are the format's
    constexpr int linear = 9729;
    constexpr int linear_of_levels = 9987;
    return {{{"magFilter", linear}, {"minFilter", linear_of_levels}, {"wrapS", repeat}, {"wrapT", repeat}}};
}

void set_coverage(gltf::json& material, coverage covers) {
    if (covers == coverage::blend)
        material["alphaMode"] = "BLEND";
    if (covers == coverage::mask)
        material["alphaMode"] = "MASK"; // at half, which is the format's own bound
}
