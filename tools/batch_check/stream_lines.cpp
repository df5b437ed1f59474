#include "tools/batch_check/stream_lines.h"

#include <algorithm>
#include <array>

namespace batch_check {
namespace {

// Ascending.
constexpr std::array<std::string_view, 53> known_tags = {
    "ADDV", "CLPN", "CLPP", "CULL", "DFBC", "DFEC", "DFFC", "EDG1", "EDG2", "EDGE", "EDGN", "EMSH", "END",  "FACE",
    "GCOR", "GNDC", "INVS", "LGHT", "LITE", "LYIN", "LYNM", "LYRS", "MAT2", "MATF", "MATI", "MATL", "MESH", "MPU2",
    "MPUV", "MTX2", "NORM", "PASS", "PLDM", "PLLB", "PLLC", "PLNM", "PLNT", "PLRT", "PLSC", "PLSN", "RPCL", "RPCN",
    "RPCP", "RPCX", "RPCY", "RPCZ", "RPSX", "RPSY", "RPSZ", "SHDW", "TLAY", "UVQ",  "VERT"};

bool is_record_or_comment(std::string_view line) {
    if (line.starts_with('#') || line == "MESH")
        return true;
    const std::size_t semicolon = line.find(';');
    const std::string_view tag = line.substr(0, semicolon);
    return semicolon != std::string_view::npos && std::binary_search(known_tags.begin(), known_tags.end(), tag);
}

constexpr double unit_tolerance = 2e-6; // of the square: the text has nine digits, and what is below 1e-7 was cut off

} // namespace

std::span<const std::string_view> known_records() {
    return known_tags;
}

std::string stream_lines::take_text(std::string_view tag) {
    std::string text(payload(tag));
    lines.advance();
    return text;
}

std::optional<int> stream_lines::take_whole_number(std::string_view tag) {
    const std::optional<int> number = whole_number(payload(tag));
    if (!number)
        report(code::stream_number, "no whole number");
    lines.advance();
    return number;
}

void stream_lines::take_this_number(std::string_view tag, int expected, code what) {
    const std::optional<int> number = whole_number(payload(tag));
    if (!number)
        report(code::stream_number, "no whole number");
    else if (*number != expected)
        report(what, "the number must be " + std::to_string(expected));
    lines.advance();
}

void stream_lines::take_real(std::string_view tag) {
    if (!six_decimals(payload(tag)))
        report(code::stream_number, "no number with six decimals");
    lines.advance();
}

triple stream_lines::take_triple(std::string_view tag, std::string_view separator) {
    triple read{};
    switch (read_snapped_triple(payload(tag), separator, read)) {
    case triple_form::right:
        break;
    case triple_form::not_finite:
        report(code::stream_not_finite, "a number that is not finite");
        break;
    case triple_form::wrong:
        report(code::stream_number, "no triple of numbers in their shortest form");
        break;
    }
    lines.advance();
    return read;
}

triple stream_lines::take_unit_or_zero(std::string_view tag, std::string_view separator) {
    triple read{};
    const triple_form form = read_snapped_triple(payload(tag), separator, read);
    if (form != triple_form::right)
        return take_triple(tag, separator); // which says what is wrong
    if (!is_unit(read, unit_tolerance) && !is_zero(read))
        report(code::stream_direction, "neither a unit vector nor zero");
    lines.advance();
    return read;
}

void stream_lines::report(code what, const std::string& reason) {
    found.add(what, file, number(), at_end() ? reason : reason + ": " + in_quotes(line()));
}

void stream_lines::refuse(code what, const std::string& reason) {
    if (!at_end()) {
        report(what, reason);
    } else if (!has_reported_end) {
        has_reported_end = true;
        report(code::stream_cut_off, reason + "; the stream stops");
    }
    throw out_of_order();
}

void stream_lines::refuse_order(const std::string& reason) {
    const bool is_known = at_end() || is_record_or_comment(line());
    refuse(is_known ? code::stream_order : code::stream_unknown, is_known ? reason : "no record and no comment");
}

void stream_lines::refuse_without(std::string_view text) {
    refuse_order(in_quotes(text) + " must stand here");
}

} // namespace batch_check
