// Puts the system's error numbers into words.

#include "platform/windows/system_words.h"

#include <array>

namespace platform {

std::string words_for(DWORD error) {
    constexpr DWORD flags =
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK; // on one line
    std::array<char, 512> buffer;
    const DWORD size =
        FormatMessageA(flags, nullptr, error, 0, buffer.data(), static_cast<DWORD>(buffer.size()), nullptr);
    std::string words(buffer.data(), size);
    while (!words.empty() && (words.back() == ' ' || words.back() == '.'))
        words.pop_back();
    return words.empty() ? "Error " + std::to_string(error) : words;
}

} // namespace platform
