#include "tools/page/draw_into_place.h"

#include "platform/platform.h"

std::size_t samples_for(const view_options& options) {
    constexpr std::size_t many = std::size_t{1} << 22U; // pixels, of nine points of 12 bytes each: 432 MiB
    const std::size_t pixels = options.width * options.height;
    return pixels <= many ? 3 : pixels <= 2 * many ? 2 : 1;
}

std::string put_in_place(const rasterizer& drawn, const std::string& picture_file) {
    const std::string part = picture_file + ".part";
    if (drawn.write_png(part) && platform::rename_replacing(part, picture_file))
        return {};
    platform::delete_file(part);
    return picture_file + ": cannot be written";
}
