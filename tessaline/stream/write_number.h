#pragma once

// Numbers as text, exactly as the C library's conversions give them in the C locale, several times faster.

#include "qlw/qlw_math.h"

// What write_number and write_integer may touch behind the pointer they are given; the text itself is shorter.
inline constexpr int number_room = 32;

// Writes a double as "%.9g" does: up to nine significant digits, the shorter of fixed and exponent form, no terminator.
// out: at least number_room bytes, all of which may be overwritten. Gives the end of the text.
// Every number is exact; infinities are "inf" and "-inf", negative zero is "-0". What is not a number is "nan": its
// sign would follow the processor.
char* write_number(char* out, double value);

// Writes an int as "%d" does, under the same rules.
char* write_integer(char* out, int value);

// As it is written: metres, or a part of a unit vector.
inline double snapped(double value) {
    return snap_to_zero(value, smallest_in_text);
}
