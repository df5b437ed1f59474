#pragma once

// One setting: a named, typed value with a default, and the place where it is kept.

#include "qlw/color_text.h"
#include "qlw/qlw_math.h"

#include <cstdint>
#include <string>
#include <string_view>

class cl_profile;

// Where a setting is stored. The numbers are part of messages and of the callers' expectations.
enum save_types : std::int32_t {
    SAVE_UNKNOWN = 0,               // read before it was registered; goes through the option file
    SAVE_NONE = 1,                  // lives for this run only
    SAVE_PROFILE = 2,               // user profile
    SAVE_DATABASE = 3,              // goes through the option file; nothing is registered with it
    OPTION_GLOBAL = 4,              // option file
    OPTION_NON_DATABASE_GLOBAL = 5, // user profile
    SAVE_NONE_6 = 6,                // nowhere
    SAVE_NONE_7 = 7,                // nowhere: which host this build serves
    SAVE_NONE_8 = 8,                // nowhere
};

// Whether a setting of that save type is kept in the user profile.
constexpr bool is_kept_in_profile(save_types type) {
    return type == SAVE_PROFILE || type == OPTION_NON_DATABASE_GLOBAL;
}

// Every class answers every question: it converts where a conversion is defined and gives the zero of the type
// otherwise; a setter of a type that the class does not take does nothing. There is no run-time type error.
class cl_variable_base {
public:
    cl_variable_base(std::string_view variable_name, std::int32_t type, save_types saved_as);
    virtual ~cl_variable_base() = default;
    cl_variable_base(const cl_variable_base&) = delete;
    cl_variable_base& operator=(const cl_variable_base&) = delete;

    virtual std::int32_t get_int() const { return 0; }
    virtual std::string get_string() const { return {}; }
    virtual double get_double() const { return 0; }
    virtual fpt get_fpt() const { return {}; }
    virtual color_ref get_COLORREF() const { return 0; }

    virtual void set_int(std::int32_t) {}
    virtual void set_string(std::string_view) {}
    virtual void set_double(double) {}
    virtual void set_fpt(const fpt&) {}
    virtual void set_COLORREF(color_ref) {}

    virtual void set_default_int(std::int32_t) {}
    virtual void set_default_string(std::string_view) {}
    virtual void set_default_double(double) {}
    virtual void set_default_fpt(const fpt&) {}
    virtual void set_default_COLORREF(color_ref) {}

    // Stores the value in the profile if the save type is one that is kept there.
    virtual void write_to_profile(cl_profile& profile) const = 0;
    // Takes the value from the profile, whatever the save type; what the profile lacks becomes zero or empty.
    virtual void read_from_profile(cl_profile& profile) = 0;
    virtual void restore_default() = 0;

    // Moves the setting into save type 2, 3, 4 or 5 and reports a change at level 1. Any other type changes nothing, so
    // a setting never leaves these four again.
    void set_save_type(save_types new_type);

    std::string name;
    std::int32_t variable_type; // 1 integer or boolean, 2 string, 3 double, 4 point, 5 colour
    save_types save_type;
    std::int32_t value_set = 0; // 1 after the first write by name
};

// An integer, or a boolean as 0 or 1: only the first letter of the name tells which.
class cl_variable_int : public cl_variable_base {
public:
    cl_variable_int(std::string_view variable_name, save_types saved_as);

    std::int32_t get_int() const override { return value; }
    std::string get_string() const override;
    double get_double() const override { return value; }
    void set_int(std::int32_t new_value) override { value = new_value; }
    void set_string(std::string_view text) override;
    void set_double(double number) override; // cut toward zero
    void set_default_int(std::int32_t new_default) override { default_value = new_default; }
    void write_to_profile(cl_profile& profile) const override;
    void read_from_profile(cl_profile& profile) override;
    void restore_default() override { value = default_value; }

    std::int32_t value = 0;
    std::int32_t default_value = 0;
};

class cl_variable_string : public cl_variable_base {
public:
    cl_variable_string(std::string_view variable_name, save_types saved_as, std::string_view start);

    std::int32_t get_int() const override;
    std::string get_string() const override { return value; }
    double get_double() const override;
    void set_int(std::int32_t number) override;
    void set_string(std::string_view text) override { value = text; }
    void set_double(double number) override;
    void set_default_string(std::string_view text) override { default_value = text; }
    void write_to_profile(cl_profile& profile) const override;
    void read_from_profile(cl_profile& profile) override;
    void restore_default() override { value = default_value; }

    std::string value;
    std::string default_value;
};

class cl_variable_double : public cl_variable_base {
public:
    cl_variable_double(std::string_view variable_name, save_types saved_as, double start);

    std::int32_t get_int() const override; // rounded, halves downwards
    std::string get_string() const override;
    double get_double() const override { return value; }
    void set_int(std::int32_t number) override { value = number; }
    void set_string(std::string_view text) override;
    void set_double(double number) override { value = number; }
    void set_default_double(double number) override { default_value = number; }
    void write_to_profile(cl_profile& profile) const override;
    void read_from_profile(cl_profile& profile) override;
    void restore_default() override { value = default_value; }

    double value;
    double default_value = 0;
};

class cl_variable_fpt : public cl_variable_base {
public:
    cl_variable_fpt(std::string_view variable_name, save_types saved_as, const fpt& start);

    std::string get_string() const override;
    fpt get_fpt() const override { return value; }
    void set_string(std::string_view text) override; // "(x,y,z)"; unlike text_to_fpt the parenthesis must be there
    void set_fpt(const fpt& point) override { value = point; }
    void set_default_fpt(const fpt& point) override { default_value = point; }
    void write_to_profile(cl_profile& profile) const override;
    void read_from_profile(cl_profile& profile) override;
    void restore_default() override; // a value within 1e-7 of the default stays

    fpt value;
    fpt default_value;
};

class cl_variable_COLORREF : public cl_variable_base {
public:
    cl_variable_COLORREF(std::string_view variable_name, save_types saved_as);

    std::int32_t get_int() const override { return static_cast<std::int32_t>(value); } // all 32 bits
    color_ref get_COLORREF() const override { return value & 0xFFFFFF; }
    void set_int(std::int32_t number) override { value = static_cast<color_ref>(number); } // not masked
    void set_string(std::string_view text) override;
    void set_COLORREF(color_ref color) override { value = color & 0xFFFFFF; }
    void set_default_COLORREF(color_ref color) override { default_value = color; }
    void write_to_profile(cl_profile& profile) const override;
    void read_from_profile(cl_profile& profile) override;
    void restore_default() override { value = default_value; }

    color_ref value = 0;
    color_ref default_value = 0;
};
