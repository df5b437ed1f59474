#pragma once

// A handle of the system, closed with its scope.

#include <memory>

#include <windows.h>

namespace platform {

struct close_system_handle {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using system_handle = std::unique_ptr<void, close_system_handle>;

// Null for either value with which calls tell that they have failed.
inline system_handle owned(HANDLE handle) {
    return system_handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

} // namespace platform
