// The order of a modern file: header, archive; and of its model.

#include "sketchup/skp/writer/modern_writer.h"

#include "sketchup/skp/modern/formats.h"
#include "sketchup/skp/text_encoding.h"
#include "sketchup/skp/writer/modern_bodies.h"
#include "sketchup/skp/writer/modern_tags.h"
#include "sketchup/skp/writer/written_guids.h"
#include "sketchup/skp/writer/zip_archive.h"

#include <string_view>

namespace skp {

namespace tag = modern::tag;

namespace {

constexpr std::uint16_t lowest_reader = 1; // nothing that is written would be misread by older programs
constexpr const char* summary_entry = "meta/meta.dat";

struct stamp {
    std::string_view version; // without its braces
    std::uint16_t major;
    std::uint16_t format;
};

stamp stamp_of(modern_version version) {
    return version == modern_version::v21 ? stamp{"21.0.1", 21, modern::format_2021}
                                          : stamp{"25.0.1", 25, modern::format_2025};
}

void put_text(byte_sink& out, std::string_view text) {
    constexpr std::uint8_t marker[] = {0xFF, 0xFE, 0xFF};
    const std::u16string units = utf16_from_utf8(text);
    out.raw(marker);
    out.u8(static_cast<std::uint8_t>(units.size()));
    for (const char16_t unit : units)
        out.u16(unit);
}

void put_header(byte_sink& out, const stamp& s) {
    put_text(out, "SketchUp Model");
    put_text(out, "{" + std::string(s.version) + "}");
    out.raw("VFF");
    out.u16(8); // bytes that follow
    out.u16(lowest_reader);
    out.u16(s.format);
    out.u32(0); // a number without known meaning
}

std::vector<std::uint8_t> summary(const sketchup::model& m, const stamp& s) {
    record_sink out;
    out.record(tag::summary, [&] {
        out.text(tag::summary_version, s.version);
        out.u16(tag::summary_major, static_cast<std::uint16_t>(s.major - 1));
        out.u16(tag::summary_minor, 0);
        out.u16(tag::summary_lowest_reader, lowest_reader);
        out.u16(tag::summary_format, s.format);
        out.raw(tag::summary_guid, written_guid(m.guid, guid_owner::model));
    });
    return out.take();
}

// From the name of the summary to the line styles.
void write_head(modern_output& o) {
    record_sink& out = o.out;
    if (o.format >= modern::format_2023)
        out.u32(tag::reserved, 0);
    out.text(tag::model_summary_entry, summary_entry);
    out.record(tag::model_properties, [&] { write_properties(o); });
    out.record(tag::model_options, [&] { out.record(tag::option_manager, [&] { out.empty(tag::option_providers); }); });
    const std::uint64_t next_id = o.ids.next() + o.model.layers.size(); // layers' own materials still take some
    out.record(tag::model_next_id, [&] { out.record(tag::id_source, [&] { out.id(tag::id_source_next, next_id); }); });
    out.record(tag::model_camera, [&] { write_camera(o, o.model.camera); });
    out.record(tag::model_rendering_options, [&] { write_rendering_options(o, o.model.rendering_options); });
    out.record(tag::model_shadow_info, [&] { write_shadow_info(o, o.model.shadow_info); });
    out.record(tag::model_axes, [&] { write_axes(o); });
    out.record(tag::model_line_styles,
               [&] { out.record(tag::line_style_manager, [&] { out.empty(tag::line_style_list); }); });
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
    out.record(tag::model_content,
               [&] { write_entities(o, o.model.root, owner, static_cast<std::uint64_t>(o.model.root.persistent_id)); });
}

void write_tail(modern_output& o) {
    record_sink& out = o.out;
    out.boolean(524, true);
    out.i32(525, 1);
    out.record(tag::model_styles, [&] {
        out.record(tag::style_manager, [&] {
            out.empty(tag::style_list);
            out.boolean(tag::style_is_changed, false);
        });
    });
    if (o.format >= modern::format_2025)
        out.record(tag::model_environments,
                   [&] { out.record(tag::environment_manager, [&] { out.empty(tag::environment_list); }); });
    out.record(tag::model_scenes, [&] { write_scenes(o); });
    out.empty(tag::model_classifications);
    out.record(tag::model_behavior, [&] { write_behavior(o, {}); });
    out.i32(527, 0);
}

std::vector<std::uint8_t> model_data(const sketchup::model& m, std::uint16_t format, const material_files& files) {
    modern_output o{m, format, files, id_book(m), 0, {}};
    o.font = o.ids.fresh();
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
    const stamp s = stamp_of(version);
    const material_files files(m, s.format);
    std::vector<archive_entry> entries = files.entries();
    entries.push_back({summary_entry, summary(m, s)});
    entries.push_back({"model.dat", model_data(m, s.format, files)}); // always the last one
    byte_sink out;
    put_header(out, s);
    out.raw(zip_archive(entries));
    return out.take();
}

} // namespace skp
