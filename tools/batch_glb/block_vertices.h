#pragma once

// The vertices of the open block by their numbers.

#include "tools/batch_glb/stream_records.h"

#include <unordered_map>
#include <vector>

// A vertex, and where it went last: the same vertex may belong to triangles of several materials.
struct block_vertex {
    stream_corner corner;
    const void* owner = nullptr; // the primitive that has it
    std::uint32_t index = 0;     // its number there
};

class block_vertices {
public:
    // A number that comes again takes the place of the earlier vertex. Numbers that rise from 0, as a stream has them,
    // stand in a row; any others are looked up.
    void add(int number, const stream_corner& corner) {
        const auto at = static_cast<std::size_t>(number);
        if (number >= 0 && at < row.size())
            row[at] = {corner};
        else if (number >= 0 && at == row.size())
            row.push_back({corner});
        else
            others[number] = {corner};
    }

    // Null for a number that the block does not have.
    block_vertex* find(int number) {
        if (number >= 0 && static_cast<std::size_t>(number) < row.size())
            return &row[static_cast<std::size_t>(number)];
        const auto found = others.find(number);
        return found == others.end() ? nullptr : &found->second;
    }

    void clear() {
        row.clear();
        others.clear();
    }

private:
    std::vector<block_vertex> row;
    std::unordered_map<int, block_vertex> others;
};
