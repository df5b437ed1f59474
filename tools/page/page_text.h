#pragma once

#include <string_view>

// The page without a model, as viewer/build.mjs makes it when the project is built; empty where there was no node then.
std::string_view page_text();
