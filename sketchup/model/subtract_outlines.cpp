#include "sketchup/model/subtract_outlines.h"

#include "sketchup/model/outline_contacts.h"

#include <clipper.hpp>

#include <cmath>
#include <numeric>
#include <unordered_map>
#include <utility>

namespace sketchup {

namespace {

constexpr int grid_bits = 50;  // of the size of the face
constexpr int range_bits = 61; // Clipper takes numbers below 2^62

struct hash_of_step {
    std::size_t operator()(const ClipperLib::IntPoint& p) const {
        return static_cast<std::size_t>(p.X) * 0x9E3779B97F4A7C15u +
               static_cast<std::size_t>(p.Y); // 2^64 / golden ratio
    }
};

// Points of a plane on Clipper's grid and back.
class step_grid {
public:
    explicit step_grid(outlines& shape) : shape_(shape) {
        double size = 0;
        for (std::size_t l = 0; l < shape.face_loops; ++l) {
            for (const index p : shape.loops[l]) {
                size = std::max({size, std::abs(shape.points[p].s), std::abs(shape.points[p].t)});
            }
        }
        if (size > 0) {
            exponent_ = grid_bits - std::ilogb(size);
        }
    }

    // The turned plane makes Clipper sweep along s, as the outlines were surveyed. Two points on one step become the
    // one with the lower number, which is the face's.
    ClipperLib::Path steps(const std::vector<index>& loop) {
        ClipperLib::Path path;
        path.reserve(loop.size());
        for (const index p : loop) {
            path.push_back({step(-shape_.points[p].t), step(shape_.points[p].s)});
            index& known = numbers_.emplace(path.back(), p).first->second;
            known = std::min(known, p);
        }
        return path;
    }

    std::vector<index> numbers(const ClipperLib::Path& path) {
        std::vector<index> loop;
        loop.reserve(path.size());
        for (const ClipperLib::IntPoint& p : path) {
            const auto [known, is_new] = numbers_.emplace(p, static_cast<index>(shape_.points.size()));
            if (is_new) {
                shape_.points.push_back({coordinate(p.Y), -coordinate(p.X)});
            }
            loop.push_back(known->second);
        }
        return loop;
    }

    bool is_in_range() const { return is_in_range_; }

private:
    ClipperLib::cInt step(double coordinate) {
        const double scaled = std::ldexp(coordinate, exponent_);
        if (!(std::abs(scaled) < std::ldexp(1.0, range_bits))) {
            is_in_range_ = false;
            return 0;
        }
        return std::llround(scaled);
    }
    double coordinate(ClipperLib::cInt step) const { return std::ldexp(static_cast<double>(step), -exponent_); }

    outlines& shape_;
    int exponent_ = 0;
    bool is_in_range_ = true;
    std::unordered_map<ClipperLib::IntPoint, index, hash_of_step> numbers_;
};

double perimeter(std::span<const sweep_point> points, std::span<const index> loop) {
    double sum = 0;
    for (std::size_t i = 0; i < loop.size(); ++i) {
        sum += distance(points[loop[i]], points[loop[i + 1 < loop.size() ? i + 1 : 0]]);
    }
    return sum;
}

// Parts a loop wherever it meets a point again.
class pinch_splitter {
public:
    void split(const std::vector<index>& loop, std::vector<std::vector<index>>& parts) {
        std::vector<index> open;
        for (const index p : loop) {
            const auto met = place_of_.find(p);
            if (met == place_of_.end()) {
                place_of_.emplace(p, open.size());
                open.push_back(p);
                continue;
            }
            const auto first = open.begin() + static_cast<std::ptrdiff_t>(met->second);
            take({first, open.end()}, parts);
            for (auto gone = first + 1; gone != open.end(); ++gone) {
                place_of_.erase(*gone);
            }
            open.erase(first + 1, open.end());
        }
        take(open, parts);
        place_of_.clear();
    }

private:
    static void take(std::vector<index> part, std::vector<std::vector<index>>& parts) {
        if (part.size() >= 3) {
            parts.push_back(std::move(part));
        }
    }
    std::unordered_map<index, std::size_t> place_of_; // in the open part
};

struct piece {
    std::vector<index> outline;
    std::vector<std::vector<index>> holes;
};

void begin_with_lowest(std::vector<index>& loop) {
    std::rotate(loop.begin(), std::min_element(loop.begin(), loop.end()), loop.end());
}

// Turns Clipper's outlines with their holes into pieces.
class piece_collector {
public:
    piece_collector(outlines& shape, step_grid& grid, double least_width)
        : shape_(shape), grid_(grid), least_width_(least_width) {}

