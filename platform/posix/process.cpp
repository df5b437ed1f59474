// What the system knows about the running process and the machine it runs on.

#include "platform/platform.h"

#include <array>
#include <charconv>

#include <sys/utsname.h>
#include <unistd.h>

namespace platform {

std::string raw_command_line(int argc, const char* const* argv) {
    std::string line;
    for (int i = 0; i < argc; i++) {
        const std::string_view argument = argv[i];
        const bool is_quoted = argument.empty() || argument.find(' ') != std::string_view::npos;
        if (i > 0)
            line += ' ';
        if (is_quoted)
            line += '"';
        line += argument;
        if (is_quoted)
            line += '"';
    }
    return line;
}

std::string program_path() {
    std::array<char, 4096> buffer; // PATH_MAX on Linux
    const ssize_t length = readlink("/proc/self/exe", buffer.data(), buffer.size());
    return length > 0 ? std::string(buffer.data(), static_cast<std::size_t>(length)) : std::string();
}

// The second number of this file is the count of memory pages that are resident now.
std::uint64_t working_set_bytes() {
    file statm;
    std::array<char, 256> buffer;
    if (!statm.open("/proc/self/statm", open_mode::read))
        return 0;
    const std::string_view text(buffer.data(), statm.read(buffer.data(), buffer.size()));
    const std::size_t start = text.find(' ') + 1;
    std::uint64_t pages = 0;
    const auto answer = std::from_chars(text.data() + start, text.data() + text.size(), pages);
    return answer.ec == std::errc() ? pages * static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE)) : 0;
}

std::string computer_name() {
    std::array<char, 256> buffer{}; // the last byte stays zero: a name cut short is not ended by the system
    return gethostname(buffer.data(), buffer.size() - 1) == 0 ? std::string(buffer.data()) : std::string();
}

os_version system_version() {
    os_version version;
    utsname names;
    if (uname(&names) == 0)
        version.description = std::string(names.sysname) + " " + names.release + " " + names.machine;
    else
        version.description = "POSIX";
    return version;
}

} // namespace platform
