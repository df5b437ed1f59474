// The profile beside programs that use the system's own calls for ini files.

#include "platform/platform.h"
#include "qlw/ini_file.h"
#include "qlw/ini_store.h"
#include "tests/support/temporary_folder.h"
#include "tests/windows/driven_program.h"

#include <gtest/gtest.h>

#include <array>
#include <thread>

namespace {

class SharedProfile : public testing::Test {
protected:
    std::string system_value(const char* key) const {
        std::array<char, 100> value{};
        GetPrivateProfileStringA("Globals", key, "none", value.data(), static_cast<DWORD>(value.size()), name.c_str());
        return value.data();
    }
    void write_by_system(const char* key, const char* value) const {
        EXPECT_TRUE(WritePrivateProfileStringA("Globals", key, value, name.c_str()));
    }

    // Writes ours=2 while another program has the file in that way, and lets go a little later.
    void write_while_held(const char* way) {
        driven_program holder("window_desk", {way, name});
        ASSERT_EQ(holder.line(), "held");
        std::jthread releasing([&] {
            Sleep(100);
            holder.go_on();
        });
        store.write(name, "Globals", "ours", "2");
    }

    temporary_folder folder;
    std::string name = platform::absolute_name(folder.write("Profile.ini", "[Globals]\r\nours=1\r\ntheirs=1\r\n"));
    ini_store store;
};

TEST_F(SharedProfile, each_side_reads_what_the_other_has_written) {
    store.write(name, "Globals", "ours", "Night and day");
    EXPECT_EQ(system_value("ours"), "Night and day");
    write_by_system("theirs", "2");
    store.forget();
    EXPECT_EQ(store.file(name).value("Globals", "theirs"), "2");
    store.write(name, "Globals", "ours", "3");
    EXPECT_EQ(system_value("theirs"), "2");
    EXPECT_EQ(system_value("ours"), "3");
}

TEST_F(SharedProfile, a_value_with_blanks_around_it_reads_so_on_either_side) {
    store.write(name, "Globals", "ours", " wide ");
    EXPECT_EQ(system_value("ours"), " wide ");
}

TEST_F(SharedProfile, a_write_waits_for_a_program_that_has_locked_the_file) {
    write_while_held("hold");
    EXPECT_EQ(system_value("ours"), "2");
}

TEST_F(SharedProfile, a_write_waits_for_a_program_that_keeps_the_file_to_itself) {
    write_while_held("keep");
    EXPECT_EQ(system_value("ours"), "2");
}

TEST_F(SharedProfile, a_write_gives_up_and_a_read_finds_nothing_if_a_program_never_lets_go) {
    driven_program holder("window_desk", {"keep", name});
    ASSERT_EQ(holder.line(), "held");
    bool was_asked = false;
    EXPECT_EQ(platform::edit_file(name, 1000, 50,
                                  [&](const std::string& bytes) {
                                      was_asked = true;
                                      return bytes;
                                  }),
              platform::edit_result::held_elsewhere);
    EXPECT_FALSE(was_asked);
    EXPECT_FALSE(platform::read_file(name, 1000).has_value());
    holder.go_on();
    EXPECT_EQ(holder.status(), 0u);
    EXPECT_EQ(system_value("ours"), "1");
}

TEST(SharedIni, a_bare_name_is_found_in_the_folder_of_the_system) {
    const std::string name = "tessaline_test_" + std::to_string(GetCurrentProcessId()) + ".ini";
    const std::string file = platform::shared_ini_folder() + "\\" + name;
    if (!WritePrivateProfileStringA("Globals", "key", "there", file.c_str()))
        GTEST_SKIP() << "only an administrator may write there";
    EXPECT_EQ(get_string_from_default_ini("Globals", "key", "-", name), "there");
    EXPECT_TRUE(DeleteFileA(file.c_str()));
}

} // namespace
