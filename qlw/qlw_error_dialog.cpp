#include "qlw/qlw_error_dialog.h"

#include "platform/platform.h"
#include "qlw/qlw_identity.h"
#include "qlw/qlw_std.h"
#include "qlw/qlw_text_files.h"
#include "qlw/qlw_trace.h"
#include "qlw/text_format.h"
#include "qlw/trace_state.h"

#include <cctype>
#include <utility>

namespace {

constexpr int developer_error_level = 4;
constexpr int fatal_level = 5;

std::string in_capitals(std::string text) {
    for (char& letter : text)
        letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    return text;
}

void show_message(const std::string& message) {
    const auto text =
        format_text("%s\n\n    (VER: %s - %s)", message, version_text, in_capitals(platform::computer_name()));
    platform::message_box(std::string(application_name) + " - Error", text.value_or(message));
}

void move_history_on(cl_trace& trace) {
    trace.oldest_message = std::move(trace.previous_message);
    trace.previous_message = std::move(trace.last_message);
}

} // namespace

void show_error_dialog(cl_trace& trace, const std::string& message) {
    move_history_on(trace);
    trace.location_text =
        format_text("     (Error occurred in %s line: %d)", trace.source_file, trace.line).value_or(std::string());
    trace.write_trace_line("*** ERROR: " + message);
    std::string shown = message;
    if (trace.level == developer_error_level)
        shown += "\n*** This error only appears in DEBUG mode ***";
    trace.last_message = shown + "\n\n" + trace.location_text;
    if (trace.level != developer_error_level)
        show_message(shown);
    if (trace.level == fatal_level)
        throw std::string("Fatal Error encountered\n\r" + shown + "\n\r\n\r" + trace.location_text);
    trace.source_file = "Unknown";
    trace.line = 0;
    trace.function.clear();
}

void error_list_open(const std::string& title) {
    cl_trace_state& state = trace_state();
    state.error_list_name = get_application_data_folder() + platform::path_separator + "error_file.txt";
    cl_output_file list;
    if (!list.open(state.error_list_name, quiet_open))
        return;
    const auto now = static_cast<std::int64_t>(platform::seconds_since_epoch());
    list.write_format("ERROR LIST: %s: %s\n", title, platform::local_time_text(now, "%X"));
}

void error_list_append(const std::string& text) {
    if (trace_state().error_list_name.empty())
        error_list_open({});
    cl_output_file list;
    if (list.open_for_append(trace_state().error_list_name, quiet_open))
        list.write_format("%s\n", text);
}
