#include "sketchup/skp/modern/id_table.h"

#include <gtest/gtest.h>

using sketchup::no_index;
using skp::modern::id_table;

TEST(IdTable, finds_what_was_put_in) {
    id_table t;
    t.reset(1000);
    for (sketchup::index i = 0; i < 1000; ++i)
        t.insert(5000 + 3 * std::uint64_t{i}, i);
    for (sketchup::index i = 0; i < 1000; ++i)
        EXPECT_EQ(t.find(5000 + 3 * std::uint64_t{i}), i);
    EXPECT_EQ(t.find(5001), no_index);
}

TEST(IdTable, the_first_of_equal_ids_wins) {
    id_table t;
    t.reset(2);
    t.insert(7, 1);
    t.insert(7, 2);
    EXPECT_EQ(t.find(7), 1u);
}

TEST(IdTable, does_not_keep_the_id_zero) {
    id_table t;
    t.reset(1);
    t.insert(0, 1);
    EXPECT_EQ(t.find(0), no_index);
}

TEST(IdTable, knows_nothing_before_it_is_given_room_and_after_it_is_given_new_room) {
    id_table t;
    EXPECT_EQ(t.find(7), no_index);
    t.reset(100);
    t.insert(7, 1);
    t.reset(0);
    EXPECT_EQ(t.find(7), no_index);
}

TEST(IdTable, takes_no_more_than_it_has_room_for) {
    id_table t;
    t.reset(1);
    t.insert(7, 1);
    t.insert(8, 2);
    EXPECT_EQ(t.find(7), 1u);
    EXPECT_EQ(t.find(8), no_index);
}
