#include "tests/sketchup/skp/classic/classic_bytes.h"

namespace classic {

numbers version_6_numbers() {
    return {{"CArcCurve", 1},
            {"CAttributeNamed", 0},
            {"CCamera", 5},
            {"CComponent", 11},
            {"CComponentBehavior", 4},
            {"CComponentInstance", 4},
            {"CConstructionLine", 1},
            {"CCurve", 4},
            {"CDib", 3},
            {"CDimension", 1},
            {"CDimensionLinear", 6},
            {"CDrawingElement", 9},
            {"CEdge", 2},
            {"CEntity", 3},
            {"CFace", 3},
            {"CFaceTextureCoords", 4},
            {"CLayer", 2},
            {"CLayerManager", 4},
            {"CMaterialManager", 4},
            {"CRenderingOptions", 32},
            {"CSectionPlane", 2},
            {"CSkFont", 1},
            {"CSketchUpModel", 18},
            {"CTextStyle", 5},
            {"CTexture", 6},
            {"CThumbnail", 1},
            {"CViewPage", 11}};
}

namespace {

assembler with_layout_of(const small_model& m) {
    assembler a;
    a.entity_number = m.empty.entity_number;
    a.wide = m.empty.wide;
    return a;
}

void put_header(assembler& a, const small_model& m) {
    a.text("SketchUp Model").text(m.version);
    for (unsigned i = 1; i <= 16; ++i)
        a.u8(i); // the model's id
    a.text("").u32(1000000000);
    a.new_class("CVersionMap");
    for (const auto& [name, number] : m.layout)
        a.text(name).u32(number);
    a.text("End-Of-Version-Map").u32(0);
}

void put_behavior(assembler& a) {
    a.entity().u8(0).u8(0).u32(0).u8(0);
}

// Layout 32. Two values are no zeros: the front colour, and that shadows are shown.
void put_rendering_options(assembler& a) {
    a.entity().u32(2).zeros(3).u32(1).zeros(4 * 4); // mode, three flags, edges, four colours
    a.u8(1).u8(0).u8(0).u8(1).u32(1);               // shadows, axes, by layer, textures; edge colours
    a.u8(0).u32(0).u8(0).u32(3);                    // extended lines, silhouettes
    a.u8(0).u32(4).u8(0).u32(9).u8(0);              // depth, line ends, profiles only
    a.u8(0).u32(0);                                 // hidden things, face colours
    a.u8(225).u8(200).u8(180).u8(255).zeros(4);     // front, back
    a.f64(0.25).f64(0.5).u8(0).u8(0);               // fading
    a.u8(0).zeros(4).u8(1).f64(-1).f64(-1).u32(1);  // fog
    a.u32(0).zeros(4);                              // edge type, four flags
    a.zeros(3 * 4).u8(1).u8(0).u8(1).u32(50);       // sky, horizon, ground
    a.zeros(3 * 4).u32(3).u32(2);                   // sections: cuts are shown, planes are not
    a.u32(0).u8(1).f64(0.35).u8(1).zeros(4).u8(1);  // sorting, softness, locked colour, watermarks
}

void put_shadow_info(assembler& a) {
    a.entity().u32(1604842200).u8(0).text("Boulder").text("USA").f64(-105.25).f64(40.5).f64(-7);
    a.v3(0, 1, 0).u8(0).u8(1).u8(1).u8(0).u32(80).u32(45).u8(0);
}

void put_layers(assembler& a, const small_model& m) {
    a.entity().u32(1).new_class("CLayer").entity().text("Layer0").u8(0);
    a.append(m.layer_material).u32(0); // no behaviour on new pages
    a.null();                          // no active one
}

} // namespace

small_model::small_model(int entity_number) {
    empty.entity_number = entity_number;
    set_number("CEntity", static_cast<std::uint32_t>(entity_number));
    for (assembler* part :
         {&root_base, &materials, &layer_material, &definitions, &entities, &relationships, &active_section_plane})
        *part = empty;
    root_base.drawing();
    materials.u32(0);
    layer_material.entity().text("Layer_Layer0").u8(0).u8(1).u8(1).u8(2).u8(3).u8(255).text("");
    layer_material.u32(0).u32(0).f64(0).u8(0);
    definitions.u32(0);
    entities.u32(0);
    relationships.u32(0);
    active_section_plane.null();
}

void small_model::set_number(const std::string& class_name, std::uint32_t number) {
    for (auto& [name, value] : layout)
        if (name == class_name)
            value = number;
}

std::vector<std::uint8_t> small_model::file() const {
    assembler a = with_layout_of(*this);
    put_header(a, *this);
    a.u32(1).u32(1200).u32(0).null().u8(0); // two numbers, product family, thumbnail
    put_behavior(a);
    a.text("a small model").null(); // no camera
    put_rendering_options(a);
    a.u32(0).u32(0);
    a.append(root_base);
    a.entity().append(materials).null();
    put_layers(a, *this);
    a.append(definitions).append(entities).append(relationships).append(active_section_plane);
    put_shadow_info(a);
    a.entity().u32(0).null();  // pages, the active one
    a.drawing().zeros(12 * 8); // axes
    a.zeros(16 * 4);
    a.u32(2).u32(0);                                                               // options without a provider
    a.entity().u32(0).null().zeros(2 + 5 * 4 + 1 + 4 + 2 + 8 + 1 + 8 + 2 * 4 + 4); // dimension style
    a.entity().null().zeros(2 * 4 + 1 + 4 + 1 + 4 + 4).null();                     // text style
    a.entity().u32(0);                                                             // fonts
    a.null();                                                                      // background
    a.entity().u32(0);                                                             // styles
    a.entity().u32(0);                                                             // watermarks
    return a.bytes;
}

assembler definition_head(const small_model& around) {
    assembler a = with_layout_of(around);
    a.drawing();
    a.entity().u32(0).null(); // materials, the current one
    a.entity().u32(0);        // layers
    return a.u32(0);          // definitions
}

assembler definition_tail(const small_model& around, std::string_view name) {
    assembler a = with_layout_of(around);
    a.u32(0).null(); // relations, active section plane
    for (unsigned i = 0; i < 16; ++i)
        a.u8(0x20 + i); // id
    a.text(name).text("").text("").u32(0).u8(0).v3(0, 0, 0);
    put_behavior(a);
    return a.u32(0).null(); // a component, no thumbnail
}

assembler placement_head(const small_model& around) {
    return with_layout_of(around).drawing();
}

assembler placement_tail(const small_model& around, std::string_view name) {
    assembler a = with_layout_of(around);
    for (const double n : {1.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 1.0, 10.0, 20.0, 30.0, 1.0})
        a.f64(n);
    return a.text(name);
}

} // namespace classic
