#pragma once

// Numbers read from text and written as text, in the same way on every platform and in every locale.

#include <cstdint>
#include <string>
#include <string_view>

// What is written for a value that is not a number, whatever the conversion: 0 / 0 has another sign on one processor
// than on the other, and C libraries differ in what they say of its kind.
inline constexpr std::string_view not_a_number_text = "nan";

// The decimal number at the start of the text, behind white space and one sign; 0 if there is none. What follows the
// digits is ignored. The digits are read as an unsigned number of 32 bits: 4294967295 gives -1, and so does any number
// above it; a minus sign then negates.
std::int32_t decimal_value(std::string_view text);

// The number at the start of the text, as the C library reads a double; 0 if there is none.
double double_value(std::string_view text);

// "%d".
std::string integer_text(std::int32_t number);

// "%.9g"; what is not a number has no sign.
std::string number_text(double number);
