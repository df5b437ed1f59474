#include "qlw/setting_variables.h"

#include "qlw/qlw_math.h"
#include "qlw/qlw_profile.h"
#include "qlw/qlw_trace.h"
#include "qlw/text_numbers.h"
#include "qlw/whole_number.h"

#include <cmath>
#include <cstdio>

namespace {

constexpr std::string_view profile_section = "Globals";
constexpr double two_to_63 = 9223372036854775808.0;

enum variable_types : std::int32_t { int_type = 1, string_type, double_type, fpt_type, color_type };

std::string shown_number(double number) {
    return number_text(snap_to_zero(number, smallest_in_text));
}

// The nearest integer cut to 32 bits; 0 where there is no integer of 64 bits.
std::int32_t rounded_low_bits(double number) {
    const double whole = std::floor(number + round_up_from);
    if (!(whole >= -two_to_63 && whole < two_to_63))
        return 0;
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::int64_t>(whole)));
}

std::string coordinate_key(const std::string& name, const char* suffix) {
    return name + suffix;
}

} // namespace

cl_variable_base::cl_variable_base(std::string_view variable_name, std::int32_t type, save_types saved_as)
    : name(variable_name), variable_type(type), save_type(saved_as) {}

void cl_variable_base::set_save_type(save_types new_type) {
    if (new_type < SAVE_PROFILE || new_type > OPTION_NON_DATABASE_GLOBAL)
        return;
    if (save_type != new_type) {
        cl_trace trace = cl_trace::here("cl_variable_base::set_save_type", trace_level::report);
        if (new_type == SAVE_PROFILE)
            trace.report("Setting save type to SAVE_PROFILE from (%d): %s", static_cast<std::int32_t>(save_type), name);
        else if (new_type == SAVE_DATABASE)
            trace.report("Setting save type to SAVE_DATABASE: %s", name);
        else if (new_type == OPTION_GLOBAL)
            trace.report("Setting save type to OPTION_GLOBAL: %s", name);
        else
            trace.report("Setting save type to OPTION_NON_DATABASE_GLOBAL: %s", name);
    }
    save_type = new_type;
}

// Integers

cl_variable_int::cl_variable_int(std::string_view variable_name, save_types saved_as)
    : cl_variable_base(variable_name, int_type, saved_as) {}

std::string cl_variable_int::get_string() const {
    return integer_text(value);
}

void cl_variable_int::set_string(std::string_view text) {
    value = decimal_value(text);
}

void cl_variable_int::set_double(double number) {
    value = cut_toward_zero(number);
}

void cl_variable_int::write_to_profile(cl_profile& profile) const {
    if (is_kept_in_profile(save_type))
        profile.write_int(profile_section, name, value);
}

void cl_variable_int::read_from_profile(cl_profile& profile) {
    value = profile.get_int(profile_section, name, 0, false);
}

// Strings

cl_variable_string::cl_variable_string(std::string_view variable_name, save_types saved_as, std::string_view start)
    : cl_variable_base(variable_name, string_type, saved_as), value(start) {}

std::int32_t cl_variable_string::get_int() const {
    return decimal_value(value);
}

double cl_variable_string::get_double() const {
    return double_value(value);
}

void cl_variable_string::set_int(std::int32_t number) {
    value = integer_text(number);
}

void cl_variable_string::set_double(double number) {
    value = shown_number(number);
}

void cl_variable_string::write_to_profile(cl_profile& profile) const {
    if (is_kept_in_profile(save_type))
        profile.write_string(profile_section, name, value);
}

void cl_variable_string::read_from_profile(cl_profile& profile) {
    value = profile.get_string(profile_section, name, {}, false);
}

// Doubles

cl_variable_double::cl_variable_double(std::string_view variable_name, save_types saved_as, double start)
    : cl_variable_base(variable_name, double_type, saved_as), value(start) {}

std::int32_t cl_variable_double::get_int() const {
    return rounded_low_bits(value);
}

std::string cl_variable_double::get_string() const {
    return shown_number(value);
}

void cl_variable_double::set_string(std::string_view text) {
    value = double_value(text);
}

void cl_variable_double::write_to_profile(cl_profile& profile) const {
    if (is_kept_in_profile(save_type))
        profile.write_double(profile_section, name, value);
}

void cl_variable_double::read_from_profile(cl_profile& profile) {
    value = profile.get_double(profile_section, name, 0.0, false);
}

// Points

cl_variable_fpt::cl_variable_fpt(std::string_view variable_name, save_types saved_as, const fpt& start)
    : cl_variable_base(variable_name, fpt_type, saved_as), value(start) {}

std::string cl_variable_fpt::get_string() const {
    return fpt_to_text(value);
}

void cl_variable_fpt::set_string(std::string_view text) {
    fpt point;
    // What does not match stays 0, so the count of matches tells nothing more.
    static_cast<void>(std::sscanf(std::string(text).c_str(), "(%lg,%lg,%lg)", &point.x, &point.y, &point.z));
    value = point;
}

void cl_variable_fpt::write_to_profile(cl_profile& profile) const {
    if (!is_kept_in_profile(save_type))
        return;
    profile.write_double(profile_section, coordinate_key(name, "_x"), value.x);
    profile.write_double(profile_section, coordinate_key(name, "_y"), value.y);
    profile.write_double(profile_section, coordinate_key(name, "_z"), value.z);
}

void cl_variable_fpt::read_from_profile(cl_profile& profile) {
    value = {}; // stays where a read throws
    value.x = profile.get_double(profile_section, coordinate_key(name, "_x"), 0.0, false);
    value.y = profile.get_double(profile_section, coordinate_key(name, "_y"), 0.0, false);
    value.z = profile.get_double(profile_section, coordinate_key(name, "_z"), 0.0, false);
}

void cl_variable_fpt::restore_default() {
    if (!fpt_equal(value, default_value, point_tolerance))
        value = default_value;
}

// Colours

cl_variable_COLORREF::cl_variable_COLORREF(std::string_view variable_name, save_types saved_as)
    : cl_variable_base(variable_name, color_type, saved_as) {}

void cl_variable_COLORREF::set_string(std::string_view text) {
    value = text_to_color(text);
}

void cl_variable_COLORREF::write_to_profile(cl_profile& profile) const {
    if (is_kept_in_profile(save_type))
        profile.write_string(profile_section, name, color_to_text(value));
}

void cl_variable_COLORREF::read_from_profile(cl_profile& profile) {
    value = text_to_color(profile.get_string(profile_section, name, {}, false));
}
