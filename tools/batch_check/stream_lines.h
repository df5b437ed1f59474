#pragma once

// The lines of a stream, taken by what is expected of them. What is wrong within a line becomes a finding, and the line
// counts as taken; a line that cannot stand where it stands is thrown as `out_of_order`, when its finding is made.

#include "tools/batch_check/findings.h"
#include "tools/batch_check/number_forms.h"
#include "tools/batch_reading/line_source.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace batch_check {

struct out_of_order {};

// The tags of all records, without their semicolons, ascending.
std::span<const std::string_view> known_records();

class stream_lines {
public:
    stream_lines(byte_source& stream, std::string file_name, findings& to)
        : lines(stream), file(std::move(file_name)), found(to) {}

    // ---- looking
    bool at_end() const { return lines.at_end(); }
    bool at(std::string_view line) const { return lines.at(line); }
    bool at_tag(std::string_view tag) const { return lines.at_tag(tag); }
    bool next_is(std::string_view line) { return lines.next_is(line); }
    std::string_view line() const { return lines.line(); }
    std::size_t number() const { return lines.number(); }
    const line_source& source() const { return lines; }

    // ---- taking one line; tag: with its semicolon
    void skip() { lines.advance(); }
    bool take_if(std::string_view line) {
        if (!at(line))
            return false;
        lines.advance();
        return true;
    }
    void take(std::string_view line) {
        if (!take_if(line))
            refuse_without(line);
    }
    std::string take_text(std::string_view tag); // what stands behind the tag
    // Nothing, and a finding, if it is no whole number.
    std::optional<int> take_whole_number(std::string_view tag);
    // The number that must stand behind the tag; any other is a finding of that code.
    void take_this_number(std::string_view tag, int expected, code what);
    void take_real(std::string_view tag);
    triple take_triple(std::string_view tag, std::string_view separator = ",");
    // Zero stands for a direction that cannot be told.
    triple take_unit_or_zero(std::string_view tag, std::string_view separator = ",");

    // What stands behind a tag that must be here, not taken yet.
    std::string_view payload(std::string_view tag) {
        if (!at_tag(tag))
            refuse_without(tag);
        return lines.line().substr(tag.size());
    }

    // ---- findings about the line that stands here
    void report(code what, const std::string& reason);
    [[noreturn]] void refuse(code what, const std::string& reason);
    // Out of order: the reason is that the text does not stand here.
    [[noreturn]] void refuse_without(std::string_view text);
    // Out of order, or no record at all.
    [[noreturn]] void refuse_order(const std::string& reason);
    bool reported_end() const { return has_reported_end; }

private:
    line_source lines;
    std::string file;
    findings& found;
    bool has_reported_end = false;
};

} // namespace batch_check
