#include "image/picture_format.h"

#include "image/codecs.h"
#include "text/letter_case.h"

#include <algorithm>
#include <string>

namespace image {
namespace {

bool begins_with(std::span<const std::uint8_t> file, std::string_view signature) {
    return file.size() >= signature.size() &&
           std::equal(signature.begin(), signature.end(), file.begin(),
                      [](char c, std::uint8_t byte) { return static_cast<std::uint8_t>(c) == byte; });
}

} // namespace

picture_format format_of_bytes(std::span<const std::uint8_t> file) {
    using namespace std::string_view_literals;
    struct signature {
        std::string_view bytes;
        picture_format format;
    };
    static constexpr signature signatures[] = {
        {"\x89PNG\r\n\x1A\n"sv, picture_format::png},
        {"\xFF\xD8\xFF"sv, picture_format::jpeg},
        {"BM"sv, picture_format::bmp},
        {"II*\0"sv, picture_format::tiff},
        {"MM\0*"sv, picture_format::tiff},
        {"GIF8"sv, picture_format::gif},
        {"8BPS"sv, picture_format::psd},
    };
    for (const signature& known : signatures)
        if (begins_with(file, known.bytes))
            return known.format;
    return tga_extent(file) ? picture_format::tga : picture_format::unknown;
}

picture_format format_of_name(std::string_view file_name) {
    const std::size_t dot = file_name.find_last_of("./\\");
    if (dot == std::string_view::npos || file_name[dot] != '.')
        return picture_format::unknown;
    const std::string extension = lower_case(file_name.substr(dot + 1));
    if (extension == "png")
        return picture_format::png;
    if (extension == "jpg" || extension == "jpeg")
        return picture_format::jpeg;
    if (extension == "bmp")
        return picture_format::bmp;
    if (extension == "tif" || extension == "tiff")
        return picture_format::tiff;
    return picture_format::unknown;
}

} // namespace image
