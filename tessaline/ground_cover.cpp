// How the file of a ground cover comes into the batch folder.

#include "tessaline/ground_cover.h"

#include "platform/platform.h"
#include "tessaline/paths.h"

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

} // namespace

std::string placed_ground_cover(std::string_view path, const std::string& batch_folder) {
    std::string original(path);
    if (!is_file(original))
        return original;
    const std::string folder = joined(batch_folder, plant_folder_name);
    platform::make_folder(folder); // no fault if it exists
    std::string placed = joined(folder, bare_name_of(path));
    if (!is_file(placed))
        copy_file(original, placed);
    return placed;
}
