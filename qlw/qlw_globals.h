#pragma once

// All settings of the program family in one table, reached by name. Names are compared exactly, case included; the
// first letter is the type: b boolean, i integer, r double, s string, c colour, p point.

#include "qlw/qlw_profile.h"
#include "qlw/setting_variables.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class cl_global_variable_array {
public:
    cl_global_variable_array();

    // The setting of that name, or null; makes nothing and reports nothing.
    cl_variable_base* lookup(std::string_view name) const;

    // The setting of that name, made if it is missing: of the type that the first letter tells, with the save type
    // `expected`, its value taken from the profile if that save type is kept there.
    // expected: the save type the caller counts on; 0 for any. A setting of another kind is reported at level 0,
    // unchanged.
    cl_variable_base& find_global(std::string_view name, save_types expected = SAVE_UNKNOWN);

    // Adds a setting under a name that the table does not hold yet. The type follows from the first letter: b and i
    // integer, c colour, p point, s string, any other double. The value is the zero of the type.
    cl_variable_base& create_variable(std::string_view name, save_types saved);

    // The names of all settings, ascending by byte.
    std::vector<std::string> names() const;

    std::size_t size() const { return variables.size(); }
    cl_profile& profile() const { return *store; }

    // Reads and writes go to that profile from now on; it must outlive the table or its next reset.
    void use_profile(cl_profile& other) { store = &other; }

    // Empties the table and goes back to the user's profile.
    void reset();

private:
    struct name_hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view name) const { return std::hash<std::string_view>{}(name); }
    };

    std::unordered_map<std::string, std::unique_ptr<cl_variable_base>, name_hash, std::equal_to<>> variables;
    cl_profile user_profile;
    cl_profile* store = &user_profile;
};

// The one table. Process-wide because every room reads settings, at the moment of use, by name alone.
extern cl_global_variable_array global_variables;

// Puts every setting of the family into the table, with its default or what the profile holds for it. Called once at
// start-up.
void register_all_globals();

// The table as at the start of the process: empty, with the user's profile, of which nothing has been read. For tests
// and fuzzing.
void reset_settings();

// The names of all settings, ascending by byte.
std::vector<std::string> get_global_names();

// Reports at level 1 that a setting was used before it was registered.
void report_global_not_preset(std::string_view name);

// Readers. A name of the wrong first letter is reported at level 4; get_global_int then gives 0, the others go on. A
// name that is not in the table is reported once, at level 1, and exists from then on with the zero of its type.
// Reading a string, double, point or colour writes it back to the profile if it is kept there; an integer or boolean
// not.
int get_global_int(std::string_view name);
bool get_global_bool(std::string_view name);
std::string get_global_string(std::string_view name); // an empty name gives the empty text
double get_global_double(std::string_view name);
fpt get_global_fpt(std::string_view name);
color_ref get_global_COLORREF(std::string_view name);

// Writers. A name of the wrong first letter is reported at level 4; set_global_int then stores nothing, the others go
// on. The value goes to the profile too if it is kept there. expected: the save type that the caller counts on, 0 for
// any; see find_global.
void set_global_int(std::string_view name, int value, save_types expected = SAVE_UNKNOWN);
void set_global_bool(std::string_view name, bool value, save_types expected = SAVE_UNKNOWN);
void set_global_string(std::string_view name, std::string_view value, save_types expected = SAVE_UNKNOWN);
void set_global_double(std::string_view name, double value, save_types expected = SAVE_UNKNOWN);
void set_global_fpt(std::string_view name, const fpt& value, save_types expected = SAVE_UNKNOWN);
void set_global_COLORREF(std::string_view name, color_ref value,
                         save_types expected = SAVE_UNKNOWN); // stored masked to 24 bits

// Registration. A new setting gets the default, or the value that the profile holds if it is kept there. One that
// exists changes its save type and default and keeps its value. zero_means_default: a value of 0 from the profile gives
// way to the default. report_if_new: registering it for the first time is reported, unless it is never saved.
void preset_global_int(std::string_view name, save_types saved, int default_value, bool zero_means_default,
                       bool report_if_new);
void preset_global_bool(std::string_view name, save_types saved, bool default_value);
// keep_default: the text becomes the value, not the default.
void preset_global_string(std::string_view name, save_types saved, std::string_view default_value, bool keep_default);
void preset_global_double(std::string_view name, save_types saved, double default_value);
void preset_global_fpt(std::string_view name, const fpt& default_value); // always goes through the option file
void preset_global_COLORREF(std::string_view name, save_types saved, color_ref default_value);
