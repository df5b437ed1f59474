#pragma once

// Text out of the SketchUp interface, as UTF-8.

#include "sketchup/SketchUpAPI.h"

#include <string>

// A text object of the interface, released with its scope.
class model_text {
public:
    model_text() { SUStringCreate(&text); }
    ~model_text() { SUStringRelease(&text); }
    model_text(const model_text&) = delete;
    model_text& operator=(const model_text&) = delete;

    SUStringRef* out() { return &text; } // where a call that gives a text puts it
    std::string utf8() const;            // empty if the call gave nothing

private:
    SUStringRef text = SU_INVALID;
};

// The name that `getter` gives for `handle`; empty if it fails.
template<class Handle>
std::string name_by(SUResult (*getter)(Handle, SUStringRef*), Handle handle) {
    model_text text;
    getter(handle, text.out());
    return text.utf8();
}
