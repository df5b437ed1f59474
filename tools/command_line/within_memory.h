#pragma once

// A program that has asked for more memory than there is ends in words.

#include <functional>
#include <string_view>

// What the work gives; 3, and a line on standard error that names the program, if it ran out of memory.
int within_memory(std::string_view name, const std::function<int()>& work);
