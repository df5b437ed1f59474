// Takes any bytes as a face and outlines of openings in a plane, and compares what is left of the face with an area
// that is worked out by slabs.

#include "sketchup/model/plane_cut.h"
#include "sketchup/model/plane_frame.h"
#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/scan_area.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <numbers>

namespace {

using scan_area::point;
using scan_area::polygon;
using sketchup::vec3;

polygon rectangle(byte_source& from) {
    const point a = {from.coordinate(), from.coordinate()};
    const point b = {a.x + from.coordinate(), a.y + from.coordinate()};
    return {a, {b.x, a.y}, b, {a.x, b.y}};
}

// Points around a middle, further off or nearer.
polygon star(byte_source& from) {
    const point middle = {from.coordinate(), from.coordinate()};
    const int points = 3 + from.next() % 12;
    polygon p;
    for (int i = 0; i < points; ++i) {
        const double angle = 2 * std::numbers::pi * i / points;
        const double radius = 0.25 + from.next() % 64 / 4.0;
        p.push_back({middle.x + radius * std::cos(angle), middle.y + radius * std::sin(angle)});
    }
    return p;
}

// Triangles and quadrilaterals of any corners: flat, narrow, or crossing themselves.
polygon any_corners(byte_source& from, int count) {
    polygon p;
    for (int i = 0; i < count; ++i)
        p.push_back({from.coordinate(), from.coordinate()});
    return p;
}

polygon next_polygon(byte_source& from) {
    const int kind = from.next();
    polygon p = kind % 4 == 0   ? rectangle(from)
                : kind % 4 == 1 ? star(from)
                : kind % 4 == 2 ? any_corners(from, 3)
                                : any_corners(from, 4);
    if (kind & 128)
        std::reverse(p.begin(), p.end());
    return p;
}

double turn(const point& a, const point& b, const point& c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

// Whether lines of two polygons, or of one, cross or nearly do; such faces may stay whole.
bool meet(const polygon& one, const polygon& other) {
    for (std::size_t i = 0; i < one.size(); ++i) {
        for (std::size_t j = 0; j < other.size(); ++j) {
            const point &a = one[i], &b = one[(i + 1) % one.size()];
            const point &c = other[j], &d = other[(j + 1) % other.size()];
            if (turn(a, b, c) * turn(a, b, d) < 0 && turn(c, d, a) * turn(c, d, b) < 0)
                return true;
        }
    }
    return false;
}

// How many pairs of points of all polygons fall together; many of them are too much contact.
std::size_t coincidences(const std::vector<polygon>& face, const std::vector<polygon>& openings) {
    polygon all;
    for (const std::vector<polygon>* polygons : {&face, &openings})
        for (const polygon& p : *polygons)
            all.insert(all.end(), p.begin(), p.end());
    std::size_t count = 0;
    for (const point& a : all)
        for (const point& b : all)
            count += std::hypot(a.x - b.x, a.y - b.y) < 0.01 ? 1u : 0u;
    return count - all.size();
}

struct lifted_loops {
    std::vector<vec3> points;
    std::vector<sketchup::index> sizes;
    sketchup::loop_list list() const { return {points, sizes}; }
};

lifted_loops lifted(const std::vector<polygon>& polygons, const sketchup::plane_frame& frame) {
    lifted_loops loops;
    for (const polygon& p : polygons) {
        loops.sizes.push_back(static_cast<sketchup::index>(p.size()));
        for (const point& corner : p)
            loops.points.push_back(frame.lift({corner.x, corner.y}));
    }
    return loops;
}

std::vector<polygon> flat(const sketchup::plane_cut& cut, const sketchup::plane_frame& frame) {
    std::vector<polygon> polygons;
    std::size_t next = 0;
    for (const sketchup::index size : cut.sizes) {
        polygons.emplace_back();
        for (sketchup::index i = 0; i < size; ++i) {
            const sketchup::sweep_point p = frame.project(cut.points[next++].position);
            polygons.back().push_back({p.s, p.t});
        }
    }
    return polygons;
}

void check(bool holds, const char* what, double one, double other) {
    if (holds)
        return;
    std::fprintf(stderr, "%s: %.17g and %.17g\n", what, one, other);
    std::abort();
}

void check_points(const sketchup::plane_cut& cut, const lifted_loops& face, const lifted_loops& openings) {
    for (const sketchup::cut_point& p : cut.points) {
        if (p.origin == sketchup::cut_origin::face)
            check(p.position == face.points.at(p.number), "a corner was moved", p.position.x, p.number);
        if (p.origin == sketchup::cut_origin::opening)
            check(sketchup::length(p.position - openings.points.at(p.number)) <= 1.001e-3, "a point was moved far",
                  p.position.x, p.number);
        check(sketchup::is_finite(p.position), "a point is not finite", 0, 0);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::array<vec3, 4> normals = {vec3{0, 0, 1}, {0, -1, 0}, vec3{1, 2, 2} / 3.0, vec3{-6, 3, 2} / 7.0};
    byte_source from(data, size);
    const int shape = from.next();
    const vec3& normal = normals[static_cast<std::size_t>(shape % 4)];
    const sketchup::plane_frame frame({3, -2, 5}, normal);
    std::vector<polygon> face = {next_polygon(from)};
    for (int holes = shape / 4 % 3; holes > 0; --holes)
        face.push_back(next_polygon(from));
    std::vector<polygon> openings;
    while (!from.is_empty() && openings.size() < 8)
        openings.push_back(next_polygon(from));

    // Openings thousands of times as large as the face are refused; they are up to 100 wide here.
    bool may_stay_whole = scan_area::length_of(face.front()) < 0.1;
    may_stay_whole = may_stay_whole || coincidences(face, openings) > 400;
    double lengths = 0;
    for (const polygon& one : face)
        for (const polygon& other : face)
            may_stay_whole = may_stay_whole || meet(one, other);
    for (const std::vector<polygon>* polygons : {&face, &openings})
        for (const polygon& p : *polygons) {
            may_stay_whole = may_stay_whole || meet(p, p);
            lengths += scan_area::length_of(p);
        }

    const lifted_loops lifted_face = lifted(face, frame);
    const lifted_loops lifted_openings = lifted(openings, frame);
    const double face_area = scan_area::left_over(face, {});
    const double expected = scan_area::left_over(face, openings);
    // Else a hole lies beside the outline or in another hole, and there is no telling what the face is.
    double outline_less_holes = 0;
    for (std::size_t i = 0; i < face.size(); ++i)
        outline_less_holes += (i == 0 ? 1 : -1) * scan_area::left_over({face[i]}, {});
    const bool holes_are_inside = std::abs(outline_less_holes - face_area) <= 1e-9 * face_area;
    for (const double tolerance : {0.0, 1e-3}) {
        const sketchup::plane_cut cut =
            sketchup::cut_openings(lifted_face.list(), normal, lifted_openings.list(), {.tolerance = tolerance});
        if (!holes_are_inside || (cut.is_whole && may_stay_whole))
            continue;
        const double area = cut.is_whole ? face_area : cut.area;
        const double allowed = tolerance == 0 ? 1e-9 * face_area : tolerance * lengths;
        check(std::abs(area - expected) <= allowed + 1e-12, tolerance == 0 ? "exact area" : "snapped area", area,
              expected);
        check_points(cut, lifted_face, lifted_openings);
        const double of_contours = cut.is_whole ? area : scan_area::left_over(flat(cut, frame), {});
        // Outlines twisted by less than the tolerance are told from their loops, which is not what the odd rule sees.
        check(std::abs(area - of_contours) <= allowed + 1e-12, "area of the contours", area, of_contours);
    }
    return 0;
}
