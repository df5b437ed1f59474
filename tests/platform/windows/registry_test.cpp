// The registry of the system, and what the profile layer reads from it.

#include "platform/platform.h"

#include <gtest/gtest.h>

#include <cstring>

#include <windows.h>

namespace {

using platform::registry_hive;

// A key of the current user that goes with the test.
class Registry : public testing::Test {
protected:
    Registry() {
        RegCreateKeyExA(HKEY_CURRENT_USER, key.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &handle, nullptr);
    }
    ~Registry() override {
        RegCloseKey(handle);
        RegDeleteTreeA(HKEY_CURRENT_USER, key.c_str());
    }

    void put(const char* name, DWORD type, const std::string& bytes) const {
        ASSERT_EQ(RegSetValueExA(handle, name, 0, type, reinterpret_cast<const BYTE*>(bytes.data()),
                                 static_cast<DWORD>(bytes.size())),
                  ERROR_SUCCESS);
    }
    platform::registry_answer read(const char* name) const {
        return registry->read(registry_hive::current_user, key, name);
    }
    static std::string bytes_of(const platform::registry_answer& answer) {
        return std::string(reinterpret_cast<const char*>(answer.data.data()), answer.data.size());
    }

    const std::string key = "Software\\Tessaline test " + std::to_string(GetCurrentProcessId());
    HKEY handle = nullptr;
    std::unique_ptr<platform::registry> registry = platform::system_registry();
};

TEST_F(Registry, gives_each_type_as_it_is_stored) {
    const double number = 1.5;
    put("text", REG_SZ, std::string("Night", 6));
    put("number", REG_DWORD, std::string("\x60\0\0\0", 4));
    put("binary", REG_BINARY, std::string(reinterpret_cast<const char*>(&number), sizeof number));
    EXPECT_EQ(read("text").type, 1u);
    EXPECT_EQ(bytes_of(read("text")), std::string("Night", 6));
    EXPECT_EQ(read("number").type, 4u);
    EXPECT_EQ(bytes_of(read("number")), std::string("\x60\0\0\0", 4));
    EXPECT_EQ(read("binary").type, 3u);
    EXPECT_EQ(bytes_of(read("binary")), std::string("\0\0\0\0\0\0\xf8\x3f", 8)); // 1.5
}

TEST_F(Registry, tells_missing_keys_from_missing_values) {
    EXPECT_TRUE(read("missing").key_found);
    EXPECT_FALSE(read("missing").value_found);
    EXPECT_FALSE(registry->read(registry_hive::current_user, key + "\\missing", "text").key_found);
    EXPECT_TRUE(registry->has_key(registry_hive::current_user, key));
    EXPECT_FALSE(registry->has_key(registry_hive::current_user, key + "\\missing"));
}

TEST_F(Registry, takes_values_of_4096_bytes_and_no_longer_ones) {
    put("longest", REG_BINARY, std::string(4096, 'x'));
    put("longer", REG_BINARY, std::string(4097, 'x'));
    EXPECT_EQ(bytes_of(read("longest")), std::string(4096, 'x'));
    EXPECT_TRUE(read("longer").key_found);
    EXPECT_FALSE(read("longer").value_found);
}

TEST_F(Registry, makes_keys_one_at_a_time_and_writes_texts) {
    const std::string inner = key + "\\a\\b";
    EXPECT_FALSE(registry->make_key(registry_hive::current_user, inner));
    EXPECT_TRUE(registry->make_key(registry_hive::current_user, key + "\\a"));
    EXPECT_FALSE(registry->write_text(registry_hive::current_user, inner, "name", "value"));
    EXPECT_TRUE(registry->make_key(registry_hive::current_user, inner));
    EXPECT_TRUE(registry->write_text(registry_hive::current_user, inner, "name", "value"));
    const auto answer = registry->read(registry_hive::current_user, inner, "name");
    EXPECT_EQ(answer.type, 1u);
    EXPECT_EQ(bytes_of(answer), std::string("value", 6));
}

// What a program of 32 bits has written lies in a key of its own for this one.
TEST_F(Registry, the_view_of_32_bits_is_a_key_of_its_own) {
    const std::string name = "Tessaline test " + std::to_string(GetCurrentProcessId());
    const std::string narrow = "SOFTWARE\\WOW6432Node\\" + name;
    HKEY made = nullptr;
    if (RegCreateKeyExA(HKEY_LOCAL_MACHINE, ("SOFTWARE\\" + name).c_str(), 0, nullptr, 0,
                        KEY_ALL_ACCESS | KEY_WOW64_32KEY, nullptr, &made, nullptr) != ERROR_SUCCESS)
        GTEST_SKIP() << "only an administrator may write there";
    RegSetValueExA(made, "text", 0, REG_SZ, reinterpret_cast<const BYTE*>("old"), 4);
    RegSetValueExA(made, "number", 0, REG_DWORD, reinterpret_cast<const BYTE*>("\x60\0\0\0"), 4);
    RegSetValueExA(made, "binary", 0, REG_BINARY, reinterpret_cast<const BYTE*>("\0\0\0\0\0\0\xf8\x3f"), 8);
    RegCloseKey(made);
    EXPECT_FALSE(registry->has_key(registry_hive::local_machine, "SOFTWARE\\" + name));
    EXPECT_TRUE(registry->has_key(registry_hive::local_machine, narrow));
    const auto read_narrow = [&](const char* value) {
        return registry->read(registry_hive::local_machine, narrow, value);
    };
    EXPECT_EQ(bytes_of(read_narrow("text")), std::string("old", 4));
    EXPECT_EQ(read_narrow("number").type, 4u);
    EXPECT_EQ(bytes_of(read_narrow("number")), std::string("\x60\0\0\0", 4));
    EXPECT_EQ(read_narrow("binary").type, 3u);
    EXPECT_EQ(bytes_of(read_narrow("binary")), std::string("\0\0\0\0\0\0\xf8\x3f", 8)); // 1.5
    RegDeleteTreeA(HKEY_LOCAL_MACHINE, narrow.c_str());
}

} // namespace
