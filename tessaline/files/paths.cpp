// How names of files are taken apart and put together.

#include "tessaline/files/paths.h"

#include <cstddef>

std::string folder_of(std::string_view path) {
    const std::size_t at = path.rfind(platform::path_separator);
    if (at == std::string_view::npos)
        return {};
    return std::string(path.substr(0, at == 0 ? 1 : at));
}

std::string file_name_of(std::string_view path) {
    const std::size_t at = path.rfind(platform::path_separator);
    return std::string(at == std::string_view::npos ? path : path.substr(at + 1));
}

std::string_view bare_name_of(std::string_view path) {
    const std::size_t at = path.find_last_of("/\\");
    return at == std::string_view::npos ? path : path.substr(at + 1);
}

std::string_view extension_of(std::string_view path) {
    const std::string_view name = bare_name_of(path);
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos ? std::string_view() : name.substr(dot);
}

std::string without_extension(std::string_view path) {
    const std::size_t dot = path.rfind('.');
    const std::size_t separator = path.rfind(platform::path_separator);
    if (dot == std::string_view::npos || (separator != std::string_view::npos && dot < separator))
        return std::string(path);
    return std::string(path.substr(0, dot));
}

std::string joined(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!path.ends_with(platform::path_separator))
        path += platform::path_separator;
    path += name;
    return path;
}

std::string joined_inside(std::string_view folder, std::string_view name) {
    constexpr std::string_view not_in_a_name("/\\\0", 3);
    if (name.empty() || name == "." || name == ".." || name.find_first_of(not_in_a_name) != std::string_view::npos)
        return {};
    return joined(folder, platform::own_from_utf8(name));
}

bool is_file(const std::string& path) {
    return platform::file_size(path).has_value();
}
