// The system's registry, in the view of a 64-bit process: what stands in the view of 32 bits has a key of its own
// there.

#include "platform/platform.h"

#include <array>
#include <memory>

#include <windows.h>

namespace platform {

namespace {

constexpr DWORD longest_value = 4096; // bytes

struct close_key {
    void operator()(HKEY key) const { RegCloseKey(key); }
};
using open_key = std::unique_ptr<HKEY__, close_key>;

HKEY root_of(registry_hive hive) {
    return hive == registry_hive::local_machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

// Null if the key is missing or the user may not use it so.
open_key opened(registry_hive hive, const std::string& key, REGSAM rights) {
    HKEY handle = nullptr;
    return open_key(RegOpenKeyExA(root_of(hive), key.c_str(), 0, rights, &handle) == ERROR_SUCCESS ? handle : nullptr);
}

std::string parent_of(const std::string& key) {
    const std::size_t last = key.rfind('\\');
    return last == std::string::npos ? std::string() : key.substr(0, last);
}

class windows_registry : public registry {
public:
    registry_answer read(registry_hive hive, const std::string& key, const std::string& value_name) override {
        registry_answer answer;
        const open_key found = opened(hive, key, KEY_READ);
        answer.key_found = found != nullptr;
        if (!found)
            return answer;
        std::array<std::byte, longest_value> buffer;
        DWORD type = 0;
        DWORD size = longest_value;
        answer.value_found = RegQueryValueExA(found.get(), value_name.c_str(), nullptr, &type,
                                              reinterpret_cast<BYTE*>(buffer.data()), &size) == ERROR_SUCCESS;
        if (answer.value_found) {
            answer.type = type;
            answer.data.assign(buffer.begin(), buffer.begin() + size);
        }
        return answer;
    }

    bool has_key(registry_hive hive, const std::string& key) override { return opened(hive, key, KEY_READ) != nullptr; }

    // The system itself would make the keys above as well.
    bool make_key(registry_hive hive, const std::string& key) override {
        const std::string parent = parent_of(key);
        HKEY made = nullptr;
        if ((!parent.empty() && !has_key(hive, parent)) ||
            RegCreateKeyExA(root_of(hive), key.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE,
                            nullptr, &made, nullptr) != ERROR_SUCCESS)
            return false;
        RegCloseKey(made);
        return true;
    }

    bool write_text(registry_hive hive, const std::string& key, const std::string& value_name,
                    const std::string& value) override {
        const open_key found = opened(hive, key, KEY_SET_VALUE);
        return found &&
               RegSetValueExA(found.get(), value_name.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                              static_cast<DWORD>(value.size() + 1)) == ERROR_SUCCESS;
    }
};

} // namespace

std::unique_ptr<registry> system_registry() {
    return std::make_unique<windows_registry>();
}

} // namespace platform
