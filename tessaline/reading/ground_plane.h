#pragma once

// The material of the ground plane, which a model may carry in its attributes as hexadecimal text in several chunks.

#include "sketchup/SketchUpAPI.h"

#include <functional>
#include <optional>
#include <string>

// The framed hexadecimal text that the model's dictionary carries; nothing if it has none or the data is incomplete.
// saved: whether the model says that it holds one; the dictionary changes it if it has an answer of its own.
std::optional<std::string> ground_plane_text(SUAttributeDictionaryRef dictionary, bool& saved);

// The hexadecimal text of the material file, put together (hex_chunks.h) from the header under "hex_data" and the
// chunks under "hex_data_chunk0" and on. text_of: the text under a key; nothing if it is missing or no text. Nothing if
// the header or the last chunk is missing.
std::optional<std::string>
assembled_ground_plane(const std::function<std::optional<std::string>(const std::string&)>& text_of);
