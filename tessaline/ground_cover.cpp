// How the file of a ground cover comes into the batch folder.

#include "tessaline/ground_cover.h"

#include "platform/platform.h"
#include "tessaline/paths.h"

#include <array>

namespace {

constexpr std::string_view plant_folder = "Plants";

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
    std::string placed = batch_folder;
    placed.append(1, platform::path_separator).append(plant_folder);
    platform::make_folder(placed); // no fault if it exists
    placed.append(1, platform::path_separator).append(bare_name_of(path));
    if (!is_file(placed))
        copy_file(original, placed);
    return placed;
}
