#pragma once

// The area of what some polygons of a plane leave of another, worked out by slabs and with nothing of the product.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace scan_area {

struct point {
    double x = 0;
    double y = 0;
};
using polygon = std::vector<point>;

struct line {
    point left;
    point right;
    std::size_t group = 0;

    long double at(long double x) const {
        const long double part = (x - left.x) / (static_cast<long double>(right.x) - left.x);
        return left.y + part * (static_cast<long double>(right.y) - left.y);
    }
};

// Each polygon by the odd rule; those of the face (one group) together, each opening alone.
inline std::vector<line> lines_of(const std::vector<polygon>& face, const std::vector<polygon>& openings) {
    std::vector<line> lines;
    const auto add = [&lines](const polygon& p, std::size_t group) {
        for (std::size_t i = 0; i < p.size(); ++i) {
            const point& a = p[i];
            const point& b = p[(i + 1) % p.size()];
            if (a.x != b.x)
                lines.push_back(a.x < b.x ? line{a, b, group} : line{b, a, group});
        }
    };
    for (const polygon& p : face)
        add(p, 0);
    for (std::size_t i = 0; i < openings.size(); ++i)
        add(openings[i], i + 1);
    return lines;
}

// Where the lines begin, end and cross.
inline std::vector<long double> borders_of(const std::vector<line>& lines) {
    std::vector<long double> borders;
    for (const line& a : lines) {
        borders.push_back(a.left.x);
        borders.push_back(a.right.x);
        for (const line& b : lines) {
            const long double from = std::max(a.left.x, b.left.x);
            const long double to = std::min(a.right.x, b.right.x);
            const long double before = a.at(from) - b.at(from);
            const long double after = a.at(to) - b.at(to);
            if (from < to && (before < 0) != (after < 0))
                borders.push_back(from + (to - from) * (before / (before - after)));
        }
    }
    std::sort(borders.begin(), borders.end());
    return borders;
}

// Of one slab, in which no two lines cross: the lines from below upwards bound trapezoids.
inline long double of_slab(const std::vector<line>& lines, std::size_t groups, long double from, long double to) {
    const long double middle = (from + to) / 2;
    std::vector<std::pair<long double, std::size_t>> met;
    for (const line& l : lines)
        if (l.left.x <= from && l.right.x >= to)
            met.emplace_back(l.at(middle), l.group);
    std::sort(met.begin(), met.end());
    std::vector<bool> inside(groups, false);
    std::size_t openings = 0;
    long double height = 0;
    for (std::size_t i = 0; i < met.size(); ++i) {
        if (i > 0 && inside[0] && openings == 0)
            height += met[i].first - met[i - 1].first;
        const std::size_t group = met[i].second;
        inside[group] = !inside[group];
        if (group > 0)
            openings += inside[group] ? 1u : static_cast<std::size_t>(-1);
    }
    return height * (to - from);
}

// The area of the face less the union of the openings. Takes the cube of the number of lines in time.
inline double left_over(const std::vector<polygon>& face, const std::vector<polygon>& openings) {
    const std::vector<line> lines = lines_of(face, openings);
    const std::vector<long double> borders = borders_of(lines);
    long double sum = 0;
    for (std::size_t i = 1; i < borders.size(); ++i)
        if (borders[i - 1] < borders[i])
            sum += of_slab(lines, openings.size() + 1, borders[i - 1], borders[i]);
    return static_cast<double>(sum);
}

inline double length_of(const polygon& p) {
    double sum = 0;
    for (std::size_t i = 0; i < p.size(); ++i) {
        const point& next = p[(i + 1) % p.size()];
        sum += std::hypot(next.x - p[i].x, next.y - p[i].y);
    }
    return sum;
}

} // namespace scan_area
