#include "tools/batch_reading/line_source.h"

line_source::line_source(byte_source& from, std::size_t block, std::size_t longest)
    : source(from), block_size(block), longest_size(longest), buffer(block) {
    advance();
}

bool line_source::next_is(std::string_view text) {
    if (is_at_end)
        return false;
    // Reading may move the buffer, and `after` with it, even if nothing more comes.
    const auto behind = [this] { return std::string_view(buffer.data() + after, filled - after); };
    while (behind().find('\n') == std::string_view::npos && behind().size() <= text.size() + 1 && read_more())
        continue;
    std::string_view rest = behind();
    rest = rest.substr(0, rest.find('\n'));
    if (rest.ends_with('\r'))
        rest.remove_suffix(1);
    return rest == text;
}

const char* line_source::feed_behind_buffer() {
    std::size_t looked_at = filled - begin;
    while (looked_at <= longest_size) {
        if (!read_more())
            return nullptr;
        if (const void* feed = std::memchr(buffer.data() + begin + looked_at, '\n', filled - begin - looked_at))
            return static_cast<const char*>(feed);
        looked_at = filled - begin;
    }
    return feed_behind_cut_line();
}

const char* line_source::feed_behind_cut_line() {
    ++cut_count;
    while (true) {
        filled = begin + longest_size; // what was read beyond is dropped
        if (!read_more())
            return nullptr;
        char* kept_end = buffer.data() + begin + longest_size;
        const std::size_t more = filled - begin - longest_size;
        if (const void* feed = std::memchr(kept_end, '\n', more)) {
            const std::size_t rest = more - static_cast<std::size_t>(static_cast<const char*>(feed) - kept_end);
            std::memmove(kept_end, feed, rest);
            filled = begin + longest_size + rest;
            return kept_end;
        }
    }
}

bool line_source::read_more() {
    if (source_is_at_end)
        return false;
    if (begin > 0) {
        std::memmove(buffer.data(), buffer.data() + begin, filled - begin);
        filled -= begin;
        after -= begin;
        begin = 0;
    }
    if (buffer.size() - filled < block_size)
        buffer.resize(filled + block_size);
    const std::size_t more = source.read(buffer.data() + filled, block_size);
    source_is_at_end = more == 0;
    filled += more;
    read_count += more;
    return more > 0;
}

void line_source::settle_without_feed() {
    size = filled - begin;
    after = filled;
    is_at_end = size == 0;
    if (!is_at_end)
        note_wrong_end();
}

void line_source::note_wrong_end() {
    if (wrong_end_count++ == 0)
        first_wrong = line_number;
}
