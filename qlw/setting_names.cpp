#include "qlw/setting_names.h"

#include "qlw/qlw_trace.h"

namespace {

bool report_unless(bool is_acceptable, int line, const char* function, std::string_view message,
                   std::string_view name) {
    if (!is_acceptable)
        cl_trace("qlw_globals", line, function, trace_level::developer_error, 0).report(message, name);
    return is_acceptable;
}

} // namespace

bool check_global_name_int(std::string_view name) {
    return report_unless(name.starts_with('i') || name.starts_with('b'), __LINE__, "check_global_name_int",
                         "Integer globals should start with 'i': '%s'", name);
}

bool check_global_name_bool(std::string_view name) {
    return report_unless(name.starts_with('b'), __LINE__, "check_global_name_bool",
                         "bool globals should start with 'b': '%s'", name);
}

bool check_global_name_double(std::string_view name) {
    return report_unless(name.starts_with('r'), __LINE__, "check_global_name_double",
                         "Double globals should start with 'r': %s", name);
}

bool check_global_name_String(std::string_view name) {
    return report_unless(name.starts_with('s'), __LINE__, "check_global_name_String",
                         "CString globals should start with 's': %s", name);
}

bool check_global_name_fpt(std::string_view name) {
    return report_unless(name.starts_with('p'), __LINE__, "check_global_name_fpt",
                         "Floating Point globals should start with 'p': %s", name);
}

bool check_global_name_COLORREF(std::string_view name) {
    return report_unless(name.starts_with('c'), __LINE__, "check_global_name_COLORREF",
                         "COLORREF globals should start with 'c': %s", name);
}
