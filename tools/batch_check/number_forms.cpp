#include "tools/batch_check/number_forms.h"

#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <string>

namespace batch_check {
namespace {

constexpr bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

// All that a fixed form of nine digits with up to three zeros ahead of them is divided by.
constexpr std::array<double, 13> powers_of_ten = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12};
constexpr int most_digits = 9;

// The digits of a number while they are read; quotients of such whole numbers by powers of ten are correctly rounded.
struct digits {
    std::uint64_t value = 0;
    int count = 0;
    int behind_point = 0;

    const char* take(const char* at, const char* end) {
        for (; at != end && is_digit(*at) && count <= most_digits; ++at, ++count)
            value = value * 10 + static_cast<std::uint64_t>(*at - '0');
        return at;
    }
    double number() const { return static_cast<double>(value) / powers_of_ten[static_cast<std::size_t>(behind_point)]; }
};

// Behind "0": nothing, or a fraction with at most three zeros ahead of its digits.
const char* read_below_one(const char* at, const char* end, double& value) {
    if (at == end || *at != '.') {
        value = 0;
        return at;
    }
    ++at;
    digits read;
    for (; at != end && *at == '0'; ++at)
        ++read.behind_point;
    const char* last = read.take(at, end);
    if (read.behind_point > 3 || read.count == 0 || read.count > most_digits || last[-1] == '0')
        return nullptr;
    read.behind_point += read.count;
    value = read.number();
    return last;
}

// Whether the number is spelt so.
bool is_spelt(double value, std::string_view text) {
    std::array<char, 32> spelt{};
    std::snprintf(spelt.data(), spelt.size(), "%.9g", value);
    return text == spelt.data();
}

// start: of the number; at: the "e" behind one digit and perhaps a fraction.
const char* read_exponent(const char* start, const char* at, const char* end, double& value) {
    ++at;
    if (at == end || (*at != '-' && *at != '+'))
        return nullptr;
    const bool is_small = *at++ == '-';
    const char* first = at;
    int exponent = 0;
    for (; at != end && is_digit(*at) && at - first < 3; ++at)
        exponent = exponent * 10 + (*at - '0');
    const bool is_spelt_right = at - first == 2 || (at - first == 3 && *first != '0');
    const bool is_needed = is_small ? exponent > 4 : exponent >= most_digits;
    if (!is_spelt_right || !is_needed)
        return nullptr;
    const auto [behind, error] = std::from_chars(start, at, value);
    if (error != std::errc() || behind != at)
        return nullptr;
    constexpr int most_of_full_precision = 300; // beyond, numbers lie so wide apart that nine digits may name none
    return exponent <= most_of_full_precision || is_spelt(value, std::string_view(start, at)) ? at : nullptr;
}

// A number of the form of "%.9g" at the beginning of a text. Gives the place behind it; null if there is none.
const char* read_shortest(const char* at, const char* end, double& value) {
    const bool is_negative = at != end && *at == '-';
    if (is_negative)
        ++at;
    if (at == end || !is_digit(*at))
        return nullptr;
    const char* const start = at;
    const char* behind = nullptr;
    if (*at == '0') {
        behind = read_below_one(at + 1, end, value);
    } else {
        digits read;
        at = read.take(at, end);
        const int whole = read.count;
        if (at != end && *at == '.') {
            const char* fraction = at + 1;
            at = read.take(fraction, end);
            read.behind_point = read.count - whole;
            if (read.behind_point == 0 || at[-1] == '0')
                return nullptr;
        }
        if (read.count > most_digits)
            return nullptr;
        value = read.number();
        behind = at == end || *at != 'e' ? at : whole == 1 ? read_exponent(start, at, end, value) : nullptr;
    }
    if (is_negative)
        value = -value;
    return behind;
}

// Three texts in brackets.
std::optional<std::array<std::string_view, 3>> three_fields(std::string_view text, std::string_view separator) {
    if (text.size() < 2 || text.front() != '(' || text.back() != ')')
        return std::nullopt;
    text = text.substr(1, text.size() - 2);
    std::array<std::string_view, 3> fields;
    fields[0] = take_field(text, separator);
    fields[1] = take_field(text, separator);
    fields[2] = text;
    return fields;
}

// Why a text is no triple of snapped numbers.
triple_form form_of_wrong_triple(std::string_view text, std::string_view separator) {
    const auto fields = three_fields(text, separator);
    if (!fields)
        return triple_form::wrong;
    bool all_are_numbers = true;
    bool one_is_not_finite = false;
    for (const std::string_view field : *fields) {
        one_is_not_finite |= is_not_finite(field);
        all_are_numbers &= is_not_finite(field) || shortest_number(field).has_value();
    }
    return all_are_numbers && one_is_not_finite ? triple_form::not_finite : triple_form::wrong;
}

constexpr double snap_limit = 1e-7; // what is nearer to 0 is written as 0

} // namespace

