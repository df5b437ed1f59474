#include "tools/skp_glb/model_materials.h"

#include "image/encode_picture.h"
#include "platform/platform.h"
#include "tools/gltf/numbers.h"
#include "tools/model_opening/placed_image.h"
#include "tools/model_opening/su_lists.h"

namespace {

constexpr std::uint64_t most_bytes_of_a_picture = std::uint64_t{1} << 30U;
constexpr std::size_t most_notes = 20;
constexpr double dark = 0.015; // of lines, as light

gltf::json plain_material(const std::string& name, const SUColor& color, double opacity) {
    gltf::json base = gltf::json::array();
    for (const SUByte channel : {color.red, color.green, color.blue})
        base.push_back(gltf::short_number(gltf::linear_channel(channel / 255.0)));
    base.push_back(gltf::short_number(opacity));
    gltf::json material = {{"name", name},
                           {"extras", {{"name", name}}},
                           {"pbrMetallicRoughness", {{"baseColorFactor", base}, {"metallicFactor", 0}}}};
    if (opacity < 1)
        material["alphaMode"] = "BLEND";
    return material;
}

void show_picture(gltf::json& material, std::size_t texture, coverage covers) {
    gltf::json& base = material["pbrMetallicRoughness"];
    base["baseColorFactor"] = {1, 1, 1, base["baseColorFactor"][3]};
    base["baseColorTexture"] = {{"index", texture}};
    if (!material.contains("alphaMode"))
        set_coverage(material, covers);
}

} // namespace

model_materials::model_materials(gltf::glb_writer& to, std::string temporary_file)
    : writer(to), temporary(std::move(temporary_file)) {}

void model_materials::note(std::string text) {
    if (said.size() < most_notes)
        said.push_back(std::move(text));
}

std::optional<embedded_picture> model_materials::taken(SUResult written, const std::string& file) {
    if (written != SU_ERROR_NONE)
        return std::nullopt;
    const auto bytes = platform::read_file(file, most_bytes_of_a_picture);
    platform::delete_file(file);
    if (!bytes)
        return std::nullopt;
    return picture_for_glb({reinterpret_cast<const std::uint8_t*>(bytes->data()), bytes->size()});
}

// The stored bytes are the best there is, unless the material has recoloured them.
std::optional<embedded_picture> model_materials::fetch(SUTextureRef texture, bool is_recoloured) {
    const std::string file = temporary + ".png";
    const std::string name = platform::utf8_from_own(file);
    std::optional<embedded_picture> picture;
    if (!is_recoloured)
        picture = taken(SUTextureWriteOriginalToFile(texture, name.c_str()), file);
    if (!picture)
        picture = taken(SUTextureWriteToFile(texture, name.c_str()), file);
    return picture;
}

const model_materials::shown_picture& model_materials::picture_behind(SUTextureRef texture, const std::string& material,
                                                                      bool is_recoloured) {
    const auto [entry, is_new] = by_texture.try_emplace(texture.ptr);
    shown_picture& shown = entry->second;
    if (!is_new)
        return shown;
    std::size_t width = 0;
    std::size_t height = 0;
    SUTextureGetDimensions(texture, &width, &height, &shown.scale.u, &shown.scale.v);
    const auto picture = fetch(texture, is_recoloured);
    if (!picture) {
        note("the picture of the material " + material + " cannot be shown");
        return shown;
    }
    ++embedded;
    shown.texture = add_texture(writer, *picture, material);
    shown.covers = picture->covers;
    return shown;
}

std::optional<model_materials::picture_scale> model_materials::picture_of(SUMaterialRef material) {
    SUTextureRef texture = SU_INVALID;
    if (SUMaterialGetTexture(material, &texture) != SU_ERROR_NONE)
        return std::nullopt;
    enum SUMaterialType type = SUMaterialType_Textured;
    SUMaterialGetType(material, &type);
    const shown_picture& shown =
        picture_behind(texture, su_text(material, SUMaterialGetName), type == SUMaterialType_ColorizedTexture);
    return shown.texture ? std::optional(shown.scale) : std::nullopt;
}

std::size_t model_materials::material_of(SUMaterialRef material, bool two_sided, bool with_picture) {
    const auto [entry, is_new] = made.try_emplace({material.ptr, two_sided, with_picture});
    if (!is_new)
        return entry->second;
    SUColor color = {255, 255, 255, 255};
    double opacity = 1;
    std::string name = "no material";
    if (SUIsValid(material)) {
        SUMaterialGetColor(material, &color);
        SUMaterialGetOpacity(material, &opacity);
        name = su_text(material, SUMaterialGetName);
    }
    gltf::json made_one = plain_material(name, color, opacity);
    if (two_sided)
        made_one["doubleSided"] = true;
    SUTextureRef texture = SU_INVALID;
    if (with_picture && SUMaterialGetTexture(material, &texture) == SU_ERROR_NONE) {
        const shown_picture& shown = by_texture[texture.ptr];
        if (shown.texture)
            show_picture(made_one, *shown.texture, shown.covers);
    }
    entry->second = writer.add(gltf::list::materials, made_one);
    return entry->second;
}

std::size_t model_materials::material_of_edges() {
    if (!edges)
        edges =
            writer.add(gltf::list::materials,
                       {{"name", "edges"},
                        {"extras", {{"name", "edges"}}},
                        {"pbrMetallicRoughness", {{"baseColorFactor", {dark, dark, dark, 1}}, {"metallicFactor", 0}}}});
    return *edges;
}

SUTextureRef model_materials::texture_of(SUImageRef image) {
    SUComponentDefinitionRef definition = SU_INVALID;
    SUEntitiesRef inside = SU_INVALID;
    SUTextureRef texture = SU_INVALID;
    SUImageGetDefinition(image, &definition);
    SUComponentDefinitionGetEntities(definition, &inside);
    for (const SUFaceRef face : su_list(inside, SUEntitiesGetNumFaces, SUEntitiesGetFaces)) {
        SUMaterialRef material = SU_INVALID;
        for (const auto side : {SUFaceGetFrontMaterial, SUFaceGetBackMaterial})
            if (SUIsInvalid(texture) && side(face, &material) == SU_ERROR_NONE)
                SUMaterialGetTexture(material, &texture);
    }
    return texture;
}

std::size_t model_materials::material_of(SUImageRef image) {
    SUComponentDefinitionRef definition = SU_INVALID;
    SUImageGetDefinition(image, &definition);
    const auto [entry, is_new] = by_image.try_emplace(definition.ptr);
    if (!is_new)
        return entry->second;
    const std::string name = su_text(image, SUImageGetFileName);
    gltf::json material = plain_material(name, {255, 255, 255, 255}, 1);
    material["doubleSided"] = true;
    std::optional<embedded_picture> picture;
    const SUTextureRef texture = texture_of(image);
    if (SUIsValid(texture))
        picture = fetch(texture, false);
    if (!picture) // some are stored in a way that a texture does not give
        if (const auto pixels = pixels_of(image))
            picture = picture_for_glb(image::encode_picture(*pixels, image::picture_format::png));
    if (picture) {
        ++embedded;
        show_picture(material, add_texture(writer, *picture, name), picture->covers);
    } else
        note("the image " + name + " cannot be shown");
    entry->second = writer.add(gltf::list::materials, material);
    return entry->second;
}