    // The holes of an outline that falls apart stay with its first part; only all of them together matter.
    void add(const ClipperLib::PolyNode& node) {
        std::vector<std::vector<index>> parts;
        splitter_.split(grid_.numbers(node.Contour), parts);
        for (const ClipperLib::PolyNode* hole : node.Childs) {
            splitter_.split(grid_.numbers(hole->Contour), parts);
        }
        const auto holes = std::stable_partition(parts.begin(), parts.end(), [this](const std::vector<index>& part) {
            return doubled_area(shape_.points, part) > 0;
        });
        const bool is_one = holes - parts.begin() == 1;
        for (auto part = parts.begin(); part != holes; ++part) {
            pieces_.push_back({std::move(*part), {}});
            if (is_one || part + 1 == holes) {
                pieces_.back().holes.assign(std::make_move_iterator(holes), std::make_move_iterator(parts.end()));
            }
            if ((is_one || pieces_.back().holes.empty()) && is_narrow(pieces_.back())) {
                pieces_.pop_back();
            }
        }
    }

    void finish(contours& out) {
        for (piece& p : pieces_) {
            begin_with_lowest(p.outline);
            std::for_each(p.holes.begin(), p.holes.end(), begin_with_lowest);
            std::sort(p.holes.begin(), p.holes.end());
        }
        std::sort(pieces_.begin(), pieces_.end(), [](const piece& a, const piece& b) { return a.outline < b.outline; });
        out = {};
        out.pieces = pieces_.size();
        for (piece& p : pieces_) {
            out.area += area(p);
            out.loops.push_back(std::move(p.outline));
            std::move(p.holes.begin(), p.holes.end(), std::back_inserter(out.loops));
        }
    }

private:
    double area(const piece& p) const {
        const double outline = doubled_area(shape_.points, p.outline);
        return std::accumulate(p.holes.begin(), p.holes.end(), outline,
                               [this](double sum, const std::vector<index>& hole) {
                                   return sum + doubled_area(shape_.points, hole);
                               }) /
               2;
    }

    // Of a long strip, area by half the perimeter is its width.
    bool is_narrow(const piece& p) const {
        const double around = std::accumulate(
            p.holes.begin(), p.holes.end(), perimeter(shape_.points, p.outline),
            [this](double sum, const std::vector<index>& hole) { return sum + perimeter(shape_.points, hole); });
        return 2 * area(p) < least_width_ * around;
    }

    outlines& shape_;
    step_grid& grid_;
    double least_width_;
    pinch_splitter splitter_;
    std::vector<piece> pieces_;
};

// The parts of an opening, all counter-clockwise, in which no line crosses another: snapping may have twisted it.
// Clipper adds up how often openings wind around a place, so all must wind the same way.
void append_untwisted(const ClipperLib::Path& opening, ClipperLib::Paths& parts) {
    ClipperLib::Clipper clipper(ClipperLib::ioPreserveCollinear);
    ClipperLib::Paths found;
    // What has no area is refused, and adds nothing.
    if (clipper.AddPath(opening, ClipperLib::ptSubject, true)) {
        clipper.Execute(ClipperLib::ctUnion, found, ClipperLib::pftEvenOdd);
    }
    std::copy_if(found.begin(), found.end(), std::back_inserter(parts), ClipperLib::Orientation);
}

bool add_loops(outlines& shape, step_grid& grid, ClipperLib::Clipper& clipper) {
    ClipperLib::Paths face;
    ClipperLib::Paths openings;
    for (std::size_t l = 0; l < shape.loops.size(); ++l) {
        const ClipperLib::Path path = grid.steps(shape.loops[l]);
        if (shape.is_of_face(l)) {
            face.push_back(path);
        } else if (grid.is_in_range()) {
            append_untwisted(path, openings);
        }
    }
    if (!grid.is_in_range()) {
        return false;
    }
    clipper.AddPaths(face, ClipperLib::ptSubject, true);
    clipper.AddPaths(openings, ClipperLib::ptClip, true);
    return true;
}

} // namespace

bool subtract(outlines& shape, double least_width, contours& out) {
    step_grid grid(shape);
    ClipperLib::Clipper clipper(ClipperLib::ioPreserveCollinear);
    ClipperLib::PolyTree left;
    if (!add_loops(shape, grid, clipper) ||
        !clipper.Execute(ClipperLib::ctDifference, left, ClipperLib::pftEvenOdd, ClipperLib::pftNonZero)) {
        return false;
    }
    piece_collector pieces(shape, grid, least_width);
    for (const ClipperLib::PolyNode* node = left.GetFirst(); node != nullptr; node = node->GetNext()) {
        if (!node->IsHole()) {
            pieces.add(*node);
        }
    }
    pieces.finish(out);
    return true;
}

} // namespace sketchup
