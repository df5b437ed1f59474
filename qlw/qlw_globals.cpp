#include "qlw/qlw_globals.h"

#include "qlw/profile_state.h"
#include "qlw/qlw_trace.h"
#include "qlw/setting_names.h"

#include <algorithm>

cl_global_variable_array global_variables;

namespace {

constexpr std::size_t bucket_count = 501; // for the some 650 settings of the family

std::unique_ptr<cl_variable_base> make_variable(std::string_view name, save_types saved) {
    switch (name.empty() ? '\0' : name.front()) {
    case 'b':
    case 'i':
        return std::make_unique<cl_variable_int>(name, saved);
    case 'c':
        return std::make_unique<cl_variable_COLORREF>(name, saved);
    case 'p':
        return std::make_unique<cl_variable_fpt>(name, saved, fpt{});
    case 's':
        return std::make_unique<cl_variable_string>(name, saved, "");
    default:
        return std::make_unique<cl_variable_double>(name, saved, 0.0);
    }
}

// The setting of that name, which is made and reported if it is missing; the profile is not asked.
cl_variable_base& readable_global(std::string_view name) {
    if (cl_variable_base* variable = global_variables.lookup(name))
        return *variable;
    report_global_not_preset(name);
    return global_variables.create_variable(name, SAVE_UNKNOWN);
}

// The setting of that name, marked as written.
cl_variable_base& writable_global(std::string_view name, save_types expected) {
    cl_variable_base& variable = global_variables.find_global(name, expected);
    variable.value_set = 1;
    return variable;
}

void report_unexpected_save_type(save_types actual, save_types expected, std::string_view name) {
    if (expected == SAVE_UNKNOWN)
        return;
    cl_trace trace = cl_trace::here("cl_global_variable_array::find_global", trace_level::plain);
    if ((expected == OPTION_GLOBAL) != (actual == OPTION_GLOBAL))
        trace.report("OPTION_GLOBAL NOT SET PROPERLY: %s", name);
    else if ((expected == OPTION_NON_DATABASE_GLOBAL) != (actual == OPTION_NON_DATABASE_GLOBAL))
        trace.report("OPTION_NON_DATABASE_GLOBAL NOT SET PROPERLY: %s", name);
}

} // namespace

cl_global_variable_array::cl_global_variable_array() : variables(bucket_count) {}

cl_variable_base* cl_global_variable_array::lookup(std::string_view name) const {
    const auto found = variables.find(name);
    return found == variables.end() ? nullptr : found->second.get();
}

cl_variable_base& cl_global_variable_array::create_variable(std::string_view name, save_types saved) {
    return *variables.emplace(name, make_variable(name, saved)).first->second;
}

cl_variable_base& cl_global_variable_array::find_global(std::string_view name, save_types expected) {
    if (cl_variable_base* variable = lookup(name)) {
        report_unexpected_save_type(variable->save_type, expected, name);
        return *variable;
    }
    cl_variable_base& variable = create_variable(name, expected);
    if (is_kept_in_profile(expected)) {
        try {
            variable.read_from_profile(*store);
        } catch (...) {
            cl_trace::here("cl_global_variable_array::find_global", trace_level::report)
                .report("Could not load global: %s", name);
        }
    }
    return variable;
}

std::vector<std::string> cl_global_variable_array::names() const {
    std::vector<std::string> result;
    result.reserve(variables.size());
    for (const auto& [name, variable] : variables)
        result.push_back(name);
    std::sort(result.begin(), result.end());
    return result;
}

void cl_global_variable_array::reset() {
    variables.clear();
    store = &user_profile;
}

void reset_settings() {
    global_variables.reset();
    reset_profile_state();
}

std::vector<std::string> get_global_names() {
    return global_variables.names();
}

void report_global_not_preset(std::string_view name) {
    cl_trace::here("report_global_not_preset", trace_level::report).report("Global not preset properly: %s", name);
}

// Readers

int get_global_int(std::string_view name) {
    return check_global_name_int(name) ? readable_global(name).get_int() : 0;
}

bool get_global_bool(std::string_view name) {
    check_global_name_bool(name);
    return readable_global(name).get_int() != 0;
}

std::string get_global_string(std::string_view name) {
    check_global_name_String(name);
    if (name.empty())
        return {};
    const cl_variable_base& variable = readable_global(name);
    std::string value = variable.get_string();
    variable.write_to_profile(global_variables.profile());
    return value;
}

double get_global_double(std::string_view name) {
    check_global_name_double(name);
    const cl_variable_base& variable = readable_global(name);
    variable.write_to_profile(global_variables.profile());
    return variable.get_double();
}

fpt get_global_fpt(std::string_view name) {
    check_global_name_fpt(name);
    const cl_variable_base& variable = readable_global(name);
    variable.write_to_profile(global_variables.profile());
    return variable.get_fpt();
}

color_ref get_global_COLORREF(std::string_view name) {
    check_global_name_COLORREF(name);
    const cl_variable_base& variable = readable_global(name);
    variable.write_to_profile(global_variables.profile());
    return variable.get_COLORREF();
}

// Writers

void set_global_int(std::string_view name, int value, save_types expected) {
    if (!check_global_name_int(name))
        return;
    cl_variable_base& variable = writable_global(name, expected);
    variable.set_int(value);
    variable.write_to_profile(global_variables.profile());
}

void set_global_bool(std::string_view name, bool value, save_types expected) {
    check_global_name_bool(name);
    cl_variable_base& variable = writable_global(name, expected);
    variable.set_int(value ? 1 : 0);
    variable.write_to_profile(global_variables.profile());
}

void set_global_string(std::string_view name, std::string_view value, save_types expected) {
    check_global_name_String(name);
    cl_variable_base& variable = writable_global(name, expected);
    variable.set_string(value);
    variable.write_to_profile(global_variables.profile());
}

void set_global_double(std::string_view name, double value, save_types expected) {
    check_global_name_double(name);
    cl_variable_base& variable = writable_global(name, expected);
    variable.set_double(value);
    variable.write_to_profile(global_variables.profile());
}

void set_global_fpt(std::string_view name, const fpt& value, save_types expected) {
    check_global_name_fpt(name);
    cl_variable_base& variable = writable_global(name, expected);
    variable.set_fpt(value);
    variable.write_to_profile(global_variables.profile());
}

void set_global_COLORREF(std::string_view name, color_ref value, save_types expected) {
    check_global_name_COLORREF(name);
    cl_variable_base& variable = writable_global(name, expected);
    variable.set_COLORREF(value);
    variable.write_to_profile(global_variables.profile());
}
