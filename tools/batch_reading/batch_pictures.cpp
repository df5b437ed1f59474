#include "tools/batch_reading/batch_pictures.h"

#include "platform/platform.h"
#include "text/path_end.h"

std::optional<std::vector<std::byte>> read_batch_picture(const std::string& batch_folder, const std::string& path) {
    constexpr std::uint64_t most_bytes = std::uint64_t{1} << 30U; // as one that can be decoded may have
    for (const char* const inside : {"Batch_SketchUp_Textures", "ZynBatch_Images"}) {
        std::string name = batch_folder + platform::path_separator + inside + platform::path_separator;
        name += last_component(path);
        if (auto bytes = platform::read_file(name, most_bytes))
            return bytes;
    }
    return platform::read_file(path, most_bytes);
}
