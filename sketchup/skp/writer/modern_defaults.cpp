// What the archive container demands about fonts, texts, dimensions, settings, line styles and display styles, though a
// model built in memory has none of its own. Numbers without a name have no known meaning; their sizes and values are
// those of all files.

#include "sketchup/skp/writer/modern_bodies.h"
#include "sketchup/skp/writer/modern_tags.h"
#include "sketchup/skp/writer/style_files.h"
#include "sketchup/skp/writer/usual_settings.h"
#include "sketchup/skp/writer/written_guids.h"

namespace skp {

namespace tag = modern::tag;

namespace {

constexpr sketchup::rgba dark_grey{63, 63, 63, 255};

} // namespace

void write_fonts(modern_output& o) {
    record_sink& out = o.out;
    out.record(tag::font_manager, [&] {
        out.record(tag::font_list, [&] {
            out.record(tag::font, [&] {
                write_entity(o, sketchup::entity(sketchup::entity_kind::model), o.font);
                out.text(tag::font_name, "Tahoma");
                out.boolean(20502, false);
                out.boolean(20503, false);
                out.i32(tag::font_points, 12);
                out.boolean(20505, false);
                out.f64(tag::font_world_size, 10);
            });
        });
    });
}

void write_text_defaults(modern_output& o) {
    record_sink& out = o.out;
    out.record(tag::text_defaults, [&] {
        out.id(22501, o.font);
        out.id(22502, o.font);
        out.i32(22503, 3);
        out.i32(22504, 1);
        out.boolean(22505, false);
        out.i32(22506, 2);
        out.boolean(22507, true);
        out.rgba(22508, dark_grey);
        out.rgba(22509, dark_grey);
    });
}

void write_dimension_defaults(modern_output& o) {
    record_sink& out = o.out;
    out.record(tag::dimension_defaults, [&] {
        out.id(24501, o.font);
        out.boolean(24502, false);
        out.boolean(24503, true);
        out.i32(24504, 5);
        out.i32(24505, 10);
        out.i32(24506, 1);
        out.i32(24507, 3);
        out.i32(24508, 10);
        out.boolean(24509, false);
        out.rgba(24510, {255, 0, 0, 255});
        out.boolean(24511, true);
        out.boolean(24512, false);
        out.f64(24513, 0.6);
        out.boolean(24514, false);
        out.f64(24515, 10);
        out.rgba(24516, dark_grey);
        out.rgba(24517, {0, 0, 0, 255});
        out.i32(24518, 3);
    });
}

void write_options(modern_output& o) {
    record_sink& out = o.out;
    out.record(tag::option_manager, [&] {
        out.record(tag::option_providers, [&] {
            for (const option_provider& provider : usual_option_providers())
                out.record(tag::option_provider, [&] {
                    out.text(tag::option_provider_name, provider.name);
                    out.record(tag::option_provider_options, [&] {
                        for (const sketchup::attribute& option : provider.options) {
                            out.text(tag::option_key, option.key);
                            write_typed_value(out, option.value);
                        }
                    });
                });
        });
    });
}

void write_line_styles(modern_output& o) {
    record_sink& out = o.out;
    std::uint64_t id = o.first_line_style;
    out.record(tag::line_style_manager, [&] {
        out.record(tag::line_style_list, [&] {
            for (const line_style& style : usual_line_styles())
                out.record(tag::line_style, [&] {
                    write_entity(o, sketchup::entity(sketchup::entity_kind::model), id++);
                    out.text(tag::line_style_name, style.name);
                    out.text(tag::line_style_pattern, style.pattern);
                    out.f64(16506, 1);
                    out.f64(16505, 1);
                    out.i32(16507, 0);
                    out.boolean(16508, false);
                });
        });
    });
}

namespace {

// id: 0 for the working copy, which nothing refers to.
void write_style(modern_output& o, std::uint64_t id, const char* folder) {
    record_sink& out = o.out;
    out.record(tag::style, [&] {
        if (id != 0)
            write_entity(o, sketchup::entity(sketchup::entity_kind::model), id);
        out.raw(tag::style_guid, written_guid({}, guid_owner::style));
        out.text(tag::style_description, {});
        out.text(tag::style_folder, folder);
        if (id != 0)
            out.empty(27504);
    });
}

} // namespace

void write_styles(modern_output& o) {
    record_sink& out = o.out;
    out.record(tag::style_manager, [&] {
        out.record(tag::style_list, [&] { write_style(o, o.style, style_folder); });
        out.id(tag::style_selected, o.style);
        out.record(tag::style_working_copy, [&] { write_style(o, 0, working_style_folder); });
        out.boolean(tag::style_is_changed, false);
    });
}

} // namespace skp
