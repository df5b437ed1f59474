// What the caller of the program has set for it.

#include "platform/platform.h"

#include <cstdlib>

namespace platform {

std::optional<std::string> environment_variable(const std::string& name) {
    const char* const value = std::getenv(name.c_str());
    return value ? std::optional<std::string>(value) : std::nullopt;
}

bool is_unattended() {
    return !environment_variable("TESSALINE_UNATTENDED").value_or(std::string()).empty();
}

} // namespace platform
