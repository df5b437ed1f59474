#include "sketchup/api/whole_file.h"

#include "platform/platform.h"

#include <cstddef>

namespace sketchup::api {

std::optional<std::vector<std::uint8_t>> read_whole_file(const std::string& utf8_path) {
    const std::string path = platform::own_from_utf8(utf8_path);
    const std::optional<std::uint64_t> size = platform::file_size(path);
    platform::file file;
    if (!size || *size > std::vector<std::uint8_t>().max_size() || !file.open(path, platform::open_mode::read))
        return std::nullopt;
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(*size));
    std::size_t done = 0;
    while (done < bytes.size()) {
        const std::size_t step = file.read(bytes.data() + done, bytes.size() - done);
        if (step == 0)
            return std::nullopt;
        done += step;
    }
    return bytes;
}

} // namespace sketchup::api
