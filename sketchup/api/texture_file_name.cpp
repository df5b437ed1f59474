#include "sketchup/api/texture_file_name.h"

namespace sketchup::api {
namespace {

const char* extension_of_format(std::uint32_t format) {
    switch (format) {
    case 1:
        return ".jpg";
    case 2:
        return ".bmp";
    case 3:
        return ".tif";
    case 4:
        return ".png";
    case 7:
        return ".tga";
    case 8:
        return ".psd";
    default:
        return "";
    }
}

} // namespace

std::string texture_file_name(const std::string& stored_path, std::uint32_t format) {
    const std::size_t separator = stored_path.find_last_of("/\\");
    const std::string name = separator == std::string::npos ? stored_path : stored_path.substr(separator + 1);
    return name.find('.') == std::string::npos ? name + extension_of_format(format) : name;
}

} // namespace sketchup::api
