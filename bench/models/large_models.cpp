// What each of the large models holds.

#include "bench/models/large_models.h"

#include "image/encode_picture.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "sketchup/skp/writer/modern_writer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string>

namespace {

using sketchup::list_builder;
using sketchup::model_builder;
using sketchup::vec3;

constexpr double cell = 12;                 // inches, the side of a square of the grid
constexpr std::uint32_t picture_side = 283; // pixels of noise that make a file of 170 kB

std::unique_ptr<sketchup::model> finished(model_builder& m) {
    return m.finish();
}

// A JPEG file of noise, which packs badly.
std::vector<std::uint8_t> noisy_picture(std::uint32_t side, std::uint32_t seed) {
    image::picture pixels = image::picture::make({side, side, 24}).value();
    for (std::uint8_t& byte : pixels.bytes()) {
        seed = seed * 1664525U + 1013904223U; // the usual congruential sequence of 32 bits
        byte = static_cast<std::uint8_t>(seed >> 24);
    }
    return image::encode_picture(pixels, image::picture_format::jpeg);
}

// A hilly ground: squares in rows, each cut into two triangles.
struct ground {
    std::uint32_t columns;

    explicit ground(std::uint32_t triangles)
        : columns(std::max(1U, static_cast<std::uint32_t>(std::sqrt(triangles / 2)))) {}

    vec3 corner(std::uint32_t row, std::uint32_t column) const {
        return {column * cell, row * cell, 30 * std::sin(0.11 * row) * std::cos(0.07 * column)};
    }

    std::array<vec3, 3> triangle(std::uint32_t number) const {
        const std::uint32_t row = number / 2 / columns;
        const std::uint32_t column = number / 2 % columns;
        const vec3 a = corner(row, column);
        const vec3 c = corner(row + 1, column + 1);
        return number % 2 == 0 ? std::array{a, corner(row, column + 1), c} : std::array{a, c, corner(row + 1, column)};
    }
};

void smooth_all_edges(model_builder& m) {
    for (sketchup::edge& edge : m.model().edges)
        edge.soft = edge.smooth = true;
}

std::unique_ptr<sketchup::model> grid(std::uint32_t triangles) {
    model_builder m;
    m.attribute(m.root().list(), "qlw_globals", "ivl_2_sided_faces", sketchup::whole_number(0));
    const sketchup::index grass = m.textured_material("Grass", noisy_picture(64, 1), "grass.jpg", 40, 40);
    list_builder root = m.root();
    const ground hills(triangles);
    for (std::uint32_t i = 0; i != triangles; ++i)
        m.element(root.face(hills.triangle(i))).material = grass;
    smooth_all_edges(m);
    return finished(m);
}

std::unique_ptr<sketchup::model> faces(std::uint32_t triangles) {
    model_builder m;
    list_builder root = m.root();
    const ground hills(triangles);
    for (std::uint32_t i = 0; i != triangles; ++i)
        root.face(hills.triangle(i));
    return finished(m);
}

vec3 place_of(std::uint32_t number) {
    const std::uint32_t row = number / 256;
    return {number % 256 * 30.0, row * 30.0, 0};
}

std::unique_ptr<sketchup::model> definitions(std::uint32_t count) {
    model_builder m;
    for (std::uint32_t i = 0; i != count; ++i) {
        list_builder made = m.component("Component " + std::to_string(i));
        made.box({0, 0, 0}, {10 + i % 7 * 0.5, 11.25, 12.125});
        m.root().instance(made, sketchup::moved(place_of(i)));
    }
    return finished(m);
}

std::unique_ptr<sketchup::model> placements(std::uint32_t count) {
    model_builder m;
    list_builder made = m.component("Tile");
    made.square(10);
    for (std::uint32_t i = 0; i != count; ++i)
        m.root().instance(made, sketchup::moved(place_of(i)));
    return finished(m);
}

std::unique_ptr<sketchup::model> materials(std::uint32_t count) {
    model_builder m;
    for (std::uint32_t i = 0; i != count; ++i) {
        const std::string name = "Material " + std::to_string(i);
        const sketchup::index made =
            i % 2 == 0 ? m.material(name, {static_cast<std::uint8_t>(i), static_cast<std::uint8_t>(i >> 8), 50, 255})
                       : m.textured_material(name, noisy_picture(picture_side, i),
                                             "picture" + std::to_string(i) + ".jpg", 40, 40);
        list_builder group = m.root().group({}, sketchup::moved(place_of(i)));
        m.element(group.square(10)).material = made;
    }
    return finished(m);
}

std::unique_ptr<sketchup::model> layers(std::uint32_t count) {
    model_builder m;
    for (std::uint32_t i = 0; i != count; ++i) {
        list_builder group = m.root().group({}, sketchup::moved(place_of(i)));
        m.element(group.square(10)).layer = m.layer("Layer number " + std::to_string(i));
    }
    return finished(m);
}

std::unique_ptr<sketchup::model> attributes(std::uint32_t count) {
    model_builder m;
    for (std::uint32_t i = 0; i != count; ++i) {
        list_builder group = m.root().group({}, sketchup::moved(place_of(i)));
        group.square(10);
        for (int key = 0; key != 5; ++key)
            m.attribute(group.placement(), "facts of a maker", "key " + std::to_string(key),
                        sketchup::text("a value as makers of furniture note it " + std::to_string(i)));
    }
    return finished(m);
}

std::unique_ptr<sketchup::model> depth(std::uint32_t levels) {
    model_builder m;
    list_builder list = m.root();
    for (std::uint32_t i = 0; i != levels; ++i) {
        list = list.group({}, sketchup::moved({0, 0, 1}));
        list.square(10);
    }
    return finished(m);
}

constexpr std::array<large_model, 8> models{{
    {"grid", "smooth textured triangles of one ground", 980000, 2, grid},
    {"faces", "bare triangles of one ground", 1500000, 2, faces},
    {"definitions", "components, each a box and placed once", 65000, 1, definitions},
    {"placements", "placements of one component", 100000, 1, placements},
    {"materials", "materials, every second with a picture of 170 kB", 3000, 1, materials},
    {"layers", "layers with a face each", 10000, 1, layers},
    {"attributes", "groups with five attributes each", 20000, 1, attributes},
    {"depth", "groups, each within the one before", 4000, 1, depth},
}};

} // namespace

std::span<const large_model> large_models() {
    return models;
}

const large_model* find_large_model(std::string_view name) {
    const auto* const found =
        std::find_if(models.begin(), models.end(), [&](const large_model& m) { return m.name == name; });
    return found == models.end() ? nullptr : found;
}

std::vector<std::uint8_t> large_model_file(const large_model& which, std::uint32_t size, model_container container) {
    const auto made = which.make(std::max(size, which.least_size));
    return container == model_container::classic ? skp::write_classic(*made, skp::classic_version::v17)
                                                 : skp::write_modern(*made, skp::modern_version::v25);
}
