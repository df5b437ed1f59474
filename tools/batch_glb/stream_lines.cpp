#include "tools/batch_glb/stream_lines.h"

#include <algorithm>
#include <cstring>

bool stream_lines::open(const std::string& file_name, std::size_t block) {
    buffer.resize(block);
    return file.open(file_name, platform::open_mode::read);
}

// Moves the begun line to the front and reads on behind it. False if there is nothing more.
bool stream_lines::refill() {
    if (at_end)
        return false;
    std::memmove(buffer.data(), buffer.data() + at, end - at);
    end -= at;
    at = 0;
    if (end == buffer.size()) {
        too_long = buffer.size() >= longest_line;
        if (too_long)
            return false;
        buffer.resize(buffer.size() * 2);
    }
    const std::size_t got = file.read(buffer.data() + end, buffer.size() - end);
    end += got;
    at_end = got == 0;
    return !at_end;
}

bool stream_lines::next(std::string_view& line) {
    std::size_t searched = 0;
    const void* feed = nullptr;
    while ((feed = std::memchr(buffer.data() + at + searched, '\n', end - at - searched)) == nullptr) {
        searched = end - at;
        if (!refill())
            break;
    }
    if (too_long || (feed == nullptr && at == end))
        return false;
    const std::size_t length =
        feed != nullptr ? static_cast<std::size_t>(static_cast<const char*>(feed) - (buffer.data() + at)) : end - at;
    line = {buffer.data() + at, length};
    at += length + (feed != nullptr ? 1 : 0);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    ++count;
    return true;
}
