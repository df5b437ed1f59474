#include "qlw/qlw_error_dialog.h"

#include "qlw/desktop.h"
#include "qlw/error_dialog.h"
#include "qlw/qlw_identity.h"
#include "qlw/qlw_trace.h"
#include "qlw/text_format.h"
#include "qlw/trace_state.h"

namespace {

void move_history_on(cl_trace& trace) {
    trace.oldest_message = trace.previous_message;
    trace.previous_message = trace.last_message;
}

void show_message(const cl_trace& trace, const std::string& message, const cl_trace_source& source) {
    cl_error_dialog dialog;
    if (!trace.title.empty())
        dialog.title = trace.title;
    dialog.message = message;
    dialog.location_text = trace.location_text;
    dialog.source = source;
    if (!dialog.run())
        trace_state().desktop->message_box(
            application_name, "Cannot load error dialog. qlw_common.rc2 is probably not included.\n\n" + message);
}

} // namespace

void show_error_dialog(cl_trace& trace, const std::string& message) {
    move_history_on(trace);
    const cl_trace_source source{trace.source_file, trace.line, trace.function}; // the trace line empties them
    trace.location_text =
        format_text("     (Error occurred in %s line: %d)", source.source_file, source.line).value_or(std::string());
    if (is_source_suppressed(trace) && trace.level != trace_level::fatal)
        return;
    trace.write_trace_line("*** ERROR: " + message);
    std::string shown = message;
    if (trace.level == trace_level::developer_error)
        shown += "\n*** This error only appears in DEBUG mode ***";
    trace.last_message = shown + "\n\n" + trace.location_text;
    if (trace.level != trace_level::developer_error)
        show_message(trace, shown, source);
    if (trace.level == trace_level::fatal)
        throw std::string("Fatal Error encountered\n\r" + shown + "\n\r\n\r" + trace.location_text);
    trace.source_file = "Unknown";
    trace.line = 0;
    trace.function.clear();
}
