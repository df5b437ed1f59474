// How one setting enters the table: with its default, or with what the profile holds for it.

#include "qlw/color_text.h"
#include "qlw/qlw_globals.h"
#include "qlw/setting_names.h"
#include "qlw/text_numbers.h"

#include <optional>

namespace {

constexpr std::string_view profile_section = "Globals";
// What no stored value equals: the sign that the profile, or the default file, lacks the key.
constexpr int missing_int = -99999;
constexpr std::string_view missing_string = "ZZZ";
constexpr std::string_view missing_color = "xxx";

struct preset_setting {
    cl_variable_base& variable;
    bool is_new;
};

// The setting under that name: made with the save type, or the one that exists moved to it.
preset_setting begin_preset(std::string_view name, save_types saved, bool report_if_new) {
    if (cl_variable_base* existing = global_variables.lookup(name)) {
        existing->set_save_type(saved);
        return {*existing, false};
    }
    if (report_if_new && saved != SAVE_NONE)
        report_global_not_preset(name);
    return {global_variables.create_variable(name, saved), true};
}

std::optional<std::string> default_ini_text(std::string_view name) {
    std::string text = global_variables.profile().get_default_ini_string(profile_section, name, missing_string);
    if (text == missing_string)
        return std::nullopt;
    return text;
}

// The text that the profile holds, else that of the default file, else `fallback`.
std::string stored_text(std::string_view name, std::string_view missing, std::string_view fallback) {
    std::string text = global_variables.profile().get_string(profile_section, name, missing, true);
    if (text != missing)
        return text;
    return default_ini_text(name).value_or(std::string(fallback));
}

int stored_int(std::string_view name, int fallback) {
    const int number = global_variables.profile().get_int(profile_section, name, missing_int, true);
    if (number != missing_int)
        return number;
    const std::optional<std::string> text = default_ini_text(name);
    return text ? decimal_value(*text) : fallback;
}

void preset_checked_int(std::string_view name, save_types saved, int default_value, bool zero_means_default,
                        bool report_if_new) {
    const auto [variable, is_new] = begin_preset(name, saved, report_if_new);
    variable.set_default_int(default_value);
    if (!is_new)
        return;
    const int value = is_kept_in_profile(saved) ? stored_int(name, default_value) : default_value;
    variable.set_int(value == 0 && zero_means_default ? default_value : value);
}

} // namespace

void preset_global_int(std::string_view name, save_types saved, int default_value, bool zero_means_default,
                       bool report_if_new) {
    if (check_global_name_int(name))
        preset_checked_int(name, saved, default_value, zero_means_default, report_if_new);
}

void preset_global_bool(std::string_view name, save_types saved, bool default_value) {
    check_global_name_bool(name);
    preset_checked_int(name, saved, default_value ? 1 : 0, false, false);
}

void preset_global_string(std::string_view name, save_types saved, std::string_view default_value, bool keep_default) {
    check_global_name_String(name);
    const auto [variable, is_new] = begin_preset(name, saved, false);
    if (!keep_default)
        variable.set_default_string(default_value);
    if (is_new)
        variable.set_string(is_kept_in_profile(saved) ? stored_text(name, missing_string, default_value)
                                                      : std::string(default_value));
}

void preset_global_double(std::string_view name, save_types saved, double default_value) {
    check_global_name_double(name);
    const auto [variable, is_new] = begin_preset(name, saved, false);
    variable.set_default_double(default_value);
    if (is_new)
        variable.set_double(is_kept_in_profile(saved)
                                ? global_variables.profile().get_double(profile_section, name, default_value, true)
                                : default_value);
}

void preset_global_fpt(std::string_view name, const fpt& default_value) {
    check_global_name_fpt(name);
    const auto [variable, is_new] = begin_preset(name, OPTION_GLOBAL, false);
    variable.set_default_fpt(default_value);
    if (is_new)
        variable.set_fpt(default_value);
}

void preset_global_COLORREF(std::string_view name, save_types saved, color_ref default_value) {
    check_global_name_COLORREF(name);
    const auto [variable, is_new] = begin_preset(name, saved, false);
    variable.set_default_COLORREF(default_value);
    if (!is_new)
        return;
    const std::string default_text = color_to_text(default_value);
    variable.set_string(is_kept_in_profile(saved) ? stored_text(name, missing_color, default_text) : default_text);
}
