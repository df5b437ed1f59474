#include "qlw/ini_file.h"

#include "profile_fixture.h"
#include "tests/support/answering_desktop.h"

#include <filesystem>

namespace {

using testing::IsEmpty;

class IniFile : public profile_fixture {};

TEST_F(IniFile, lies_in_the_companys_folder_under_the_given_base_name) {
    write_ini("Lamps", "[a]\nkey=lamps\n");
    write_ini("Tessaline", "[a]\nkey=own\n");
    EXPECT_EQ(get_string_from_ini_file("a", "key", "-", "Lamps"), "lamps");
    EXPECT_EQ(get_string_from_ini_file("a", "key", "-", ""), "own");
    EXPECT_EQ(get_string_from_ini_file("a", "other", "-", "Lamps"), "-");
}

TEST_F(IniFile, a_read_makes_the_companys_folder_and_no_file) {
    EXPECT_EQ(get_string_from_ini_file("a", "key", "-", "Lamps"), "-");
    EXPECT_TRUE(folder.has("config/Quillon Systems"));
    EXPECT_TRUE(std::filesystem::is_empty(folder / "config/Quillon Systems"));
}

TEST_F(IniFile, a_read_is_traced_with_file_section_key_and_value) {
    write_ini("Lamps", "[a]\nkey=lamps\n");
    get_string_from_ini_file("a", "key", "-", "Lamps");
    get_string_from_ini_file("a", "other", "-", "Lamps");
    const std::string file = folder / "config/Quillon Systems/Lamps.ini";
    EXPECT_THAT(trace.take(),
                testing::ElementsAre(traced_line{"qlw_std", "get_string_from_ini_file",
                                                 "get_string_from_ini_file: " + file + ": [a] key: lamps"},
                                     traced_line{"qlw_std", "get_string_from_ini_file",
                                                 "get_string_from_ini_file: " + file + ": [a] other: -"}));
}

TEST_F(IniFile, a_value_is_cut_to_4095_bytes) {
    write_ini("Lamps", "[a]\nkey=" + std::string(5000, 'x') + "\n");
    EXPECT_EQ(get_string_from_ini_file("a", "key", "-", "Lamps"), std::string(4095, 'x'));
}

TEST_F(IniFile, a_default_is_cut_to_4095_bytes_too) {
    const std::string longer(4096, 'x');
    const std::string cut(4095, 'x');
    EXPECT_EQ(get_string_from_ini_file("a", "key", longer, "Lamps"), cut);
    EXPECT_EQ(get_string_from_default_ini("a", "key", longer, folder / "missing"), cut);
    EXPECT_EQ(get_string_from_default_ini("a", "key", longer, "missing"), cut);
}

TEST_F(IniFile, a_write_makes_folder_section_and_key) {
    write_string_to_ini_file("Globals", "svl_name", "a b", "Lamps");
    write_string_to_ini_file("Globals", "svl_other", "c", "Lamps");
    write_string_to_ini_file("Common", "x", "1", "");
    EXPECT_EQ(ini("Lamps"), "[Globals]\r\nsvl_name=a b\r\nsvl_other=c\r\n");
    EXPECT_EQ(ini("Tessaline"), "[Common]\r\nx=1\r\n");
    EXPECT_EQ(get_string_from_ini_file("Globals", "svl_name", "-", "Lamps"), "a b");
}

TEST_F(IniFile, the_fallback_file_of_a_bare_name_is_found_nowhere) {
    const std::string before = std::filesystem::current_path().string();
    folder.write("Tessaline", "[a]\nkey=here\n");
    write_ini("Tessaline", "[a]\nkey=own\n");
    std::filesystem::current_path(folder.name());
    EXPECT_EQ(get_string_from_default_ini("a", "key", "-", ""), "-");
    EXPECT_EQ(get_string_from_default_ini("a", "key", "-", "Tessaline"), "-");
    std::filesystem::current_path(before);
}

TEST_F(IniFile, a_fallback_file_with_a_folder_is_read_as_it_is_named) {
    const std::string file = folder.write("defaults/settings", "[a]\nkey=here\nlong=" + std::string(5000, 'x') + "\n");
    EXPECT_EQ(get_string_from_default_ini("a", "key", "-", file), "here");
    EXPECT_EQ(get_string_from_default_ini("a", "long", "-", file), std::string(4095, 'x'));
    EXPECT_EQ(get_string_from_default_ini("a", "other", "-", file), "-");
    EXPECT_EQ(get_string_from_default_ini("a", "key", "-", folder / "missing/settings"), "-");
    EXPECT_FALSE(folder.has("missing"));
}

TEST_F(IniFile, a_settings_folder_that_cannot_be_made_gives_defaults_and_no_message) {
    folder.write("config", "a file in the way of the folder");
    write_string_to_ini_file("Globals", "svl_name", "a", "Lamps");
    EXPECT_EQ(get_string_from_ini_file("Globals", "svl_name", "-", "Lamps"), "-");
    EXPECT_EQ(folder.read("config"), "a file in the way of the folder");
    EXPECT_THAT(reported(), IsEmpty());
}

} // namespace
