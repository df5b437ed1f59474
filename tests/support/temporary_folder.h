#pragma once

// A folder of its own for each test, and files in it.

#include "platform/platform.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

// The bytes of a file; empty if it cannot be read.
inline std::string text_of_file(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

// The same with the platform's separators for "/".
inline std::string with_own_separators(std::string name) {
    std::replace(name.begin(), name.end(), '/', platform::path_separator);
    return name;
}

// Names in it are given with "/" on every platform.
class temporary_folder {
public:
    // Throws if the folder cannot be made: no test can go on without it.
    temporary_folder() {
        const std::string beginning =
            with_own_separators(platform::absolute_name(platform::temporary_folder()) + "/tessaline_test_");
        const auto made = platform::make_unique_folder(beginning);
        if (!made)
            throw std::runtime_error("no folder can be made: " + beginning);
        folder = *made;
    }
    temporary_folder(const temporary_folder&) = delete;
    temporary_folder& operator=(const temporary_folder&) = delete;
    ~temporary_folder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    const std::string& name() const { return folder; }
    std::string operator/(const std::string& inside) const { return folder + with_own_separators("/" + inside); }

    // Makes a file with these bytes, and the folders above it; gives its full name.
    std::string write(const std::string& inside, std::string_view bytes) const {
        const std::string path = *this / inside;
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
    std::string make_folder(const std::string& inside) const {
        std::filesystem::create_directories(*this / inside);
        return *this / inside;
    }
    std::string read(const std::string& inside) const { return text_of_file(*this / inside); }
    bool has(const std::string& inside) const {
        return std::filesystem::exists(std::filesystem::symlink_status(*this / inside));
    }

private:
    std::string folder;
};
