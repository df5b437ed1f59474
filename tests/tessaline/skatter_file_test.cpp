// The file of scattered components.

#include "tessaline/skatter_file.h"

#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> names_in(const std::string& path) {
    std::vector<std::string> names;
    for_each_skatter_placement(path, [&](const skatter_placement& one) { names.push_back(one.definition_name); });
    return names;
}

TEST(SkatterFile, a_line_holds_three_unused_fields_a_name_and_sixteen_numbers) {
    const skatter_placement one = skatter_placement_from("a;b;c;oak;1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;16;17");
    EXPECT_EQ(one.definition_name, "oak");
    EXPECT_EQ(one.transform, (transform16{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}));
}

TEST(SkatterFile, numbers_are_read_as_far_as_they_are_numbers) {
    const skatter_placement one = skatter_placement_from("a;b;c;oak; 1.5e1 ;-0.25m;x;;1e400");
    EXPECT_EQ(one.transform[0], 15);
    EXPECT_EQ(one.transform[1], -0.25);
    EXPECT_EQ(one.transform[2], 0);
    EXPECT_EQ(one.transform[3], 0);
    EXPECT_EQ(one.transform[4], HUGE_VAL);
    EXPECT_EQ(one.transform[15], 0); // missing
}

TEST(SkatterFile, a_quoted_name_may_hold_separators_and_quotes) {
    EXPECT_EQ(skatter_placement_from(R"(a;b;c;"oak; ""old""";1)").definition_name, R"(oak; "old")");
    EXPECT_EQ(skatter_placement_from(R"("a;1";"b";c;oak;1)").definition_name, "oak");
}

TEST(SkatterFile, a_short_line_has_an_empty_name) {
    EXPECT_EQ(skatter_placement_from("a;b").definition_name, "");
    EXPECT_EQ(skatter_placement_from("").definition_name, "");
}

TEST(SkatterFile, comments_are_lines_whose_first_character_says_so) {
    temporary_folder folder;
    const std::string path = folder.write("skatter_insts.txt", "#a;b;c;elm\r\na;b;c;oak\r\n #;b;c;beech\r\n\r\n");
    EXPECT_THAT(names_in(path), ElementsAre("oak", "beech", ""));
    EXPECT_EQ(skatter_line_count(path), 3);
}

TEST(SkatterFile, a_file_that_cannot_be_opened_has_no_lines) {
    temporary_folder folder;
    EXPECT_THAT(names_in(folder / "missing.txt"), IsEmpty());
    EXPECT_THAT(names_in(folder.make_folder("skatter_insts.txt")), IsEmpty());
    EXPECT_EQ(skatter_line_count(folder / "missing.txt"), 0);
}

} // namespace
