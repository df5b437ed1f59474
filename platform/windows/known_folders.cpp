// Where the system keeps a user's things.

#include "platform/platform.h"

#include <array>

#include <windows.h>

#include <shlobj.h>

namespace platform {

namespace {

std::string without_separator_at_end(std::string name) {
    constexpr std::size_t drive_root = 3; // "c:\"
    while (name.size() > drive_root && (name.back() == '\\' || name.back() == '/'))
        name.pop_back();
    return name;
}

std::string known_folder(int number) {
    std::array<char, MAX_PATH> buffer{};
    return SHGetFolderPathA(nullptr, number, nullptr, SHGFP_TYPE_CURRENT, buffer.data()) == S_OK
               ? without_separator_at_end(buffer.data())
               : std::string();
}

bool is_full_name(const std::string& name) {
    return name.starts_with("\\\\") || (name.size() >= 3 && name[1] == ':' && (name[2] == '\\' || name[2] == '/'));
}

// A name that a call puts into a buffer; it gives the size, and more than the buffer's if that is too small.
template<std::size_t capacity, class Call>
std::string told_by(Call call) {
    std::array<char, capacity> buffer;
    const DWORD size = call(static_cast<DWORD>(buffer.size()), buffer.data());
    return size < buffer.size() ? std::string(buffer.data(), size) : std::string();
}

} // namespace

std::string home_folder() {
    return known_folder(CSIDL_PROFILE);
}

// The system sets the variable to the folder of the user's profile; who sets it to another one wants that.
std::string user_config_folder() {
    const auto variable = environment_variable("APPDATA");
    return variable && is_full_name(*variable) ? without_separator_at_end(*variable) : known_folder(CSIDL_APPDATA);
}

std::string documents_folder() {
    return known_folder(CSIDL_PERSONAL);
}

std::string temporary_folder() {
    constexpr std::size_t capacity = 512;
    return without_separator_at_end(told_by<capacity>(GetTempPathA));
}

std::string shared_ini_folder() {
    return told_by<MAX_PATH>([](DWORD size, char* buffer) { return GetWindowsDirectoryA(buffer, size); });
}

std::string current_folder() {
    return told_by<MAX_PATH>(GetCurrentDirectoryA);
}

} // namespace platform
