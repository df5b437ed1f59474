// Opens files for reading and takes fields off their lines.

#include "qlw/qlw_std.h"
#include "qlw/qlw_text_files.h"
#include "qlw/qlw_trace.h"
#include "qlw/trimmed.h"

namespace {

// What stands for a quote and the letter behind it.
char escaped_letter(char letter, const std::string& line) {
    if (letter == 'r')
        return '\r';
    if (letter == 'n')
        return '\n';
    if (traces_are_heard()) // the report holds the whole line, and each of its letters may be one of these
        cl_trace::here("cl_input_file::read_field_csv", trace_level::developer_error)
            .report("Bad \\ escape character: %d %c (%s)", static_cast<int>(letter), letter, line);
    return letter;
}

} // namespace

bool cl_input_file::open(const std::string& path, open_failure failure, const std::string& source_file,
                         int source_line) {
    const std::string name = resolve_file_path({}, {}, path);
    if (name.find(".ini") != std::string::npos) // users edit these, so the trace tells which one was read
        cl_trace::here("cl_input_file::open", trace_level::plain).report("Opening .ini file: %s", name);
    if (open_stream(name, platform::open_mode::read, content::text))
        return true;
    const std::string cause = stream.failure().empty() ? "File not found" : stream.failure();
    cl_trace("qlw_std", __LINE__, "cl_input_file::open", trace_level::report, 0)
        .report("File not opened: %s: %s: %s %d", name, cause, source_file, source_line);
    if (failure == open_failure::shown)
        cl_trace("qlw_std", __LINE__, "cl_input_file::open", trace_level::user_error, 0)
            .report("Cannot open file: '%s' %s: %s %d", name, cause, source_file, source_line);
    return false;
}

bool cl_input_file::open_binary(const std::string& path, open_failure failure, const std::string& source_file,
                                int source_line) {
    const std::string name = resolve_file_path({}, {}, path);
    if (open_stream(name, platform::open_mode::read, content::binary))
        return true;
    if (failure == open_failure::shown)
        cl_trace::here("cl_input_file::open_binary", trace_level::user_error)
            .report("Cannot open file: %s: %s %d", name, source_file, source_line);
    return false;
}

std::string cl_input_file::read_field_csv(std::string& line) {
    std::string field;
    bool in_quotes = false;
    bool escape = false;
    std::size_t i = 0;
    for (; i < line.size() && line[i] != '\n'; i++) {
        char letter = line[i];
        if (letter == ';' && (!in_quotes || escape))
            break;
        if (letter == '"' && !escape) {
            if (i == 0)
                in_quotes = true;
            else
                escape = true;
            continue;
        }
        if (escape && letter != '"')
            letter = escaped_letter(letter, line);
        field += letter;
        escape = false;
    }
    line = i + 1 < line.size() ? line.substr(i + 1) : std::string();
    return std::string(trimmed(field));
}
