#pragma once

// Finds the real models that tests may read. They are no part of the source tree: TESSALINE_SAMPLES names their folder,
// else a folder shared/samples beside the checkout is taken. Tests that need them are skipped where there are none.

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

// The folder with a separator at its end, or an empty string.
inline std::string samples_folder() {
    std::string folder;
    if (const char* named = std::getenv("TESSALINE_SAMPLES"))
        folder = named;
    else
        folder = std::string(TESSALINE_SOURCE_DIR) + "/../shared/samples";
    folder += '/';
    return std::ifstream(folder + "expected.json").good() ? folder : std::string();
}

inline std::vector<std::uint8_t> file_bytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
