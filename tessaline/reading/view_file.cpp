// What the view file says: one table from key to field.

#include "tessaline/reading/view_file.h"

#include "platform/platform.h"
#include "qlw/qlw_text_files.h"
#include "qlw/text_numbers.h"
#include "qlw/trimmed.h"
#include "tessaline/files/paths.h"
#include "text/letter_case.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace {

constexpr std::string_view end_of_view = "END_CURRENT";

// The text up to the first comma, which is cut off with it; nothing is cut if no comma stands behind a first letter.
bool cut_number(std::string_view& text, double& number) {
    const std::size_t comma = text.find(',');
    if (comma == 0 || comma == std::string_view::npos)
        return false;
    number = double_value(text.substr(0, comma));
    text.remove_prefix(comma + 1);
    return true;
}

// "(x, y, z)", the brackets optional. Two numbers are x and z; a single one is no point.
fpt point_from(std::string_view text) {
    text = trimmed(text);
    if (text.starts_with('('))
        text.remove_prefix(1);
    fpt point;
    if (!cut_number(text, point.x))
        return {};
    cut_number(text, point.y);
    point.z = double_value(text); // a bracket behind it is not read
    return point;
}

void set_if_positive(int& field, std::string_view value) {
    const int number = decimal_value(value);
    if (number > 0)
        field = number;
}

void set_if_positive(double& field, std::string_view value) {
    const double number = double_value(value);
    if (number > 0)
        field = number;
}

struct view_key {
    std::string_view name;
    void (*store)(camera_view&, std::string_view value);
};

using text = std::string_view;

constexpr view_key keys[] = {
    {"ORTHOHEIGHT", [](camera_view& v, text value) { set_if_positive(v.ortho_height, value); }},
    {"EYEX", [](camera_view& v, text value) { v.eye.x = double_value(value); }},
    {"EYEY", [](camera_view& v, text value) { v.eye.y = double_value(value); }},
    {"EYEZ", [](camera_view& v, text value) { v.eye.z = double_value(value); }},
    {"EYE", [](camera_view& v, text value) { v.eye = point_from(value); }},
    {"TARGETX",
     [](camera_view& v, text value) {
         v.target.x = double_value(value);
         v.target_seen = true;
     }},
    {"TARGETY", [](camera_view& v, text value) { v.target.y = double_value(value); }},
    {"TARGETZ", [](camera_view& v, text value) { v.target.z = double_value(value); }},
    {"FOV", [](camera_view& v, text value) { v.field_of_view = double_value(value); }},
    {"CAMERATYPE", [](camera_view& v, text value) { v.camera_type = value; }},
    {"M_D", [](camera_view& v, text value) { v.margin_d = double_value(value); }},
    {"M_L", [](camera_view& v, text value) { v.margin_l = double_value(value); }},
    {"M_R", [](camera_view& v, text value) { v.margin_r = double_value(value); }},
    {"M_B", [](camera_view& v, text value) { v.margin_b = double_value(value); }},
    {"M_T", [](camera_view& v, text value) { v.margin_t = double_value(value); }},
    {"PIXELWIDTH", [](camera_view& v, text value) { set_if_positive(v.pixel_width, value); }},
    {"PIXELHEIGHT", [](camera_view& v, text value) { set_if_positive(v.pixel_height, value); }},
    {"HEIGHT", [](camera_view& v, text value) { set_if_positive(v.pixel_height, value); }},
};

// Empty if there is no view.
std::string view_file_path(const std::string& batch_folder) {
    for (const char* name : {"zyn_view.txt", "zyn_pages.txt"}) {
        std::string path = joined(batch_folder, name);
        if (platform::exists(path))
            return path;
    }
    return {};
}

} // namespace

bool read_view_line(std::string_view line, camera_view& view) {
    const std::size_t separator = line.find(';');
    if (separator == 0 || separator == std::string_view::npos)
        return true;
    const std::string name = in_capitals(std::string(line.substr(0, separator)));
    if (name == end_of_view)
        return false;
    const auto key = std::find_if(std::begin(keys), std::end(keys), [&](const view_key& k) { return k.name == name; });
    if (key != std::end(keys)) // a comment begins with "#", and so does no key
        key->store(view, line.substr(separator + 1));
    return true;
}

camera_view read_view_file(const std::string& batch_folder) {
    camera_view view;
    const std::string path = view_file_path(batch_folder);
    cl_input_file file;
    if (path.empty() || !file.open(path, open_failure::quiet, "view_file", __LINE__))
        return view;
    std::string line;
    while (file.read_line(line) && read_view_line(line, view)) {
    }
    return view;
}
