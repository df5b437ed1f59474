#include "sketchup/skp/writer/summary_files.h"

#include "image/encode_picture.h"
#include "sketchup/skp/modern/formats.h"
#include "sketchup/skp/writer/modern_tags.h"
#include "sketchup/skp/writer/record_sink.h"
#include "sketchup/skp/writer/usual_settings.h"
#include "sketchup/skp/writer/written_guids.h"
#include "sketchup/skp/writer/written_lists.h"

#include <initializer_list>

namespace skp {

namespace tag = modern::tag;

namespace {

constexpr const char* model_preview = "meta/model_thumbnail.png";
constexpr const char* open_dialog_preview = "meta/preview_thumbnail.png";

std::vector<std::uint8_t> plain_preview(const sketchup::rgba& color) {
    constexpr std::uint32_t side = 256; // pixels, as in files of the program
    image::picture pixels = *image::picture::make({side, side});
    std::vector<std::uint8_t>& bytes = pixels.bytes();
    for (std::size_t i = 0; i + 2 < bytes.size(); i += 3) {
        bytes[i] = color.blue;
        bytes[i + 1] = color.green;
        bytes[i + 2] = color.red;
    }
    return image::encode_picture(pixels, image::picture_format::png);
}

sketchup::rgba background(const sketchup::model& m) {
    const sketchup::typed_value* value = written_option(m.rendering_options, "BackgroundColor");
    const auto* color = value == nullptr ? nullptr : std::get_if<sketchup::rgba>(&value->data);
    return color == nullptr ? sketchup::rgba{255, 255, 255, 255} : *color;
}

void write_preview(record_sink& out, std::uint16_t number, const char* entry) {
    constexpr std::int32_t png = 4;
    out.record(number, [&] {
        out.record(tag::picture, [&] {
            out.i32(tag::picture_format, png);
            out.text(tag::picture_entry, entry);
        });
    });
}

// Who saved the file, and when: one who says so is needed, since programs look at the last.
void write_history(record_sink& out, std::uint16_t format) {
    out.record(tag::summary_history, [&] {
        out.record(tag::save_history, [&] {
            out.record(tag::save_list, [&] {
                out.record(tag::save, [&] {
                    out.text(tag::save_program, "Tessaline");
                    out.u32(tag::save_time, usual_time);
                    if (format >= modern::format_2025)
                        out.raw(tag::save_number, std::vector<std::uint8_t>{1, 0, 0, 0, 0, 0, 0, 0});
                });
            });
        });
    });
}

std::vector<std::uint8_t> summary(const sketchup::model& m, const modern_stamp& s) {
    record_sink out;
    out.record(tag::summary, [&] {
        out.text(tag::summary_version, s.version);
        out.u16(tag::summary_major, static_cast<std::uint16_t>(s.major - 1));
        out.u16(tag::summary_minor, s.minor);
        out.u16(tag::summary_lowest_reader, lowest_reader);
        out.u16(tag::summary_format, s.format);
        out.raw(tag::summary_guid, written_guid(m.guid, guid_owner::model));
        write_preview(out, tag::summary_model_preview, model_preview);
        write_preview(out, tag::summary_dialog_preview, open_dialog_preview);
        out.boolean(105, true);
        for (const std::uint16_t empty_text : std::initializer_list<std::uint16_t>{106, 107, 108, 110})
            out.text(empty_text, {});
        out.boolean(113, false);
        if (s.format >= modern::format_2023)
            out.boolean(121, false);
        out.boolean(114, false);
        out.text(tag::summary_unit, "Millimeter");
        out.boolean(112, true);
        out.text(tag::summary_path, {}); // a model in memory has none
        write_history(out, s.format);
    });
    return out.take();
}

} // namespace

std::vector<archive_entry> summary_files(const sketchup::model& m, const modern_stamp& s) {
    const std::vector<std::uint8_t> preview = plain_preview(background(m));
    return {{model_preview, preview}, {open_dialog_preview, preview}, {summary_entry, summary(m, s)}};
}

} // namespace skp
