#pragma once

// The members that all sample files fill and that our files need not.

#include <string_view>

// path: "CFace.plane", or of a named record "CSkpStyle.items: item 3e8". Whether the table lists it, with its reason.
bool is_excepted(std::string_view path);
