#pragma once

// A folder of its own for each test, and files in it.

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

// The bytes of a file; empty if it cannot be read.
inline std::string text_of_file(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

class temporary_folder {
public:
    temporary_folder() {
        const std::string base = std::filesystem::temp_directory_path().string() + "/tessaline_test_";
        for (unsigned number = 0; folder.empty(); number++)
            if (std::filesystem::create_directory(base + std::to_string(number)))
                folder = base + std::to_string(number);
    }
    temporary_folder(const temporary_folder&) = delete;
    temporary_folder& operator=(const temporary_folder&) = delete;
    ~temporary_folder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    const std::string& name() const { return folder; }
    std::string operator/(const std::string& inside) const { return folder + "/" + inside; }

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
