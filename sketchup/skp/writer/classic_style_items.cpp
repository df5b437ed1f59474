// The style of a classic file: the model's rendering options once more, in a form that can be given to other models.

#include "sketchup/skp/classic/option_fields.h"
#include "sketchup/skp/writer/classic_bodies.h"
#include "sketchup/skp/writer/written_guids.h"
#include "sketchup/skp/writer/written_lists.h"

#include <algorithm>
#include <cstdint>

namespace skp {

namespace {

using enum option_type;

struct style_item {
    std::uint32_t key;
    option_type type;
    const char* option; // whose value it is; none where the meaning is unknown: those are 0 in all files
    int from = 0;       // the layouts of CRenderingOptions whose styles have it
};

constexpr style_item items[] = {
    {0x3E8, integer, "EdgeDisplayMode"},
    {0x3E9, integer, "EdgeType"},
    {0x3EA, integer, "EdgeColorMode"},
    {0x3EC, boolean, "ExtendLines"},
    {0x3ED, integer, "LineExtension"},
    {0x3EE, boolean, "DrawSilhouettes"},
    {0x3EF, integer, "SilhouetteWidth"},
    {0x3F0, boolean, "DrawDepthQue"},
    {0x3F1, integer, "DepthQueWidth"},
    {0x3F2, boolean, "DrawLineEnds"},
    {0x3F3, integer, "LineEndWidth"},
    {0x3F4, boolean, "JitterEdges"},
    {0x3F6, color, "ForegroundColor"},
    {0x3F7, boolean, "DrawBackEdges"},
    {0x3F8, boolean, "line style edges", 38},
    {0x7D1, integer, "RenderMode"},
    {0x7D2, color, "FaceFrontColor"},
    {0x7D3, color, "FaceBackColor"},
    {0x7D4, boolean, "ModelTransparency"},
    {0x7D5, boolean, "MaterialTransparency"},
    {0x7D6, integer, "TransparencySort"},
    {0x7D7, boolean, "Texture"},
    {0x7D8, real, "X-ray opacity"},
    {0xFA0, color, "BackgroundColor"},
    {0xFA1, color, "SkyColor"},
    {0xFA2, boolean, "DrawHorizon"},
    {0xFA3, color, "GroundColor"},
    {0xFA4, boolean, "DrawGround"},
    {0xFA5, integer, "GroundTransparency"},
    {0xFA6, boolean, "DrawUnderground"},
    {0x1388, boolean, "DisplayWatermarks"},
    {0x1B58, color, "HighlightColor"},
    {0x1B59, color, "LockedColor"},
    {0x1B5A, color, "ConstructionColor"},
    {0x1B5B, color, "SectionActiveColor"},
    {0x1B5C, color, "SectionInactiveColor"},
    {0x1B5D, color, "SectionDefaultCutColor"},
    {0x1B60, boolean, "DisplaySketchAxes"},
    {0x1B62, boolean, nullptr},
    {0x1B63, boolean, nullptr},
    {0x1B64, boolean, nullptr},
    {0x1B65, section_display, nullptr},
    {0x1B66, integer, "SectionCutWidth"},
    {0x1B67, boolean, "SectionCutFilled", 37},
    {0x1B68, color, "SectionDefaultFillColor", 37},
    {0x1B69, boolean, "DrawHiddenGeometry", 39},
    {0x1B6A, boolean, "DrawHiddenObjects", 39},
    {0x1F40, boolean, "photo background"},
    {0x1F41, real, "photo background opacity"},
    {0x1F42, boolean, "photo overlay"},
    {0x1F43, real, "photo overlay opacity"},
};

constexpr std::uint32_t watermarks_key = 0x1389;

// How the value of an item is stored. A colour is a number of four bytes like any other, save in version 8.
std::uint32_t stored_type(option_type type, const object_archive& out) {
    constexpr int of_version_8 = 22; // layout of CSketchUpModel
    switch (type) {
    case boolean:
        return 1;
    case real:
        return 7;
    case color:
        return out.number("CSketchUpModel") == of_version_8 ? 5 : 4;
    default:
        return 4;
    }
}

void write_items(classic_output& c) {
    object_archive& out = c.out;
    const int layout = out.number("CRenderingOptions");
    const auto is_written = [layout](const style_item& item) { return layout >= item.from; };
    out.size(static_cast<std::size_t>(std::ranges::count_if(items, is_written)) + 1);
    for (const style_item& item : items) {
        if (!is_written(item))
            continue;
        out.u32(item.key);
        out.u32(1);
        out.u32(stored_type(item.type, out));
        write_option(out, item.type, item.option, c.model.rendering_options, c.model.shadow_info);
    }
    out.u32(watermarks_key);
    out.size(0);
}

void write_style(classic_output& c) {
    object_archive& out = c.out;
    write_plain_entity(c);
    out.raw(written_guid({}, guid_owner::style));
    out.str({}); // file
    out.u32(3);  // form
    out.str("Model style");
    out.str("The rendering options of this model");
    write_items(c);
}

} // namespace

void mention_style(classic_output& c) {
    c.out.object("CSkpStyle", &c.style, [&] { write_style(c); });
}

// One style, which is the active one; the current settings are a style of their own, here the same.
void write_styles(classic_output& c) {
    object_archive& out = c.out;
    write_plain_entity(c);
    out.size(1);
    mention_style(c);
    mention_style(c);
    out.object("CSkpStyle", [&] { write_style(c); });
    out.boolean(false); // whether they differ
}

} // namespace skp
