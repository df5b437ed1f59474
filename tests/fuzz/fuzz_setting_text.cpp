// Reads any bytes as the text of each type of setting, and as a registry path: every text gives a value whose own text
// gives the same value again, and what is stored at a path is found there.

#include "qlw/color_text.h"
#include "qlw/profile_state.h"
#include "qlw/qlw_math.h"
#include "qlw/registry_access.h"
#include "qlw/registry_path.h"
#include "qlw/setting_variables.h"
#include "tests/qlw/memory_registry.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

void expect(bool is_true) {
    if (!is_true)
        std::abort();
}

void read_as_color(const std::string& text) {
    const color_ref color = text_to_color(text) & 0xFFFFFF; // the text of a colour has no fourth byte
    expect(text_to_color(color_to_text(color)) == color);
}

void read_as_point(const std::string& text) {
    const std::string once = fpt_to_text(text_to_fpt(text));
    expect(fpt_to_text(text_to_fpt(once)) == once);
}

// Asks for the value in every form, and sets the variable to its own text.
void read_as(cl_variable_base&& variable, const std::string& text) {
    variable.set_string(text);
    const std::string once = variable.get_string();
    variable.get_int();
    variable.get_double();
    variable.set_string(once);
    expect(variable.get_string() == once || once.empty()); // a colour shows no text
    variable.set_double(variable.get_double());
    variable.set_int(variable.get_int());
}

void read_as_registry_path(const std::string& path) {
    auto registry = std::make_unique<memory_registry>();
    registry->put_text("HKLM\\SOFTWARE\\Maker\\Owner", "Ann");
    profile_state().registry = std::move(registry);
    get_int_from_registry(path, 7, true);
    get_double_from_registry(path, 7, true);
    get_string_from_registry(path, "nobody", true);
    if (lies_in_company_tree(path))
        return; // these lead to the ini files of whoever runs this
    const bool is_stored = set_registry_string_data(path, "new") == 1;
    expect(!is_stored || get_string_from_registry(path, "nobody", true) == "new");
    get_from_registry_both(path, "nobody");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    read_as_color(text);
    read_as_point(text);
    read_as(cl_variable_int("i", SAVE_NONE), text);
    read_as(cl_variable_double("r", SAVE_NONE, 0), text);
    read_as(cl_variable_string("s", SAVE_NONE, ""), text);
    read_as(cl_variable_fpt("p", SAVE_NONE, {}), text);
    read_as(cl_variable_COLORREF("c", SAVE_NONE), text);
    read_as_registry_path(text);
    read_as_registry_path("HKEY_LOCAL_MACHINE\\SOFTWARE\\" + text);
    return 0;
}
