// Text for the user and for developers, where there are no windows.

#include "platform/message_line.h"
#include "platform/platform.h"
#include "platform/posix/write_all.h"
#include "platform/trace_file.h"

#include <unistd.h>

namespace platform {

namespace {

int descriptor_of(standard_stream stream) {
    switch (stream) {
    case standard_stream::input:
        return STDIN_FILENO;
    case standard_stream::output:
        return STDOUT_FILENO;
    case standard_stream::error:
        return STDERR_FILENO;
    }
    return STDERR_FILENO;
}

// For whole lines. A progress bar may stand on the terminal, with the cursor at its start.
void write_over_progress_bar(std::string_view text) {
    std::string bytes;
    if (is_terminal(standard_stream::error))
        bytes = "\x1b[K"; // erases from the cursor to the end of the line
    write_standard_error(bytes.append(text));
}

} // namespace

bool is_terminal(standard_stream stream) {
    return isatty(descriptor_of(stream)) == 1;
}

bool write_standard_output(std::string_view text) {
    return write_all(STDOUT_FILENO, text);
}

void write_standard_error(std::string_view text) {
    write_all(STDERR_FILENO, text);
}

void write_trace_to_console(std::string_view text) {
    write_over_progress_bar(text);
}

void debug_output(std::string_view text) {
    write_to_trace(text);
}

bool debug_output_is_heard() {
    return trace_is_wanted();
}

void message_box(std::string_view title, std::string_view text) {
    write_over_progress_bar(message_line(title, text));
}

} // namespace platform
