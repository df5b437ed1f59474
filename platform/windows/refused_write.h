#pragma once

// What the disk keeps from this user, told apart from names that cannot be.

#include <string>

#include <windows.h>

namespace platform {

// Traces that nothing can be written under that name if the error is one of room or rights. Others belong to the name,
// and callers try another one. error: as GetLastError gives it.
void trace_if_refused(const std::string& name, DWORD error);

} // namespace platform
