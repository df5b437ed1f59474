#include "sketchup/model/outline_contacts.h"

#include <cmath>

namespace sketchup {

namespace {

// The sides of a line on which the ends of another lie, as distances times the line's length.
struct end_sides {
    double from = 0;
    double to = 0;
    bool are_apart(double margin) const { return (from > margin && to < -margin) || (from < -margin && to > margin); }
};

end_sides sides_of(const outline_line& line, const outline_line& other) {
    return {turn(line.from, line.to, other.from), turn(line.from, line.to, other.to)};
}

// What may be off by rounding, as a part of the size of the face: far more than the coordinates lose.
constexpr double rounding = 1e-9;

double size_of_face(const outlines& shape) {
    double size = 0;
    for (std::size_t l = 0; l < shape.face_loops; ++l) {
        for (const index p : shape.loops[l]) {
            size = std::max({size, std::abs(shape.points[p].s), std::abs(shape.points[p].t)});
        }
    }
    return size;
}

// Whether two lines cross, all ends further than `depth` from the other line.
bool cross_deeper_than(double depth, const outline_line& a, const outline_line& b) {
    return sides_of(a, b).are_apart(depth * distance(a.from, a.to)) &&
           sides_of(b, a).are_apart(depth * distance(b.from, b.to));
}

double distance_to(const outline_line& line, const sweep_point& p) {
    return distance(p, point_on(line.from, line.to, nearest_place(line.from, line.to, p)));
}

} // namespace

double distance(const sweep_point& a, const sweep_point& b) {
    return std::hypot(a.s - b.s, a.t - b.t);
}

double nearest_place(const sweep_point& from, const sweep_point& to, const sweep_point& p) {
    const double s = to.s - from.s;
    const double t = to.t - from.t;
    const double square = s * s + t * t;
    const double along = (p.s - from.s) * s + (p.t - from.t) * t;
    return square > 0 ? std::clamp(along / square, 0.0, 1.0) : 0;
}

sweep_point point_on(const sweep_point& from, const sweep_point& to, double place) {
    return {from.s + (to.s - from.s) * place, from.t + (to.t - from.t) * place};
}

bool is_inside(const outlines& shape, std::size_t loop, const sweep_point& p) {
    bool inside = false;
    const std::vector<index>& points = shape.loops[loop];
    const sweep_point* from = &shape.points[points.back()];
    for (const index number : points) {
        const sweep_point* to = &shape.points[number];
        if ((from->t > p.t) != (to->t > p.t)) {
            const bool left = turn(*from, *to, p) > 0;
            inside ^= left == (to->t > from->t);
        }
        from = to;
    }
    return inside;
}

outline_survey survey(const outlines& shape, double tolerance, std::size_t& pairs_left) {
    outline_survey found;
    found.touched.resize(shape.loops.size());
    const std::vector<outline_line> lines = lines_of(shape);
    const double touch = std::max(tolerance, rounding * size_of_face(shape));
    std::size_t crossings = 0;
    const auto note = [&](const outline_line& point, const outline_line& line) {
        const double away = distance_to(line, point.from);
        if (away <= tolerance) {
            found.contacts.push_back({point.loop, point.place, line.loop, line.place});
        }
        return away <= touch;
    };
    const auto look = [&](const outline_line& a, const outline_line& b) {
        const bool cross = cross_deeper_than(0, a, b);
        crossings += cross ? 1 : 0;
        if (a.loop == b.loop || (shape.is_of_face(a.loop) && shape.is_of_face(b.loop))) {
            return !(cross && cross_deeper_than(touch, a, b));
        }
        const bool one_is_near = note(a, b);
        const bool other_is_near = note(b, a);
        if (cross || one_is_near || other_is_near) {
            found.touched[a.loop] = true;
            found.touched[b.loop] = true;
        }
        return crossings + found.contacts.size() <= 1000 + most_contacts * lines.size();
    };
    found.is_unfit = !for_each_near_pair(lines, touch, pairs_left, look);
    return found;
}

} // namespace sketchup
