#pragma once

// How the files of a batch spell numbers. All of these take the whole text or nothing of it.

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace batch_check {

// A whole number of 32 bits as "%d" spells it: no plus sign, no leading zeros, no "-0".
std::optional<int> whole_number(std::string_view text);

// Whole numbers, at least 0, with `separator` between them; false if there are more or fewer than three.
bool read_corners(std::string_view text, std::string_view separator, std::array<int, 3>& into);

// The part of a text up to the separator, which is taken off with it; all of it if there is none.
std::string_view take_field(std::string_view& text, std::string_view separator);

// A number as "%.9g" spells it: up to nine significant digits, the shorter of fixed and exponent form, no zeros behind
// the last digit of a fraction. "-0" is one. Nothing for "inf" and "nan".
std::optional<double> shortest_number(std::string_view text);
bool is_not_finite(std::string_view text); // "inf", "-inf", "nan", "-nan"

// A number as "%f" spells it: six decimals.
std::optional<double> six_decimals(std::string_view text);

using triple = std::array<double, 3>;
enum class triple_form { right, wrong, not_finite };

// "(a,b,c)" in shortest numbers, each 0 without a sign or at least 1e-7 from it. separator: what stands in place of
// ",". into: all zero unless the form is right.
triple_form read_snapped_triple(std::string_view text, std::string_view separator, triple& into);

// "(a,b,c)" with six decimals each.
std::optional<triple> six_decimal_triple(std::string_view text);

// Whether the length is 1, or 0. tolerance: of the square of the length.
bool is_unit(const triple& v, double tolerance);
bool is_zero(const triple& v);

// "09/09/2001  01:46:40 GMT", or the text that stands for a date beyond the calendar.
bool is_date(std::string_view text);

} // namespace batch_check
