// The buffered file under the text and binary files: what reaches the disk, and where lines end.

#include "qlw/qlw_text_files.h"

#include "qlw/qlw_trace.h"

#include <algorithm>

namespace {

constexpr std::size_t block_bytes = 65536; // bytes gathered before the system is asked

} // namespace

cl_stdio_file::~cl_stdio_file() {
    close();
}

bool cl_stdio_file::open_stream(const std::string& path, platform::open_mode mode, content kind) {
    close();
    file_path = path;
    content_kind = kind;
    return stream.open(path, mode);
}

bool cl_stdio_file::fill() {
    if (read_from < read_ahead.size())
        return true;
    read_ahead.resize(block_bytes);
    read_ahead.resize(stream.read(read_ahead.data(), read_ahead.size()));
    read_from = 0;
    return !read_ahead.empty();
}

bool cl_stdio_file::read_line(std::string& line) {
    bool is_too_long = false;
    while (read_any_line(line, is_too_long)) {
        if (!is_too_long)
            return true;
        cl_trace::here("cl_stdio_file::read_line", trace_level::plain)
            .report("A line of more than %d bytes is passed over: %s", longest_line, file_path);
    }
    return false;
}

// A line that is too long is read to its end and not kept.
bool cl_stdio_file::read_any_line(std::string& line, bool& is_too_long) {
    line.clear();
    is_too_long = false;
    bool found_any = false;
    while (fill()) {
        found_any = true;
        const std::size_t end = read_ahead.find('\n', read_from);
        const std::size_t size = std::min(end, read_ahead.size()) - read_from; // all that is left if no line ends here
        is_too_long = is_too_long || size > longest_line - line.size();
        if (is_too_long)
            line.clear();
        else
            line.append(read_ahead, read_from, size);
        if (end != std::string::npos) {
            read_from = end + 1;
            if (content_kind == content::text && line.ends_with('\r'))
                line.pop_back();
            break;
        }
        read_from = read_ahead.size();
    }
    return found_any;
}

bool cl_stdio_file::write_bytes(std::string_view bytes) {
    if (!is_open())
        return false;
    pending.append(bytes);
    return pending.size() < block_bytes || flush();
}

bool cl_stdio_file::write_string(std::string_view text) {
    if (content_kind == content::binary)
        return write_bytes(text);
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        if (!write_bytes(text.substr(0, end)) || !write_bytes("\r\n"))
            return false;
        text.remove_prefix(end + 1);
    }
    return write_bytes(text);
}

bool cl_stdio_file::flush() {
    const bool is_written = stream.write_all(pending);
    pending.clear(); // what the disk refuses now it would refuse again at the close
    return is_written;
}

bool cl_stdio_file::seek(std::uint64_t offset) {
    read_ahead.clear();
    read_from = 0;
    const bool is_written = pending.empty() || flush();
    return stream.seek(offset) && is_written;
}

bool cl_stdio_file::close() {
    const bool is_written = pending.empty() || flush();
    read_ahead.clear();
    read_from = 0;
    return stream.close() && is_written;
}
