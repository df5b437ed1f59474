#pragma once

// Reads a geometry stream back: what a renderer would see of it.

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// A vertex as its group gives it; metres.
struct stream_vertex {
    std::array<double, 3> normal{};
    std::array<double, 3> uvq{};
    std::array<double, 3> position{};
    bool has_uvq = false;
};

// The state that stands when a triangle is met, and its corners.
struct stream_triangle {
    std::array<const stream_vertex*, 3> corners{};
    int material = 0;      // number of "MATL;", 0 if none was given
    int back_material = 0; // number of "MAT2;", 0 if none was given
    bool one_sided = false;
    bool unseen = false; // by the camera
    std::string_view layer;
};

// Gets what a stream holds, in its order. Every function may stay as it is.
class stream_visitor {
public:
    virtual ~stream_visitor() = default;
    virtual void block_begins() {}
    virtual void block_ends(bool was_open) { static_cast<void>(was_open); }
    virtual void triangle(const stream_triangle& found) { static_cast<void>(found); }
    // Any record that is none of the above: its tag and what stands behind the semicolon.
    virtual void record(std::string_view tag, std::string_view payload) {
        static_cast<void>(tag);
        static_cast<void>(payload);
    }
};

struct stream_fault {
    std::size_t line = 0; // from 1
    std::string reason;
};

// Reads a stream line by line, for one that does not fit into memory. Memory is that of the largest block.
class stream_line_reader {
public:
    explicit stream_line_reader(stream_visitor& to);
    ~stream_line_reader();
    stream_line_reader(const stream_line_reader&) = delete;
    stream_line_reader& operator=(const stream_line_reader&) = delete;

    // line: without its end.
    void add(std::string_view line);
    // To be called behind the last line. Gives what is wrong, as read_stream does.
    std::vector<stream_fault> finish();

private:
    class state;
    std::unique_ptr<state> reading;
};

// Reads a whole stream. text: the bytes of the file, lines ended by CR LF or LF. Gives what is wrong with it: a line
// that is no record, a number that does not parse, a vertex that does not exist, a missing "END;". Reads on behind a
// fault. Memory is that of the largest block.
std::vector<stream_fault> read_stream(std::string_view text, stream_visitor& visitor);
