#include "qlw/qlw_trace.h"

#include "platform/platform.h"
#include "qlw/error_list.h"
#include "qlw/log_file.h"
#include "qlw/qlw_error_dialog.h"
#include "qlw/trace_state.h"

#include <utility>

namespace {

constexpr int report_level = 1;
constexpr int first_dialog_level = 2;
constexpr int listed_error_level = 8;
constexpr int log_only_level = 9;
constexpr int log_level = 10;

constexpr double long_delay_seconds = 2.0;

cl_trace_state process_trace_state;

std::string with_six_digits_for_plain_g(std::string_view format) {
    std::string changed(format);
    for (std::size_t at = changed.find("%g"); at != std::string::npos; at = changed.find("%g", at))
        changed.replace(at, 2, "%.6g");
    return changed;
}

// For formats of this file, which fit their arguments.
template<class... Arguments>
std::string formed(std::string_view format, const Arguments&... arguments) {
    return format_text(format, arguments...).value_or(std::string());
}

std::string location_of(const cl_trace& trace) {
    std::string file = trace.source_file;
    if (file.ends_with(".rbs"))
        file.pop_back();
    if (trace.line < 1)
        return formed("%s:", file);
    if (trace_state().show_function)
        return formed("%s(%d): %s():", file, trace.line, trace.function);
    return formed("%s(%d):", file, trace.line);
}

std::string memory_text() {
    return formed(" (%.1fM)", static_cast<double>(platform::working_set_bytes()) * 1e-6);
}

std::string time_text() {
    const double now = platform::seconds_since_epoch();
    double& base = trace_state().time_base;
    if (base == 0)
        base = now;
    const double elapsed = now > base ? now - base : 0.0;
    const std::string clock = platform::local_time_text(static_cast<std::int64_t>(now), "%X");
    if (elapsed > long_delay_seconds)
        return formed(" (DELAY: %6.1f secs: %s)", elapsed, clock);
    return formed(" (T: %s:%5.2f)", clock, elapsed);
}

bool logs_to_file() {
    return trace_state().log_to_file || trace_state().log_always;
}

bool shows_dialog(int level) {
    if (level == listed_error_level)
        return !trace_state().error_list_active;
    return level >= first_dialog_level && level < listed_error_level;
}

bool writes_plain_line(int level) {
    return level < first_dialog_level || level >= log_level || (level == log_only_level && logs_to_file());
}

void route(cl_trace& trace) {
    const std::string text = trace.message;
    if (shows_dialog(trace.level))
        show_error_dialog(trace, text);
    else if (writes_plain_line(trace.level))
        trace.write_trace_line(text);
}

} // namespace

cl_trace_state& trace_state() {
    return process_trace_state;
}

cl_trace::cl_trace(std::string source_file_name, int source_line, std::string function_name, int trace_level,
                   int extra_value)
    : source_file(std::move(source_file_name)), line(source_line), function(std::move(function_name)),
      level(trace_level), extra(extra_value) {
    trace_state().live_count++;
}

cl_trace::~cl_trace() {
    trace_state().live_count--;
}

void cl_trace::report_list(std::string_view format, std::span<const text_argument> arguments) {
    if (!trace_state().trace_enabled || busy)
        return;
    busy = true;
    std::string text;
    if (!append_formatted(text, with_six_digits_for_plain_g(format), arguments))
        text = "Cannot process apgn TRACE - bad format: " + std::string(format);
    message = text;
    if (trace_state().error_list_active)
        error_list_append(text);
    route(*this);
    busy = false;
}

void cl_trace::write_trace_line(std::string_view text) {
    if (!trace_state().trace_enabled)
        return;
    const std::string_view prefix = level == report_level ? "REPORT: " : level == log_level ? "LOG: " : "";
    const std::string memory = trace_state().show_memory ? memory_text() : std::string();
    const std::string time = trace_state().show_time ? time_text() : std::string();
    const std::string location = location_of(*this);

    message = formed("%s:%s%s %s%s", location, time, memory, prefix, text);
    platform::debug_output(message.ends_with('\n') ? message : message + '\n');
    if (logs_to_file())
        write_log_line(formed("%s:%s%s %s%s", time, location, memory, prefix, text));

    source_file.clear();
    function.clear();
    message.clear();
    line = -1;
    trace_state().time_base = platform::seconds_since_epoch();
}

bool traces_are_heard() {
    const cl_trace_state& state = trace_state();
    return state.trace_enabled && (logs_to_file() || state.error_list_active || platform::debug_output_is_heard());
}
