#pragma once

#include "sketchup/SketchUpAPI.h"

#include <string>

// A value as text; of an array the number of its elements.
std::string value_text(SUTypedValueRef value);
