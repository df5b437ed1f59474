#include "tests/batch/stream_forms.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

constexpr double vector_tolerance = 1e-6; // the text has nine digits, and what is below 1e-7 was cut off

// The number that a text spells in the way of a printf conversion, and in no other way.
std::optional<double> number_spelled_by(const char* conversion, std::string_view text) {
    const std::string spelled(text);
    const double value = std::strtod(spelled.c_str(), nullptr);
    std::array<char, 400> again{}; // "%f" of the largest double has 317 characters
    std::snprintf(again.data(), again.size(), conversion, value);
    if (!std::isfinite(value) || spelled != again.data())
        return std::nullopt;
    return value;
}

std::vector<std::string_view> fields_of(std::string_view text, std::string_view separator) {
    std::vector<std::string_view> fields;
    for (std::size_t end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
        fields.push_back(text.substr(0, end));
        text.remove_prefix(end + separator.size());
    }
    fields.push_back(text);
    return fields;
}

std::optional<double> snapped_number(std::string_view text) {
    const auto value = number_spelled_by("%.9g", text);
    constexpr double snap_limit = 1e-7;
    const bool is_tiny = value && *value != 0 && std::abs(*value) < snap_limit;
    return text == "-0" || is_tiny ? std::nullopt : value;
}

} // namespace

std::optional<std::vector<std::string_view>> stream_lines(std::string_view stream) {
    constexpr std::string_view line_end = "\r\n";
    std::vector<std::string_view> lines;
    while (!stream.empty()) {
        const std::size_t feed = stream.find('\n');
        if (feed == std::string_view::npos || feed == 0 || stream[feed - 1] != '\r')
            return std::nullopt;
        lines.push_back(stream.substr(0, feed - 1));
        stream.remove_prefix(feed - 1 + line_end.size());
    }
    return lines;
}

std::optional<int> whole_number_in(std::string_view text) {
    constexpr std::size_t most_digits = 9; // fits an int
    if (text.empty() || text.size() > most_digits || text.find_first_not_of("0123456789") != std::string_view::npos ||
        (text.size() > 1 && text[0] == '0'))
        return std::nullopt;
    return std::atoi(std::string(text).c_str());
}

std::optional<std::vector<int>> whole_numbers_in(std::string_view text, std::string_view separator) {
    std::vector<int> numbers;
    for (const std::string_view field : fields_of(text, separator)) {
        const auto number = whole_number_in(field);
        if (!number)
            return std::nullopt;
        numbers.push_back(*number);
    }
    return numbers;
}

std::optional<std::array<double, 3>> triple_in(std::string_view text, std::string_view separator) {
    if (text.size() < 2 || text.front() != '(' || text.back() != ')')
        return std::nullopt;
    const auto fields = fields_of(text.substr(1, text.size() - 2), separator);
    std::array<double, 3> numbers{};
    if (fields.size() != numbers.size())
        return std::nullopt;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto number = snapped_number(fields[i]);
        if (!number)
            return std::nullopt;
        numbers[i] = *number;
    }
    return numbers;
}

bool is_unit(const std::array<double, 3>& v) {
    return std::abs(std::hypot(v[0], v[1], v[2]) - 1) < vector_tolerance;
}

bool is_square(const std::array<double, 3>& v, const std::array<double, 3>& w) {
    return std::abs(v[0] * w[0] + v[1] * w[1] + v[2] * w[2]) < vector_tolerance;
}

bool is_real(std::string_view text) {
    return number_spelled_by("%f", text).has_value();
}

bool is_date(std::string_view text) {
    constexpr std::string_view form = "00/00/0000  00:00:00 "; // each 0 stands for a digit; the time zone follows
    if (text == "Invalid DateTime")
        return true;
    if (text.size() < form.size())
        return false;
    for (std::size_t i = 0; i < form.size(); ++i)
        if (form[i] == '0' ? text[i] < '0' || text[i] > '9' : text[i] != form[i])
            return false;
    return true;
}
