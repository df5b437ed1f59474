#pragma once

// A setting on the command line, and its line in the option file.

#include <string>
#include <string_view>

// Why the converter would not take the value as it is meant, in a sentence; empty if it does. The name must be one of
// the settings of the program family. Values: 0, 1, true or false; a whole number of 32 bits; a real number; a colour
// from 0 to 16777215; a point "(x, y, z)" or "x, y, z"; a text on one line, without blanks at its ends.
std::string complaint_about_setting(std::string_view name, std::string_view value);

// "name; value" with its line end. For a setting without complaint.
std::string setting_line(std::string_view name, std::string_view value);
