// What the drawing looks like beyond the rendering options: styles, watermarks, backgrounds, options of the units and
// the like. Nothing of it is kept; it is read for the slots that its objects take.
//
// Numbers and releases: CTextStyle is 4 in SketchUp 3 and 5 since 6. CDimensionStyle is 4, CWatermark 1 and
// CSchemaZipFile, which came with 2014, 1 in all of them. CSkpStyle, which came with 6, is 1, and 2 in some files of
// 2020, with one layout; the form that each style states for itself is 3 in all files at hand, that of sketchy edges 2.
// CBackgroundImage is 1 in 6, 6 or 9 in 7 and 10 since 8; what is read is 10.

#include "sketchup/skp/classic/model_reader.h"
#include "sketchup/skp/classic/typed_values.h"

namespace skp {
namespace {

constexpr std::uint32_t sketchy_edges_key = 0x3F5;
constexpr std::uint32_t watermarks_key = 0x1389;

// The size of a style value by its type; -1 for an unknown one.
int size_of_style_value(std::uint32_t type) {
    switch (type) {
    case 0:
        return 0;
    case 1:
    case 2:
        return 1;
    case 3:
        return 2;
    case 4:
    case 5:
    case 6:
    case 14:
        return 4;
    case 7:
        return 8;
    case 9:
    case 10:
    case 11:
        return 3 * 8; // a point or vector
    case 12:
        return 16 * 8; // a transformation
    default:
        return -1;
    }
}

} // namespace

// The option providers with their keys and values
void model_reader::skip_options() {
    const reading here(in_, "options");
    constexpr std::size_t smallest_provider = 2; // two empty strings of narrow characters
    skip_numbers(1);                             // form
    const std::uint32_t count = in_.count(smallest_provider);
    for (std::uint32_t i = 0; i < count; ++i) {
        in_.text(); // name
        while (!in_.text().empty())
            read_typed_value(in_);
    }
}

// CDimensionStyle
void model_reader::skip_dimension_style() {
    const reading here(in_, "CDimensionStyle");
    skip_entity();
    skip_numbers(1);
    ref(object_class::font);
    in_.skip(2); // flags
    skip_numbers(5);
    in_.boolean();
    in_.rgba();
    in_.skip(2); // flags
    skip_doubles(1);
    in_.boolean();
    skip_doubles(1);
    in_.rgba();
    in_.rgba();
    skip_numbers(1);
}

// CTextStyle
void model_reader::skip_text_style() {
    const reading here(in_, "CTextStyle");
    skip_entity();
    ref(object_class::font);
    skip_numbers(2);
    in_.boolean();
    skip_numbers(1);
    in_.boolean();
    in_.rgba();
    if (layout_.text_style >= 5) {
        in_.rgba();
        ref(object_class::font); // of text on the screen
    }
}

// CSkpStyle
void model_reader::read_style(std::uint32_t) {
    constexpr std::size_t smallest_item = sizeof(std::uint32_t); // its key
    skip_entity();
    in_.skip(sizeof(sketchup::guid));
    in_.text(); // file
    const std::uint32_t form = in_.u32();
    in_.text(); // name
    in_.text(); // description
    const std::uint32_t count = in_.count(smallest_item);
    for (std::uint32_t i = 0; i < count; ++i)
        skip_style_item(form);
}

void model_reader::skip_style_item(std::uint32_t style_form) {
    const std::uint32_t key = in_.u32();
    if (key == sketchy_edges_key)
        skip_sketchy_edges();
    else if (key == watermarks_key && style_form >= 3)
        skip_list(object_class::watermark); // a null one stands for the model
    else
        skip_style_value();
}

void model_reader::skip_sketchy_edges() {
    const std::uint32_t form = in_.u32();
    if (form >= 2)
        skip_doubles(2);
    else
        skip_numbers(2);
    skip_numbers(1);
    in_.boolean();
    skip_numbers(2);
    skip_numbers(in_.count(sizeof(std::uint32_t)));
    skip_list(object_class::dib);
}

void model_reader::skip_style_value() {
    skip_numbers(1);
    const std::uint32_t type = in_.u32();
    const int size = size_of_style_value(type);
    if (size < 0)
        in_.fail("unknown type of style value " + std::to_string(type));
    in_.skip(static_cast<std::size_t>(size));
}

// CWatermark
void model_reader::read_watermark(std::uint32_t) {
    skip_entity();
    in_.boolean();
    in_.text();      // file
    skip_numbers(2); // time, place
    in_.skip(5);     // flags
    skip_doubles(2); // blend, scale
    in_.text();      // name
    ref(object_class::dib);
}

// CBackgroundImage
void model_reader::read_background_image(std::uint32_t) {
    constexpr std::size_t point_size = 3 * sizeof(double);
    skip_entity();
    in_.text(); // file
    skip_numbers(1);
    ref(object_class::dib);
    skip_numbers(4); // width, height, size, time
    in_.boolean();   // visible
    skip_doubles(1); // opacity
    in_.skip(in_.count(point_size) * point_size);
    in_.v3();
    skip_doubles(1);
    skip_numbers(1);
}

// CSchemaZipFile. It has no entity base.
void model_reader::read_schema_zip_file(std::uint32_t) {
    in_.text(); // folder
    in_.text(); // name
    in_.skip(in_.u32());
}

} // namespace skp
