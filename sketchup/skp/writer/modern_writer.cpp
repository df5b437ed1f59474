// The order of a modern file: header, archive; and of its model.

#include "sketchup/skp/writer/modern_writer.h"

#include "sketchup/skp/modern/formats.h"
#include "sketchup/skp/text_encoding.h"
#include "sketchup/skp/writer/modern_bodies.h"
#include "sketchup/skp/writer/modern_tags.h"
#include "sketchup/skp/writer/style_files.h"
#include "sketchup/skp/writer/summary_files.h"
#include "sketchup/skp/writer/usual_settings.h"
#include "sketchup/skp/writer/zip_archive.h"

#include <string_view>

namespace skp {

namespace tag = modern::tag;

namespace {

modern_stamp stamp_of(modern_version version) {
    return version == modern_version::v21 ? modern_stamp{"21.0.1", 21, 0, modern::format_2021}
                                          : modern_stamp{"25.0.1", 25, 2, modern::format_2025};
}

void put_text(byte_sink& out, std::string_view text) {
    constexpr std::uint8_t marker[] = {0xFF, 0xFE, 0xFF};
    const std::u16string units = utf16_from_utf8(text);
    out.raw(marker);
    out.u8(static_cast<std::uint8_t>(units.size()));
    for (const char16_t unit : units)
        out.u16(unit);
}

void put_header(byte_sink& out, const modern_stamp& s) {
    put_text(out, "SketchUp Model");
    put_text(out, "{" + std::string(s.version) + "}");
    out.raw("VFF");
    out.u16(8); // bytes that follow
    out.u16(lowest_reader);
    out.u16(s.format);
    out.u32(0); // a number without known meaning
}

// From the name of the summary to the line styles.
void write_head(modern_output& o) {
    record_sink& out = o.out;
    if (o.format >= modern::format_2023)
        out.u32(tag::reserved, 0);
    out.text(tag::model_summary_entry, summary_entry);
    out.record(tag::model_properties, [&] { write_properties(o); });
    out.record(tag::model_options, [&] { write_options(o); });
    const std::uint64_t next_id = o.ids.next() + o.model.layers.size(); // layers' own materials still take some
    out.record(tag::model_next_id, [&] { out.record(tag::id_source, [&] { out.id(tag::id_source_next, next_id); }); });
    out.record(tag::model_camera, [&] { write_camera(o, o.model.camera); });
    out.record(tag::model_rendering_options, [&] { write_rendering_options(o, o.model.rendering_options); });
    out.record(tag::model_shadow_info, [&] { write_shadow_info(o, o.model.shadow_info); });
    out.record(tag::model_axes, [&] { write_axes(o); });
    out.record(tag::model_line_styles, [&] { write_line_styles(o); });
}

// Materials and layers, fonts, definitions and the model's own elements.
void write_content(modern_output& o) {
    record_sink& out = o.out;
    out.record(tag::model_materials, [&] { write_materials(o); });
    out.record(tag::model_layers, [&] { write_layers(o); });
    out.record(tag::model_fonts, [&] { write_fonts(o); });
    out.record(tag::model_text_defaults, [&] { write_text_defaults(o); });
    out.record(tag::model_dimension_defaults, [&] { write_dimension_defaults(o); });
    out.empty(513);
    out.record(tag::model_watermarks, [&] {
        out.record(tag::watermark_manager, [&] {
            out.empty(tag::watermark_list);
            out.i32(11502, 0);
        });
    });
    write_definitions(o);
    sketchup::drawing_element owner(sketchup::entity_kind::entities);
    owner.dictionaries = o.model.root.dictionaries;
    const auto id = static_cast<std::uint64_t>(o.model.root.persistent_id);
    out.record(tag::model_content, [&] { write_entities(o, o.model.root, owner, id, o.boxes.of_root()); });
}

void write_tail(modern_output& o) {
    record_sink& out = o.out;
    out.boolean(524, true);
    out.i32(525, 1);
    out.record(tag::model_styles, [&] { write_styles(o); });
    if (o.format >= modern::format_2025)
        out.record(tag::model_environments,
                   [&] { out.record(tag::environment_manager, [&] { out.empty(tag::environment_list); }); });
    out.record(tag::model_scenes, [&] { write_scenes(o); });
    out.empty(tag::model_classifications);
    out.record(tag::model_behavior, [&] { write_behavior(o, {}); });
    out.i32(527, 0);
}

std::vector<std::uint8_t> model_data(const sketchup::model& m, std::uint16_t format, const material_files& files) {
    modern_output o{m, format, files, id_book(m), 0, 0, 0, written_boxes(m), {}};
    o.font = o.ids.fresh();
    o.style = o.ids.fresh();
    o.first_line_style = o.ids.fresh(usual_line_styles().size());
    o.out.record(tag::model, [&] {
        write_head(o);
        write_content(o);
        write_tail(o);
    });
    return o.out.take();
}

} // namespace

std::vector<std::uint8_t> modern_model_data(const sketchup::model& m, modern_version version) {
    const std::uint16_t format = stamp_of(version).format;
    return model_data(m, format, material_files(m, format));
}

std::vector<std::uint8_t> write_modern(const sketchup::model& m, modern_version version) {
    const modern_stamp s = stamp_of(version);
    const material_files files(m, s.format);
    std::vector<archive_entry> entries = summary_files(m, s);
    for (const std::vector<archive_entry>& more : {files.entries(), style_files(m, s.format)})
        entries.insert(entries.end(), more.begin(), more.end());
    entries.push_back({"model.dat", model_data(m, s.format, files)}); // always the last one
    byte_sink out;
    put_header(out, s);
    out.raw(zip_archive(entries));
    return out.take();
}

} // namespace skp
