// How the whole table of settings comes to life at start-up.

#include "qlw/qlw_globals.h"
#include "qlw/settings_table.h"

namespace {

void register_setting(const setting_row& row) {
    switch (row.kind) {
    case setting_kind::boolean:
        preset_global_bool(row.name, row.save_type, row.whole_default != 0);
        break;
    case setting_kind::integer:
        preset_global_int(row.name, row.save_type, row.whole_default, row.zero_means_default, row.report_if_new);
        break;
    case setting_kind::real:
        preset_global_double(row.name, row.save_type, row.real_default);
        break;
    case setting_kind::text:
        preset_global_string(row.name, row.save_type, row.text_default, false);
        break;
    case setting_kind::color:
        preset_global_COLORREF(row.name, row.save_type, row.color_default);
        break;
    case setting_kind::point:
        preset_global_fpt(row.name, {});
        break;
    }
}

} // namespace

void register_all_globals() {
    for (const setting_row& row : settings_table())
        register_setting(row);
}
