#include "tools/single_run/run_options.h"

#include <gtest/gtest.h>

namespace {

TEST(RunOptions, a_size_is_a_whole_number_and_a_unit) {
    EXPECT_EQ(size_of_text("1"), 1u);
    EXPECT_EQ(size_of_text("512M"), 536870912u);   // 512 x 1024 x 1024
    EXPECT_EQ(size_of_text("2G"), 2147483648u);    // 2 x 1024^3
    EXPECT_EQ(size_of_text("1T"), 1099511627776u); // 1024^4
    for (const char* wrong :
         {"", "G", "0", "-1", "1.5G", "1g", "1GB", " 1G", "99999999999999999999", "18446744073709551615K"})
        EXPECT_EQ(size_of_text(wrong), std::nullopt) << wrong;
}

TEST(RunOptions, options_may_stand_anywhere_and_add_up) {
    const read_options read = read_run_options(
        {"m.skp", "--with", "a", "b", "--with", "c", "--option", "ivl_resx=1", "--option", "ivl_resx=2", "--force"});
    EXPECT_EQ(read.complaint, "");
    EXPECT_EQ(read.options.model, "m.skp");
    EXPECT_EQ(read.options.folder, "b");
    EXPECT_EQ(read.options.files, (std::vector<std::string>{"a", "c"}));
    EXPECT_EQ(read.options.settings, (std::map<std::string, std::string>{{"ivl_resx", "2"}}));
    EXPECT_TRUE(read.options.is_forced);
    EXPECT_EQ(read.options.seconds, std::nullopt);
}

TEST(RunOptions, an_option_that_lacks_its_value_is_named) {
    EXPECT_EQ(read_run_options({"m", "b", "--json"}).complaint, "--json lacks its value");
}

} // namespace
