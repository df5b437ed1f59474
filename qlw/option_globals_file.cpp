// How settings travel in the option file.

#include "qlw/option_globals_file.h"

#include "platform/platform.h"
#include "qlw/qlw_globals.h"
#include "qlw/qlw_math.h"
#include "qlw/qlw_trace.h"
#include "qlw/text_numbers.h"
#include "qlw/trimmed.h"

#include <cstddef>
#include <string_view>

namespace {

std::string unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        plain += text[at];
        if (text.substr(at, 2) == "\\\\")
            ++at;
    }
    return plain;
}

std::string escaped(std::string_view text) {
    std::string safe;
    for (const char letter : text) {
        if (letter == '\\')
            safe += "\\\\";
        else if (letter == '\n')
            safe += "\\n";
        else if (letter != '\r')
            safe += letter;
    }
    return safe;
}

// Stores a value that differs from the one in the table; whether it did.
template<class Value, class Store>
bool store_if_other(const std::string& name, const Value& wanted, const Value& current, Store store) {
    if (wanted == current)
        return false;
    store(name, wanted, SAVE_UNKNOWN);
    return true;
}

// name: not empty.
bool store_setting(const std::string& name, std::string_view value) {
    switch (name.front()) {
    case 'b':
        return store_if_other(name, decimal_value(value) != 0, get_global_bool(name), set_global_bool);
    case 'i':
        return store_if_other(name, decimal_value(value), get_global_int(name), set_global_int);
    case 'c':
        return store_if_other(name, static_cast<color_ref>(decimal_value(value)), get_global_COLORREF(name),
                              set_global_COLORREF);
    case 'r':
        return store_if_other(name, double_value(value), get_global_double(name), set_global_double);
    case 's':
        return store_if_other(name, unescaped(value), get_global_string(name), set_global_string);
    case 'p': {
        const fpt wanted = text_to_fpt(value);
        const bool differs = !fpt_equal(get_global_fpt(name), wanted, point_tolerance);
        if (differs)
            set_global_fpt(name, wanted);
        return differs;
    }
    default:
        return false;
    }
}

bool goes_through_file(save_types saved) {
    return saved == SAVE_UNKNOWN || saved == SAVE_DATABASE || saved == OPTION_GLOBAL;
}

void write_setting(cl_output_file& file, const cl_variable_base& setting) {
    const std::string& name = setting.name;
    switch (name.empty() ? '\0' : name.front()) {
    case 'b':
    case 'i':
    case 'c':
        file.write_format("%s; %d\n", name, setting.get_int());
        return;
    case 'r':
        file.write_format("%s; %.9g\n", name, setting.get_double());
        return;
    case 'p': {
        const fpt point = setting.get_fpt();
        file.write_format("%s; (%.9g, %.9g, %.9g)\n", name, point.x, point.y, point.z);
        return;
    }
    case 's':
        file.write_format("%s; %s\n", name, escaped(setting.get_string()));
        return;
    default:
        cl_trace("qlw_globals", __LINE__, "write_option_globals_to_open_file", trace_level::developer_error, 0)
            .report("Unknown option_global: %s", name);
    }
}

} // namespace

void read_option_globals(const std::string& path) {
    if (path.empty() || !platform::exists(path))
        return;
    cl_input_file file;
    if (file.open(path, open_failure::quiet, "option_globals_file", __LINE__))
        read_option_globals_from_open_file(file);
}

bool read_option_globals_from_open_file(cl_input_file& file) {
    bool changed = false;
    std::string line;
    while (file.read_line(line)) {
        const std::string_view text = trimmed(line);
        const std::size_t separator = text.find(';');
        if (text.empty() || text.front() == '#' || separator == 0 || separator == std::string_view::npos)
            continue;
        const std::string name(trimmed(text.substr(0, separator)));
        if (store_setting(name, trimmed(text.substr(separator + 1))))
            changed = true;
    }
    return changed;
}

void write_option_globals_to_open_file(cl_output_file& file) {
    if (!file.is_open()) {
        cl_trace("qlw_globals", __LINE__, "write_option_globals_to_open_file", trace_level::user_error, 0)
            .report("Options Global FIle not found");
        return;
    }
    for (const std::string& name : get_global_names()) {
        const cl_variable_base& setting = global_variables.find_global(name);
        if (!goes_through_file(setting.save_type))
            continue;
        const bool is_filter = name == "ivl_image_filters" || name == "svl_image_filters";
        if (!get_global_bool("bvl_remember_filters") && is_filter)
            continue;
        write_setting(file, setting);
    }
}
