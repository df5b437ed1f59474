#pragma once

// The forms that the texts in a geometry stream may have.

#include <array>
#include <optional>
#include <string_view>
#include <vector>

// The lines of a stream without their line ends. Nothing if a line does not end in CR LF.
std::optional<std::vector<std::string_view>> stream_lines(std::string_view stream);

// A whole number of at least 0 as "%d" writes it.
std::optional<int> whole_number_in(std::string_view text);

// Whole numbers with `separator` between them.
std::optional<std::vector<int>> whole_numbers_in(std::string_view text, std::string_view separator);

// Three numbers as "(%.9g,%.9g,%.9g)" writes them, with `separator` in place of ",". Each must be finite and 0 or at
// least 1e-07 from it, and must be spelled as that conversion spells it; 0 has no sign.
std::optional<std::array<double, 3>> triple_in(std::string_view text, std::string_view separator);

// Whether a vector of such numbers is a unit vector, and whether two are square to one another.
bool is_unit(const std::array<double, 3>& v);
bool is_square(const std::array<double, 3>& v, const std::array<double, 3>& w);

// A number as "%f" writes it.
bool is_real(std::string_view text);

// "09/09/2001  01:46:40 GMT" or the text that stands for a date beyond the calendar.
bool is_date(std::string_view text);
