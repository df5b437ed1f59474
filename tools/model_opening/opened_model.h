#pragma once

// A model file opened through the C interface, or the reason why it could not be.

#include "sketchup/SketchUpAPI.h"

#include <string>

class opened_model {
public:
    // SUInitialize must have been called.
    explicit opened_model(const std::string& file_name);
    ~opened_model();
    opened_model(const opened_model&) = delete;
    opened_model& operator=(const opened_model&) = delete;

    bool is_open() const { return SUIsValid(handle); }
    SUModelRef model() const { return handle; }
    // In words; empty if the model is open.
    const std::string& failure() const { return reason; }

private:
    SUModelRef handle = SU_INVALID;
    std::string reason;
};
