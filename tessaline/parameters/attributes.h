#pragma once

// Attribute values as text: from the dictionaries of an entity into the attribute list of the run, and from a value of
// the model into a setting.

#include "sketchup/SketchUpAPI.h"

#include <string>
#include <string_view>

// The value as the program knows it. Numbers with a fraction have six decimals, a boolean is "1" or "0", a colour
// "(red, green, blue, alpha)". Empty for what has no text: a time, a vector, an array, an empty value.
std::string attribute_text(SUTypedValueRef value);

// Fills the attribute list of the run with all values of the entity's dictionaries, in the order of the model, and
// drops what was in it. The list is empty afterwards if the entity has no dictionary or cannot be asked.
void read_attributes(SUEntityRef entity);

// Appends one value to the attribute list of the run.
void add_attribute(std::string_view dictionary, std::string_view key, SUTypedValueRef value);

// Sets the setting of that name. The first letter of the key is its type: "s" text, "b" boolean (the text's integer
// value is not 0), "i" integer, "r" double; a key with any other letter is ignored. A text that is no number counts as
// 0.
void set_global_from_value(const std::string& key, SUTypedValueRef value);

// Whether a text says yes: exactly "true" or "1".
bool text_is_true(std::string_view text);
