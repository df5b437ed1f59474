// Text for the user and for developers, where there are no windows.

#include "platform/message_line.h"
#include "platform/platform.h"
#include "platform/trace_file.h"

#include <cerrno>

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

bool write_standard(standard_stream stream, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = write(descriptor_of(stream), text.data(), text.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
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
    return write_standard(standard_stream::output, text);
}

void write_standard_error(std::string_view text) {
    write_standard(standard_stream::error, text);
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
