#pragma once

// A user profile that lives in memory and remembers what was asked of it.

#include "qlw/qlw_globals.h"
#include "qlw/text_numbers.h"

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

class memory_profile : public cl_profile {
public:
    std::map<std::string, std::string> values;       // "Globals/name" to text
    std::map<std::string, std::string> default_file; // the same, of the installation's default file
    std::vector<std::string> written;                // "Globals/name=text", in order
    int loud_reads = 0;                              // reads that would report a missing key
    int reads = 0;
    bool throws_on_read = false;

    std::string get_string(std::string_view section, std::string_view key, std::string_view default_value,
                           bool quiet) override {
        const std::string* text = find(section, key, quiet);
        return text ? *text : std::string(default_value);
    }

    int get_int(std::string_view section, std::string_view key, int default_value, bool quiet) override {
        const std::string* text = find(section, key, quiet);
        return text ? decimal_value(*text) : default_value;
    }

    double get_double(std::string_view section, std::string_view key, double default_value, bool quiet) override {
        const std::string* text = find(section, key, quiet);
        return text ? double_value(*text) : default_value;
    }

    void write_string(std::string_view section, std::string_view key, std::string_view value) override {
        written.push_back(path(section, key) + "=" + std::string(value));
    }

    void write_int(std::string_view section, std::string_view key, int value) override {
        write_string(section, key, "int " + integer_text(value));
    }

    void write_double(std::string_view section, std::string_view key, double value) override {
        write_string(section, key, "double " + number_text(value));
    }

    std::string get_default_ini_string(std::string_view section, std::string_view key,
                                       std::string_view default_value) override {
        const auto found = default_file.find(path(section, key));
        return found == default_file.end() ? std::string(default_value) : found->second;
    }

private:
    static std::string path(std::string_view section, std::string_view key) {
        return std::string(section) + "/" + std::string(key);
    }

    const std::string* find(std::string_view section, std::string_view key, bool quiet) {
        if (throws_on_read)
            throw std::runtime_error("the profile cannot be read");
        ++reads;
        loud_reads += quiet ? 0 : 1;
        const auto found = values.find(path(section, key));
        return found == values.end() ? nullptr : &found->second;
    }
};
