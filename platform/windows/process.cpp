// What the system knows about the running process and the machine it runs on.

#include "platform/platform.h"

#include <array>

#include <windows.h>

#include <psapi.h>

namespace platform {

// The arguments have been taken apart by other rules than those of the program.
std::string raw_command_line(int, const char* const*) {
    return GetCommandLineA();
}

std::string program_path() {
    std::array<char, MAX_PATH> buffer;
    const DWORD size = GetModuleFileNameA(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
    return size < buffer.size() ? std::string(buffer.data(), size) : std::string(); // else it is cut short
}

std::uint64_t working_set_bytes() {
    PROCESS_MEMORY_COUNTERS counters = {};
    counters.cb = sizeof counters;
    return GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters) ? counters.WorkingSetSize : 0;
}

std::string computer_name() {
    std::array<char, MAX_COMPUTERNAME_LENGTH + 1> buffer;
    DWORD size = static_cast<DWORD>(buffer.size());
    return GetComputerNameA(buffer.data(), &size) ? std::string(buffer.data(), size) : std::string();
}

os_version system_version() {
    OSVERSIONINFOA told = {};
    told.dwOSVersionInfoSize = sizeof told;
    os_version version;
    if (!GetVersionExA(&told))
        return version;
    version.platform_id = static_cast<int>(told.dwPlatformId);
    version.major = static_cast<int>(told.dwMajorVersion);
    version.minor = static_cast<int>(told.dwMinorVersion);
    version.build = static_cast<int>(told.dwBuildNumber & 0xffffU); // the first systems put more above it
    version.service_pack = told.szCSDVersion;
    return version;
}

} // namespace platform
