#include "platform/platform.h"
#include "tests/support/environment.h"

#include <gtest/gtest.h>

namespace {

TEST(KnownFolders, follow_the_home_folder_when_nothing_else_is_said) {
    const with_environment home("HOME", "/home/ann");
    const with_environment config("XDG_CONFIG_HOME", std::nullopt);
    const with_environment documents("XDG_DOCUMENTS_DIR", std::nullopt);
    EXPECT_EQ(platform::home_folder(), "/home/ann");
    EXPECT_EQ(platform::user_config_folder(), "/home/ann/.config");
    EXPECT_EQ(platform::documents_folder(), "/home/ann/Documents");
}

TEST(KnownFolders, are_taken_from_the_variables_of_the_desktop) {
    const with_environment config("XDG_CONFIG_HOME", "/etc/ann/");
    const with_environment documents("XDG_DOCUMENTS_DIR", "/data/papers");
    EXPECT_EQ(platform::user_config_folder(), "/etc/ann");
    EXPECT_EQ(platform::documents_folder(), "/data/papers");
}

TEST(KnownFolders, a_relative_desktop_variable_is_ignored) {
    const with_environment home("HOME", "/home/ann");
    const with_environment config("XDG_CONFIG_HOME", "settings");
    EXPECT_EQ(platform::user_config_folder(), "/home/ann/.config");
}

TEST(KnownFolders, the_home_folder_comes_from_the_user_table_without_the_variable) {
    const with_environment home("HOME", std::nullopt);
    EXPECT_TRUE(platform::home_folder().starts_with('/')) << platform::home_folder();
}

TEST(KnownFolders, the_temporary_folder_is_that_of_the_variable_or_the_usual_one) {
    {
        const with_environment temporary("TMPDIR", "/scratch/me/");
        EXPECT_EQ(platform::temporary_folder(), "/scratch/me");
    }
    for (const auto& nothing : {std::optional<std::string>(), std::optional<std::string>("")}) {
        const with_environment temporary("TMPDIR", nothing);
        EXPECT_EQ(platform::temporary_folder(), "/tmp");
    }
}

TEST(KnownFolders, the_current_folder_is_a_full_name) {
    EXPECT_EQ(platform::current_folder(), *platform::real_name("."));
}

} // namespace
