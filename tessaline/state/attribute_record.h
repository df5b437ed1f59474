#pragma once

// One row of the attribute list: a value of an entity's attribute dictionary as text.

#include <string>

struct cl_tsl_attribute {
    std::string dictionary;
    std::string key;
    std::string value;
};
