#include "tools/batch_reading/stream_reader.h"

#include <charconv>
#include <deque>
#include <optional>
#include <unordered_map>

namespace {

constexpr std::size_t most_faults = 100; // more say nothing new

// Three numbers in parentheses, with or without a blank behind each comma.
std::optional<std::array<double, 3>> parse_triple(std::string_view text) {
    if (text.size() < 2 || text.front() != '(' || text.back() != ')')
        return std::nullopt;
    const char* at = text.data() + 1;
    const char* const end = text.data() + text.size() - 1;
    std::array<double, 3> result{};
    for (std::size_t i = 0; i < 3; ++i) {
        if (i > 0) {
            if (at == end || *at != ',')
                return std::nullopt;
            ++at;
        }
        while (at != end && *at == ' ')
            ++at;
        const auto [next, error] = std::from_chars(at, end, result[i]);
        if (error != std::errc())
            return std::nullopt;
        at = next;
    }
    return at == end ? std::optional(result) : std::nullopt;
}

std::optional<int> parse_int(std::string_view text) {
    int result = 0;
    const auto [next, error] = std::from_chars(text.data(), text.data() + text.size(), result);
    return error == std::errc() && next == text.data() + text.size() ? std::optional(result) : std::nullopt;
}

std::optional<std::array<int, 3>> parse_corners(std::string_view text) {
    std::array<int, 3> result{};
    for (std::size_t i = 0; i < 3; ++i) {
        const std::size_t comma = i < 2 ? text.find(',') : text.size();
        if (comma == std::string_view::npos)
            return std::nullopt;
        std::string_view number = text.substr(0, comma);
        while (!number.empty() && number.front() == ' ')
            number.remove_prefix(1);
        const std::optional<int> parsed = parse_int(number);
        if (!parsed)
            return std::nullopt;
        result[i] = *parsed;
        text.remove_prefix(i < 2 ? comma + 1 : comma);
    }
    return result;
}

// The beginning of what was read, for people; a line may be of any length.
std::string quoted(std::string_view text) {
    constexpr std::size_t most_of_it = 200;
    return std::string(text.substr(0, most_of_it));
}

} // namespace

class stream_line_reader::state {
public:
    explicit state(stream_visitor& to) : visitor(to) {}

    void add(std::string_view text) {
        ++line_number;
        line(text);
    }

    std::vector<stream_fault> finish() {
        if (!ended)
            fault("the stream has no \"END;\"");
        return std::move(faults);
    }

private:
    void fault(std::string reason) {
        if (faults.size() < most_faults)
            faults.push_back({line_number, std::move(reason)});
    }

    void line(std::string_view text) {
        if (text.empty())
            return fault("an empty line");
        if (text.front() == '#')
            return;
        if (ended)
            fault("a record behind \"END;\"");
        const std::size_t semicolon = text.find(';');
        const std::string_view tag = text.substr(0, semicolon);
        if (semicolon == std::string_view::npos && tag != "MESH")
            return fault("no semicolon");
        record(tag, semicolon == std::string_view::npos ? std::string_view() : text.substr(semicolon + 1));
    }

    void record(std::string_view tag, std::string_view payload) {
        if (tag == "NORM")
            triple(payload, pending.normal);
        else if (tag == "UVQ")
            pending.has_uvq = triple(payload, pending.uvq);
        else if (tag == "VERT")
            triple(payload, pending.position);
        else if (tag == "ADDV")
            add_vertex(payload);
        else if (tag == "FACE")
            face(payload);
        else if (tag == "MESH")
            begin_block();
        else if (tag == "EMSH")
            end_block();
        else
            state_or_other(tag, payload);
    }

    void state_or_other(std::string_view tag, std::string_view payload) {
        if (tag == "TLAY")
            standing.layer = payload;
        else if (tag == "CULL")
            standing.one_sided = payload == "1";
        else if (tag == "INVS")
            standing.unseen = payload == "1";
        else if (tag == "MATL")
            number(payload, standing.material);
        else if (tag == "MAT2")
            number(payload, standing.back_material);
        else if (tag == "END")
            ended = true;
        visitor.record(tag, payload);
    }

    bool triple(std::string_view payload, std::array<double, 3>& into) {
        const auto parsed = parse_triple(payload);
        if (!parsed)
            fault("three numbers expected: " + quoted(payload));
        else
            into = *parsed;
        return parsed.has_value();
    }

    void number(std::string_view payload, int& into) {
        const auto parsed = parse_int(payload);
        if (!parsed)
            return fault("a number expected: " + quoted(payload));
        into = *parsed;
    }

    void add_vertex(std::string_view payload) {
        int at = 0;
        number(payload, at);
        by_number[at] = &vertices.emplace_back(pending);
        pending = {};
    }

    void face(std::string_view payload) {
        const auto numbers = parse_corners(payload);
        if (!numbers)
            return fault("three vertex numbers expected: " + quoted(payload));
        for (std::size_t i = 0; i < 3; ++i) {
            const auto found = by_number.find((*numbers)[i]);
            if (found == by_number.end())
                return fault("no vertex " + std::to_string((*numbers)[i]));
            standing.corners[i] = found->second;
        }
        visitor.triangle(standing);
    }

    void begin_block() {
        if (open)
            fault("a block inside a block");
        open = true;
        standing = {};
        visitor.block_begins();
    }

    void end_block() {
        visitor.block_ends(open);
        open = false;
        vertices.clear();
        by_number.clear();
    }

    stream_visitor& visitor;
    std::vector<stream_fault> faults;
    std::size_t line_number = 0;
    bool open = false;
    bool ended = false;
    stream_vertex pending;
    stream_triangle standing;
    std::deque<stream_vertex> vertices; // of the open block, at fixed addresses
    std::unordered_map<int, const stream_vertex*> by_number;
};

stream_line_reader::stream_line_reader(stream_visitor& to) : reading(std::make_unique<state>(to)) {}
stream_line_reader::~stream_line_reader() = default;

void stream_line_reader::add(std::string_view line) {
    reading->add(line);
}

std::vector<stream_fault> stream_line_reader::finish() {
    return reading->finish();
}

std::vector<stream_fault> read_stream(std::string_view text, stream_visitor& visitor) {
    stream_line_reader reader(visitor);
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        reader.add(line);
    }
    return reader.finish();
}
