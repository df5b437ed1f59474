#include "tools/batch_check/check_references.h"

#include "tools/batch_check/batch_folders.h"
#include "tools/batch_check/check_lamp.h"
#include "tools/batch_check/check_material.h"
#include "tools/batch_check/check_picture.h"
#include "tools/batch_reading/material_reader.h"

namespace batch_check {

void reference_check::check_materials() {
    for (const declared_material& material : report.stream.materials) {
        if (!material.is_used && report.stream.is_whole)
            report.found.add(code::material_unused, stream_file_name, material.line,
                             in_quotes(material.name) + " is on no side");
        check_material_of(material);
    }
}

void reference_check::check_material_of(const declared_material& material) {
    const std::string file = in_folder(materials_folder, file_of_material(material.name));
    const bool is_there = refers_to(file);
    if (is_there && !checked_materials.insert(file).second)
        return;
    const auto facts = is_there ? check_material(files, file, material.name, report.found) : std::nullopt;
    if (!facts) {
        report.found.add(code::material_missing, stream_file_name, material.line,
                         in_quotes(material.name) + no_file(file));
        return;
    }
    // A material that carries an edited one has that beside it.
    contents.refer_to(in_folder(materials_folder, material.name));
    const std::string& equal = first_of_content(material_of_content, facts->content, file);
    if (equal != file) {
        ++report.equal_materials;
        report.found.add(code::material_equal, file, 0, "says what " + in_quotes(equal) + " says, but for the name");
    }
    if (!facts->image_path.empty())
        check_picture_of(file, facts->image_path, facts->image_line);
    else if (material.name.starts_with("TEX%3a") || material.name.starts_with("IMAGE_"))
        report.found.add(code::material_without_picture, file, facts->image_line, "no picture is named");
}

bool reference_check::refers_to(const std::string& file) {
    const bool is_there = contents.has(file);
    if (is_there)
        contents.refer_to(file);
    return is_there;
}

std::string reference_check::no_file(const std::string& file) const {
    return contents.has(file) ? " has a file that cannot be read" : " has no file";
}

void reference_check::check_picture_of(const std::string& material_file, const std::string& path, std::size_t line) {
    const auto place = contents.place_of(path, {textures_folder, images_folder});
    if (!place || !contents.has(place->file)) {
        report.found.add(code::picture_missing, material_file, line, "there is no picture " + in_quotes(path));
        return;
    }
    warn_of_other_folder(*place, material_file, line);
    if (!contents.is_referred_to(place->file))
        compare_picture(place->file);
    contents.refer_to(place->file);
}

void reference_check::compare_picture(const std::string& file) {
    const auto facts = check_picture(files, file, report.found);
    if (!facts) {
        report.found.add(code::picture_damaged, file, 0, "the file cannot be read");
        return;
    }
    ++report.pictures.count;
    report.pictures.bytes += facts->bytes;
    if (facts->content.empty())
        return;
    const std::string& equal = first_of_content(picture_of_content, facts->content, file);
    if (equal == file)
        return;
    report.pictures.repeated_bytes += facts->bytes;
    report.found.add(code::picture_equal, file, 0, "has the bytes of " + in_quotes(equal));
}

void reference_check::check_lamps() {
    for (std::size_t number = 0; number < report.stream.lamps.size(); ++number) {
        const stream_lamp& lamp = report.stream.lamps[number];
        const std::string file = in_folder(lights_folder, "light_" + std::to_string(number) + ".txt");
        const auto facts = refers_to(file) ? check_lamp(files, file, lamp.is_direct, report.found) : std::nullopt;
        if (!facts) {
            report.found.add(code::lamp_missing, stream_file_name, lamp.line,
                             "lamp " + std::to_string(number) + no_file(file));
            continue;
        }
        count_lamp_type(facts->type);
        report.lamps_without_power += facts->gives_light ? 0 : 1;
    }
}

// A type may be any text.
void reference_check::count_lamp_type(const std::string& type) {
    constexpr std::size_t most_types = 100;
    constexpr std::size_t most_bytes = 80;
    const std::string shown = type.size() > most_bytes ? type.substr(0, most_bytes) + "..." : type;
    const bool is_told_apart = report.lamps_by_type.size() < most_types || report.lamps_by_type.contains(shown);
    ++report.lamps_by_type[is_told_apart ? shown : "..."];
}

void reference_check::check_plants() {
    for (const named_file& plant : report.stream.plants) {
        const auto place = contents.place_of(plant.name, {plants_folder});
        if (!place || !contents.has(place->file)) {
            report.found.add(code::plant_missing, stream_file_name, plant.line,
                             "there is no file " + in_quotes(plant.name));
            continue;
        }
        contents.refer_to(place->file);
        warn_of_other_folder(*place, stream_file_name, plant.line);
    }
}

void reference_check::check_ground_covers() {
    for (const named_file& cover : report.stream.ground_covers) {
        const auto place = contents.place_of(cover.name, {plants_folder});
        if (!place || !contents.has(place->file)) {
            report.found.add(place ? code::ground_cover_missing : code::ground_cover_elsewhere, stream_file_name,
                             cover.line, "there is no file " + in_quotes(cover.name) + " in the batch");
            continue;
        }
        contents.refer_to(place->file);
        warn_of_other_folder(*place, stream_file_name, cover.line);
    }
}

void reference_check::warn_of_other_folder(const batch_contents::place& place, const std::string& file,
                                           std::size_t line) {
    if (!place.is_in_here)
        report.found.add(code::other_folder, file, line,
                         "the full name of " + in_quotes(place.file) + " leads to another folder");
}

const std::string& reference_check::first_of_content(std::unordered_map<std::string, std::string>& first,
                                                     const std::string& content, const std::string& file) {
    return first.try_emplace(content, file).first->second;
}

} // namespace batch_check
