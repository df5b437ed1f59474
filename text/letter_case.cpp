#include "text/letter_case.h"

#include <algorithm>

std::string in_capitals(std::string text) {
    for (char& letter : text)
        if (letter >= 'a' && letter <= 'z')
            letter = static_cast<char>(letter - 'a' + 'A');
    return text;
}

char lower_case(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string lower_case(std::string_view text) {
    std::string lower;
    set_lower_case(lower, text);
    return lower;
}

void set_lower_case(std::string& out, std::string_view text) {
    out.assign(text);
    std::transform(out.begin(), out.end(), out.begin(), [](char letter) { return lower_case(letter); });
}
