#pragma once

// Numbers out of the text of a stream, fast: they are most of what a stream holds.

#include <array>
#include <optional>
#include <string_view>

// Reads one number from the front of a text and takes it off. False, and the text is as it was, if it begins with none.
// "inf" and "nan" are numbers. The result is the nearest double.
bool take_number(std::string_view& text, double& number);

// Three numbers in parentheses, with or without blanks behind the commas.
std::optional<std::array<double, 3>> read_triple(std::string_view text);

// A whole number with nothing behind it.
std::optional<int> read_integer(std::string_view text);

// A number with nothing behind it.
std::optional<double> read_real(std::string_view text);

// Puts a number with nothing behind it, times the factor, in place of another; one that does not parse, or is not
// finite, leaves that.
void take_real(std::string_view text, double& into, double factor = 1);

// Three whole numbers between commas, with or without blanks behind those.
std::optional<std::array<int, 3>> read_corners(std::string_view text);
