#pragma once

// Names in lower case, for the few names that are compared without regard to case. Only A to Z have a lower case here:
// the bytes of any other letter stay as they are.

#include <string>
#include <string_view>

std::string lower_case(std::string_view text);

// The same into a string that keeps its storage from call to call.
void set_lower_case(std::string& out, std::string_view text);
