// How the file of a ground cover comes into the batch folder.

#include "tessaline/plants/ground_cover.h"

#include "platform/platform.h"
#include "tessaline/files/paths.h"

#include <array>

namespace {

void copy_file(const std::string& from, const std::string& to) {
    platform::file source;
    platform::file copy;
    if (!source.open(from, platform::open_mode::read) || !copy.open(to, platform::open_mode::write))
        return;
    std::array<char, 16384> piece;
    for (std::size_t size; (size = source.read(piece.data(), piece.size())) != 0;)
        copy.write_all({piece.data(), size});
}

// The name under which the stream refers to it.
std::string bring(const std::string& utf8_path, const std::string& batch_folder) {
    const std::string path = platform::own_from_utf8(utf8_path);
    if (!is_file(path))
        return utf8_path;
    const std::string folder = joined(batch_folder, plant_folder_name);
    platform::make_folder(folder); // no fault if it exists
    std::string placed = joined(folder, bare_name_of(path));
    if (!is_file(placed))
        copy_file(path, placed);
    return placed;
}

} // namespace

const std::string& ground_cover::placed(std::string_view path, const std::string& batch_folder) {
    if (path != last_path) {
        last_path = path;
        last_placed = bring(last_path, batch_folder);
    }
    return last_placed;
}
