#pragma once

// Texts in one case, for what is shown or compared so. Only A to Z and a to z have another case here: the bytes of any
// other letter stay as they are.

#include <string>

std::string in_capitals(std::string text);
std::string in_lower_case(std::string text);
