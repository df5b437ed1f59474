#include "platform/platform.h"
#include "tests/support/environment.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(Process, the_program_path_is_full_and_exists) {
    const std::string path = platform::program_path();
    EXPECT_EQ(path, *platform::real_name(path));
    EXPECT_NE(path.find("platform_test"), std::string::npos) << path;
}

TEST(Process, the_working_set_covers_memory_that_was_touched) {
    const std::size_t size = std::size_t{64} << 20;
    const std::uint64_t before = platform::working_set_bytes();
    const std::vector<char> touched(size, 'x');
    EXPECT_GT(platform::working_set_bytes(), before + size / 2);
    EXPECT_EQ(touched.back(), 'x');
}

TEST(Process, a_variable_is_what_is_set_or_nothing) {
    const with_environment set("TESSALINE_TEST_SET", "a value");
    const with_environment unset("TESSALINE_TEST_UNSET", std::nullopt);
    EXPECT_EQ(platform::environment_variable("TESSALINE_TEST_SET"), "a value");
    EXPECT_FALSE(platform::environment_variable("TESSALINE_TEST_UNSET").has_value());
}

} // namespace
