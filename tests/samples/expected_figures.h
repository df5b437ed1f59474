#pragma once

// The figures that a right reader finds in each sample.

#include "tests/samples_folder.h"

#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

inline nlohmann::json expected_figures() {
    const std::string folder = samples_folder();
    return folder.empty() ? nlohmann::json::object() : nlohmann::json::parse(std::ifstream(folder + "expected.json"));
}

// The names of all samples; empty where the folder is missing.
inline std::vector<std::string> sample_names() {
    std::vector<std::string> names;
    const nlohmann::json expected = expected_figures();
    for (const auto& [name, figures] : expected.items())
        names.push_back(name);
    return names;
}

// A name for a test out of a file name.
inline std::string test_name_of(const std::string& file_name) {
    std::string name;
    for (const char c : file_name)
        name += std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_';
    return name;
}
