#pragma once

// The XML document that describes one material.

#include "sketchup/model/model.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace skp::modern {

struct texture_fields {
    std::string file_name; // as the user gave it: a bare name or a path of any platform
    double width = 0;      // of one tile, inches
    double height = 0;
    sketchup::rgba average_color;
    std::string picture_path; // in the archive, from the material's folder or from the root; empty if there is none
};

struct material_document {
    std::string name;
    sketchup::rgba color{0, 0, 0, 255};
    sketchup::material_type type = sketchup::material_type::solid;
    std::uint32_t colorize_type = 0;
    double transparency = 0;
    bool use_transparency = false;
    std::optional<texture_fields> texture;
    std::vector<sketchup::attribute_dictionary> dictionaries; // without ids
};

// Elements are known by namespace and local name, whatever their prefix; attributes that are missing or no numbers
// take their defaults, and attribute values of types without a known text form are left out.
// where: stands in messages. Throws format_error if this is not well-formed, declares a document type, is no
// material, or has more than 64 MiB.
material_document read_material_document(std::span<const std::uint8_t> xml, const std::string& where);

} // namespace skp::modern
