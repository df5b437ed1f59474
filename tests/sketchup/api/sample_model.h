#pragma once

// Real models through the C interface; tests that use them are skipped where a file is not at hand.

#include "sketchup/SketchUpAPI.h"
#include "tests/samples_folder.h"

#include <fstream>
#include <string>

inline bool has_sample(const std::string& name) {
    return !samples_folder().empty() && std::ifstream(samples_folder() + name).good();
}

// A sample behind a handle; closed at the end of its scope.
struct sample_model {
    explicit sample_model(const std::string& name) {
        result = SUModelCreateFromFile(&ref, (samples_folder() + name).c_str());
    }
    sample_model(const sample_model&) = delete;
    sample_model& operator=(const sample_model&) = delete;
    ~sample_model() {
        if (SUIsValid(ref))
            SUModelRelease(&ref);
    }
    SUModelRef ref = SU_INVALID;
    SUResult result = SU_ERROR_NONE;
};
