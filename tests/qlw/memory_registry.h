#pragma once

// A registry that lives in memory. As in the real one, the case of names does not count.

#include "platform/platform.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

class memory_registry : public platform::registry {
public:
    struct stored_value {
        std::uint32_t type = 0;
        std::vector<std::byte> data;
    };
    std::set<std::string> keys;                 // "hklm\software"
    std::map<std::string, stored_value> values; // "hklm\software\name"
    int reads = 0;
    bool throws_on_read = false;
    bool takes_keys = true;
    bool takes_values = true;

    // path: with the hive as "HKLM" or "HKCU"; the keys above the value are made.
    void put(const std::string& path, std::uint32_t type, std::vector<std::byte> data) {
        for (std::size_t end = path.find('\\'); end != std::string::npos; end = path.find('\\', end + 1))
            keys.insert(lower(path.substr(0, end)));
        values[lower(path)] = {type, std::move(data)};
    }
    void put_text(const std::string& path, const std::string& text) {
        put(path, 1, bytes_of(text.c_str(), text.size() + 1));
    }
    template<class Number>
    void put_number(const std::string& path, std::uint32_t type, Number number) {
        put(path, type, bytes_of(&number, sizeof number));
    }
    std::string text(const std::string& path) const {
        const auto found = values.find(lower(path));
        return found == values.end() ? "(missing)" : reinterpret_cast<const char*>(found->second.data.data());
    }

    platform::registry_answer read(platform::registry_hive hive, const std::string& key,
                                   const std::string& value_name) override {
        ++reads;
        if (throws_on_read)
            throw std::runtime_error("no access");
        platform::registry_answer answer;
        answer.key_found = has_key(hive, key);
        if (const auto found = values.find(full(hive, key) + "\\" + lower(value_name)); found != values.end()) {
            answer.value_found = true;
            answer.type = found->second.type;
            answer.data = found->second.data;
        }
        return answer;
    }
    bool has_key(platform::registry_hive hive, const std::string& key) override {
        return keys.contains(full(hive, key));
    }
    bool make_key(platform::registry_hive hive, const std::string& key) override {
        const std::string name = full(hive, key);
        if (!takes_keys || !keys.contains(name.substr(0, name.rfind('\\'))))
            return false;
        keys.insert(name);
        return true;
    }
    bool write_text(platform::registry_hive hive, const std::string& key, const std::string& value_name,
                    const std::string& value) override {
        if (!takes_values || !has_key(hive, key))
            return false;
        values[full(hive, key) + "\\" + lower(value_name)] = {1, bytes_of(value.c_str(), value.size() + 1)};
        return true;
    }

private:
    static std::string lower(std::string name) {
        std::transform(name.begin(), name.end(), name.begin(),
                       [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        return name;
    }
    static std::string full(platform::registry_hive hive, const std::string& key) {
        return (hive == platform::registry_hive::local_machine ? "hklm\\" : "hkcu\\") + lower(key);
    }
    static std::vector<std::byte> bytes_of(const void* data, std::size_t size) {
        std::vector<std::byte> bytes(size);
        std::memcpy(bytes.data(), data, size);
        return bytes;
    }
};
