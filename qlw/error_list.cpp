#include "qlw/error_list.h"

#include "platform/platform.h"
#include "qlw/qlw_std.h"
#include "qlw/trace_state.h"

#include <cstdint>

void error_list_open(const std::string& title) {
    error_list_state& list = trace_state().error_list;
    list.file_name = get_application_data_folder() + platform::path_separator + "error_file.txt";
    if (!list.file.open(list.file_name, output_file_mode::quiet))
        return;
    const auto now = static_cast<std::int64_t>(platform::seconds_since_epoch());
    list.file.write_format("ERROR LIST: %s: %s\n", title, platform::local_time_text(now, "%X"));
    list.file.flush();
    list.has_file = true;
}

void error_list_append(const std::string& text) {
    error_list_state& list = trace_state().error_list;
    if (list.is_writing)
        return;
    list.is_writing = true;
    if (list.file_name.empty())
        error_list_open({});
    if (list.file.open_for_append(list.file_name, open_failure::shown)) {
        list.file.write_format("%s\n", text);
        if (list.has_file)
            list.file.close();
        list.was_written = true;
    }
    list.is_writing = false;
}
