// Reads any bytes as the lines of a view file.

#include "tessaline/view_file.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view text(reinterpret_cast<const char*>(data), size);
    camera_view view;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        if (!read_view_line(text.substr(0, end), view))
            break;
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    if (view.pixel_width < 0 || view.pixel_height < 0 || view.ortho_height < 0)
        std::abort();
    return 0;
}
