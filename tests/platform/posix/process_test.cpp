#include "platform/platform.h"
#include "tests/support/environment.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

std::string joined(const std::vector<const char*>& arguments) {
    return platform::raw_command_line(static_cast<int>(arguments.size()), arguments.data());
}

TEST(RawCommandLine, joins_the_arguments_by_one_blank) {
    EXPECT_EQ(joined({"/usr/bin/tessaline", "/a/geometry.qlm", "/a/batch_file.txt"}),
              "/usr/bin/tessaline /a/geometry.qlm /a/batch_file.txt");
}

TEST(RawCommandLine, quotes_an_argument_that_holds_a_blank) {
    EXPECT_EQ(joined({"tessaline", "/my models/geometry.qlm", "-is_animation"}),
              "tessaline \"/my models/geometry.qlm\" -is_animation");
}

TEST(RawCommandLine, quotes_an_empty_argument_so_that_it_keeps_its_place) {
    EXPECT_EQ(joined({"tessaline", "", "/a/out.txt"}), "tessaline \"\" /a/out.txt");
}

TEST(RawCommandLine, is_the_program_alone_without_arguments) {
    EXPECT_EQ(joined({"tessaline"}), "tessaline");
    EXPECT_EQ(joined({"/my programs/tessaline"}), "\"/my programs/tessaline\"");
    EXPECT_EQ(joined({}), "");
}

TEST(RawCommandLine, keeps_quotation_marks_and_backslashes_inside_an_argument) {
    EXPECT_EQ(joined({"tessaline", "a\"b", "c\\d"}), "tessaline a\"b c\\d");
}

TEST(Process, a_variable_that_is_not_set_differs_from_an_empty_one) {
    const with_environment unset("TESSALINE_TEST_UNSET", std::nullopt);
    const with_environment empty("TESSALINE_TEST_EMPTY", "");
    EXPECT_FALSE(platform::environment_variable("TESSALINE_TEST_UNSET").has_value());
    EXPECT_EQ(platform::environment_variable("TESSALINE_TEST_EMPTY"), "");
}

TEST(Process, the_system_describes_itself_in_words) {
    EXPECT_FALSE(platform::system_version().description.empty());
}

TEST(Registry, holds_nothing_where_the_system_has_none) {
    const auto registry = platform::system_registry();
    const auto answer = registry->read(platform::registry_hive::current_user, "SOFTWARE\\Quillon Systems", "Phone");
    EXPECT_FALSE(answer.key_found);
    EXPECT_FALSE(answer.value_found);
    EXPECT_FALSE(registry->has_key(platform::registry_hive::local_machine, "SOFTWARE"));
    EXPECT_FALSE(registry->make_key(platform::registry_hive::current_user, "SOFTWARE\\New"));
    EXPECT_FALSE(registry->write_text(platform::registry_hive::current_user, "SOFTWARE", "name", "value"));
}

TEST(Clipboard, cannot_be_opened_where_there_is_none) {
    EXPECT_EQ(platform::set_clipboard_text("text"), platform::clipboard_result::cannot_open);
}

} // namespace
