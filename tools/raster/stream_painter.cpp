#include "tools/raster/stream_painter.h"

#include "image/decode_picture.h"
#include "platform/platform.h"
#include "tools/batch_reading/batch_pictures.h"
#include "tools/batch_reading/material_reader.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

constexpr std::uint64_t most_bytes = std::uint64_t{1} << 20U; // of a material file; real ones have two thousand
constexpr color front_of_nothing = {1, 1, 1};                 // a side without a material
constexpr color back_of_nothing = {0.72, 0.76, 0.88};

color color_from(std::uint32_t blue_green_red) {
    constexpr std::uint32_t channel = 0xff;
    return {(blue_green_red & channel) / 255.0, (blue_green_red >> 8U & channel) / 255.0,
            (blue_green_red >> 16U & channel) / 255.0};
}

color shaded(const color& paint, const stream_triangle& found, bool front) {
    vec normal{};
    for (const stream_vertex* corner : found.corners)
        for (std::size_t i = 0; i < normal.size(); ++i)
            normal[i] += corner->normal[i] / 3;
    const double side = front ? 1 : -1;
    const double light = 0.87 + side * (0.09 * normal[2] + 0.06 * normal[0] - 0.04 * normal[1]);
    return {paint.red * light, paint.green * light, paint.blue * light};
}

} // namespace

bool lies_somewhere(const stream_triangle& found) {
    constexpr double most = std::numeric_limits<float>::max();
    return std::ranges::all_of(found.corners, [](const stream_vertex* corner) {
        return std::ranges::all_of(corner->position, [](double part) { return std::abs(part) <= most; });
    });
}

stream_painter::stream_painter(std::string batch_folder, rasterizer& into)
    : folder(std::move(batch_folder)), picture(into) {}

const image::picture* stream_painter::picture_of(const std::string& path) {
    const auto [entry, is_new] = pictures.try_emplace(path);
    if (is_new) {
        if (const auto bytes = read_batch_picture(folder, path))
            entry->second =
                image::decode_picture({reinterpret_cast<const std::uint8_t*>(bytes->data()), bytes->size()});
        if (!entry->second)
            note_missing(path);
    }
    return entry->second ? &*entry->second : nullptr;
}

void stream_painter::note_missing(const std::string& path) {
    constexpr std::size_t longest_name = 1024; // names in a batch may be of any length
    if (missing_files.size() < most_missing)
        missing_files.push_back(path.substr(0, longest_name));
}

stream_painter::paint stream_painter::read_paint(const std::string& material_name) {
    paint result;
    const std::string path = folder + "/ZynBatch_Materials/" + file_of_material(material_name);
    const auto bytes = platform::read_file(path, most_bytes);
    const auto material = bytes ? read_material_file({reinterpret_cast<const char*>(bytes->data()), bytes->size()})
                                : std::optional<read_material>();
    if (!material) {
        note_missing(path);
        return result;
    }
    result.plain = color_from(material->color);
    result.opacity = 1 - material->transparency;
    if (!material->image_path.empty())
        result.picture = picture_of(material->image_path);
    return result;
}

void stream_painter::record(std::string_view tag, std::string_view payload) {
    if (tag == "MATF") {
        last_name = payload;
        last_paint.reset();
    }
    if (tag != "MATI")
        return;
    int number = 0;
    std::from_chars(payload.data(), payload.data() + payload.size(), number);
    declare(number);
}

// Where there is no room for more the number means no material.
void stream_painter::declare(int number) {
    if (!last_paint)
        last_paint = paint_named(last_name);
    if (*last_paint && (paints.contains(number) || room.keep(0)))
        paints[number] = **last_paint;
    else
        paints.erase(number);
}

// Nothing where there is no room for another name.
std::optional<stream_painter::paint> stream_painter::paint_named(const std::string& material_name) {
    auto known = paints_by_name.find(material_name);
    if (known == paints_by_name.end()) {
        if (!room.keep(material_name.size()))
            return std::nullopt;
        known = paints_by_name.emplace(material_name, read_paint(material_name)).first;
    }
    return known->second;
}

std::vector<std::string> stream_painter::notes() const {
    std::vector<std::string> all;
    for (const std::string& name : missing_files)
        all.push_back("cannot read " + name);
    if (!room.note().empty())
        all.push_back(room.note());
    if (left_out > 0)
        all.push_back(std::to_string(left_out) + " triangles have corners that lie nowhere");
    if (picture.is_cut_short())
        all.emplace_back("the picture would take too long: not everything is drawn");
    return all;
}

stream_painter::paint stream_painter::paint_of(const stream_triangle& found, bool front) const {
    constexpr int edge_material = 1;
    if (found.material == edge_material)
        return {.plain = {0.1, 0.1, 0.12}};
    const auto declared_paint = paints.find(front || found.one_sided ? found.material : found.back_material);
    paint result;
    if (declared_paint != paints.end())
        result = declared_paint->second;
    else
        result.plain = front ? front_of_nothing : back_of_nothing;
    if (!found.corners[0]->has_uvq)
        result.picture = nullptr;
    result.plain = shaded(result.plain, found, front);
    return result;
}

void stream_painter::triangle(const stream_triangle& found) {
    if (found.unseen)
        return;
    if (!lies_somewhere(found)) {
        ++left_out;
        return;
    }
    clear_triangle t;
    for (std::size_t i = 0; i < t.corners.size(); ++i) {
        t.corners[i] = found.corners[i]->position;
        t.points[i] = {found.corners[i]->uvq[0], found.corners[i]->uvq[1]};
    }
    const bool front = picture.sees_front(t.corners);
    if (found.one_sided && !front)
        return;
    t.with = paint_of(found, front);
    if (t.with.opacity < 1 || (t.with.picture && t.with.picture->has_alpha()))
        clear.push_back(t);
    else
        draw(t);
    // A stream that is clear throughout would else stand in memory many times as large as it is.
    if (clear.size() >= most_waiting)
        finish();
}

void stream_painter::draw(const clear_triangle& t) {
    if (t.with.picture)
        picture.draw(t.corners, t.points, *t.with.picture, t.with.opacity);
    else
        picture.draw(t.corners, t.with.plain, t.with.opacity);
}

void stream_painter::finish() {
    for (const clear_triangle& t : clear)
        draw(t);
    clear.clear();
}
