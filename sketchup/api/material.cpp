// The calls on materials.

#include "sketchup/api/calls.h"
#include "sketchup/api/plain_values.h"

#include <algorithm>
#include <string>

using namespace sketchup::api;

namespace {

std::string without_brackets(const std::string& name) {
    const bool in_brackets = name.size() >= 2 && name.front() == '[' && name.back() == ']';
    return in_brackets ? name.substr(1, name.size() - 2) : name;
}

} // namespace

SUResult SUMaterialGetName(SUMaterialRef material, SUStringRef* name) {
    return give_text(material, name, [](const sketchup::material& m) { return m.name; });
}

SUResult SUMaterialGetNameLegacyBehavior(SUMaterialRef material, SUStringRef* name) {
    return give_text(material, name, [](const sketchup::material& m) { return without_brackets(m.name); });
}

SUResult SUMaterialGetColor(SUMaterialRef material, SUColor* color) {
    return give(material, color, [](const sketchup::material& m) { return to_color(m.color); });
}

SUResult SUMaterialGetTexture(SUMaterialRef material, SUTextureRef* texture) {
    return give_handle(material, texture,
                       [](const sketchup::material& m) { return element_at(m.owner->textures, m.texture); });
}

SUResult SUMaterialGetOpacity(SUMaterialRef material, double* alpha) {
    return give(material, alpha, [](const sketchup::material& m) {
        return m.use_transparency ? std::clamp(1 - m.transparency, 0.0, 1.0) : 1.0;
    });
}

SUResult SUMaterialGetUseOpacity(SUMaterialRef material, bool* use_opacity) {
    return give(material, use_opacity, [](const sketchup::material& m) { return m.use_transparency; });
}

SUResult SUMaterialGetType(SUMaterialRef material, SUMaterialType* type) {
    return give(material, type, [](const sketchup::material& m) { return static_cast<SUMaterialType>(m.type); });
}
