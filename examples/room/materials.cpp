// What the room is made of.

#include "room_parts.h"

using namespace sketchup;

room_materials add_materials(model_builder& m) {
    room_materials use{};
    use.plaster = m.material("Plaster", {236, 230, 218, 255});
    use.oak_floor = m.textured_material("Oak floor", floor_picture(), "oak.bmp", 48, 48);
    use.walnut = m.material("Walnut", {104, 66, 42, 255});
    use.linen = m.material("Linen", {120, 142, 150, 255});
    use.cushion = m.material("Cushion", {204, 120, 70, 255});
    use.brass = m.material("Brass_ref60", {200, 164, 90, 255});
    use.glass = m.material("Glass", {190, 222, 230, 255}, 0.35);
    use.mirror = m.material("Mirror", {214, 224, 228, 255});
    use.glow_warm = m.material("Warm panel_glow80", {255, 214, 140, 255});
    use.glow_cold = m.material("Cold panel_glow40", {170, 210, 255, 255});
    use.shade = m.material("Lamp shade", {250, 236, 206, 255});
    use.rug = m.material("Rug", {150, 60, 58, 255});
    use.beam = m.material("Beam", {255, 244, 200, 255}, 0.25);
    use.leaf = m.material("Leaf", {78, 122, 62, 255});
    use.clay = m.material("Clay", {176, 98, 66, 255});
    // One word of a name is all that a name can say; the rest stands in attributes.
    m.attribute({entity_kind::material, use.mirror}, "Vellane_material", "Highlight_intensity", real_number(0.95));
    m.attribute({entity_kind::material, use.shade}, "Vellane_material", "Translucency", real_number(0.5));
    return use;
}
