#pragma once

// What the program family's settings are called, where each is kept and what it starts with. The table is data; the
// registration walks it.

#include "qlw/setting_variables.h"

#include <cstdint>
#include <span>
#include <string_view>

enum class setting_kind { boolean, integer, real, text, color, point };

// One setting. Of the four defaults the one that fits the kind counts; a point starts at (0, 0, 0).
struct setting_row {
    std::string_view name;
    setting_kind kind;
    save_types save_type;
    std::int32_t whole_default = 0; // boolean or integer
    double real_default = 0;
    std::string_view text_default = {};
    color_ref color_default = 0;
    bool zero_means_default = false;
    bool report_if_new = false;
};

// All rows, in the order of registration. The host and the other programs of the family exchange these settings, so
// rows that nothing here reads stand as well: they pass through the option file.
std::span<const setting_row> settings_table();
