// The order of a classic file: header, version map, model.

#include "sketchup/skp/writer/classic_writer.h"

#include "sketchup/skp/writer/classic_bodies.h"
#include "sketchup/skp/writer/usual_settings.h"
#include "sketchup/skp/writer/written_guids.h"

#include <algorithm>
#include <cstddef>

namespace skp {

namespace {

constexpr std::string_view stamps[] = {"{6.0.1}", "{8.0.1}", "{17.0.1}", "{20.0.1}"};
constexpr std::uint32_t utf16_code_page = 1200;

void write_header(classic_output& c, classic_version version) {
    object_archive& out = c.out;
    out.str("SketchUp Model");
    out.str(stamps[static_cast<std::size_t>(version)]);
    out.raw(written_guid(c.model.guid, guid_owner::model));
    out.str({}); // where it was saved
    out.u32(usual_time);
    constexpr std::string_view map_class = "CVersionMap";
    out.u16(0xFFFF);
    out.u16(0);
    out.u16(static_cast<std::uint16_t>(map_class.size()));
    out.raw(map_class);
    for (const class_layout& one : class_layouts())
        if (const int number = out.number(one.name); number >= 0) {
            out.str(one.name);
            out.u32(static_cast<std::uint32_t>(number));
        }
    out.str("End-Of-Version-Map");
    out.u32(0);
}

// Persistent ids are given out in rising order; the file keeps the next one.
std::uint64_t next_persistent_id(const sketchup::model& m) {
    std::int64_t highest = 0;
    const auto consider = [&](const auto& one) { highest = std::max(highest, one.persistent_id); };
    const auto look = [&](const auto& array) { std::ranges::for_each(array, consider); };
    consider(m.root);
    consider(m.rendering_options);
    consider(m.shadow_info);
    for (const sketchup::scene& s : m.scenes) {
        if (s.rendering_options)
            consider(*s.rendering_options);
        if (s.shadow_info)
            consider(*s.shadow_info);
    }
    look(m.vertices);
    look(m.edges);
    look(m.edge_uses);
    look(m.faces);
    look(m.curves);
    look(m.placements);
    look(m.definitions);
    look(m.section_planes);
    look(m.annotations);
    look(m.layers);
    look(m.materials);
    look(m.textures);
    look(m.scenes);
    look(m.dictionaries);
    return static_cast<std::uint64_t>(highest) + 1;
}

void write_before_root(classic_output& c, int layout) {
    object_archive& out = c.out;
    out.u32(1);
    out.u32(utf16_code_page);
    out.u32(2); // product family
    c.next_id_at = out.count();
    if (layout >= 26)
        out.u64(0); // the next persistent id, known when all is written
    write_preview(c);
    out.boolean(true); // renew it on saving
    write_behavior(c, {});
    out.str(c.model.description);
    if (layout >= 21) {
        write_options(c);
        write_properties(c);
        write_preview(c);
    }
    out.object("CCamera", [&] { write_camera(c, c.model.camera); });
    write_rendering_options(c, c.model.rendering_options, c.model.shadow_info);
    out.u32(0);
    out.u32(1); // checked
}

void write_behind_root(classic_output& c, int layout) {
    object_archive& out = c.out;
    write_shadow_info(c, c.model.shadow_info);
    write_scenes(c);
    write_axes(c);
    for (int i = 0; i < 16; ++i)
        out.u32(0);
    if (layout < 21)
        write_options(c);
    write_dimension_style(c);
    write_text_style(c);
    write_fonts(c);
    if (layout >= 29)
        write_line_styles(c);
    out.null(); // background
    write_styles(c);
    write_plain_entity(c);
    out.size(0); // watermarks
    if (layout >= 20)
        out.u32(0);
    if (layout >= 22)
        out.boolean(true);
    if (layout >= 24)
        out.size(0); // classification schemas
    if (layout > 26)
        out.u32(1);
}

std::vector<std::uint32_t> count_edges_of_curves(const sketchup::model& m) {
    std::vector<std::uint32_t> counts(m.curves.size(), 0);
    for (const sketchup::edge& e : m.edges)
        if (e.curve != sketchup::no_index)
            ++counts[e.curve];
    return counts;
}

} // namespace

std::vector<std::uint8_t> write_classic(const sketchup::model& m, classic_version version) {
    object_archive out(version);
    classic_output c{m, out, count_edges_of_curves(m)};
    c.next_id = next_persistent_id(m);
    const int layout = out.number("CSketchUpModel");
    write_header(c, version);
    write_before_root(c, layout);
    sketchup::drawing_element owner(sketchup::entity_kind::entities);
    owner.dictionaries = m.root.dictionaries;
    owner.persistent_id = m.root.persistent_id;
    write_component(c, m.root, owner, true);
    write_behind_root(c, layout);
    if (layout >= 26)
        out.set_u64(c.next_id_at, c.next_id);
    return out.take();
}

} // namespace skp
