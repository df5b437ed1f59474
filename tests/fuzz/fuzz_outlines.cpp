// Takes any bytes as components of loose lines that are glued to a face, and checks the openings that they cut.

#include "sketchup/builder/model_builder.h"
#include "sketchup/model/area_vector.h"
#include "sketchup/model/face_openings.h"
#include "sketchup/model/opening_outlines.h"
#include "sketchup/model/opening_tolerance.h"
#include "sketchup/skp/format_error.h"
#include "sketchup/skp/link.h"
#include "tests/fuzz/byte_source.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

using namespace sketchup;

// Mostly in the plane.
vec3 next_point(byte_source& from) {
    const double x = from.coordinate();
    const double y = from.coordinate();
    static constexpr std::array<double, 8> heights = {0, 0, 0, 0, 9e-4, -9e-4, 1.1e-3, 5};
    return {x, y, heights[static_cast<std::size_t>(from.next() % 8)]};
}

double next_number(byte_source& from) {
    std::array<std::uint8_t, sizeof(double)> bytes;
    for (std::uint8_t& byte : bytes)
        byte = static_cast<std::uint8_t>(from.next());
    double number = 0;
    std::memcpy(&number, bytes.data(), sizeof number);
    return number;
}

transform next_transform(byte_source& from) {
    const int kind = from.next();
    transform placed = moved({from.coordinate(), from.coordinate(), 0});
    if (kind & 1)
        placed = after(placed, turned_about_z(from.next()));
    if (kind & 2)
        placed = after(placed, scaled(from.coordinate() - 8, from.coordinate() - 8, 1));
    if (kind >= 224)
        placed[static_cast<std::size_t>(kind) % placed.size()] = next_number(from);
    return placed;
}

// A face, and components in each of which only those before it may lie.
struct drawn_model {
    static constexpr std::size_t most_components = 6;
    model_builder m;
    list_builder root = m.root();
    entity_place wall;
    std::vector<list_builder> components;
    vec3 last;

    void add_component(int flags) {
        if (components.size() == most_components)
            return;
        components.push_back(m.component("c"));
        m.definition(components.back()).behavior = {.glues = true, .cuts_opening = flags % 8 != 0};
    }

    const list_builder& any_component(byte_source& from) {
        return components[static_cast<std::size_t>(from.next()) % components.size()];
    }

    void add_rectangle(byte_source& from) {
        const vec3 a = next_point(from);
        const vec3 b = next_point(from);
        list_builder& to = components.back();
        to.edge(a, {b.x, a.y, a.z});
        to.edge({b.x, a.y, a.z}, {b.x, b.y, a.z});
        to.edge({b.x, b.y, a.z}, {a.x, b.y, a.z});
        to.edge({a.x, b.y, a.z}, a);
    }

    void add_line(const vec3& start, byte_source& from) {
        last = next_point(from);
        components.back().edge(start, last);
    }

    void nest(byte_source& from) {
        const std::size_t inner = static_cast<std::size_t>(from.next());
        if (components.size() > 1)
            components.back().instance(components[inner % (components.size() - 1)], next_transform(from));
    }

    void glue(byte_source& from) {
        const list_builder& component = any_component(from);
        root.glue(root.instance(component, next_transform(from)), wall);
    }

    void take_step(byte_source& from) {
        const int step = from.next();
        switch (step % 8) {
        case 0:
        case 1:
            return add_rectangle(from);
        case 2:
            return add_line(next_point(from), from);
        case 3:
        case 4:
            return add_line(last, from);
        case 5:
            return add_component(step / 8);
        case 6:
            return nest(from);
        default:
            return glue(from);
        }
    }
};

// The face looks up or aslant, and its outline runs either way round. Gives the side from which that is against the
// clock.
vec3 add_wall(drawn_model& drawn, int shape) {
    const double slope = shape & 1 ? 0.75 : 0;
    const std::vector<vec3> outline = {{0, 0, 0}, {90, 0, 0}, {90, 80, 80 * slope}, {0, 80, 80 * slope}};
    drawn.wall = drawn.root.face(outline);
    plane& of_wall = drawn.m.face(drawn.wall).plane;
    if (shape & 2)
        of_wall = {-of_wall.a, -of_wall.b, -of_wall.c, -of_wall.d};
    return area_vector(outline);
}

void check(bool holds, const char* what, double one, double other) {
    if (holds)
        return;
    std::fprintf(stderr, "%s: %.17g and %.17g\n", what, one, other);
    std::abort();
}

// first: the component that holds nothing but lines; its outlines turn at their ends and nowhere else.
void check_outlines(const model& m, sketchup::index definition, bool is_first,
                    const std::vector<plane_outline>& outlines) {
    for (const plane_outline& o : outlines) {
        check(o.size() >= 3, "an outline of few points", static_cast<double>(o.size()), definition);
        check(signed_area(o) >= opening_tolerance * opening_tolerance, "a clockwise or empty outline", signed_area(o),
              definition);
        for (const point2& p : o) {
            check(std::isfinite(p.x) && std::isfinite(p.y), "a point is not finite", p.x, p.y);
            const auto is_here = [&p](const vertex& v) { return v.position.x == p.x && v.position.y == p.y; };
            check(!is_first || std::ranges::any_of(m.vertices, is_here), "a point from nowhere", p.x, p.y);
        }
    }
}

// Gives the number of points.
std::size_t check_opening(const opening& o, const vec3& outline_side, const plane& of_face) {
    check(o.points.size() >= 3, "an opening of few points", static_cast<double>(o.points.size()), 0);
    double reach = 1;
    for (const vec3& p : o.points) {
        check(is_finite(p), "a point is not finite", p.x, p.y);
        reach = std::max({reach, std::abs(p.x), std::abs(p.y), std::abs(p.z)});
    }
    for (const vec3& p : o.points) {
        const double off = dot(of_face.normal(), p) + of_face.d;
        check(std::abs(off) <= 1e-9 * reach, "a point off the plane", off, reach);
    }
    const double turn = dot(area_vector(o.points), outline_side);
    // Far off, the area of a small opening drowns in the rounding of its coordinates' products.
    const double rounding = 1e-13 * static_cast<double>(o.points.size()) * reach * reach * length(outline_side);
    check(turn < rounding || !std::isfinite(rounding), "an opening that runs as the face does", turn, rounding);
    return o.points.size();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_source from(data, size);
    const int shape = from.next();
    drawn_model drawn;
    const vec3 outline_side = add_wall(drawn, shape);
    drawn.add_component(1);
    while (!from.is_empty())
        drawn.take_step(from);

    const std::unique_ptr<model> m = drawn.m.finish();
    try {
        skp::link(*m);
    } catch (const skp::format_error&) {
        return 0; // more entities than a run counts
    }
    constexpr std::size_t steps = std::size_t{1} << 22; // some milliseconds
    const std::size_t most_points = std::size_t{4} << (shape / 4 % 16);
    opening_outlines outlines(*m, steps);
    for (std::size_t i = 0; i < drawn.components.size(); ++i) {
        const sketchup::index definition = drawn.components[i].definition();
        check_outlines(*m, definition, i == 0, outlines.of(definition));
    }

    const face& wall = m->faces[drawn.wall.at];
    face_openings openings(*m, most_points, steps);
    std::size_t points = 0;
    for (const opening& o : openings.of(wall))
        points += check_opening(o, outline_side, wall.plane);
    check(points <= most_points, "more points than are allowed", static_cast<double>(points),
          static_cast<double>(most_points));
    return 0;
}
