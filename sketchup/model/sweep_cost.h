#pragma once

// What the tessellator would spend on a face, before it is let loose on it.

#include "sketchup/model/sweep_plane.h"
#include "sketchup/model/values.h"

#include <cstddef>
#include <span>
#include <vector>

namespace sketchup {

// Says whether the sweep over a face stays in proportion. The sweep makes a vertex of every crossing of two lines, of
// which n lines can have n² / 2, and at every corner it walks over the lines that pass above it. Faces drawn in the
// host have no crossings; damaged ones have few. Keeps its scratch memory.
class sweep_cost {
public:
    // A face of no more corners is cheap whatever its shape.
    static constexpr std::size_t always_cheap = 256;
    // Crossings and pairs of lines upon each other allowed for each corner.
    static constexpr std::size_t most_crossings = 8;
    // Pairs of lines side by side in the sweep; the tessellator needs about two seconds for as many.
    static constexpr std::size_t default_most_pairs = 200'000'000;

    explicit sweep_cost(std::size_t most_pairs = default_most_pairs) : most_pairs_(most_pairs) {}

    // points, loop_sizes: as in tessellator; all finite.
    bool is_bearable(std::span<const vec3> points, std::span<const std::uint32_t> loop_sizes, const vec3& normal);

private:
    struct line {
        sweep_point from; // swept before `to`
        sweep_point to;
    };
    static bool cross(const line& a, const line& b);
    void collect(std::span<const vec3> points, std::span<const std::uint32_t> loop_sizes, const sweep_plane& plane);

    std::size_t most_pairs_;
    std::vector<line> lines_;
    std::vector<std::size_t> active_;
};

} // namespace sketchup
