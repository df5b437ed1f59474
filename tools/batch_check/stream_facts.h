#pragma once

// What a stream says about itself and about the files that belong to it.

#include "tools/batch_check/number_forms.h"

#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace batch_check {

struct declared_material {
    std::string name; // with ".OrnMaterial" at its end
    std::size_t line = 0;
    std::uint64_t triangles = 0; // that show it on their front
    bool is_used = false;
};

struct stream_lamp {
    std::size_t line = 0;
    bool is_direct = false; // "LGHT;", else "LITE;"
};

// A full name in the stream, and its line.
struct named_file {
    std::string name;
    std::size_t line = 0;
};

struct stream_facts {
    static constexpr double infinite = std::numeric_limits<double>::infinity();

    bool is_whole = false; // read to its "END;", nothing passed over
    std::uint64_t bytes = 0;
    std::uint64_t layers = 0; // different names of layers
    std::uint64_t meshes = 0; // blocks, and bare faces of direct lights
    std::uint64_t vertices = 0;
    std::uint64_t triangles = 0;
    std::uint64_t edges = 0;                     // beams, or lines of a 3D document
    std::uint64_t triangles_without = 0;         // of no material, those of edges left out
    std::uint64_t sides_without_declaration = 0; // that name a material which nothing declares
    triple low = {infinite, infinite, infinite}; // of all vertices, metres
    triple high = {-infinite, -infinite, -infinite};
    std::vector<declared_material> materials; // number 10 first
    std::vector<stream_lamp> lamps;           // number 0 first
    std::vector<named_file> plants;           // that bring their own file
    std::vector<named_file> ground_covers;
};

} // namespace batch_check
