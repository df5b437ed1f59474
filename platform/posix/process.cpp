// What the system knows about the running process and the machine it runs on.

#include "platform/platform.h"

#include <array>
#include <cstdio>
#include <cstdlib>

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

std::uint64_t working_set_bytes() {
    std::FILE* const statm = std::fopen("/proc/self/statm", "r");
    if (!statm)
        return 0;
    unsigned long long total_pages = 0;
    unsigned long long resident_pages = 0;
    const int fields = std::fscanf(statm, "%llu %llu", &total_pages, &resident_pages);
    std::fclose(statm);
    return fields == 2 ? resident_pages * static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE)) : 0;
}

std::optional<std::string> environment_variable(const std::string& name) {
    const char* const value = std::getenv(name.c_str());
    return value ? std::optional<std::string>(value) : std::nullopt;
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
