#include "tools/batch_glb/stream_records.h"

#include "tools/batch_glb/stream_numbers.h"

namespace {

constexpr std::uint64_t lines_between_questions = 1U << 16U;

class record_reader {
public:
    record_reader(file_lines& from, record_taker& to) : lines(from), taker(to) {}

    stream_reading read() {
        std::string_view line;
        while (lines.next(line)) {
            if (!line.empty() && line.front() == '#')
                continue;
            if (!take(line))
                fault();
            if (lines.number() % lines_between_questions == 0 && !taker.goes_on())
                break;
        }
        if (lines.is_too_long())
            fault();
        found.lines = lines.number();
        return found;
    }

private:
    void fault() {
        if (found.faults++ == 0)
            found.first_fault = lines.number();
    }

    // False for a line that is no record.
    bool take(std::string_view line) {
        if (line.starts_with("NORM;"))
            return take_normal(line.substr(5));
        if (line.starts_with("VERT;"))
            return take_vector(line.substr(5), pending.position);
        if (line.starts_with("ADDV;"))
            return take_vertex(line.substr(5));
        if (line.starts_with("UVQ;"))
            return take_coordinates(line.substr(4));
        if (line.starts_with("FACE;"))
            return take_face(line.substr(5));
        return take_other(line);
    }

    bool take_other(std::string_view line) {
        if (line == "MESH") {
            taker.block_begins();
            return true;
        }
        const std::size_t semicolon = line.find(';');
        if (semicolon == std::string_view::npos || semicolon == 0)
            return false;
        const std::string_view tag = line.substr(0, semicolon);
        if (tag == "MESH")
            taker.block_begins();
        else if (tag == "EMSH")
            taker.block_ends();
        else if (tag == "END")
            found.has_end = true;
        else
            taker.record(tag, line.substr(semicolon + 1));
        return true;
    }

    bool take_vector(std::string_view payload, gltf::float3& into) {
        const auto triple = read_triple(payload);
        if (triple)
            for (std::size_t i = 0; i < 3; ++i)
                into[i] = static_cast<float>((*triple)[i]);
        return triple.has_value();
    }

    // The vertices of a level face have one normal, mostly.
    bool take_normal(std::string_view payload) {
        if (payload.empty() || payload != last_normal_text) {
            if (!take_vector(payload, last_normal)) {
                last_normal_text.clear();
                return false;
            }
            last_normal_text = payload;
        }
        pending.normal = last_normal;
        return true;
    }

    bool take_coordinates(std::string_view payload) {
        const auto triple = read_triple(payload);
        if (triple)
            pending.coordinates = {static_cast<float>((*triple)[0]), static_cast<float>((*triple)[1])};
        pending.has_coordinates = triple.has_value();
        return triple.has_value();
    }

    bool take_vertex(std::string_view payload) {
        const auto number = read_integer(payload);
        if (number)
            taker.vertex(*number, pending);
        pending = {};
        return number.has_value();
    }

    bool take_face(std::string_view payload) {
        const auto corners = read_corners(payload);
        if (corners)
            taker.triangle(*corners, lines.number());
        return corners.has_value();
    }

    file_lines& lines;
    record_taker& taker;
    stream_corner pending;
    std::string last_normal_text; // empty if there is none
    gltf::float3 last_normal{};
    stream_reading found;
};

} // namespace

stream_reading read_records(file_lines& lines, record_taker& taker) {
    return record_reader(lines, taker).read();
}
