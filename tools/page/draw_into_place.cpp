#include "tools/page/draw_into_place.h"

#include "image/encode_picture.h"
#include "platform/platform.h"

#include <cstdint>
#include <vector>

std::size_t samples_for(const view_options& options) {
    constexpr std::size_t many = std::size_t{1} << 22U; // pixels, of nine points of 12 bytes each: 432 MiB
    const std::size_t pixels = options.width * options.height;
    return pixels <= many ? 3 : pixels <= 2 * many ? 2 : 1;
}

std::string put_in_place(const rasterizer& drawn, const std::string& picture_file) {
    const std::vector<std::uint8_t> bytes = image::encode_picture(drawn.drawn(), image::picture_format::png);
    if (bytes.empty())
        return picture_file + ": has more pixels than a picture may have";
    const std::string part = picture_file + ".part";
    platform::file file;
    const bool is_written = file.open(part, platform::open_mode::write) &&
                            file.write_all({reinterpret_cast<const char*>(bytes.data()), bytes.size()}) && file.close();
    if (is_written && platform::rename_replacing(part, picture_file))
        return {};
    const std::string cause = is_written || file.failure().empty() ? "" : ": " + file.failure();
    file.close();
    platform::delete_file(part);
    return picture_file + ": cannot be written" + cause;
}
