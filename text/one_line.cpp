#include "text/one_line.h"

#include <array>
#include <cstdio>

std::string on_one_line(std::string_view text) {
    std::string shown;
    for (const char letter : text)
        if (const auto code = static_cast<unsigned char>(letter); code < 0x20 || code == 0x7F) {
            std::array<char, 8> form;
            std::snprintf(form.data(), form.size(), "\\x%02x", static_cast<unsigned>(code));
            shown += form.data();
        } else
            shown += letter;
    return shown;
}
