#include "sketchup/model/plane_outlines.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <map>
#include <numeric>
#include <utility>

namespace sketchup {

double signed_area(std::span<const point2> polygon) {
    if (polygon.empty())
        return 0;
    const point2 origin = polygon[0]; // far from the real one the products would swallow the area
    double twice = 0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const point2& p = polygon[i];
        const point2& q = polygon[i + 1 < polygon.size() ? i + 1 : 0];
        twice += (p.x - origin.x) * (q.y - origin.y) - (p.y - origin.y) * (q.x - origin.x);
    }
    return twice / 2;
}

namespace {

using number = std::uint32_t;
constexpr number none = 0xFFFFFFFF;

// What an allowance pays for.
constexpr std::size_t steps_of_a_segment = 1024;
constexpr std::size_t steps_of_a_side = 4;

double squared_distance(const point2& a, const point2& b) {
    return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y);
}

// Gives points that are closer than the tolerance one number, in the order of their coming.
class merged_points {
public:
    explicit merged_points(double tolerance) : tolerance_(tolerance) {}

    number at(const point2& p) {
        const cell home = cell_of(p);
        for (std::int64_t x = home.x - 1; x <= home.x + 1; ++x)
            for (auto i = first_in_.lower_bound({x, home.y - 1}); i != first_in_.end(); ++i) {
                if (i->first > cell{x, home.y + 1})
                    break;
                if (const number found = near(p, i->second); found != none)
                    return found;
            }
        const auto made = static_cast<number>(points_.size());
        points_.push_back(p);
        const auto [first, is_new] = first_in_.try_emplace(home, made);
        next_in_cell_.push_back(is_new ? none : std::exchange(first->second, made));
        return made;
    }
    std::vector<point2> take() { return std::move(points_); }

private:
    struct cell {
        std::int64_t x;
        std::int64_t y;
        auto operator<=>(const cell&) const = default;
    };
    // In order and not hashed: a file could choose its points so that all fall together.
    using cell_map = std::map<cell, number>;

    cell cell_of(const point2& p) const {
        return {static_cast<std::int64_t>(std::floor(p.x / tolerance_)),
                static_cast<std::int64_t>(std::floor(p.y / tolerance_))};
    }
    // Those of one cell are a tolerance apart, so there are few.
    number near(const point2& p, number first) const {
        for (number i = first; i != none; i = next_in_cell_[i])
            if (squared_distance(points_[i], p) < tolerance_ * tolerance_)
                return i;
        return none;
    }

    double tolerance_;
    std::vector<point2> points_;
    std::vector<number> next_in_cell_;
    cell_map first_in_;
};

// Lines between numbered points. Each line is two halves, 2i and 2i + 1, that run opposite ways.
class line_graph {
public:
    line_graph(std::span<const segment2> segments, double tolerance);

    // Leaves out the lines on which no closed way runs.
    void leave_out_what_closes_nothing();
    // The walks around the outside of all parts, counter-clockwise.
    std::vector<plane_outline> walks_around() const;

private:
    struct line {
        number a;
        number b;
        auto operator<=>(const line&) const = default;
    };
    // Where the search for bridges stands at a point.
    struct step {
        number point;
        number came_by; // the line; none at the start
        number next;    // in halves_
    };

    number from(number half) const { return half % 2 == 0 ? lines_[half / 2].a : lines_[half / 2].b; }
    number to(number half) const { return from(half ^ 1U); }
    double direction(number half) const;
    void list_halves();
    void sort_halves();
    void find_bridges(number first, std::vector<number>& order, std::vector<number>& lowest, number& reached,
                      std::vector<bool>& is_bridge) const;
    number next_around(number half) const;
    std::vector<number> leftmost_points() const;

    std::vector<point2> points_;
    std::vector<line> lines_;
    std::vector<number> halves_;   // by the point they leave from
    std::vector<number> first_of_; // of a point, in halves_; one more for the end
    std::vector<number> place_of_; // of a half, in halves_
};

bool is_usable(const point2& p) {
    return std::abs(p.x) <= largest_plane_coordinate &&
           std::abs(p.y) <= largest_plane_coordinate; // false for no number
}

line_graph::line_graph(std::span<const segment2> segments, double tolerance) {
    merged_points merged(tolerance);
    for (const segment2& s : segments) {
        if (!is_usable(s.from) || !is_usable(s.to))
            continue;
        const number a = merged.at(s.from);
        const number b = merged.at(s.to);
        if (a != b)
            lines_.push_back({std::min(a, b), std::max(a, b)});
    }
    points_ = merged.take();
    std::ranges::sort(lines_);
    lines_.erase(std::unique(lines_.begin(), lines_.end()), lines_.end());
    list_halves();
}

