#include "qlw/log_file.h"

#include "platform/platform.h"
#include "qlw/qlw_identity.h"
#include "qlw/qlw_std.h"
#include "qlw/trace_state.h"

#include <string>

namespace {

const std::string& log_file_name() {
    cl_trace_state& state = trace_state();
    if (state.log_file_name.empty()) {
        std::string folder = get_application_data_folder();
        fix_path_separators(folder);
        state.log_file_name = folder + platform::path_separator + std::string(application_name) + "_LOG_FILE.txt";
    }
    return state.log_file_name;
}

bool start_log_file(cl_output_file& log) {
    if (!log.open(log_file_name(), output_file_mode::report_failure))
        return false;
    trace_state().log_file_is_new = false;
    log.write_format("LOGFL: %s: %s\n", application_name, version_text);
    log.write_format("Time: %s\n",
                     platform::local_time_text(static_cast<std::int64_t>(platform::seconds_since_epoch()), "%X"));
    log.write_format("Windows: %s\n", get_windows_version_text());
    return true;
}

void show_log_notice() {
    cl_trace_state& state = trace_state();
    if (state.log_always || state.log_notice_shown)
        return;
    state.log_notice_shown = true;
    platform::message_box("Log File", "Writing log messages to file: " + log_file_name());
    cl_output_file log;
    if (log.open_for_append(log_file_name(), open_failure::quiet))
        log.write_format("After Log File Message Box\n");
}

} // namespace

void write_log_line(std::string_view line) {
    cl_trace_state& state = trace_state();
    if (state.writing_log)
        return;
    state.writing_log = true;
    cl_output_file log;
    const bool is_open =
        state.log_file_is_new ? start_log_file(log) : log.open_for_append(log_file_name(), open_failure::quiet);
    if (is_open) {
        log.write_format(line.ends_with('\n') ? "%s" : "%s\n", line);
        log.close();
        show_log_notice();
    }
    state.writing_log = false;
}
