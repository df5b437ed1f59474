// Which number a face's side gets for its material, and what the first side that shows a material sets going. Reads
// the parameters of the level and the flags of the run; adds to its material tables and replaces its attribute list.

#include "platform/platform.h"
#include "qlw/qlw_trace.h"
#include "qlw/whole_number.h"
#include "tessaline/files/paths.h"
#include "tessaline/materials/material_attributes.h"
#include "tessaline/materials/material_file.h"
#include "tessaline/materials/material_folders.h"
#include "tessaline/materials/material_names.h"
#include "tessaline/materials/texture_export.h"
#include "tessaline/parameters/attributes.h"
#include "tessaline/state/run_state.h"
#include "tessaline/walk/SketchUpReader.h"

#include <algorithm>
#include <stdexcept>

namespace {

void trace(int line, std::string_view format, auto... values) {
    cl_trace::here("SketchUpReader::get_material_number", trace_level::plain, __builtin_FILE(), line)
        .report(format, values...);
}

// Whether the picture on a side of the face is distorted; no if the interface cannot tell.
bool is_distorted(SUFaceRef face, bool is_front) {
    bool affine = true;
    const auto ask = is_front ? SUFaceIsFrontMaterialAffine : SUFaceIsBackMaterialAffine;
    return ask(face, &affine) == SU_ERROR_NONE && !affine;
}

// The number that the texture writer knows the side's picture by; 0 if the picture is not the face's own.
std::int32_t texture_id_of(SUFaceRef face, bool is_front, bool is_heard) {
    if (is_heard) {
        long told = 0;
        SUTextureWriterGetTextureIdForFace(texture_writer, face, is_front, &told);
        trace(__LINE__, "txtr id: %d, is_front: %d", told, is_front);
    }
    long front_id = 0;
    long back_id = 0;
    SUTextureWriterLoadFace(texture_writer, face, &front_id, &back_id);
    if (is_heard)
        trace(__LINE__, "textureId? %d  back_textureId: %d", front_id, back_id);
    return static_cast<std::int32_t>(is_front ? front_id : back_id);
}

// The index under a name; -1 if there is none.
int index_under(const std::string& name) {
    const auto found = material_name_map.find(name);
    return found == material_name_map.end() ? -1 : found->second;
}

int index_of_file(const std::string& file_name) {
    const int index = index_under(file_name);
    return index != -1 ? index : index_under('[' + file_name + ']');
}

// Adds the record and enters it in the maps; gives its index.
int enter(cl_tsl_material record, const std::string& file_name) {
    const int index = static_cast<int>(material_records.size());
    material_id_map[record.material_id] = index;
    material_name_map[file_name] = index;
    material_name_map[record.name] = index;
    material_records.push_back(std::move(record));
    return index;
}

// What of the object's parameters a new material starts with: an object may ask for reflection.
material_values start_values(double opacity) {
    material_values start;
    start.opacity = opacity;
    if (current_oparms->reflection > 0) {
        start.reflection = current_oparms->reflection * 0.01;
        start.metallic = true;
    }
    return start;
}

// What the record keeps of the values. opacity: of the model, whatever the name of the material says.
material_values recorded(material_values values, double opacity) {
    values.glow = std::max(values.glow, 0.0);
    values.reflection = std::max(values.reflection, 0.0);
    values.opacity = opacity;
    return values;
}

} // namespace

// A side of a face that asks for its material.
struct SketchUpReader::material_request {
    SUFaceRef face;
    SUMaterialRef material;
    SUEntityRef entity;
    SUTextureRef texture;
    std::int32_t material_id;
    bool is_front;
    bool counts_as_textured;
    bool not_affine;
    material_question question; // all that its file name depends on
};

