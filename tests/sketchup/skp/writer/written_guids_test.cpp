#include "sketchup/skp/writer/written_guids.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using sketchup::guid;
using skp::guid_owner;
using skp::written_guid;

} // namespace

TEST(WrittenGuids, a_guid_of_its_own_is_kept) {
    const guid own = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    EXPECT_EQ(written_guid(own, guid_owner::placement, 7), own);
}

TEST(WrittenGuids, made_ones_differ_by_kind_and_index_and_are_never_zero) {
    std::set<guid> all{guid{}};
    for (const guid_owner owner : {guid_owner::model, guid_owner::definition, guid_owner::placement, guid_owner::style})
        for (sketchup::index at = 0; at < 10000; ++at)
            all.insert(written_guid({}, owner, at));
    EXPECT_EQ(all.size(), 40001u);
}

TEST(WrittenGuids, a_made_one_says_that_it_is_random_bits) {
    const guid made = written_guid({}, guid_owner::definition, 3);
    EXPECT_EQ(made[7] & 0xF0, 0x40);
    EXPECT_EQ(made[8] & 0xC0, 0x80);
}

TEST(WrittenGuids, the_same_owner_always_gets_the_same_one) {
    EXPECT_EQ(written_guid({}, guid_owner::model), written_guid({}, guid_owner::model));
}
