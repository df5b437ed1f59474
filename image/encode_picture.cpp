#include "image/encode_picture.h"

#include "image/codecs.h"
#include "platform/platform.h"

namespace image {

std::vector<std::uint8_t> encode_picture(const picture& source, picture_format format) {
    if (source.is_empty())
        return {};
    switch (format) {
    case picture_format::png:
        return encode_png(source);
    case picture_format::jpeg:
        return encode_jpeg(source);
    case picture_format::bmp:
        return encode_bmp(source);
    case picture_format::tiff:
        return encode_tiff(source);
    default:
        return {};
    }
}

bool write_picture(const std::string& file_name, const picture& source) {
    const std::vector<std::uint8_t> bytes = encode_picture(source, format_of_name(file_name));
    return !bytes.empty() && write_picture_file(file_name, bytes);
}

bool write_picture_file(const std::string& file_name, std::span<const std::uint8_t> bytes) {
    platform::file file;
    if (!file.open(file_name, platform::open_mode::write))
        return false;
    const bool written = file.write_all({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    if (file.close() && written)
        return true;
    platform::delete_file(file_name);
    return false;
}

} // namespace image
