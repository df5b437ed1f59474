#pragma once

// One text in place of another.

#include <string>
#include <string_view>

// Every `what` in the text becomes `by`, from left to right; what is put in is not looked at again. what: not empty.
void replace_all(std::string& text, std::string_view what, std::string_view by);
