// Which paths and switches a command line holds.

#include "tessaline/start/command_line.h"

#include "qlw/replace_all.h"
#include "qlw/trimmed.h"

#include <cstddef>
#include <optional>

namespace {

constexpr std::string_view model_name = "geometry.qlm";
constexpr std::string_view stream_name = "batch_file.txt";

// Removes the first occurrence of a switch with as many characters as stated. A line never begins with a switch, as the
// program's own path comes first; one that does keeps it.
bool remove_switch(std::string& text, std::string_view name, std::size_t length) {
    const std::size_t at = text.find(name);
    if (at == std::string::npos || at == 0)
        return false;
    text.erase(at, length);
    return true;
}

bool remove_switch(std::string& text, std::string_view name) {
    return remove_switch(text, name, name.size());
}

void remove_switches(std::string& text, command_line& line) {
    line.load_all_layers = remove_switch(text, " -load_all_layers");
    line.incl_edge_lines = remove_switch(text, " -incl_edge_lines");
    line.incl_views = remove_switch(text, " -incl_views");
    remove_switch(text, " -all_atts");
    // One more than the switch has: parents count on the character behind it going too.
    constexpr std::size_t animation_length = 15;
    line.is_animation = remove_switch(text, " -is_animation", animation_length);
}

// The progress argument runs to the end of the line.
std::string cut_progress_argument(std::string& text) {
    constexpr std::string_view name = "-progress ";
    const std::size_t at = text.find(name);
    if (at == std::string::npos || at == 0)
        return {};
    std::string argument(trimmed(std::string_view(text).substr(at + name.size())));
    text.erase(at);
    return argument;
}

// Cuts the text in front of the first `end` with the mark itself; nothing is cut if there is none.
std::optional<std::string> cut_up_to(std::string& text, char end) {
    const std::size_t at = text.find(end);
    if (at == std::string::npos)
        return std::nullopt;
    std::string field = text.substr(0, at);
    text.erase(0, at + 1);
    return field;
}

// Cuts the first field off the text. Nothing if it does not end; a quotation mark in front is gone all the same.
std::optional<std::string> cut_field(std::string& text) {
    if (!text.starts_with('"'))
        return cut_up_to(text, ' ');
    text.erase(0, 1);
    return cut_up_to(text, '"');
}

// The last field: unquoted and without an end it is the whole text, which stays.
std::string cut_last_field(std::string& text) {
    const bool is_quoted = text.starts_with('"');
    const auto field = cut_field(text);
    if (field)
        return *field;
    return is_quoted ? std::string() : text;
}

} // namespace

command_line parse_command_line(std::string_view text) {
    command_line line;
    std::string left(trimmed(text));
    remove_switches(left, line);
    line.progress_argument = cut_progress_argument(left);

    left = std::string(trimmed(left));
    cut_field(left); // the program's own path
    left = std::string(trimmed(left));
    line.input_path = cut_field(left).value_or(std::string());
    left = std::string(trimmed(left));
    line.output_path = cut_last_field(left);
    line.rest = left;
    return line;
}

bool has_arguments(std::string_view text) {
    std::string left(trimmed(text));
    return cut_field(left) && !trimmed(left).empty();
}

bool take_model_word(command_line& line) {
    if (!line.rest.ends_with(".qlm"))
        return false;
    line.input_path = line.rest;
    line.output_path = line.rest;
    replace_all(line.output_path, model_name, stream_name);
    return true;
}
