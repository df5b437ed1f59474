#include "tools/skp-dump/write_textures.h"

#include "image/picture_format.h"
#include "platform/platform.h"
#include "tools/model_opening/su_lists.h"

#include <algorithm>
#include <cstdio>

namespace {

bool is_safe(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || byte > 127 || c == ' ' ||
           c == '-' || c == '_' || c == '.';
}

// The extension with its dot of a name whose format can be written; else that of PNG.
std::string extension_for(const std::string& picture_name) {
    const bool can_be_written = image::format_of_name(picture_name) != image::picture_format::unknown;
    return can_be_written ? picture_name.substr(picture_name.rfind('.')) : ".png";
}

bool write_texture(SUMaterialRef material, SUTextureRef texture, std::size_t number, const std::string& folder) {
    char prefix[32];
    std::snprintf(prefix, sizeof prefix, "%04zu_", number);
    const std::string name = su_text(material, SUMaterialGetName);
    const std::string file_name = prefix + safe_file_name(name) + extension_for(su_text(texture, SUTextureGetFileName));
    const std::string path = platform::utf8_from_own(folder) + platform::path_separator + file_name;
    if (SUTextureWriteToFile(texture, path.c_str()) != SU_ERROR_NONE) {
        std::fprintf(stderr, "skp-dump: the picture of material %s cannot be written\n", name.c_str());
        return false;
    }
    std::printf("  %s\n", path.c_str());
    return true;
}

} // namespace

std::string safe_file_name(const std::string& name) {
    constexpr std::size_t most_bytes = 100;
    std::size_t size = std::min(name.size(), most_bytes);
    while (size < name.size() && size > 0 && (static_cast<unsigned char>(name[size]) & 0xC0) == 0x80)
        --size; // within a character
    std::string safe = name.substr(0, size);
    std::replace_if(
        safe.begin(), safe.end(), [](char c) { return !is_safe(c); }, '_');
    if (!safe.empty() && safe.front() == '.')
        safe.front() = '_';
    return safe;
}

bool write_textures(SUModelRef model, const std::string& folder) {
    if (!platform::is_folder(folder) && !platform::make_folder(folder)) {
        std::fprintf(stderr, "skp-dump: cannot make the folder %s\n", folder.c_str());
        return false;
    }
    bool all_written = true;
    std::size_t number = 0;
    for (const SUMaterialRef material : su_list(model, SUModelGetNumMaterials, SUModelGetMaterials)) {
        SUTextureRef texture = SU_INVALID;
        ++number;
        if (SUMaterialGetTexture(material, &texture) == SU_ERROR_NONE)
            all_written = write_texture(material, texture, number, folder) && all_written;
    }
    return all_written;
}
