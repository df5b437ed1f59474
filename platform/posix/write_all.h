#pragma once

// Writing all bytes to a descriptor.

#include <string_view>

namespace platform {

// In as many steps as the system needs. False with errno set if not all could be written.
bool write_all(int descriptor, std::string_view bytes);

} // namespace platform