void line_graph::list_halves() {
    first_of_.assign(points_.size() + 1, 0);
    for (const line& l : lines_) {
        ++first_of_[l.a + 1];
        ++first_of_[l.b + 1];
    }
    std::partial_sum(first_of_.begin(), first_of_.end(), first_of_.begin());
    halves_.resize(2 * lines_.size());
    std::vector<number> next(first_of_.begin(), first_of_.end() - 1);
    for (number half = 0; half < halves_.size(); ++half)
        halves_[next[from(half)]++] = half;
}

// A depth-first search with a stack of its own. A line is a bridge if nothing behind it reaches its point or one found
// before that by another way.
void line_graph::find_bridges(number first, std::vector<number>& order, std::vector<number>& lowest, number& reached,
                              std::vector<bool>& is_bridge) const {
    std::vector<step> open{{first, none, first_of_[first]}};
    order[first] = lowest[first] = reached++;
    while (!open.empty()) {
        step& top = open.back();
        if (top.next < first_of_[top.point + 1]) {
            const number half = halves_[top.next++];
            const number other = to(half);
            if (half / 2 == top.came_by)
                continue;
            if (order[other] != none) {
                lowest[top.point] = std::min(lowest[top.point], order[other]);
                continue;
            }
            order[other] = lowest[other] = reached++;
            open.push_back({other, half / 2, first_of_[other]});
            continue;
        }
        const step done = top;
        open.pop_back();
        if (open.empty())
            break;
        const number before = open.back().point;
        lowest[before] = std::min(lowest[before], lowest[done.point]);
        if (lowest[done.point] > order[before])
            is_bridge[done.came_by] = true;
    }
}

void line_graph::leave_out_what_closes_nothing() {
    std::vector<number> order(points_.size(), none);
    std::vector<number> lowest(points_.size(), none);
    std::vector<bool> is_bridge(lines_.size(), false);
    number reached = 0;
    for (number p = 0; p < points_.size(); ++p)
        if (order[p] == none)
            find_bridges(p, order, lowest, reached, is_bridge);
    std::vector<line> closed;
    for (number i = 0; i < lines_.size(); ++i)
        if (!is_bridge[i])
            closed.push_back(lines_[i]);
    lines_ = std::move(closed);
    list_halves();
    sort_halves();
}

// Grows with the angle from the x axis, from 0 to below 4, without the cost and the rounding of a true angle.
double line_graph::direction(number half) const {
    const point2& p = points_[from(half)];
    const point2& q = points_[to(half)];
    const double x = q.x - p.x, y = q.y - p.y;
    const double slope = y / (std::abs(x) + std::abs(y));
    if (x < 0)
        return 2 - slope;
    return y < 0 ? 4 + slope : slope;
}

void line_graph::sort_halves() {
    std::vector<std::pair<double, number>> around;
    place_of_.resize(halves_.size());
    for (number p = 0; p < points_.size(); ++p) {
        around.clear();
        for (number i = first_of_[p]; i < first_of_[p + 1]; ++i)
            around.push_back({direction(halves_[i]), halves_[i]});
        std::ranges::sort(around);
        for (number i = first_of_[p]; i < first_of_[p + 1]; ++i) {
            halves_[i] = around[i - first_of_[p]].second;
            place_of_[halves_[i]] = i;
        }
    }
}

// The half on which a walk with the outside to its right goes on: counter-clockwise the next one after the way back.
number line_graph::next_around(number half) const {
    const number point = to(half);
    const number next = place_of_[half ^ 1U] + 1;
    return halves_[next < first_of_[point + 1] ? next : first_of_[point]];
}

// The leftmost point of each part, the lower one of two.
std::vector<number> line_graph::leftmost_points() const {
    std::vector<number> leftmost;
    std::vector<bool> is_seen(points_.size(), false);
    std::vector<number> open;
    for (number start = 0; start < points_.size(); ++start) {
        if (is_seen[start] || first_of_[start] == first_of_[start + 1])
            continue;
        leftmost.push_back(start);
        is_seen[start] = true;
        open.push_back(start);
        while (!open.empty()) {
            const number p = open.back();
            open.pop_back();
            const point2& best = points_[leftmost.back()];
            if (std::pair(points_[p].x, points_[p].y) < std::pair(best.x, best.y))
                leftmost.back() = p;
            for (number i = first_of_[p]; i < first_of_[p + 1]; ++i)
                if (const number other = to(halves_[i]); !is_seen[other]) {
                    is_seen[other] = true;
                    open.push_back(other);
                }
        }
    }
    return leftmost;
}

