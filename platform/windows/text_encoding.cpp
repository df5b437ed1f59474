// Between UTF-8 and the ANSI code page, by way of the system's wide texts.

#include "platform/platform.h"

#include "platform/windows/wide_text.h"

#include <algorithm>

namespace platform {

namespace {

bool is_plain(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool is_second_half(wchar_t unit) {
    return unit >= 0xdc00 && unit <= 0xdfff; // of a letter that takes two units
}

std::string escaped(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += '%';
        text += digits[byte >> 4U];
        text += digits[byte & 0xfU];
    }
    return text;
}

std::string own_letter(std::wstring_view letter) {
    const auto narrow = exact_narrow_text(letter);
    return narrow ? *narrow : escaped(narrow_text(letter, CP_UTF8));
}

} // namespace

std::wstring wide_text(std::string_view text, unsigned code_page, unsigned long flags) {
    const int size = static_cast<int>(text.size());
    const int units = MultiByteToWideChar(code_page, flags, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(std::max(units, 0)), L'\0');
    MultiByteToWideChar(code_page, flags, text.data(), size, wide.data(), units);
    return wide;
}

std::string narrow_text(std::wstring_view wide, unsigned code_page) {
    const int units = static_cast<int>(wide.size());
    const int size = WideCharToMultiByte(code_page, 0, wide.data(), units, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(std::max(size, 0)), '\0');
    WideCharToMultiByte(code_page, 0, wide.data(), units, text.data(), size, nullptr, nullptr);
    return text;
}

std::optional<std::string> exact_narrow_text(std::wstring_view wide) {
    const std::string text = narrow_text(wide, CP_ACP);
    return wide_text(text, CP_ACP, 0) == wide ? std::optional(text) : std::nullopt;
}

std::string utf8_from_own(std::string_view text) {
    return is_plain(text) ? std::string(text) : narrow_text(wide_text(text, CP_ACP, 0), CP_UTF8);
}

std::string own_from_utf8(std::string_view text) {
    if (is_plain(text))
        return std::string(text);
    const std::wstring wide = wide_text(text, CP_UTF8, MB_ERR_INVALID_CHARS);
    if (wide.empty())
        return std::string(text);
    std::string own;
    for (std::size_t at = 0; at < wide.size();) {
        const std::size_t units = at + 1 < wide.size() && is_second_half(wide[at + 1]) ? 2 : 1;
        own += own_letter(std::wstring_view(wide).substr(at, units));
        at += units;
    }
    return own;
}

} // namespace platform
