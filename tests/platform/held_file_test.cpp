#include "platform/held_file.h"

#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

using platform::held_file;
using platform::hold_kind;
using platform::hold_result;

TEST(HeldFile, one_holds_it_and_the_other_is_told) {
    const temporary_folder here;
    held_file first;
    held_file second;
    EXPECT_EQ(first.take(here / "mark", hold_kind::new_file), hold_result::held);
    EXPECT_EQ(second.take(here / "mark", hold_kind::old_file), hold_result::held_elsewhere);
    EXPECT_FALSE(second.is_held());
    first.release();
    EXPECT_EQ(second.take(here / "mark", hold_kind::old_file), hold_result::held);
}

TEST(HeldFile, a_new_one_is_not_made_over_an_old_one_and_a_missing_one_is_not_held) {
    const temporary_folder here;
    here.write("old", "of somebody");
    held_file held;
    EXPECT_EQ(held.take(here / "old", hold_kind::new_file), hold_result::name_taken);
    EXPECT_EQ(held.take(here / "missing", hold_kind::old_file), hold_result::missing);
    EXPECT_EQ(held.take(here / "no/such/folder", hold_kind::new_file), hold_result::missing);
    EXPECT_EQ(here.read("old"), "of somebody");
}

TEST(HeldFile, what_it_holds_is_replaced_whole) {
    const temporary_folder here;
    here.write("mark", "a long text that was there before");
    held_file held;
    ASSERT_EQ(held.take(here / "mark", hold_kind::old_file), hold_result::held);
    EXPECT_TRUE(held.rewrite("short"));
    EXPECT_EQ(here.read("mark"), "short");
    EXPECT_TRUE(held.rewrite(""));
    EXPECT_EQ(here.read("mark"), "");
}

TEST(HeldFile, it_grows_and_shrinks_to_what_it_is_given) {
    const temporary_folder here;
    here.write("mark", "beginning");
    held_file held;
    ASSERT_EQ(held.take(here / "mark", hold_kind::old_file), hold_result::held);
    EXPECT_TRUE(held.rewrite("beginning and more"));
    EXPECT_TRUE(held.rewrite("beginning"));
    EXPECT_EQ(here.read("mark"), "beginning");
}

TEST(HeldFile, its_beginning_can_be_looked_at_while_it_is_held) {
    const temporary_folder here;
    here.write("mark", "beginning and more");
    held_file held;
    ASSERT_EQ(held.take(here / "mark", hold_kind::old_file), hold_result::held);
    EXPECT_EQ(held.beginning(9), "beginning");
    EXPECT_EQ(held.beginning(100), "beginning and more");
    EXPECT_TRUE(held.rewrite(""));
    EXPECT_EQ(held.beginning(9), "");
}

TEST(HeldFile, it_may_be_renamed_while_it_is_held_and_stays_held) {
    const temporary_folder here;
    held_file held;
    ASSERT_EQ(held.take(here / "mark", hold_kind::new_file), hold_result::held);
    EXPECT_TRUE(platform::rename_replacing(here / "mark", here / "report"));
    held_file other;
    EXPECT_EQ(other.take(here / "report", hold_kind::old_file), hold_result::held_elsewhere);
    EXPECT_TRUE(held.rewrite("done"));
    EXPECT_EQ(here.read("report"), "done");
}

TEST(HeldFile, it_is_gone_when_it_was_removed) {
    const temporary_folder here;
    held_file held;
    ASSERT_EQ(held.take(here / "mark", hold_kind::new_file), hold_result::held);
    EXPECT_TRUE(held.remove(here / "mark"));
    EXPECT_FALSE(here.has("mark"));
    EXPECT_FALSE(held.is_held());
}

TEST(HeldFile, a_folder_is_not_held) {
    const temporary_folder here;
    here.make_folder("folder");
    held_file held;
    EXPECT_EQ(held.take(here / "folder", hold_kind::old_file), hold_result::impossible);
    EXPECT_NE(held.failure(), "");
}

} // namespace
