// How answers about materials are kept from face to face.

#include "tessaline/materials/known_materials.h"

#include "tessaline/model/model_text.h"

#include <cstdint>
#include <functional>
#include <initializer_list>

const material_answer* known_materials::find(const material_question& question, std::size_t records) {
    if (records != records_then) {
        answers.clear();
        records_then = records;
    }
    const auto found = answers.find(question);
    return found == answers.end() ? nullptr : &found->second;
}

bool known_materials::is_named(SUMaterialRef material) {
    if (SUIsInvalid(material))
        return false;
    const auto found = named.find(material.ptr);
    if (found != named.end())
        return found->second;
    const bool answer = !name_by(SUMaterialGetName, material).empty();
    named.emplace(material.ptr, answer);
    return answer;
}

int known_materials::record_with_picture(const std::string& path, const std::vector<cl_tsl_material>& records) {
    for (; pictures_of < records.size(); ++pictures_of)
        pictures.try_emplace(records[pictures_of].image_path, static_cast<int>(pictures_of));
    const auto found = pictures.find(path);
    return found == pictures.end() ? -1 : found->second;
}

void known_materials::forget() {
    answers.clear();
    named.clear();
    records_then = 0;
    pictures.clear();
    pictures_of = 0;
}

std::size_t known_materials::question_hash::operator()(const material_question& question) const {
    const std::size_t flags =
        (question.by_layer ? 1U : 0U) | (question.is_face ? 2U : 0U) | (question.is_scattered ? 4U : 0U);
    std::size_t mixed = std::hash<const void*>{}(question.material.ptr);
    for (const std::size_t part : {static_cast<std::size_t>(static_cast<std::uint32_t>(question.texture_id)),
                                   std::hash<std::optional<std::int32_t>>{}(question.layer_reflection), flags})
        mixed = mixed * 31 + part;
    return mixed;
}
