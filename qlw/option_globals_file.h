#pragma once

// The file in which a parent program hands its settings over and gets them back: a line "name; value" for each.

#include "qlw/qlw_text_files.h"

#include <string>

// Reads the file into the table of settings; an empty or missing name changes nothing.
void read_option_globals(const std::string& path);

// The same for a file that is open. Lines that are empty, begin with "#" or have no name in front of their first ";"
// are skipped, and so are names whose first letter is no type. A value that equals the table's is not stored again; a
// name that the table lacks is added. Gives whether any setting changed.
bool read_option_globals_from_open_file(cl_input_file& file);

// Writes every setting that goes through the file, ascending by name. A text has its backslashes doubled, its line
// feeds written as a backslash and "n", and its carriage returns dropped; reading undoes only the first of these. A
// file that is not open is reported at level 2.
void write_option_globals_to_open_file(cl_output_file& file);
