// Folders that POSIX takes from variables, and what the system is called.

#include "qlw/qlw_profile.h"
#include "qlw/qlw_std.h"
#include "tests/qlw/profile_fixture.h"
#include "tests/support/environment.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

using SettingsOnPosix = profile_fixture;

TEST(KnownFolder, the_users_folder_of_the_program_lies_in_the_documents_and_is_made_if_missing) {
    const temporary_folder folder;
    const with_environment documents("XDG_DOCUMENTS_DIR", folder / "papers");
    EXPECT_EQ(get_documents_folder(), folder / "papers");
    EXPECT_EQ(get_user_data_folder(), folder / "papers/Tessaline");
    EXPECT_TRUE(folder.has("papers/Tessaline"));
}

TEST(WindowsVersion, another_system_is_described_in_its_own_words) {
    platform::os_version other;
    other.description = "Linux 6.1.0 x86_64";
    EXPECT_EQ(windows_version_text(other), "Linux 6.1.0 x86_64");
    EXPECT_EQ(get_windows_version_text(), platform::system_version().description);
}

TEST(TemporaryDirectory, is_the_usual_one_without_a_variable) {
    const with_environment unset("TMPDIR", std::nullopt);
    EXPECT_EQ(get_temporary_directory(), "/tmp/");
}

TEST_F(SettingsOnPosix, without_a_variable_for_settings_they_lie_below_the_home_folder) {
    const with_environment no_settings{"XDG_CONFIG_HOME", std::nullopt};
    write_profile_int("Globals", "ivl_number", 5);
    EXPECT_EQ(get_profile_int("Globals", "ivl_number", 7, true), 5);
    EXPECT_EQ(folder.read("home/.config/Quillon Systems/Profile.ini"), "[Globals]\r\nivl_number=5\r\n");
}

} // namespace
