#pragma once

// The records of a geometry stream, each line taken apart.

#include "tools/batch_reading/file_lines.h"
#include "tools/gltf/vertex_data.h"

#include <cstdint>
#include <string_view>

// As a vertex group gives it; metres. A number that single precision cannot hold is not finite.
struct stream_corner {
    gltf::float3 position{};
    gltf::float3 normal{};
    gltf::float2 coordinates{}; // u and v, v upwards
    bool has_coordinates = false;
};

// What is done with the records. The views are valid during the call.
class record_taker {
public:
    virtual ~record_taker() = default;
    virtual void block_begins() = 0;
    virtual void block_ends() = 0;
    virtual void vertex(int number, const stream_corner& corner) = 0;
    virtual void triangle(const std::array<int, 3>& corners, std::uint64_t line) = 0;
    // Any record that is none of these: its tag and what stands behind the semicolon.
    virtual void record(std::string_view tag, std::string_view payload) = 0;
    // Asked now and then: false ends the reading.
    virtual bool goes_on() = 0;
};

struct stream_reading {
    bool has_end = false;          // there was an "END;"
    std::uint64_t faults = 0;      // lines that are no record or whose numbers do not parse; they are left out
    std::uint64_t first_fault = 0; // its line, from 1
    std::uint64_t lines = 0;
};

// Reads to the end of the lines.
stream_reading read_records(file_lines& lines, record_taker& taker);