// To the left of a leftmost point is the outside, so a walk begins on the first half counter-clockwise from there. A
// half leads to one next half only, so each walk comes back to its beginning.
std::vector<plane_outline> line_graph::walks_around() const {
    constexpr double leftwards = 2;
    std::vector<plane_outline> walks;
    for (const number start : leftmost_points()) {
        number first = halves_[first_of_[start]];
        for (number i = first_of_[start + 1]; i > first_of_[start]; --i)
            if (direction(halves_[i - 1]) >= leftwards)
                first = halves_[i - 1];
        plane_outline& walk = walks.emplace_back();
        number half = first;
        do {
            walk.push_back(points_[from(half)]);
            half = next_around(half);
        } while (half != first);
    }
    return walks;
}

struct extent {
    double low_x = std::numeric_limits<double>::infinity(), low_y = low_x;
    double high_x = -low_x, high_y = -low_x;

    explicit extent(const plane_outline& o) {
        for (const point2& p : o) {
            low_x = std::min(low_x, p.x);
            low_y = std::min(low_y, p.y);
            high_x = std::max(high_x, p.x);
            high_y = std::max(high_y, p.y);
        }
    }
    bool holds(const extent& other, double tolerance) const {
        return other.low_x >= low_x - tolerance && other.low_y >= low_y - tolerance &&
               other.high_x <= high_x + tolerance && other.high_y <= high_y + tolerance;
    }
};

double squared_distance(const point2& p, const point2& a, const point2& b) {
    const double x = b.x - a.x, y = b.y - a.y;
    const double along = ((p.x - a.x) * x + (p.y - a.y) * y) / (x * x + y * y); // sides are longer than the tolerance
    const double part = std::clamp(along, 0.0, 1.0);
    return squared_distance(p, {a.x + part * x, a.y + part * y});
}

enum class position { inside, outside, on_border };

position position_in(const plane_outline& around, const point2& p, double tolerance) {
    bool is_inside = false;
    for (std::size_t i = 0; i < around.size(); ++i) {
        const point2& a = around[i];
        const point2& b = around[i + 1 < around.size() ? i + 1 : 0];
        if (squared_distance(p, a, b) <= tolerance * tolerance)
            return position::on_border;
        if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (p.y - a.y) / (b.y - a.y) * (b.x - a.x))
            is_inside = !is_inside;
    }
    return is_inside ? position::inside : position::outside;
}

// Whether an outline that crosses no other lies inside one: its first corner or middle of a side that is off the
// other's border tells. One that runs on the border all along does not stick out.

bool lies_inside(const plane_outline& inner, const plane_outline& outer, double tolerance, work_allowance& allowance) {
    for (std::size_t i = 0; i < inner.size(); ++i) {
        const point2& a = inner[i];
        const point2& b = inner[i + 1 < inner.size() ? i + 1 : 0];
        for (const point2& p : {a, point2{(a.x + b.x) / 2, (a.y + b.y) / 2}}) {
            if (!allowance.spend(steps_of_a_side * outer.size()))
                return false;
            const position where = position_in(outer, p, tolerance);
            if (where != position::on_border)
                return where == position::inside;
        }
    }
    return true;
}

// The outlines that lie in no other, in their order; none if the allowance does not suffice. Larger ones come first, so
// that what lies in one that was left out lies in one that was kept.
std::vector<plane_outline> outermost(std::vector<plane_outline> all, double tolerance, work_allowance& allowance) {
    std::vector<double> areas;
    for (const plane_outline& o : all)
        areas.push_back(signed_area(o));
    std::vector<std::size_t> by_size(all.size());
    std::iota(by_size.begin(), by_size.end(), std::size_t{0});
    std::ranges::stable_sort(by_size, [&](std::size_t a, std::size_t b) { return areas[a] > areas[b]; });
    std::vector<std::pair<extent, std::size_t>> kept;
    for (const std::size_t one : by_size) {
        if (!(areas[one] >= tolerance * tolerance) || !allowance.spend(kept.size()))
            break;
        const extent size(all[one]);
        const bool is_inside = std::ranges::any_of(kept, [&](const auto& k) {
            return k.first.holds(size, tolerance) && lies_inside(all[one], all[k.second], tolerance, allowance);
        });
        if (!is_inside)
            kept.push_back({size, one});
    }
    if (!allowance.spend(1))
        return {};
    std::ranges::sort(kept, {}, &std::pair<extent, std::size_t>::second);
    std::vector<plane_outline> result;
    for (const auto& [size, one] : kept)
        result.push_back(std::move(all[one]));
    return result;
}

} // namespace

std::vector<plane_outline> outlines_of(std::span<const segment2> segments, double tolerance,
                                       work_allowance& allowance) {
    if (!allowance.spend(steps_of_a_segment * segments.size()))
        return {};
    line_graph lines(segments, tolerance);
    lines.leave_out_what_closes_nothing();
    return outermost(lines.walks_around(), tolerance, allowance);
}

} // namespace sketchup
