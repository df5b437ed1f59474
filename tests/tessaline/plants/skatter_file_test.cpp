// How the lines of the parent's list of scattered components are read.

#include "tessaline/plants/skatter_file.h"

#include "tests/support/page_examples.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/trace_capture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

class SkatterFile : public testing::Test {
protected:
    std::vector<skatter_placement> read(const std::string& text) {
        std::vector<skatter_placement> placements;
        for_each_skatter_placement(batch.write("skatter_insts.txt", text),
                                   [&](const skatter_placement& placement) { placements.push_back(placement); });
        return placements;
    }

    std::vector<std::string> names(const std::string& text) {
        std::vector<std::string> found;
        for (const skatter_placement& placement : read(text))
            found.push_back(placement.definition_name);
        return found;
    }

    temporary_folder batch;
};

TEST_F(SkatterFile, lies_in_the_batch_folder) {
    EXPECT_EQ(skatter_file_path(batch.name()), batch / "skatter_insts.txt");
}

TEST_F(SkatterFile, the_fourth_field_is_the_name_and_sixteen_numbers_follow) {
    const auto placements = read("group;layer;id;pebble;1;2;3;4;5;6;7;8;9;10;11;12;-13.5;1e2;15;16;17\r\n");
    ASSERT_EQ(placements.size(), 1u);
    EXPECT_EQ(placements[0].definition_name, "pebble");
    EXPECT_EQ(placements[0].transform, (transform16{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, -13.5, 100, 15, 16}));
}

TEST_F(SkatterFile, a_line_that_begins_with_a_number_sign_is_a_comment) {
    EXPECT_THAT(names("#a;b;c;one\na;b;c;two\n#\n #;b;c;three\n"), ElementsAre("two", "three"));
}

TEST_F(SkatterFile, lines_end_with_or_without_a_carriage_return_and_the_last_without_either) {
    EXPECT_THAT(names("a;b;c;one\r\na;b;c;two\na;b;c;three"), ElementsAre("one", "two", "three"));
}

TEST_F(SkatterFile, a_quoted_name_may_hold_separators_and_quotation_marks) {
    EXPECT_THAT(names("a;\"b;b\";c;\"Stone; \"\"grey\"\"\";1\n"), ElementsAre("Stone; \"grey\""));
}

TEST_F(SkatterFile, blanks_around_a_name_do_not_count_and_its_case_does) {
    EXPECT_THAT(names("a;b;c;  Two words ;1\n"), ElementsAre("Two words"));
}

TEST_F(SkatterFile, what_is_missing_or_no_number_is_zero) {
    const auto placements = read("a;b;c;pebble;1;x;;2 and more\na\n\n");
    ASSERT_EQ(placements.size(), 3u);
    EXPECT_EQ(placements[0].transform, (transform16{1, 0, 0, 2}));
    EXPECT_EQ(placements[1].definition_name, "");
    EXPECT_EQ(placements[2].transform, transform16{});
}

TEST_F(SkatterFile, every_line_but_the_comments_is_counted_an_empty_one_too) {
    EXPECT_EQ(skatter_line_count(batch.write("skatter_insts.txt", "# comment\na;b;c;one\n\n#\nno fields")), 3u);
}

TEST_F(SkatterFile, one_that_cannot_be_opened_has_no_lines_and_nobody_is_told) {
    const std::string name = batch.make_folder("skatter_insts.txt");
    testing::internal::CaptureStderr();
    const trace_capture capture;
    bool is_used = false;
    for_each_skatter_placement(name, [&](const skatter_placement&) { is_used = true; });
    EXPECT_FALSE(is_used);
    EXPECT_EQ(skatter_line_count(batch / "missing.txt"), 0u);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(SkatterFile, the_example_of_the_documentation_is_read_as_it_says) {
    const auto placements = read(page_examples("scatter-file.md").at(0));
    ASSERT_EQ(placements.size(), 3u);
    EXPECT_EQ(placements[0].definition_name, "Tuft");
    EXPECT_EQ(placements[0].transform, (transform16{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 30, 40, 0, 1}));
    EXPECT_EQ(placements[1].definition_name, "Tuft");
    EXPECT_EQ(placements[1].transform, (transform16{2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 1}));
    EXPECT_EQ(placements[2].definition_name, "Pebble; grey");
    EXPECT_EQ(placements[2].transform, (transform16{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0.5, 1}));
}

} // namespace
