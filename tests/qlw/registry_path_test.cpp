#include "qlw/registry_path.h"

#include <gtest/gtest.h>

namespace {

constexpr auto local_machine = platform::registry_hive::local_machine;
constexpr auto current_user = platform::registry_hive::current_user;

TEST(RegistryPath, the_hive_stands_in_front_of_the_first_backslash) {
    const auto pieces = split_off_hive("HKEY_CURRENT_USER\\Software\\Name");
    ASSERT_TRUE(pieces);
    EXPECT_EQ(pieces->hive, "HKEY_CURRENT_USER");
    EXPECT_EQ(pieces->rest, "Software\\Name");
}

TEST(RegistryPath, a_path_without_a_backslash_or_with_one_in_front_has_no_hive) {
    EXPECT_FALSE(split_off_hive("HKEY_CURRENT_USER"));
    EXPECT_FALSE(split_off_hive(""));
    EXPECT_FALSE(split_off_hive("\\Software"));
}

TEST(RegistryPath, two_hives_exist_and_their_case_counts) {
    EXPECT_EQ(hive_named("HKEY_LOCAL_MACHINE"), local_machine);
    EXPECT_EQ(hive_named("HKEY_CURRENT_USER"), current_user);
    EXPECT_EQ(hive_named("HKEY_CLASSES_ROOT"), std::nullopt);
    EXPECT_EQ(hive_named("hkey_local_machine"), std::nullopt);
    EXPECT_EQ(hive_named(""), std::nullopt);
}

TEST(RegistryPath, the_value_name_stands_behind_the_last_backslash) {
    const auto names = split_off_value_name("SOFTWARE\\Maker\\Owner Name");
    ASSERT_TRUE(names);
    EXPECT_EQ(names->key, "SOFTWARE\\Maker");
    EXPECT_EQ(names->value_name, "Owner Name");
    EXPECT_FALSE(split_off_value_name("Owner"));
}

TEST(RegistryPath, only_software_of_the_local_machine_has_a_form_for_32_bits) {
    EXPECT_EQ(form_for_32_bits(local_machine, "SOFTWARE\\Maker\\Owner"), "SOFTWARE\\WOW6432Node\\Maker\\Owner");
    EXPECT_EQ(form_for_32_bits(local_machine, "SYSTEM\\Maker\\Owner"), std::nullopt);
    EXPECT_EQ(form_for_32_bits(local_machine, "SOFTWARE"), std::nullopt);
    EXPECT_EQ(form_for_32_bits(local_machine, "SOFTWARE2\\Owner"), std::nullopt);
    EXPECT_EQ(form_for_32_bits(local_machine, "software\\Maker\\Owner"), std::nullopt);
    EXPECT_EQ(form_for_32_bits(local_machine, "Maker\\SOFTWARE\\Owner"), std::nullopt);
    EXPECT_EQ(form_for_32_bits(current_user, "SOFTWARE\\Maker\\Owner"), std::nullopt);
}

TEST(RegistryPath, the_company_tree_is_known_with_and_without_hive_in_any_case) {
    EXPECT_TRUE(lies_in_company_tree("SOFTWARE\\Quillon Systems\\Phone"));
    EXPECT_TRUE(lies_in_company_tree("HKEY_LOCAL_MACHINE\\Software\\QUILLON SYSTEMS\\A\\B"));
    EXPECT_FALSE(lies_in_company_tree("SOFTWARE\\Quillon Systems"));
    EXPECT_FALSE(lies_in_company_tree("SOFTWARE\\Other\\Phone"));
}

TEST(RegistryPath, the_azure_branch_is_no_part_of_the_company_tree) {
    EXPECT_FALSE(lies_in_company_tree("SOFTWARE\\Quillon Systems\\Profile\\Globals\\Azure\\Token"));
    EXPECT_FALSE(lies_in_company_tree("SOFTWARE\\Quillon Systems\\Profile\\Globals\\azure_token"));
    EXPECT_TRUE(lies_in_company_tree("SOFTWARE\\Quillon Systems\\Profile\\Globals\\Name"));
}

} // namespace
