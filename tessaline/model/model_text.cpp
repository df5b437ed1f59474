// How a text of the SketchUp interface becomes a string.

#include "tessaline/model/model_text.h"

std::string model_text::utf8() const {
    std::size_t length = 0;
    if (SUStringGetUTF8Length(text, &length) != SU_ERROR_NONE || length == 0)
        return {};
    std::string bytes(length + 1, '\0'); // the interface closes the text with a zero
    std::size_t copied = 0;
    SUStringGetUTF8(text, bytes.size(), bytes.data(), &copied);
    bytes.resize(copied < length ? copied : length);
    return bytes;
}
