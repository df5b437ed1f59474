#pragma once

// Between the system's wide texts and bytes.

#include <optional>
#include <string>
#include <string_view>

#include <windows.h>

namespace platform {

// code_page: CP_ACP or CP_UTF8. flags: those of MultiByteToWideChar. Empty if the flags refuse the text.
std::wstring wide_text(std::string_view text, unsigned code_page, unsigned long flags);

// What the code page lacks becomes its nearest letter, or the code page's sign for that.
std::string narrow_text(std::wstring_view wide, unsigned code_page);

// In the ANSI code page; nothing if that lacks a letter of it.
std::optional<std::string> exact_narrow_text(std::wstring_view wide);

} // namespace platform
