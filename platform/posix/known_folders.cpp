// Where the system keeps a user's things.

#include "platform/platform.h"

#include <pwd.h>
#include <unistd.h>

#include <array>

namespace platform {

namespace {

std::string without_separator_at_end(std::string name) {
    while (name.size() > 1 && name.back() == path_separator)
        name.pop_back();
    return name;
}

// The variable's value if it is a full name: the base directory rules say that a relative one is to be ignored.
std::string full_name_from(const char* variable) {
    const auto value = environment_variable(variable);
    return value && value->starts_with(path_separator) ? without_separator_at_end(*value) : std::string();
}

std::string inside_home(const char* name) {
    const std::string home = home_folder();
    if (home.empty())
        return {};
    return home == "/" ? home + name : home + path_separator + name;
}

} // namespace

std::string home_folder() {
    std::string home = full_name_from("HOME");
    if (!home.empty())
        return home;
    const passwd* const user = getpwuid(getuid());
    return user && user->pw_dir ? without_separator_at_end(user->pw_dir) : std::string();
}

std::string user_config_folder() {
    std::string folder = full_name_from("XDG_CONFIG_HOME");
    return folder.empty() ? inside_home(".config") : folder;
}

std::string documents_folder() {
    std::string folder = full_name_from("XDG_DOCUMENTS_DIR");
    return folder.empty() ? inside_home("Documents") : folder;
}

std::string temporary_folder() {
    const auto folder = environment_variable("TMPDIR");
    return folder && !folder->empty() ? without_separator_at_end(*folder) : "/tmp";
}

std::string shared_ini_folder() {
    return {};
}

std::string current_folder() {
    std::array<char, 4096> buffer; // PATH_MAX on Linux
    return getcwd(buffer.data(), buffer.size()) ? std::string(buffer.data()) : std::string();
}

} // namespace platform
