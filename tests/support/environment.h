#pragma once

// Sets an environment variable for the length of a test.

#include <cstdlib>
#include <optional>
#include <string>

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
    void set(const std::optional<std::string>& value) const {
        if (value)
            setenv(name.c_str(), value->c_str(), 1);
        else
            unsetenv(name.c_str());
    }

    std::string name;
    std::optional<std::string> old_value;
};
