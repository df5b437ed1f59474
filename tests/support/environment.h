#pragma once

// Environment variables of a test.

#include <cstdlib>
#include <optional>
#include <string>

// For this process and those that it starts. value: nothing to take the variable away. Windows takes an empty value for
// none.
void set_environment_variable(const std::string& name, const std::optional<std::string>& value);

// Sets an environment variable for its life.
class with_environment {
public:
    // value: nothing to take the variable away.
    with_environment(std::string variable, const std::optional<std::string>& value) : name(std::move(variable)) {
        if (const char* const before = std::getenv(name.c_str()))
            old_value = before;
        set(value);
    }
    with_environment(const with_environment&) = delete;
    with_environment& operator=(const with_environment&) = delete;
    ~with_environment() { set(old_value); }

private:
    void set(const std::optional<std::string>& value) const { set_environment_variable(name, value); }

    std::string name;
    std::optional<std::string> old_value;
};

// Keeps the settings of the user below a folder for its life, in the variable of either system.
class with_settings_folder {
public:
    explicit with_settings_folder(const std::string& folder)
        : on_posix("XDG_CONFIG_HOME", folder), on_windows("APPDATA", folder) {}

private:
    with_environment on_posix;
    with_environment on_windows;
};

// The same for the temporary folder.
class with_temporary_folder {
public:
    explicit with_temporary_folder(const std::string& folder) : on_posix("TMPDIR", folder), on_windows("TMP", folder) {}

private:
    with_environment on_posix;
    with_environment on_windows;
};
