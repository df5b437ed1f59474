#include "text/path_end.h"

#include <gtest/gtest.h>

TEST(LastComponent, of_a_path_stands_behind_the_last_separator_of_either_kind) {
    EXPECT_EQ(last_component("/made/here/oak.png"), "oak.png");
    EXPECT_EQ(last_component("C:\\made\\here\\oak.png"), "oak.png");
    EXPECT_EQ(last_component("C:\\made/here\\oak.png"), "oak.png");
    EXPECT_EQ(last_component("oak.png"), "oak.png");
}

TEST(LastComponent, does_not_count_separators_at_the_end) {
    EXPECT_EQ(last_component("batches/room/"), "room");
    EXPECT_EQ(last_component("room\\/\\"), "room");
    EXPECT_EQ(last_component("/"), "");
    EXPECT_EQ(last_component(""), "");
}
