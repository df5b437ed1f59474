// Opens files for writing and proves, if asked, that the disk takes what is written.

#include "qlw/qlw_std.h"
#include "qlw/qlw_text_files.h"
#include "qlw/qlw_trace.h"

#include <random>

namespace {

void report_not_created(const std::string& name, int line, const char* function) {
    cl_trace::here(function, trace_level::user_error, __builtin_FILE(), line)
        .report("Cannot create file: '%s'. \n\nMake sure that the file path exists and that the file is not in use by "
                "another program.",
                name);
}

} // namespace

bool cl_output_file::open(const std::string& path, output_file_mode mode) {
    const std::string name = resolve_file_path({}, {}, path);
    if (name.find(".ini") != std::string::npos)
        cl_trace::here("cl_output_file::open", trace_level::plain).report("Opening .ini file: %s", name);
    if (!open_stream(name, platform::open_mode::write, content::text) && mode == output_file_mode::report_failure) {
        report_not_created(name, __LINE__, "cl_output_file::open");
        return false;
    }
    if (mode == output_file_mode::write_test && !passes_write_test())
        return false;
    return is_open();
}

// Leaves the file empty and open if it passes, closed if not.
bool cl_output_file::passes_write_test() {
    const std::string name = path();
    const auto seed = static_cast<unsigned>(static_cast<std::int64_t>(platform::seconds_since_epoch() * 1000.0));
    const std::string written =
        format_text("TEST DATA: %g", static_cast<double>(std::minstd_rand(seed)())).value_or(std::string());
    write_string(written);
    close();
    cl_input_file reader;
    if (!reader.open(name, open_failure::quiet, {}, 0)) {
        cl_trace::here("cl_output_file::open", trace_level::user_error)
            .report("Cannot create file: '%s'. Unable to write to, and then re-open file\n\nMake sure that the file "
                    "path exists and that the file is not in use by another program.",
                    name);
        return false;
    }
    std::string line;
    reader.read_line(line);
    if (line != written) {
        cl_trace::here("cl_output_file::open", trace_level::user_error)
            .report("Cannot create file: '%s'. Unable to write to, and then re-read file\n\nMake sure that the file "
                    "path exists and that the file is not in use by another program.",
                    name);
        return false;
    }
    reader.close();
    return open_stream(name, platform::open_mode::write, content::text);
}

bool cl_output_file::open_for_append(const std::string& path, open_failure failure) {
    const std::string name = resolve_file_path({}, {}, path);
    if (open_stream(name, platform::open_mode::append, content::text))
        return true;
    if (failure == open_failure::shown)
        report_not_created(name, __LINE__, "cl_output_file::open_for_append");
    return false;
}

bool cl_output_file::open_binary(const std::string& path, open_failure failure) {
    const std::string name = resolve_file_path({}, {}, path);
    if (open_stream(name, platform::open_mode::write, content::binary))
        return true;
    if (failure == open_failure::shown)
        report_not_created(name, __LINE__, "cl_output_file::open_binary");
    return false;
}

bool cl_output_file::write_data(const void* buffer, std::size_t size) {
    if (!write_bytes(std::string_view(static_cast<const char*>(buffer), size)))
        cl_trace::here("cl_output_file::write_data", trace_level::developer_error)
            .report("Cannot write to file: %s.", path());
    return true; // callers take the data as written: the trace is the only sign
}
