// Materials, their textures and the pictures of these.

#include "sketchup/skp/classic/model_reader.h"

namespace skp {

// CMaterialManager
void model_reader::read_material_manager(bool is_root) {
    const reading here(in_, "CMaterialManager");
    skip_entity();
    const std::uint32_t count = list_count();
    for (std::uint32_t i = 0; i < count; ++i) {
        const object found = required_ref(object_class::material);
        if (is_root && !m_.materials[found.place].is_private)
            m_.listed_materials.push_back(found.place);
    }
    if (layout_.material_manager >= 2)
        ref(object_class::material); // the current one
}

// CMaterial
void model_reader::read_material(std::uint32_t slot) {
    sketchup::material place_holder = begin(m_.materials, slot);
    stored_material stored = read_material_body(place_holder.id);
    keep_texture(stored);
    keep(m_.materials, slot, stored.material);
}

model_reader::stored_material model_reader::read_material_body(std::int32_t id) {
    stored_material stored;
    sketchup::material& m = stored.material;
    m.id = id;
    read_entity(m);
    m.name = in_.text();
    if (in_.boolean())
        stored.texture = read_texture();
    m.is_private = in_.boolean();
    m.color = in_.rgba();
    in_.text();
    const std::uint32_t type = in_.u32();
    if (type > static_cast<std::uint32_t>(sketchup::material_type::colorized))
        in_.fail("unknown type of material " + std::to_string(type));
    m.type = static_cast<sketchup::material_type>(type);
    m.colorize_type = in_.u32();
    m.transparency = in_.f64();
    m.use_transparency = in_.boolean();
    return stored;
}

// CTexture
sketchup::texture model_reader::read_texture() {
    const reading here(in_, "CTexture");
    sketchup::texture t;
    t.id = m_.give_id();
    index stored = sketchup::no_index;
    if (layout_.texture < 5) {
        if (in_.boolean())
            stored = read_dib_body();
    } else {
        read_entity(t);
        stored = ref(object_class::dib).place;
    }
    t.picture = picture_of(stored);
    t.width = in_.f64();
    t.height = in_.f64();
    t.file_name = in_.text();
    t.average_color = in_.rgba();
    return t;
}

// Puts the texture into the model and its index into the material.
void model_reader::keep_texture(stored_material& stored) {
    if (!stored.texture)
        return;
    stored.material.texture = static_cast<index>(m_.textures.size());
    m_.textures.push_back(std::move(*stored.texture));
}

// CDib
void model_reader::read_dib(std::uint32_t slot) {
    in_.set_place(slot, read_dib_body());
}

model_reader::index model_reader::read_dib_body() {
    const reading here(in_, "CDib");
    constexpr std::uint32_t jpeg = 1;
    stored_picture p;
    if (layout_.dib >= 2)
        p.format = in_.u32();
    const std::uint32_t size = in_.u32();
    p.offset = static_cast<std::size_t>(in_.offset());
    in_.skip(size);
    p.size = size;
    if (layout_.dib >= 3 && p.format == jpeg)
        p.quality = in_.u32();
    stored_pictures_.push_back(p);
    return static_cast<index>(stored_pictures_.size() - 1);
}

// The picture of the model that holds the stored bytes: one, however many textures share them.
model_reader::index model_reader::picture_of(index stored) {
    if (stored == sketchup::no_index)
        return sketchup::no_index;
    stored_picture& p = stored_pictures_[stored];
    if (p.picture == sketchup::no_index) {
        p.picture = static_cast<index>(m_.pictures.size());
        sketchup::picture& picture = m_.pictures.emplace_back();
        picture.name = "picture at offset " + std::to_string(p.offset);
        picture.format = p.format;
        picture.quality = p.quality;
        picture.load = [file = file_, offset = p.offset, size = p.size] {
            const std::span<const std::uint8_t> bytes = std::span(*file).subspan(offset, size);
            return std::vector<std::uint8_t>(bytes.begin(), bytes.end());
        };
    }
    return p.picture;
}

} // namespace skp
