#pragma once

// Texts in one case, for what is shown or compared so. Only A to Z and a to z have another case here: the bytes of any
// other letter stay as they are.

#include <string>
#include <string_view>

std::string in_capitals(std::string text);

char lower_case(char letter);
std::string lower_case(std::string_view text);

// The same into a string that keeps its storage from call to call.
void set_lower_case(std::string& out, std::string_view text);
