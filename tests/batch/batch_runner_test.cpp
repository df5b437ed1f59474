#include "tests/batch/batch_runner.h"

#include <gtest/gtest.h>

namespace {

using texts = std::vector<std::string>;

TEST(BatchDifferences, equal_files_give_none) {
    EXPECT_EQ(differences({{"a/b.txt", "one\r\n"}}, {{"a/b.txt", "one\r\n"}}), texts());
}

TEST(BatchDifferences, the_first_differing_line_is_shown_with_its_end) {
    EXPECT_EQ(differences({{"a.txt", "one\r\ntwo\r\nthree\r\n"}}, {{"a.txt", "one\r\ntwo\nTHREE\r\n"}}),
              texts{"a.txt differs in line 2\n  expected: two\\r\\n\n  found:    two\\n"});
}

TEST(BatchDifferences, a_file_that_ends_too_early_differs_behind_its_last_line) {
    EXPECT_EQ(differences({{"a.txt", "one\r\ntwo\r\n"}}, {{"a.txt", "one\r\n"}}),
              texts{"a.txt differs in line 2\n  expected: two\\r\\n\n  found:    the end of the file"});
}

TEST(BatchDifferences, a_missing_line_end_is_a_difference) {
    EXPECT_EQ(differences({{"a.txt", "one\r\n"}}, {{"a.txt", "one"}}),
              texts{"a.txt differs in line 1\n  expected: one\\r\\n\n  found:    one"});
}

TEST(BatchDifferences, missing_and_unexpected_files_are_named) {
    EXPECT_EQ(differences({{"a.txt", ""}}, {{"b.txt", ""}}), (texts{"a.txt is missing", "b.txt is not expected"}));
}

TEST(BatchGoldenText, every_mark_stands_for_the_batch_folder) {
    EXPECT_EQ(with_batch_folder("GNDC;@BATCH@/Plants/a\r\n@BATCH@@BATCH", "/tmp/@BATCH@"),
              "GNDC;/tmp/@BATCH@/Plants/a\r\n/tmp/@BATCH@@BATCH");
}

TEST(BatchFolder, files_and_folders_are_listed_with_their_names_from_the_batch_folder_on) {
    batch b("two/deep");
    b.put("Plants/Oak.plant", "oak");
    b.put("a.txt", "");
    EXPECT_EQ(b.files(), (files_by_name{{"Plants/Oak.plant", "oak"}, {"a.txt", ""}}));
    EXPECT_EQ(b.folders(), std::set<std::string>{"Plants"});
}

} // namespace
