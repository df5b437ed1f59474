// Takes any numbers as the corners of a square and the mapping of its texture: a picture within bounds comes out, none
// of whose pixels is outside of what the source holds.

#include "sketchup/builder/model_builder.h"
#include "sketchup/model/straighten_texture.h"
#include "sketchup/skp/link.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

using namespace sketchup;

void expect(bool holds) {
    if (!holds)
        std::abort();
}

// Nine numbers of the mapping, two for each corner, then one byte each for the source's width, height and depth.
struct input {
    std::array<double, 9> matrix{1, 0, 0, 0, 1, 0, 0, 0, 1};
    std::array<double, 8> corners{0, 0, 10, 0, 10, 10, 0, 10};
    std::array<std::uint8_t, 3> source{};
};

input read(const std::uint8_t* data, std::size_t size) {
    input from;
    const auto take = [&](auto& values) {
        const std::size_t count = std::min(size, sizeof values);
        std::memcpy(values.data(), data, count);
        data += count;
        size -= count;
    };
    take(from.matrix);
    take(from.corners);
    take(from.source);
    return from;
}

std::unique_ptr<model> painted_square(const input& from) {
    model_builder builder;
    const entity_place made = builder.root().square(10);
    builder.face(made).material = builder.textured_material("Brick", {}, "brick.png", 10, 20);
    side_mapping& mapping = builder.mapping(made).front;
    mapping.positioned = true;
    mapping.matrix = from.matrix;
    auto built = builder.finish();
    skp::link(*built);
    for (std::size_t i = 0; i < 4; ++i)
        built->vertices.at(i).position = {from.corners[2 * i], from.corners[2 * i + 1], 0};
    return built;
}

// Values from 100 to 163.
image::picture source_picture(const input& from) {
    const image::picture_extent extent = {from.source[0] % 40u + 1, from.source[1] % 40u + 1,
                                          from.source[2] % 2 == 0 ? 24 : 32};
    image::picture made = *image::picture::make(extent);
    for (std::size_t i = 0; i < made.bytes().size(); ++i)
        made.bytes()[i] = static_cast<std::uint8_t>(100 + i * 37 % 64);
    return made;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::uint32_t longest_side = 100;
    const input from = read(data, size);
    const auto m = painted_square(from);
    const image::picture source = source_picture(from);
    const image::picture straight = straighten_texture(source, *m, m->faces[0], face_side::front, longest_side);
    expect(!straight.is_empty() && straight.extent().bits_per_pixel == source.extent().bits_per_pixel);
    expect(straight.width() <= longest_side && straight.height() <= longest_side);
    expect(straight.width() * straight.height() <= 4 * source.width() * source.height());
    expect(std::ranges::all_of(straight.bytes(), [](std::uint8_t byte) { return byte >= 100 && byte <= 163; }));
    return 0;
}
