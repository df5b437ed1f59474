// Which value stands at a registry path, and what is said when there is none of that type.

#include "qlw/registry_access.h"

#include "qlw/ini_file.h"
#include "qlw/profile_state.h"
#include "qlw/qlw_trace.h"
#include "qlw/registry_path.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace {

constexpr std::uint32_t text_type = 1;
constexpr std::uint32_t binary_type = 3;
constexpr std::uint32_t number_type = 4;

template<class... Arguments>
void report(int line, const char* function, int level, std::string_view format, const Arguments&... arguments) {
    cl_trace::here(function, level, __builtin_FILE(), line).report(format, arguments...);
}

void report_missing_backslash(const char* function, std::string_view path) {
    report(__LINE__, function, trace_level::report, "Cannot parse registry key %s - Key must contain a backslash",
           path);
}

struct registry_place {
    platform::registry_hive hive;
    std::string_view rest; // key path and value name
};

// The place that a path names; nothing, with a report, for a path of another form.
std::optional<registry_place> parsed(const char* function, std::string_view path) {
    const auto pieces = split_off_hive(path);
    if (!pieces) {
        report_missing_backslash(function, path);
        return std::nullopt;
    }
    const auto hive = hive_named(pieces->hive);
    if (!hive) {
        report(__LINE__, function, trace_level::report, "Registry key must start with HKEY: %s", path);
        return std::nullopt;
    }
    return registry_place{*hive, pieces->rest};
}

platform::registry_answer ask(platform::registry_hive hive, const key_and_value_name& names) {
    return profile_state().registry->read(hive, std::string(names.key), std::string(names.value_name));
}

// How the reports call a number, and the shape in which it is stored.
struct number_shape {
    const char* function;
    const char* wrong_type_format;
    std::uint32_t type;
};

constexpr number_shape int_shape = {"get_int_from_registry",
                                    "Cannot parse registry key - Value is not a DWORD: %s: %s (%d)", number_type};
constexpr number_shape double_shape = {"get_double_from_registry",
                                       "Cannot parse registry key - Value is not a Double: %s: %s (%d)", binary_type};

template<class Number>
Number number_at(const number_shape& shape, std::string_view path, const key_and_value_name& names,
                 platform::registry_hive hive, Number default_value, bool quiet) {
    const platform::registry_answer answer = ask(hive, names);
    if (!answer.key_found && !quiet)
        report(__LINE__, shape.function, trace_level::report, "Cannot locate registry entry: %s: %s", names.value_name,
               path);
    if (!answer.key_found || !answer.value_found)
        return default_value;
    if (answer.type != shape.type) {
        report(__LINE__, shape.function, trace_level::report, shape.wrong_type_format, names.value_name, path,
               answer.type);
        return default_value;
    }
    Number number = default_value;
    if (answer.data.size() == sizeof number)
        std::memcpy(&number, answer.data.data(), sizeof number);
    return number;
}

template<class Number>
Number number_from_registry(const number_shape& shape, std::string_view path, Number default_value, bool quiet) {
    const auto place = parsed(shape.function, path);
    if (!place)
        return default_value;
    const auto names = split_off_value_name(place->rest);
    if (!names) {
        report_missing_backslash(shape.function, path);
        return default_value;
    }
    try {
        return number_at(shape, path, *names, place->hive, default_value, quiet);
    } catch (...) {
        report(__LINE__, shape.function, trace_level::report, "Registry error: %s: %s", names->value_name, path);
        return default_value;
    }
}

} // namespace

bool cl_registry_result::read_registry_entry(std::string_view path, std::string_view type_name, bool quiet) {
    constexpr const char* function = "cl_registry_result::read_registry_entry";
    *this = {};
    const auto place = parsed(function, path);
    if (!place)
        return false;
    std::optional<std::string> rest(place->rest);
    for (int attempt = 0; attempt < 2; ++attempt, rest = form_for_32_bits(place->hive, place->rest)) {
        if (!rest)
            return false;
        const auto names = split_off_value_name(*rest);
        if (!names) {
            report_missing_backslash(function, path);
            return false;
        }
        const platform::registry_answer answer = ask(place->hive, *names);
        if (!answer.key_found && !quiet)
            report(__LINE__, function, trace_level::report, "Cannot locate registry entry: %s", path);
        if (!answer.value_found || answer.data.size() > capacity)
            continue;
        size = static_cast<std::uint32_t>(answer.data.size());
        type = answer.type;
        std::memcpy(data.data(), answer.data.data(), answer.data.size());
        if (type != text_type)
            report(__LINE__, function, trace_level::user_error,
                   "Cannot parse registry key - Value is not a %s: %s (%d)", type_name, path, type);
        return type == text_type;
    }
    return false;
}

std::string cl_registry_result::text() const {
    return {data.begin(), std::find(data.begin(), data.end(), '\0')};
}

std::string get_string_from_registry(std::string_view path, std::string_view default_value, bool quiet) {
    cl_registry_result result;
    return result.read_registry_entry(path, "CString", quiet) ? result.text() : std::string(default_value);
}

int get_int_from_registry(std::string_view path, int default_value, bool quiet) {
    return number_from_registry(int_shape, path, default_value, quiet);
}

double get_double_from_registry(std::string_view path, double default_value, bool quiet) {
    return number_from_registry(double_shape, path, default_value, quiet);
}
