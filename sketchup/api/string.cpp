// The calls on strings. They are held as UTF-8 and put into UTF-16 when asked for.

#include "sketchup/api/calls.h"
#include "sketchup/api/provider_state.h"
#include "sketchup/api/utf.h"

#include <algorithm>
#include <string_view>

using namespace sketchup::api;

SUResult SUStringCreate(SUStringRef* string) {
    return create(string, provider().strings, [](string_object&) {});
}

SUResult SUStringCreateFromUTF8(SUStringRef* string, const char* text) {
    if (!text)
        return SU_ERROR_NULL_POINTER_INPUT;
    return create(string, provider().strings, [text](string_object& made) { made.text = text; });
}

SUResult SUStringCreateFromUTF16(SUStringRef* string, const unichar* text) {
    if (!text)
        return SU_ERROR_NULL_POINTER_INPUT;
    return create(string, provider().strings, [text](string_object& made) { made.text = utf8_from_utf16(text); });
}

SUResult SUStringRelease(SUStringRef* string) {
    return release(string, provider().strings);
}

SUResult SUStringGetUTF8Length(SUStringRef string, size_t* length) {
    return give(string, length, [](const string_object& s) { return s.text.size(); });
}

SUResult SUStringGetUTF16Length(SUStringRef string, size_t* length) {
    return give(string, length, [](const string_object& s) {
        size_t units = 0;
        for (std::string_view rest = s.text; !rest.empty();)
            units += utf16_units(take_character(rest));
        return units;
    });
}

SUResult SUStringGetUTF8(SUStringRef string, size_t max, char text[], size_t* copied) {
    const string_object* s = object_of(string);
    if (!s)
        return SU_ERROR_INVALID_INPUT;
    if (!text || !copied)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    const size_t units = whole_characters(s->text, max);
    std::copy_n(s->text.data(), units, text);
    if (units < max)
        text[units] = 0;
    *copied = units;
    return SU_ERROR_NONE;
}

SUResult SUStringGetUTF16(SUStringRef string, size_t max, unichar text[], size_t* copied) {
    const string_object* s = object_of(string);
    if (!s)
        return SU_ERROR_INVALID_INPUT;
    if (!text || !copied)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    size_t units = 0;
    for (std::string_view rest = s->text; !rest.empty();) {
        const char32_t character = take_character(rest);
        if (units + utf16_units(character) > max)
            break;
        if (utf16_units(character) == 2) {
            text[units++] = static_cast<unichar>(0xD800 + ((character - 0x10000) >> 10));
            text[units++] = static_cast<unichar>(0xDC00 + ((character - 0x10000) & 0x3FF));
        } else {
            text[units++] = static_cast<unichar>(character);
        }
    }
    if (units < max)
        text[units] = 0;
    *copied = units;
    return SU_ERROR_NONE;
}
