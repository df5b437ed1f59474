// How a file that was decoded reaches the disk.

#include "tessaline/files/decoded_file.h"

#include "platform/platform.h"
#include "qlw/qlw_text_files.h"

#include <cstddef>
#include <cstdint>

bool write_decoded_file(const cl_hex_encode& decoded, const std::string& path) {
    platform::delete_file(path);
    cl_output_file file;
    if (!file.open_binary(path, open_failure::quiet))
        return false;
    file.write_data(decoded.data.data(), decoded.data.size());
    // A few characters may announce 50 MB: writing the last of the zeros alone leaves a gap that takes no room.
    const auto size = static_cast<std::size_t>(decoded.data_size);
    constexpr std::uint8_t zero = 0;
    if (size > decoded.data.size() && file.seek(size - 1))
        file.write_data(&zero, 1);
    return true;
}
