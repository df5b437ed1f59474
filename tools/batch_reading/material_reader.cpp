#include "tools/batch_reading/material_reader.h"

#include "tools/batch_reading/text_lines.h"

#include <cstdlib>

namespace {

// What stands behind the key; nothing if the line has another one.
std::optional<std::string> value_of(std::string_view line, std::string_view key) {
    if (!line.starts_with(key))
        return std::nullopt;
    return std::string(line.substr(key.size()));
}

} // namespace

std::optional<read_material> read_material_file(std::string_view text) {
    const std::optional<std::string> name = value_of(take_line(text), "Matl: ");
    if (!name)
        return std::nullopt;
    read_material found;
    found.name = *name;
    while (!text.empty()) {
        const std::string_view line = take_line(text);
        if (const auto color = value_of(line, "Color: "))
            found.color = static_cast<std::uint32_t>(std::strtoul(color->c_str(), nullptr, 10));
        else if (const auto transparency = value_of(line, "Trans: "))
            found.transparency = std::strtod(transparency->c_str(), nullptr);
        else if (const auto path = value_of(line, "Image_Path: "))
            found.image_path = *path;
    }
    return found;
}

std::string file_of_material(std::string_view material_name) {
    constexpr std::string_view ending = ".OrnMaterial";
    if (material_name.ends_with(ending))
        material_name.remove_suffix(ending.size());
    return std::string(material_name) + ".qlobj";
}
