#pragma once

// What both containers list or state about a model and a model does not hold in that form.

#include "sketchup/model/model.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace skp {

// What a scene keeps of the view, as bits of its flags.
inline constexpr std::uint32_t scene_keeps_camera = 1;
inline constexpr std::uint32_t scene_keeps_rendering_options = 2;
inline constexpr std::uint32_t scene_keeps_shadow_info = 4;
inline constexpr std::uint32_t scene_keeps_axes = 8;
inline constexpr std::uint32_t scene_keeps_hidden_entities = 16;
inline constexpr std::uint32_t scene_keeps_hidden_layers = 32;
inline constexpr std::uint32_t scene_keeps_section_planes = 64;

// The scene's flags, made to agree with what it holds: a camera, options or shadow info is kept just when it is there,
// a list of layers or planes also when it is not empty.
std::uint32_t written_flags(const sketchup::scene& scene);

// The value of a rendering option: the one that is set, else the usual one, else null. name: that of the interface, or
// of a setting that it does not show (model/usual_options.h).
const sketchup::typed_value* written_option(const sketchup::rendering_options& options, std::string_view name);

// The materials of the model's list: those of the host's list in its order, then the private ones of images, which the
// program does not show. Those of layers are stored with their layers.
std::vector<sketchup::index> materials_of_list(const sketchup::model& m);

// What stands for a layer's material where the layer has none of its own.
sketchup::material plain_layer_material(const sketchup::layer& layer);

} // namespace skp
