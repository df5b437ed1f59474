#include "sketchup/skp/writer/material_files.h"

#include "sketchup/skp/writer/material_document_writer.h"
#include "sketchup/skp/writer/written_lists.h"
#include "text/letter_case.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace skp {

using sketchup::index;
using sketchup::no_index;

namespace {

constexpr std::size_t longest_name = 48;

// A name that every file system can hold: other characters than these become underscores.
std::string file_name_of(std::string_view name) {
    constexpr std::string_view kept = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-_ ()#.";
    std::string result(name.empty() ? "_" : name.substr(0, longest_name));
    for (char& c : result)
        if (kept.find(c) == std::string_view::npos)
            c = '_';
    // A dot or a space at either end is hidden, trimmed or a folder by itself.
    for (char* end : {&result.front(), &result.back()})
        if (*end == '.' || *end == ' ')
            *end = '_';
    return result;
}

// Hands out each name once, however it is spelt.
class unique_names {
public:
    std::string take(std::string_view wanted) {
        const std::string name = file_name_of(wanted);
        std::string result = name;
        for (int i = 1; !taken_.insert(lower_case(result)).second; ++i)
            result = name + std::to_string(i);
        return result;
    }

private:
    std::set<std::string> taken_;
};

std::string_view last_component(std::string_view path) {
    const std::size_t separator = path.find_last_of("/\\");
    return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

// The end of the name is what counts: it tells the format.
std::string picture_name(std::string_view file_name) {
    std::string_view name = last_component(file_name);
    name = name.substr(name.size() - std::min(name.size(), longest_name));
    const std::string safe = file_name_of(name);
    const std::string lower = lower_case(safe);
    const bool is_reserved = lower == "material.xml" || lower == "thumbnail.jpg";
    return (is_reserved ? "texture_" : "") + safe;
}

std::vector<std::uint8_t> bytes_of(const std::string& text) {
    return {text.begin(), text.end()};
}

std::string folder_path(const std::string& folder) {
    return "materials/" + folder + "/";
}

} // namespace

material_files::material_files(const sketchup::model& m, std::uint16_t format)
    : model_(m), format_(format), folders_(m.materials.size()), folders_of_layers_(m.layers.size()),
      picture_entries_(m.pictures.size()) {
    unique_names names;
    for (index i = 0; i < m.materials.size(); ++i) {
        folders_[i] = names.take(m.materials[i].name);
        const index texture = m.materials[i].texture;
        if (texture == no_index || m.textures[texture].picture == no_index)
            continue;
        std::string& entry = picture_entries_[m.textures[texture].picture];
        if (entry.empty())
            entry = folder_path(folders_[i]) + picture_name(m.textures[texture].file_name);
    }
    for (index i = 0; i < m.layers.size(); ++i)
        if (m.layers[i].material == no_index)
            folders_of_layers_[i] = names.take(plain_layer_material(m.layers[i]).name);
}

std::string material_files::document(const sketchup::material& m, const std::string& folder) const {
    std::string picture;
    if (m.texture != no_index && model_.textures[m.texture].picture != no_index) {
        picture = picture_entries_[model_.textures[m.texture].picture];
        const std::string here = folder_path(folder);
        if (picture.starts_with(here))
            picture.replace(0, here.size(), "./");
    }
    return material_document_text(model_, m, picture, format_);
}

std::vector<archive_entry> material_files::entries() const {
    std::vector<archive_entry> result;
    std::vector<bool> done(model_.pictures.size(), false);
    for (index i = 0; i < model_.materials.size(); ++i) {
        const sketchup::material& m = model_.materials[i];
        result.push_back({folder_path(folders_[i]) + "material.xml", bytes_of(document(m, folders_[i]))});
        const index picture = m.texture == no_index ? no_index : model_.textures[m.texture].picture;
        if (picture == no_index || done[picture])
            continue;
        done[picture] = true;
        result.push_back({picture_entries_[picture], model_.pictures[picture].load()});
    }
    for (index i = 0; i < model_.layers.size(); ++i)
        if (const std::string& folder = folders_of_layers_[i]; !folder.empty())
            result.push_back({folder_path(folder) + "material.xml",
                              bytes_of(document(plain_layer_material(model_.layers[i]), folder))});
    return result;
}

} // namespace skp
