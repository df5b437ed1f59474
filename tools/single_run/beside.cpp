#include "tools/single_run/beside.h"

#include "platform/platform.h"

std::optional<std::string> program_beside(const std::string& name) {
    const std::string own = platform::program_path();
    const std::string own_name = platform::last_part(own);
    const std::size_t dot = own_name.rfind('.');
    const std::string ending = platform::has_drive_letters && dot != std::string::npos ? own_name.substr(dot) : "";
    const std::string program = own.substr(0, own.size() - own_name.size()) + name + ending;
    return platform::file_size(program) ? std::optional(program) : std::nullopt;
}
