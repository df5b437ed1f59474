#pragma once

// Keys and values of one attribute dictionary.

#include "qlw/qlw_math.h"
#include "sketchup/SketchUpAPI.h"

#include <optional>
#include <string>
#include <vector>

// A typed value of the interface, released with its scope.
class typed_value {
public:
    typed_value() { SUTypedValueCreate(&value); }
    ~typed_value() { SUTypedValueRelease(&value); }
    typed_value(const typed_value&) = delete;
    typed_value& operator=(const typed_value&) = delete;

    SUTypedValueRef get() const { return value; }
    SUTypedValueRef* out() { return &value; }

    // Nothing if the value is of another type.
    std::optional<bool> boolean() const;
    std::optional<double> number() const; // a double, not a whole number
    std::optional<std::string> text() const;
    std::optional<fpt> vector() const;

private:
    SUTypedValueRef value = SU_INVALID;
};

// The keys in the model's order.
std::vector<std::string> keys_of(SUAttributeDictionaryRef dictionary);
