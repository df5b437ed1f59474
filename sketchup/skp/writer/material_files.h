#pragma once

// The entries of the archive that belong to materials: a folder for each, with a document and a picture.

#include "sketchup/model/model.h"

#include <cstdint>
#include <string>
#include <vector>

namespace skp {

struct archive_entry {
    std::string name;
    std::vector<std::uint8_t> bytes;
};

class material_files {
public:
    // Names the folders of all materials and of the layers that have none, and the pictures of all textures; a picture
    // that several materials share lies in the folder of the first of them. format: one of skp/modern/formats.h.
    material_files(const sketchup::model& m, std::uint16_t format);

    // The folders' names, which stand in the records of the materials. Printable ASCII, no two equal in lower case.
    const std::string& folder(sketchup::index material) const { return folders_[material]; }
    const std::string& folder_of_layer(sketchup::index layer) const { return folders_of_layers_[layer]; }

    // The documents and pictures. Throws format_error if a picture cannot be loaded.
    std::vector<archive_entry> entries() const;

private:
    std::string document(const sketchup::material& m, const std::string& folder) const;

    const sketchup::model& model_;
    std::uint16_t format_;
    std::vector<std::string> folders_;
    std::vector<std::string> folders_of_layers_; // empty for a layer whose material is one of the model's
    std::vector<std::string> picture_entries_;   // by picture; empty if no material has it
};

} // namespace skp
