// Names of files taken apart and put together.

#include "platform/platform.h"

namespace platform {

std::string joined(std::string_view folder, std::string_view name) {
    std::string whole(folder);
    if (!whole.empty() && !whole.ends_with(path_separator))
        whole += path_separator;
    return whole.append(name);
}

std::string last_part(std::string_view name) {
    const std::size_t separator = has_drive_letters ? name.find_last_of("/\\:") : name.rfind(path_separator);
    return std::string(separator == std::string_view::npos ? name : name.substr(separator + 1));
}

std::string parent_of(std::string_view name) {
    const std::size_t separator = name.rfind(path_separator);
    return std::string(name.substr(0, separator == std::string_view::npos ? 0 : separator));
}

made_folders make_folders(const std::string& name) {
    made_folders answer;
    std::vector<std::string> missing;
    for (std::string above = name; !above.empty() && !exists(above); above = parent_of(above))
        missing.push_back(above);
    for (; !missing.empty(); missing.pop_back())
        if (make_folder(missing.back()))
            answer.made.push_back(missing.back());
    answer.is_there = is_folder(name);
    return answer;
}

} // namespace platform
