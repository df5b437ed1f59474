// The system's own encoding is UTF-8.

#include "platform/platform.h"

namespace platform {

std::string utf8_from_own(std::string_view text) {
    return std::string(text);
}

std::string own_from_utf8(std::string_view text) {
    return std::string(text);
}

} // namespace platform
