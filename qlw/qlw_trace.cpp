#include "qlw/qlw_trace.h"

#include "platform/platform.h"
#include "qlw/error_list.h"
#include "qlw/log_file.h"
#include "qlw/qlw_error_dialog.h"
#include "qlw/replace_all.h"
#include "qlw/trace_state.h"

#include <utility>

namespace {

constexpr double long_delay_seconds = 2.0;

cl_trace_state process_trace_state;

// The name of a source file without folders and ending, as compilers of either platform spell it.
std::string_view stem_of(std::string_view file) {
    const std::size_t separator = file.find_last_of("/\\");
    if (separator != std::string_view::npos)
        file.remove_prefix(separator + 1);
    return file.substr(0, file.rfind('.'));
}

std::string with_six_digits_for_plain_g(std::string_view format) {
    std::string changed(format);
    replace_all(changed, "%g", "%.6g");
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
    if (level == trace_level::listed_error)
        return !trace_state().error_list_active;
    return level >= trace_level::user_error && level < trace_level::listed_error;
}

bool writes_plain_line(int level) {
    return level < trace_level::user_error || level >= trace_level::log ||
           (level == trace_level::log_only && logs_to_file());
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

cl_trace cl_trace::here(std::string function, int level, std::string_view file, int line) {
    return cl_trace(std::string(stem_of(file)), line, std::move(function), level, 0);
}

cl_trace::~cl_trace() {
    trace_state().live_count--;
}

cl_trace& cl_trace::titled(std::string text) {
    title = std::move(text);
    return *this;
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
    const std::string_view prefix = level == trace_level::report ? "REPORT: "
                                    : level == trace_level::log  ? "LOG: "
                                                                 : "";
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
