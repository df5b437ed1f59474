#include "qlw/letter_case.h"

std::string in_capitals(std::string text) {
    for (char& letter : text)
        if (letter >= 'a' && letter <= 'z')
            letter = static_cast<char>(letter - 'a' + 'A');
    return text;
}

std::string in_lower_case(std::string text) {
    for (char& letter : text)
        if (letter >= 'A' && letter <= 'Z')
            letter = static_cast<char>(letter - 'A' + 'a');
    return text;
}
