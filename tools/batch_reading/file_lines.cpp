#include "tools/batch_reading/file_lines.h"

bool file_lines::open(const std::string& file_name, std::size_t block) {
    if (!source.file.open(file_name, platform::open_mode::read))
        return false;
    lines.emplace(source, block);
    return true;
}
