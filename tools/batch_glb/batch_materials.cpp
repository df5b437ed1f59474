#include "tools/batch_glb/batch_materials.h"

#include "platform/platform.h"
#include "text/path_end.h"
#include "tools/batch_reading/batch_pictures.h"

#include <utility>

namespace {

constexpr std::uint64_t most_bytes_of_a_file = std::uint64_t{1} << 20U; // of a material; real ones have two thousand

material_look plain(std::string name, std::uint32_t blue_green_red) {
    material_look look;
    look.basics.name = name;
    look.display_name = std::move(name);
    look.basics.color = blue_green_red;
    return look;
}

} // namespace

batch_materials::batch_materials(std::string batch_folder, gltf::glb_writer& to, kept_records& kept)
    : folder(std::move(batch_folder)), writer(to), room(kept) {
    looks.push_back({.look = plain("no material", 0xffffff), .picture_known = true, .shown = {}});
    looks.push_back({.look = plain("edges", 0x202020), .picture_known = true, .shown = {}});
    slots = {{.number = none, .look = 0}, {.number = of_edges, .look = 1}};
    by_number[of_edges] = slot_of_edges;
}

void batch_materials::note(const std::string& text) {
    constexpr std::size_t longest_note = 1024; // names in a batch may be of any length
    if (said.size() < most_notes)
        said.push_back(text.substr(0, longest_note));
}

batch_materials::file_look batch_materials::read_look(std::string_view name) {
    const std::string path =
        folder + platform::path_separator + "ZynBatch_Materials" + platform::path_separator + file_of_material(name);
    const auto bytes = platform::read_file(path, most_bytes_of_a_file);
    std::optional<material_look> look;
    if (bytes)
        look = read_material_look({reinterpret_cast<const char*>(bytes->data()), bytes->size()});
    if (!look)
        note("there is no material file " + path);
    return {.look = look ? *std::move(look) : plain(std::string(name), 0xffffff), .shown = {}};
}

// Nothing if there is no room for another one.
std::optional<std::size_t> batch_materials::look_of(const std::string& name) {
    const auto known = look_by_name.find(name);
    if (known != look_by_name.end())
        return known->second;
    if (!room.keep(name.size()))
        return std::nullopt;
    file_look found = read_look(name);
    const material_look& look = found.look;
    if (!room.keep(look.basics.name.size() + look.basics.image_path.size() + look.display_name.size() +
                   look.type.size()))
        return std::nullopt;
    look_by_name.emplace(name, looks.size());
    looks.push_back(std::move(found));
    return looks.size() - 1;
}

void batch_materials::name_next(std::string_view name) {
    named = name;
    named_look.reset();
}

void batch_materials::declare(int number) {
    if (!named_look)
        named_look = look_of(named);
    const std::optional<std::size_t> look = *named_look;
    const auto known = by_number.find(number);
    if (look && known != by_number.end() && slots[known->second].look == *look)
        return;
    if (!look || !room.keep(0)) {
        by_number.erase(number);
        return;
    }
    by_number[number] = slots.size();
    slots.push_back({.number = number, .look = *look});
}

std::size_t batch_materials::slot_of(int number) const {
    const auto found = by_number.find(number);
    return found == by_number.end() ? slot_of_none : found->second;
}

batch_materials::shown_picture batch_materials::load(const std::string& path) {
    const auto bytes = read_batch_picture(folder, path);
    std::optional<embedded_picture> picture;
    if (bytes)
        picture = picture_for_glb({reinterpret_cast<const std::uint8_t*>(bytes->data()), bytes->size()});
    if (!picture) {
        note((bytes ? "this is no picture that can be shown: " : "there is no picture ") + path);
        return {};
    }
    ++embedded;
    return {add_texture(writer, *picture, platform::utf8_from_own(last_component(path))), picture->covers};
}

void batch_materials::find_picture(file_look& of) {
    of.picture_known = true;
    const std::string& path = of.look.basics.image_path;
    if (path.empty())
        return;
    const auto [entry, is_new] = by_path.try_emplace(path);
    if (is_new)
        entry->second = load(path);
    of.shown = entry->second;
}

bool batch_materials::has_picture(std::size_t at) {
    file_look& asked = look_at(at);
    if (!asked.picture_known)
        find_picture(asked);
    return asked.shown.texture.has_value();
}

std::size_t batch_materials::material_of(std::size_t at, bool two_sided, bool with_picture) {
    const int which = (two_sided ? 1 : 0) + (with_picture ? 2 : 0);
    const auto [entry, is_new] = made.try_emplace({at, which});
    if (!is_new)
        return entry->second;
    const file_look& from = look_at(at);
    const material_look& look = from.look;
    const shown_picture& shown = from.shown;
    gltf::json material = material_json(look, writer);
    material["name"] = platform::utf8_from_own(look.display_name);
    material["extras"] = {{"material_number", slots[at].number}, {"name", platform::utf8_from_own(look.basics.name)}};
    if (two_sided)
        material["doubleSided"] = true;
    if (with_picture && shown.texture) {
        gltf::json& base = material["pbrMetallicRoughness"];
        // The picture has the colour already; what shows through stays.
        base["baseColorFactor"] = {1, 1, 1, base["baseColorFactor"][3]};
        base["baseColorTexture"] = {{"index", *shown.texture}};
        if (material.contains("emissiveFactor")) {
            material["emissiveFactor"] = {1, 1, 1};
            material["emissiveTexture"] = {{"index", *shown.texture}};
        }
        if (!material.contains("alphaMode") && !material.contains("extensions"))
            set_coverage(material, shown.covers);
    }
    entry->second = writer.add(gltf::list::materials, material);
    return entry->second;
}
