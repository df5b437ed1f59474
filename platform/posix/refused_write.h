#pragma once

// What the disk keeps from this user, told apart from names that cannot be.

#include <string>

namespace platform {

// Traces that nothing can be written under that name if the error is one of room or rights. Others belong to the name,
// and callers try another one.
void trace_if_refused(const std::string& name, int error);

} // namespace platform
