#pragma once

// What the system says of its errors.

#include <string>

#include <windows.h>

namespace platform {

// One line, in the language of the user; the number if the system has no words for it. error: as GetLastError gives it.
std::string words_for(DWORD error);

} // namespace platform
