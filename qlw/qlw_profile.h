#pragma once

// Where the user's settings are kept between runs: the ini file "Profile". What it lacks is looked for in the registry,
// where older versions kept it; nothing is written there.

#include <string>
#include <string_view>

// What the profile holds under a section and a key, else `default_value`.
// quiet: a missing key is expected and is not to be reported. A value in the file that is no number is 0.
std::string get_profile_string(std::string_view section, std::string_view key, std::string_view default_value,
                               bool quiet);
int get_profile_int(std::string_view section, std::string_view key, int default_value, bool quiet);
double get_profile_double(std::string_view section, std::string_view key, double default_value, bool quiet);

// Store a value in the profile under a section and a key. A value that stands there already leaves the file alone; a
// profile that cannot be written stays as it is without a word, but for one if another process holds it.
void write_profile_string(std::string_view section, std::string_view key, std::string_view value);
void write_profile_int(std::string_view section, std::string_view key, int value);
void write_profile_double(std::string_view section, std::string_view key, double value);

// The profile as the settings see it. The operations forward to the functions above; a test puts its own in their
// place.
class cl_profile {
public:
    virtual ~cl_profile() = default;

    virtual std::string get_string(std::string_view section, std::string_view key, std::string_view default_value,
                                   bool quiet);
    virtual int get_int(std::string_view section, std::string_view key, int default_value, bool quiet);
    virtual double get_double(std::string_view section, std::string_view key, double default_value, bool quiet);
    virtual void write_string(std::string_view section, std::string_view key, std::string_view value);
    virtual void write_int(std::string_view section, std::string_view key, int value);
    virtual void write_double(std::string_view section, std::string_view key, double value);
    virtual std::string get_default_ini_string(std::string_view section, std::string_view key,
                                               std::string_view default_value);
};
