#include "tests/batch/line_reader.h"

namespace {

std::string in_quotes(std::string_view text) {
    return '"' + std::string(text) + '"';
}

} // namespace

bool line_reader::take_if(std::string_view line) {
    if (!at(line))
        return false;
    ++position;
    return true;
}

void line_reader::take(std::string_view line) {
    if (!take_if(line))
        fail(in_quotes(line) + " must stand here");
}

void line_reader::take_date() {
    if (!is_date(take_text("#;")))
        fail_before("this is no date");
}

std::string_view line_reader::take_text(std::string_view tag) {
    if (!at_tag(tag))
        fail(in_quotes(tag) + " must stand here");
    return lines[position++].substr(tag.size());
}

int line_reader::take_whole_number(std::string_view tag) {
    const auto number = whole_number_in(take_text(tag));
    if (!number)
        fail_before("this is no whole number");
    return *number;
}

void line_reader::take_signed_number(std::string_view tag) {
    std::string_view text = take_text(tag);
    if (text.starts_with('-'))
        text.remove_prefix(1);
    if (!whole_number_in(text))
        fail_before("this is no whole number");
}

std::vector<int> line_reader::take_whole_numbers(std::string_view tag, std::string_view separator) {
    const auto numbers = whole_numbers_in(take_text(tag), separator);
    if (!numbers)
        fail_before("these are no whole numbers");
    return *numbers;
}

std::array<double, 3> line_reader::take_triple(std::string_view tag, std::string_view separator) {
    const auto numbers = triple_in(take_text(tag), separator);
    if (!numbers)
        fail_before("this is no triple of numbers in their shortest form");
    return *numbers;
}

std::array<double, 3> line_reader::take_unit(std::string_view tag, std::string_view separator) {
    const auto vector = take_triple(tag, separator);
    if (!is_unit(vector))
        fail_before("this is no unit vector");
    return vector;
}

std::array<double, 3> line_reader::take_unit_or_zero(std::string_view tag, std::string_view separator) {
    const auto vector = take_triple(tag, separator);
    if (!is_unit(vector) && vector != std::array<double, 3>{})
        fail_before("this is no unit vector");
    return vector;
}

void line_reader::take_real(std::string_view tag) {
    if (!is_real(take_text(tag)))
        fail_before("this is no number with six decimals");
}

void line_reader::fail(const std::string& reason) const {
    throw grammar_fault{position + 1,
                        reason + (at_end() ? ", the stream ends" : ", found " + in_quotes(lines[position]))};
}

void line_reader::fail_before(const std::string& reason) const {
    throw grammar_fault{position, reason + ", found " + in_quotes(lines[position - 1])};
}
