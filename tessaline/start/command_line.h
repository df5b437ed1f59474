#pragma once

// Takes the command line apart. Works on the text as typed and on nothing else: no argument list, no file, no state.

#include <string>
#include <string_view>

struct command_line {
    std::string input_path;  // empty if the line names none
    std::string output_path; // empty if the line names none
    std::string rest;        // what is left of the line behind the fields; see take_model_word
    bool load_all_layers = false;
    bool incl_edge_lines = false;
    bool incl_views = false;
    bool is_animation = false;
    std::string progress_argument; // what follows "-progress "
};

// Switches are searched with their leading blank, case included, each once, and removed wherever they stand, even
// inside quotes; then three fields are cut: the program's own path, the input path and the output path. A field that
// begins with a double quotation mark ends at the next one, any other at the next blank; a field that does not end is
// not cut, but for the output path, which is then the whole rest of the line. Any text gives a result.
command_line parse_command_line(std::string_view text);

// Whether anything stands behind the program's own path.
bool has_arguments(std::string_view text);

// One unquoted argument leaves no input path and stays in `rest`. If that ends in ".qlm", it becomes the input path,
// and the output path becomes the same with every "geometry.qlm" replaced by "batch_file.txt". Whether it did.
bool take_model_word(command_line& line);
