#include "sketchup/skp/draw_hidden.h"

#include <cstdint>
#include <gtest/gtest.h>

namespace {

using sketchup::attribute;
using sketchup::value_code;

attribute flag(const char* name, bool on) {
    return {name, {value_code::boolean, on}};
}

TEST(DrawHidden, is_on_if_either_of_its_successors_is) {
    std::vector<attribute> options{flag("DrawHiddenGeometry", false), flag("DrawHiddenObjects", true)};
    skp::add_draw_hidden(options);
    ASSERT_EQ(options.size(), 3u);
    EXPECT_EQ(options[2].key, "DrawHidden");
    EXPECT_TRUE(std::get<bool>(options[2].value.data));
}

TEST(DrawHidden, stays_as_the_file_has_it) {
    std::vector<attribute> options{flag("DrawHidden", false), flag("DrawHiddenObjects", true)};
    skp::add_draw_hidden(options);
    ASSERT_EQ(options.size(), 2u);
    EXPECT_FALSE(std::get<bool>(options[0].value.data));
}

TEST(DrawHidden, is_off_if_a_damaged_file_gives_its_successor_a_number) {
    std::vector<attribute> options{{"DrawHiddenObjects", {value_code::int32, std::int32_t{1}}}};
    skp::add_draw_hidden(options);
    ASSERT_EQ(options.size(), 2u);
    EXPECT_FALSE(std::get<bool>(options[1].value.data));
}

} // namespace
