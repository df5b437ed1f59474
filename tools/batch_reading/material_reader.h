#pragma once

// Reads a material file back: what a renderer would take from it to show the material.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

struct read_material {
    std::string name;               // by which the stream refers to it; ends in ".OrnMaterial"
    std::uint32_t color = 0xffffff; // 0x00BBGGRR
    double transparency = 0;        // 0 to 1
    std::string image_path;         // full name of the picture; empty if there is none
};

// text: the bytes of the file, lines ended by CR LF or LF. A line that is missing leaves its default; of two of a kind
// the last one counts. Nothing if the first line does not name a material.
std::optional<read_material> read_material_file(std::string_view text);

// The name of the file, without folder, that holds the material of that name.
std::string file_of_material(std::string_view material_name);
