#include "sketchup/model/snap_outlines.h"

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>

namespace sketchup {

namespace {

// A point that a line gets between its ends.
struct line_split {
    index loop = 0;
    index place = 0;
    double along = 0; // 0 to 1
    index point = 0;
};

class snapper {
public:
    snapper(outlines& shape, double tolerance) : shape_(shape), tolerance_(tolerance) {}

    void run(std::vector<outline_contact> contacts) {
        // Earlier loops first, so that whatever a point is moved onto has found its place already.
        std::stable_sort(contacts.begin(), contacts.end(), [](const outline_contact& a, const outline_contact& b) {
            return std::tie(a.loop, a.place) < std::tie(b.loop, b.place);
        });
        for (std::size_t first = 0; first < contacts.size();) {
            std::size_t end = first + 1;
            while (end < contacts.size() && contacts[end].loop == contacts[first].loop &&
                   contacts[end].place == contacts[first].place) {
                ++end;
            }
            if (!shape_.is_of_face(contacts[first].loop)) {
                move_point({contacts.begin() + static_cast<std::ptrdiff_t>(first),
                            contacts.begin() + static_cast<std::ptrdiff_t>(end)});
            }
            first = end;
        }
        for (const outline_contact& c : contacts) {
            if (!shape_.is_of_face(c.line_loop)) {
                split(c.line_loop, c.line_place, shape_.loops[c.loop][c.place]);
            }
        }
        insert_splits();
    }

private:
    struct line_ends {
        index from;
        index to;
    };

    line_ends ends(index loop, index place) const {
        const std::vector<index>& points = shape_.loops[loop];
        return {points[place], points[place + 1 < points.size() ? place + 1 : 0]};
    }

    const sweep_point& position(index point) const { return shape_.points[point]; }

    // The ends of a line stand nearer to a point than any other of its points, as far as is known.
    void move_point(std::span<const outline_contact> contacts) {
        const index loop = contacts.front().loop;
        index& point = shape_.loops[loop][contacts.front().place];
        const sweep_point p = position(point);
        index nearest_end = no_index;
        double end_distance = tolerance_;
        const outline_contact* nearest_line = nullptr;
        double line_distance = 0;
        for (const outline_contact& c : contacts) {
            if (!shape_.is_of_face(c.line_loop) && c.line_loop > loop) {
                continue;
            }
            const line_ends line = ends(c.line_loop, c.line_place);
            for (const index end : {line.from, line.to}) {
                const double away = distance(p, position(end));
                if (away < end_distance || (away == end_distance && nearest_end == no_index)) {
                    nearest_end = end;
                    end_distance = away;
                }
            }
            const double away = distance(p, nearest_on(line, p).position);
            if (nearest_line == nullptr || away < line_distance) {
                nearest_line = &c;
                line_distance = away;
            }
        }
        if (nearest_end != no_index) {
            point = nearest_end;
        } else if (nearest_line != nullptr && line_distance <= tolerance_) { // the line may have moved away
            const line_ends line = ends(nearest_line->line_loop, nearest_line->line_place);
            const place_on_line found = nearest_on(line, p);
            shape_.points[point] = found.position;
            if (shape_.is_of_face(nearest_line->line_loop)) {
                splits_.push_back({nearest_line->line_loop, nearest_line->line_place, found.along, point});
            }
        }
    }

    struct place_on_line {
        double along;
        sweep_point position;
    };

    place_on_line nearest_on(const line_ends& line, const sweep_point& p) const {
        const double along = nearest_place(position(line.from), position(line.to), p);
        return {along, point_on(position(line.from), position(line.to), along)};
    }

    void split(index loop, index place, index point) {
        const line_ends line = ends(loop, place);
        const place_on_line nearest = nearest_on(line, position(point));
        const bool is_near = distance(position(point), nearest.position) <= tolerance_;
        if (is_near && point != line.from && point != line.to) {
            splits_.push_back({loop, place, nearest.along, point});
        }
    }

    void insert_splits() {
        std::stable_sort(splits_.begin(), splits_.end(), [](const line_split& a, const line_split& b) {
            return std::tie(a.loop, a.place, a.along) < std::tie(b.loop, b.place, b.along);
        });
        std::size_t next = 0;
        for (std::size_t l = 0; l < shape_.loops.size(); ++l) {
            std::vector<index> whole;
            const auto add = [&whole](index point) {
                if (whole.empty() || whole.back() != point) {
                    whole.push_back(point);
                }
            };
            for (std::size_t i = 0; i < shape_.loops[l].size(); ++i) {
                add(shape_.loops[l][i]);
                for (; next < splits_.size() && splits_[next].loop == l && splits_[next].place == i; ++next) {
                    add(splits_[next].point);
                }
            }
            while (whole.size() > 1 && whole.front() == whole.back()) {
                whole.pop_back();
            }
            shape_.loops[l] = std::move(whole);
        }
    }

    outlines& shape_;
    double tolerance_;
    std::vector<line_split> splits_;
};

} // namespace

void snap(outlines& shape, const std::vector<outline_contact>& contacts, double tolerance) {
    snapper(shape, tolerance).run(contacts);
}

} // namespace sketchup
