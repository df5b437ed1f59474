#include "qlw/replace_all.h"

#include <gtest/gtest.h>

namespace {

std::string replaced(std::string text, std::string_view what, std::string_view by) {
    replace_all(text, what, by);
    return text;
}

} // namespace

TEST(ReplaceAll, replaces_every_place_and_looks_at_what_it_put_in_no_more) {
    EXPECT_EQ(replaced("a*b**", "*", "Material"), "aMaterialbMaterialMaterial");
    EXPECT_EQ(replaced("xx", "x", "xx"), "xxxx");
    EXPECT_EQ(replaced("aaa", "aa", ""), "a");
    EXPECT_EQ(replaced("none", "*", "!"), "none");
    EXPECT_EQ(replaced("", "*", "!"), "");
}
