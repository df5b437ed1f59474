// Layers, the folders that hold them, and line styles.

#include "sketchup/skp/classic/model_reader.h"

namespace skp {

// CLayerManager
void model_reader::read_layer_manager(bool is_root) {
    const reading here(in_, "CLayerManager");
    constexpr int folders_in_a_list = 6;
    const bool was_private = in_private_layers_;
    in_private_layers_ = !is_root;
    skip_entity();
    const std::uint32_t count = list_count();
    for (std::uint32_t i = 0; i < count; ++i) {
        const object layer = required_ref(object_class::layer);
        if (is_root && layer.place != sketchup::no_index)
            layer_order_.push_back(layer.place);
    }
    if (count != 0 || layout_.layer_manager == 3)
        ref(object_class::layer); // the active one
    if (layout_.layer_manager == folders_in_a_list)
        skip_list(object_class::layer_group);
    else if (layout_.layer_manager > folders_in_a_list)
        read_layer_group_body(sketchup::no_index);
    in_private_layers_ = was_private;
}

// CLayer. Nothing refers to the layers that a definition lists for itself, so they are not kept.
void model_reader::read_layer(std::uint32_t slot) {
    sketchup::layer l;
    if (!in_private_layers_)
        l = begin(m_.layers, slot);
    read_entity(l);
    l.name = in_.text();
    l.hidden = in_.boolean();
    stored_material display = read_display_material();
    if (layout_.layer >= 2)
        l.page_behavior = in_.u32();
    if (layout_.layer >= 3)
        ref(object_class::line_style);
    if (in_private_layers_)
        return;
    keep_texture(display);
    l.material = static_cast<index>(m_.materials.size());
    m_.materials.push_back(std::move(display.material));
    keep(m_.layers, slot, l);
}

model_reader::stored_material model_reader::read_display_material() {
    const reading here(in_, "CMaterial");
    return read_material_body(m_.give_id());
}

// CLayerGroup
void model_reader::read_layer_group(std::uint32_t slot) {
    const auto folder = static_cast<index>(m_.layer_folders.size());
    in_.set_place(slot, folder);
    m_.layer_folders.emplace_back();
    read_layer_group_body(folder);
}

// folder: which of the model's folders this is; no_index for the root folder, which is none.
void model_reader::read_layer_group_body(index folder) {
    const reading here(in_, "CLayerGroup");
    sketchup::layer_folder f;
    skip_entity();
    f.name = in_.text();
    const std::uint32_t folders = list_count();
    for (std::uint32_t i = 0; i < folders; ++i)
        m_.layer_folders[introduced_here(object_class::layer_group).place].parent = folder;
    const std::uint32_t layers = list_count();
    for (std::uint32_t i = 0; i < layers; ++i) {
        const index layer = required_ref(object_class::layer).place;
        if (layer != sketchup::no_index)
            m_.layers[layer].folder = folder;
    }
    if (layout_.layer_group >= 2)
        f.hidden = in_.boolean();
    if (layout_.layer_group >= 3)
        in_.boolean(); // expanded
    if (folder != sketchup::no_index)
        m_.layer_folders[folder] = std::move(f);
}

// CCustomLineStyle
void model_reader::read_line_style(std::uint32_t) {
    const int number = layout_.custom_line_style;
    skip_entity();
    if (number < 3)
        skip_entity();
    in_.text(); // name
    if (number == 1)
        in_.u16(); // dashes as bits
    else
        in_.text();  // dashes
    skip_doubles(1); // width
    if (number >= 2)
        skip_doubles(1); // scale
    if (number == 2 || number == 3)
        skip_doubles(1);
}

} // namespace skp
