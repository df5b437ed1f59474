#pragma once

// The lines of a stream, one after the other, taken by what is expected of them. Whatever is not as expected is thrown
// as a grammar_fault that names the line.

#include "tests/batch/stream_forms.h"
#include "tests/batch/stream_grammar.h"

#include <string>
#include <string_view>
#include <vector>

class line_reader {
public:
    explicit line_reader(std::vector<std::string_view> all_lines) : lines(std::move(all_lines)) {}

    // ---- looking
    bool at_end() const { return position >= lines.size(); }
    bool at(std::string_view line) const { return !at_end() && lines[position] == line; }
    bool at_tag(std::string_view tag) const { return !at_end() && lines[position].starts_with(tag); }
    bool next_is(std::string_view line) const { return position + 1 < lines.size() && lines[position + 1] == line; }

    // ---- taking one line; tag: with its semicolon
    void skip() { ++position; }
    bool take_if(std::string_view line); // false, with nothing taken, if another stands here
    void take(std::string_view line);
    void take_date();
    std::string_view take_text(std::string_view tag); // what stands behind the tag
    int take_whole_number(std::string_view tag);
    void take_signed_number(std::string_view tag); // -1 stands for "not set"
    std::vector<int> take_whole_numbers(std::string_view tag, std::string_view separator);
    std::array<double, 3> take_triple(std::string_view tag, std::string_view separator);
    std::array<double, 3> take_unit(std::string_view tag, std::string_view separator);
    // Zero stands for a direction that cannot be told.
    std::array<double, 3> take_unit_or_zero(std::string_view tag, std::string_view separator);
    void take_real(std::string_view tag);

    [[noreturn]] void fail(const std::string& reason) const;        // about the line that stands here
    [[noreturn]] void fail_before(const std::string& reason) const; // about the line taken last

private:
    std::vector<std::string_view> lines;
    std::size_t position = 0;
};
