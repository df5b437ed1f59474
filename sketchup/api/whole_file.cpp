#include "sketchup/api/whole_file.h"

#include "platform/platform.h"

#include <cstddef>
#include <string_view>

namespace sketchup::api {

std::optional<std::vector<std::uint8_t>> read_whole_file(const std::string& path) {
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

bool write_whole_file(const std::string& path, const std::vector<std::uint8_t>& bytes) {
    platform::file file;
    if (!file.open(path, platform::open_mode::write))
        return false;
    const bool written = file.write_all({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    if (file.close() && written)
        return true;
    platform::delete_file(path);
    return false;
}

} // namespace sketchup::api