std::optional<int> whole_number(std::string_view text) {
    int value = 0;
    const char* const end = text.data() + text.size();
    const auto [behind, error] = std::from_chars(text.data(), end, value);
    const std::size_t sign = text.starts_with('-') ? 1 : 0;
    const bool has_leading_zero = text.size() > sign + 1 && text[sign] == '0';
    if (error != std::errc() || behind != end || has_leading_zero || text == "-0")
        return std::nullopt;
    return value;
}

bool read_corners(std::string_view text, std::string_view separator, std::array<int, 3>& into) {
    const char* at = text.data();
    const char* const end = at + text.size();
    for (std::size_t i = 0; i < into.size(); ++i) {
        for (const char c : i == 0 ? std::string_view() : separator)
            if (at == end || *at++ != c)
                return false;
        const char* const start = at;
        int number = 0;
        constexpr int most_before_last_digit = 214748363; // so that no number leaves 32 bits
        for (; at != end && is_digit(*at) && number <= most_before_last_digit; ++at)
            number = number * 10 + (*at - '0');
        if (at == start || (*start == '0' && at - start > 1))
            return false;
        into[i] = number;
    }
    return at == end;
}

std::string_view take_field(std::string_view& text, std::string_view separator) {
    const std::size_t at = text.find(separator);
    const std::string_view field = text.substr(0, at);
    text = at == std::string_view::npos ? std::string_view() : text.substr(at + separator.size());
    return field;
}

std::optional<double> shortest_number(std::string_view text) {
    double value = 0;
    const char* const end = text.data() + text.size();
    return read_shortest(text.data(), end, value) == end && !text.empty() ? std::optional(value) : std::nullopt;
}

bool is_not_finite(std::string_view text) {
    return text == "inf" || text == "-inf" || text == "nan" || text == "-nan";
}

std::optional<double> six_decimals(std::string_view text) {
    constexpr std::size_t decimals = 6;
    constexpr std::size_t digits_that_any_double_keeps = 15;
    const std::size_t sign = text.starts_with('-') ? 1 : 0;
    const std::size_t point = text.find('.');
    if (point == std::string_view::npos || point <= sign || text.size() != point + 1 + decimals ||
        (text[sign] == '0' && point != sign + 1))
        return std::nullopt;
    for (std::size_t i = sign; i < text.size(); ++i)
        if (i != point && !is_digit(text[i]))
            return std::nullopt;
    double value = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), value).ec != std::errc())
        return std::nullopt;
    if (text.size() > digits_that_any_double_keeps) { // else the digits are those that the number is printed with
        std::array<char, 400> again{};                // "%f" of the largest double has 317 characters
        std::snprintf(again.data(), again.size(), "%f", value);
        if (text != again.data())
            return std::nullopt;
    }
    return value;
}

triple_form read_snapped_triple(std::string_view text, std::string_view separator, triple& into) {
    into = {};
    triple read{};
    const char* at = text.data();
    const char* const end = at + text.size();
    for (std::size_t i = 0; i < 3; ++i) {
        const std::string_view ahead = i == 0 ? std::string_view("(") : separator;
        for (const char c : ahead)
            if (at == end || *at++ != c)
                return form_of_wrong_triple(text, separator);
        const char* const start = at;
        at = read_shortest(at, end, read[i]);
        if (at == nullptr)
            return form_of_wrong_triple(text, separator);
        const bool is_snapped = std::abs(read[i]) >= snap_limit || (read[i] == 0 && *start != '-');
        if (!is_snapped)
            return triple_form::wrong;
    }
    if (end - at != 1 || *at != ')')
        return triple_form::wrong;
    into = read;
    return triple_form::right;
}

std::optional<triple> six_decimal_triple(std::string_view text) {
    const auto fields = three_fields(text, ",");
    if (!fields)
        return std::nullopt;
    triple read{};
    for (std::size_t i = 0; i < 3; ++i) {
        const std::optional<double> number = six_decimals((*fields)[i]);
        if (!number)
            return std::nullopt;
        read[i] = *number;
    }
    return read;
}

bool is_unit(const triple& v, double tolerance) {
    return std::abs(v[0] * v[0] + v[1] * v[1] + v[2] * v[2] - 1) < tolerance;
}

bool is_zero(const triple& v) {
    return v == triple{};
}

bool is_date(std::string_view text) {
    constexpr std::string_view form = "00/00/0000  00:00:00 "; // each 0 stands for a digit; the time zone follows
    if (text == "Invalid DateTime")
        return true;
    if (text.size() < form.size())
        return false;
    for (std::size_t i = 0; i < form.size(); ++i)
        if (form[i] == '0' ? !is_digit(text[i]) : text[i] != form[i])
            return false;
    return true;
}

} // namespace batch_check
