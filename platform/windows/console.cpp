// Text on the console or the pipe of whoever started the program, and for debuggers. A windowed program has no console:
// it joins that of its parent when it has something to say there.

#include "platform/platform.h"

#include "platform/trace_file.h"
#include "platform/windows/system_handle.h"
#include "platform/windows/wide_text.h"

#include <algorithm>

namespace platform {

namespace {

DWORD number_of(standard_stream stream) {
    switch (stream) {
    case standard_stream::input:
        return STD_INPUT_HANDLE;
    case standard_stream::output:
        return STD_OUTPUT_HANDLE;
    case standard_stream::error:
        return STD_ERROR_HANDLE;
    }
    return STD_ERROR_HANDLE;
}

bool is_usable(HANDLE handle) {
    return handle && handle != INVALID_HANDLE_VALUE && GetFileType(handle) != FILE_TYPE_UNKNOWN;
}

bool is_console(HANDLE handle) {
    DWORD mode = 0;
    return GetConsoleMode(handle, &mode);
}

// What the parent has handed down, else its console. Null if it has neither.
HANDLE output_handle(standard_stream stream) {
    const HANDLE given = GetStdHandle(number_of(stream));
    if (is_usable(given))
        return given;
    if (!AttachConsole(ATTACH_PARENT_PROCESS) && GetLastError() != ERROR_ACCESS_DENIED) // which means: has one already
        return nullptr;
    const HANDLE opened = CreateFileA("CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_EXISTING, 0, nullptr);
    if (!is_usable(opened))
        return nullptr;
    SetStdHandle(number_of(stream), opened); // open to the end of the process
    return opened;
}

bool write_to_console(HANDLE console, std::string_view text) {
    const std::wstring wide = wide_text(text, CP_ACP, 0);
    for (std::size_t at = 0; at < wide.size();) {
        constexpr std::size_t largest_step = 8192; // older consoles have 64 KiB for all
        DWORD written = 0;
        const auto step = static_cast<DWORD>(std::min(wide.size() - at, largest_step));
        if (!WriteConsoleW(console, wide.data() + at, step, &written, nullptr) || written == 0)
            return false;
        at += written;
    }
    return true;
}

bool write_standard(standard_stream stream, std::string_view text) {
    const HANDLE output = output_handle(stream);
    if (!output)
        return true;
    if (is_console(output))
        return write_to_console(output, text);
    while (!text.empty()) {
        constexpr std::size_t largest_step = 0x40000000;
        DWORD written = 0;
        if (!WriteFile(output, text.data(), static_cast<DWORD>(std::min(text.size(), largest_step)), &written,
                       nullptr) ||
            written == 0)
            return false;
        text.remove_prefix(written);
    }
    return true;
}

} // namespace

bool is_terminal(standard_stream stream) {
    return is_console(GetStdHandle(number_of(stream)));
}

bool write_standard_output(std::string_view text) {
    return write_standard(standard_stream::output, text);
}

void write_standard_error(std::string_view text) {
    write_standard(standard_stream::error, text);
}

void write_trace_to_console(std::string_view text) {
    write_standard_error(text);
}

void debug_output(std::string_view text) {
    OutputDebugStringA(std::string(text).c_str());
    write_to_trace(text);
}

bool debug_output_is_heard() {
    return true;
}

} // namespace platform
