#include "tools/batch_glb/batch_view.h"

#include "platform/platform.h"
#include "tessaline/reading/view_file.h"
#include "tools/batch_glb/stream_numbers.h"
#include "tools/batch_reading/file_lines.h"
#include "tools/gltf/numbers.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

using gltf::double3;

constexpr double pi = std::numbers::pi;
using gltf::metres_in_an_inch;
constexpr double nearest = 0.01;               // metres in front of the eye from which on things are seen
constexpr double usual_field_of_view = pi / 5; // where the view says none
constexpr double daylight_lux = 3;             // bright, in viewers that set no exposure

double3 difference(const double3& a, const double3& b) {
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

double length(const double3& a) {
    return std::sqrt(a[0] * a[0] + a[1] * a[1] + a[2] * a[2]);
}

double3 scaled(const fpt& p, double factor) {
    return {p.x * factor, p.y * factor, p.z * factor};
}

double field_of_view(const camera_view& view) {
    const double said = view.field_of_view;
    const double radians = said > pi ? said * pi / 180 : said;
    return radians > 0.001 && radians < pi - 0.001 ? radians : usual_field_of_view;
}

double aspect_of(const camera_view& view) {
    if (view.pixel_width <= 0 || view.pixel_height <= 0)
        return 4.0 / 3.0;
    return static_cast<double>(view.pixel_width) / view.pixel_height;
}

// Whether an eye sees the box: its middle lies within the picture, whose corner is `half_angle` from the middle of it,
// and it takes at least a tenth of that; an eye within the box sees it anyhow.
bool shows(const double3& eye, const double3& target, const gltf::float_range& box, double half_angle) {
    bool inside = true;
    double3 middle{};
    for (std::size_t i = 0; i < 3; ++i) {
        middle[i] = (double{box.low[i]} + box.high[i]) / 2;
        inside = inside && eye[i] >= box.low[i] && eye[i] <= box.high[i];
    }
    const double3 to_middle = difference(middle, eye);
    const double3 direction = difference(target, eye);
    const double distance = length(to_middle);
    const double both = distance * length(direction);
    const double along = to_middle[0] * direction[0] + to_middle[1] * direction[1] + to_middle[2] * direction[2];
    const double size = length(difference(middle, {box.low[0], box.low[1], box.low[2]}));
    return inside || (both > 0 && along / both >= std::cos(std::min(half_angle, pi)) &&
                      std::atan2(size, distance) >= half_angle / 10);
}

double metres_in_unit(const camera_view& view, const gltf::float_range& box) {
    const double half = std::tan(field_of_view(view) / 2);
    const double corner = std::atan(half * std::sqrt(1 + aspect_of(view) * aspect_of(view)));
    const auto seen_in = [&](double unit) {
        return shows(scaled(view.eye, unit), scaled(view.target, unit), box, corner);
    };
    return !box.is_empty && !seen_in(1) && seen_in(metres_in_an_inch) ? metres_in_an_inch : 1;
}

gltf::json camera_json(const batch_view& view) {
    const double aspect = gltf::short_number(view.aspect);
    if (view.is_parallel) {
        const double half = gltf::short_number(view.height / 2);
        const double distance = length(difference(view.target, view.eye));
        return {{"type", "orthographic"},
                {"orthographic",
                 {{"xmag", gltf::short_number(half * aspect)},
                  {"ymag", half},
                  {"znear", nearest},
                  {"zfar", gltf::short_number(distance * 100 + 1000)}}}};
    }
    return {{"type", "perspective"},
            {"perspective",
             {{"yfov", gltf::short_number(view.field_of_view)}, {"aspectRatio", aspect}, {"znear", nearest}}}};
}

// The value of a setting in a line "name; value"; nothing in a line of another.
std::optional<double> setting(std::string_view line, std::string_view name) {
    if (!line.starts_with(name) || line.size() <= name.size() || line[name.size()] != ';')
        return std::nullopt;
    line.remove_prefix(name.size() + 1);
    while (!line.empty() && line.front() == ' ')
        line.remove_prefix(1);
    double number = 0;
    return take_number(line, number) && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<batch_view> view_of_batch(const std::string& batch_folder, const gltf::float_range& box) {
    const camera_view said = read_view_file(batch_folder);
    const double unit = metres_in_unit(said, box);
    batch_view view;
    view.eye = scaled(said.eye, unit);
    view.target = scaled(said.target, unit);
    const double distance = length(difference(view.target, view.eye));
    if (!said.target_seen || !(distance > 0) || !std::isfinite(distance))
        return std::nullopt;
    view.is_parallel = said.camera_type == "ortho" && said.ortho_height > 0;
    view.field_of_view = field_of_view(said);
    view.height = said.ortho_height * unit;
    view.aspect = aspect_of(said);
    return view;
}

std::optional<std::size_t> add_view(gltf::glb_writer& to, const std::string& batch_folder,
                                    const gltf::float_range& box) {
    const auto view = view_of_batch(batch_folder, box);
    if (!view)
        return std::nullopt;
    gltf::json camera = camera_json(*view);
    camera["name"] = "view";
    gltf::node_placement where;
    where.translation = view->eye;
    where.rotation = gltf::rotation_looking(difference(view->target, view->eye), {0, 0, 1});
    gltf::json node = {{"name", "view"}, {"camera", to.add(gltf::list::cameras, camera)}};
    gltf::place(node, where);
    return to.add(gltf::list::nodes, node);
}

std::optional<std::size_t> add_sun(gltf::glb_writer& to, const std::string& batch_folder) {
    file_lines lines;
    if (!lines.open(batch_folder + platform::path_separator + "option_globals.txt"))
        return std::nullopt;
    std::optional<double> azimuth;
    std::optional<double> altitude;
    bool is_on = true;
    std::string_view line;
    while (lines.next(line)) {
        if (const auto found = setting(line, "rskp_sun_azimuth"))
            azimuth = found;
        if (const auto found = setting(line, "rskp_sun_altitude"))
            altitude = found;
        if (const auto found = setting(line, "bvl_sun_on"))
            is_on = *found != 0;
    }
    if (!is_on || !azimuth || !altitude || !(*altitude > 0))
        return std::nullopt;
    const double3 from_sun = {-std::cos(*altitude) * std::cos(*azimuth), -std::cos(*altitude) * std::sin(*azimuth),
                              -std::sin(*altitude)};
    const std::size_t light =
        to.add(gltf::list::lights, {{"type", "directional"}, {"name", "sun"}, {"intensity", daylight_lux}});
    return to.add(gltf::list::nodes, {{"name", "sun"},
                                      {"rotation", gltf::rotation_json(gltf::rotation_looking(from_sun, {0, 0, 1}))},
                                      {"extensions", {{"KHR_lights_punctual", {{"light", light}}}}},
                                      {"extras", {{"sun", true}}}});
}
