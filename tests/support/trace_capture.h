#pragma once

// Enables tracing into a file for the length of a test, each line with the function that it stands under, and resets
// the trace state after it.

#include "qlw/trace_state.h"
#include "tests/support/environment.h"
#include "tests/support/temporary_folder.h"

#include <string>

class trace_capture {
public:
    trace_capture() { reset(true); }
    trace_capture(const trace_capture&) = delete;
    trace_capture& operator=(const trace_capture&) = delete;
    ~trace_capture() { reset(false); }

    // All lines traced so far.
    std::string text() const { return folder.read("trace.txt"); }

    // The same with each "(123)" behind a source file as "(#)": where in a file a report stands is no behaviour.
    std::string text_without_line_numbers() const {
        std::string lines = text();
        for (std::size_t open = lines.find('('); open != std::string::npos; open = lines.find('(', open + 1)) {
            const std::size_t close = lines.find_first_not_of("0123456789", open + 1);
            if (close != std::string::npos && close > open + 1 && lines[close] == ')')
                lines.replace(open + 1, close - open - 1, "#");
        }
        return lines;
    }

private:
    static void reset(bool enabled) {
        cl_trace_state& state = trace_state();
        state.trace_enabled = enabled;
        state.show_function = enabled;
        state.show_time = state.show_memory = false;
        state.log_to_file = state.log_always = state.error_list_active = false;
        state.log_file_is_new = true;
        state.log_notice_shown = state.writing_log = false;
        state.time_base = 0;
        state.log_file_name.clear();
        state.error_list.file.close();
        state.error_list.file_name.clear();
        state.error_list.has_file = state.error_list.was_written = state.error_list.is_writing = false;
        state.suppressed_sources.clear();
        state.notes = {};
        state.desktop = &state.system_desktop;
    }

    temporary_folder folder;
    with_environment trace_file{"TESSALINE_TRACE", folder / "trace.txt"};
};

// One whose lines show what they show in every run: no function.
class plain_trace_capture : public trace_capture {
public:
    plain_trace_capture() { trace_state().show_function = false; }
};
