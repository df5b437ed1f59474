// Puts text for developers where TESSALINE_TRACE says.

#include "platform/trace_file.h"

#include "platform/platform.h"

namespace platform {

namespace {

std::string trace_target() {
    return environment_variable("TESSALINE_TRACE").value_or(std::string());
}

} // namespace

bool trace_is_wanted() {
    return !trace_target().empty();
}

void write_to_trace(std::string_view text) {
    const std::string target = trace_target();
    if (target.empty())
        return;
    if (target == "-") {
        write_trace_to_console(text);
        return;
    }
    file output;
    if (output.open(target, open_mode::append))
        output.write_all(text);
}

void trace_refused_write(const std::string& name, const std::string& words) {
    if (is_unattended())
        write_to_trace("file:: REPORT: Cannot write " + name + ": " + words + '\n');
}

} // namespace platform
