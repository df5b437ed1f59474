#include "captured_trace.h"

#include "qlw/trace_state.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <ostream>

namespace {

void empty_file(const std::string& name) {
    std::ofstream(name, std::ios::trunc);
}

// line: ":source(12): function():  text", as the log file holds it when no time is shown.
traced_line parsed(const std::string& line) {
    const auto source_end = line.find('(');
    const auto function_start = line.find("): ") + 3;
    const auto function_end = line.find("():", function_start);
    const auto text_start = line.find_first_not_of(' ', function_end + 3);
    return {line.substr(1, source_end - 1), line.substr(function_start, function_end - function_start),
            line.substr(text_start), !in_a_dialog};
}

} // namespace

void PrintTo(const traced_line& line, std::ostream* out) {
    *out << line.source << ", " << line.function << ": " << line.text << (line.is_shown ? " (in a dialog)" : "");
}

captured_trace::captured_trace() {
    empty_file(log_name);
    cl_trace_state& state = trace_state();
    state.trace_enabled = true;
    state.show_function = true;
    state.log_always = true;
    state.log_file_is_new = false; // no header in front of the first line
    state.log_file_name = log_name;
    // An error is traced before its dialog opens.
    desktop.while_open = [this] { shown_lines.insert(line_count() - 1); };
}

captured_trace::~captured_trace() {
    cl_trace_state& state = trace_state();
    state.trace_enabled = false;
    state.show_function = false;
    state.log_always = false;
    state.log_file_is_new = true;
    state.log_file_name.clear();
}

std::size_t captured_trace::line_count() const {
    std::ifstream log(log_name);
    return static_cast<std::size_t>(
        std::count(std::istreambuf_iterator<char>(log), std::istreambuf_iterator<char>(), '\n'));
}

std::vector<traced_line> captured_trace::take() {
    std::vector<traced_line> lines;
    std::ifstream log(log_name);
    for (std::string line; std::getline(log, line);) {
        if (line.ends_with('\r'))
            line.pop_back();
        lines.push_back(parsed(line));
        lines.back().is_shown = shown_lines.contains(lines.size() - 1);
    }
    shown_lines.clear();
    log.close();
    empty_file(log_name);
    return lines;
}
