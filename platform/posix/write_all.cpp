#include "platform/posix/write_all.h"

#include <algorithm>
#include <cerrno>

#include <unistd.h>

namespace platform {

// The kernel takes at most this much in one call.
constexpr std::size_t largest_step = 0x7ffff000;

bool write_all(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(descriptor, bytes.data(), std::min(bytes.size(), largest_step));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace platform
