#pragma once

// Colours and their text forms.

#include <cstdint>
#include <string>
#include <string_view>

// A colour as 0x00BBGGRR.
using color_ref = std::uint32_t;

// "#rrggbb", lower case.
std::string color_to_text(color_ref color);

// The colour that a text holds: "#rrggbb", "rgb(r,g,b)" or a decimal number, which is taken as the colour without a
// mask. Never fails: what cannot be read is 0; "rgb(" without a comma is 0, with one comma it is red alone.
color_ref text_to_color(std::string_view text);
