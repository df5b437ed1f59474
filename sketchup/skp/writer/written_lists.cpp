#include "sketchup/skp/writer/written_lists.h"

#include "sketchup/model/usual_options.h"

#include <algorithm>

namespace skp {

using sketchup::index;
using sketchup::no_index;

std::uint32_t written_flags(const sketchup::scene& scene) {
    const auto settle = [](std::uint32_t bit, bool is_there) { return is_there ? bit : 0U; };
    constexpr std::uint32_t settled = scene_keeps_camera | scene_keeps_rendering_options | scene_keeps_shadow_info;
    return (scene.flags & ~settled) | settle(scene_keeps_camera, scene.camera != no_index) |
           settle(scene_keeps_rendering_options, scene.rendering_options.has_value()) |
           settle(scene_keeps_shadow_info, scene.shadow_info.has_value()) |
           settle(scene_keeps_hidden_layers, !scene.hidden_layers.empty()) |
           settle(scene_keeps_section_planes, !scene.active_section_planes.empty());
}

const sketchup::typed_value* written_option(const sketchup::rendering_options& options, std::string_view name) {
    const auto found = std::ranges::find(options.values, name, &sketchup::attribute::key);
    if (found != options.values.end())
        return &found->value;
    const sketchup::typed_value* usual = sketchup::usual_option(name);
    return usual != nullptr ? usual : sketchup::usual_setting(name);
}

std::vector<index> materials_of_list(const sketchup::model& m) {
    std::vector<bool> taken(m.materials.size(), false);
    for (const sketchup::layer& layer : m.layers)
        if (layer.material != no_index)
            taken[layer.material] = true;
    std::vector<index> listed = m.listed_materials;
    for (const index material : listed)
        taken[material] = true;
    for (index i = 0; i < m.materials.size(); ++i)
        if (!taken[i])
            listed.push_back(i);
    return listed;
}

sketchup::material plain_layer_material(const sketchup::layer& layer) {
    sketchup::material shown;
    shown.name = "Layer_" + layer.name;
    shown.is_private = true;
    shown.color = {255, 84, 84, 255}; // the program's own for a layer that nobody has given one
    return shown;
}

} // namespace skp
