#include "tools/batch_reading/kept_records.h"

#include <gtest/gtest.h>

namespace {

TEST(KeptRecords, are_as_many_as_there_is_room_for) {
    kept_records room(2, 100);
    EXPECT_TRUE(room.keep(0));
    EXPECT_TRUE(room.keep(0));
    EXPECT_EQ(room.note(), "");
    EXPECT_FALSE(room.keep(0));
    EXPECT_FALSE(room.keep(0));
    EXPECT_EQ(room.note(), "left out of what the stream declares and places: 2; there is room for 2 records with 100 "
                           "bytes of names");
}

TEST(KeptRecords, have_no_more_text_together_than_there_is_room_for) {
    kept_records room(100, 10);
    EXPECT_TRUE(room.keep(6));
    EXPECT_FALSE(room.keep(5));
    EXPECT_TRUE(room.keep(4)); // what was left out takes no room
    EXPECT_TRUE(room.keep(0));
    EXPECT_FALSE(room.keep(1));
    EXPECT_FALSE(kept_records(100, 10).keep(~std::size_t{0}));
}

} // namespace
