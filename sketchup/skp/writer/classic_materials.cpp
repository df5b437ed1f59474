// Materials, pictures and layers in the classic container.

#include "sketchup/model/picture_format.h"
#include "sketchup/skp/writer/classic_bodies.h"
#include "sketchup/skp/writer/written_colors.h"
#include "sketchup/skp/writer/written_lists.h"

#include <vector>

namespace skp {

using sketchup::index;
using sketchup::no_index;

namespace {

void write_picture(classic_output& c, const sketchup::picture& picture) {
    object_archive& out = c.out;
    const std::vector<std::uint8_t> bytes = picture.load();
    constexpr std::uint32_t usual_quality = 75; // of 99
    const std::uint32_t format = picture.format != 0 ? picture.format : sketchup::picture_format(bytes);
    out.u32(format);
    out.size(bytes.size());
    out.raw(bytes);
    if (out.number("CDib") >= 3 && format == 1)
        out.u32(picture.quality != 0 ? picture.quality : usual_quality);
}

// Of a material that has one.
void write_texture(classic_output& c, const sketchup::material& m) {
    object_archive& out = c.out;
    const sketchup::texture& texture = c.model.textures[m.texture];
    write_entity(c, texture);
    const sketchup::picture* picture = texture.picture == no_index ? nullptr : &c.model.pictures[texture.picture];
    out.object("CDib", picture, [&] { write_picture(c, *picture); });
    out.f64(texture.width);
    out.f64(texture.height);
    out.str(texture.file_name);
    out.rgba(written_shown_average(c.model, m));
}

void write_layer(classic_output& c, const sketchup::layer& layer) {
    object_archive& out = c.out;
    write_entity(c, layer);
    out.str(layer.name);
    out.boolean(layer.hidden);
    write_material(c, layer.material == no_index ? plain_layer_material(layer) : c.model.materials[layer.material]);
    if (out.number("CLayer") >= 2)
        out.u32(layer.page_behavior);
    if (out.number("CLayer") >= 3)
        out.null(); // line style
}

// A folder of layers: the root one, with no name, when `folder` is no_index.
void write_layer_folder(classic_output& c, index folder) {
    object_archive& out = c.out;
    const sketchup::model& m = c.model;
    write_plain_entity(c);
    out.str(folder == no_index ? std::string_view() : m.layer_folders[folder].name);
    std::vector<index> folders;
    std::vector<index> layers;
    for (index i = 0; i < m.layer_folders.size(); ++i)
        if (m.layer_folders[i].parent == folder)
            folders.push_back(i);
    if (folder != no_index)
        for (index i = 0; i < m.layers.size(); ++i)
            if (m.layers[i].folder == folder)
                layers.push_back(i);
    out.size(folders.size());
    for (const index inner : folders)
        out.object("CLayerGroup", [&] { write_layer_folder(c, inner); });
    out.size(layers.size());
    for (const index layer : layers)
        out.object("CLayer", &m.layers[layer], [&] { write_layer(c, m.layers[layer]); });
    out.boolean(folder != no_index && m.layer_folders[folder].hidden);
    if (out.number("CLayerGroup") >= 3)
        out.boolean(false); // expanded
}

} // namespace

void write_material(classic_output& c, const sketchup::material& m) {
    object_archive& out = c.out;
    write_entity(c, m);
    out.str(m.name);
    out.boolean(m.texture != no_index);
    if (m.texture != no_index)
        write_texture(c, m);
    out.boolean(m.is_private);
    out.rgba(m.color);
    out.str({});
    out.u32(static_cast<std::uint32_t>(m.type));
    out.u32(m.colorize_type);
    out.f64(m.transparency);
    out.boolean(m.use_transparency);
}

void mention_material(classic_output& c, index material) {
    const sketchup::material* m = material == no_index ? nullptr : &c.model.materials[material];
    c.out.object("CMaterial", m, [&] { write_material(c, *m); });
}

void write_layer_manager(classic_output& c) {
    object_archive& out = c.out;
    const auto& layers = c.model.layers;
    write_plain_entity(c);
    out.size(layers.size());
    for (const sketchup::layer& layer : layers)
        out.object("CLayer", &layer, [&] { write_layer(c, layer); });
    if (!layers.empty())
        out.object("CLayer", &layers.front(), [] {}); // the active layer, written above
    if (out.number("CLayerManager") >= 7)
        write_layer_folder(c, no_index);
}

// A definition carries one layer of its own that nothing refers to.
void write_definition_layers(classic_output& c) {
    object_archive& out = c.out;
    sketchup::layer own;
    own.name = "Layer0";
    write_plain_entity(c);
    out.size(1);
    out.object("CLayer", &own, [&] { write_layer(c, own); });
    out.object("CLayer", &own, [] {}); // the active one
    out.forget(&own);
    if (out.number("CLayerManager") >= 7) {
        write_plain_entity(c);
        out.str({});
        out.size(0);
        out.size(0);
        out.boolean(false);
        if (out.number("CLayerGroup") >= 3)
            out.boolean(false);
    }
}

void mention_layer(classic_output& c, index layer) {
    const sketchup::layer* l = layer == 0 ? nullptr : &c.model.layers[layer];
    c.out.object("CLayer", l, [&] { write_layer(c, *l); });
}

} // namespace skp