material_of_side SketchUpReader::get_material_number(SUFaceRef face, SUMaterialRef material, std::string_view kind,
                                                     bool is_front) {
    material_of_side side;
    if (SUIsInvalid(material))
        return side;
    const SUEntityRef entity = SUMaterialToEntity(material);
    std::int32_t id = -1;
    SUEntityGetID(entity, &id);
    if (id < 0)
        return side;
    ready_material_folders();

    SUTextureRef texture = SU_INVALID;
    SUMaterialGetTexture(material, &texture);
    side.has_texture = SUIsValid(texture);
    const bool is_face = kind == "face";
    material_question question{.material = material,
                               .by_layer = theApp.color_by_layer,
                               .is_face = is_face,
                               .is_scattered = in_skatter_instances};
    if (side.has_texture && SUIsValid(texture_writer)) {
        side.not_affine = is_distorted(face, is_front) && !in_skatter_instances;
        question.texture_id = texture_id_of(face, is_front, traces_heard ? *traces_heard : traces_are_heard());
    }
    if (theApp.color_by_layer && current_oparms->reflection > 0)
        question.layer_reflection = cut_toward_zero(current_oparms->reflection);

    const bool counts_as_textured = side.has_texture || (!is_face && !theApp.color_by_layer);
    const int index = find_or_declare_material(
        {face, material, entity, texture, id, is_front, counts_as_textured, side.not_affine, question});
    if (index <= -1)
        return side;
    if (static_cast<std::size_t>(index) >= material_records.size())
        throw std::invalid_argument("no material record of that index");
    side.has_glow = material_records[static_cast<std::size_t>(index)].has_glow;
    side.number = index + first_material_number;
    return side;
}

// The index of the record, which is made if there is none.
int SketchUpReader::find_or_declare_material(const material_request& asked) {
    const bool has_straight_picture = !(asked.counts_as_textured && asked.not_affine);
    if (const material_answer* known = materials.find(asked.question, material_records.size())) {
        if (!known->has_file || !has_straight_picture)
            read_attributes(asked.entity);
        return known->record;
    }
    const std::string name = working_name_of(get_material_name(asked.material));
    const material_file_names names = file_names_of({.working_name = name,
                                                     .material_id = asked.material_id,
                                                     .texture_id = asked.question.texture_id,
                                                     .is_face = asked.question.is_face,
                                                     .is_textured = asked.counts_as_textured,
                                                     .is_scattered = asked.question.is_scattered,
                                                     .by_layer = asked.question.by_layer,
                                                     .layer_reflection = asked.question.layer_reflection});
    const bool has_file = platform::exists(joined_inside(material_folder_path, names.object_file));
    const int found = index_of_file(names.file);
    if (found == -1 || !has_file || !has_straight_picture)
        read_attributes(asked.entity);
    if (found == -1)
        return declare_material(asked, name, names, has_file);
    materials.keep(asked.question, {found, has_file});
    return found;
}

// Writes all that a new material leaves: picture, text file, edited file, and its lines in the stream.
int SketchUpReader::declare_material(const material_request& asked, const std::string& name,
                                     const material_file_names& names, bool has_file) {
    double opacity = 0;
    SUMaterialGetOpacity(asked.material, &opacity);
    exported_texture picture;
    if (!has_file && asked.counts_as_textured)
        picture = export_material_texture(asked.texture, asked.face, asked.is_front, asked.not_affine, names.number,
                                          asked.material_id, names.encoded_name);
    const material_values values =
        evaluate_material(start_values(opacity), name, asked.material, material_folder_path, names.file);
    write_material_file({.display_name = name,
                         .orig_name = name,
                         .image_path = picture.image_path,
                         .tile_x = picture.tile_x,
                         .tile_y = picture.tile_y,
                         .values = values},
                        names.file, joined_inside(material_folder_path, names.object_file));
    const int index = enter({.material_id = asked.material_id,
                             .name = name,
                             .image_path = picture.image_path,
                             .tile_x = picture.tile_x,
                             .tile_y = picture.tile_y,
                             .has_glow = values.glow > 0,
                             .values = recorded(values, opacity)},
                            names.file);
    stream.write_material_declaration(names.file, index + first_material_number);
    return index;
}
