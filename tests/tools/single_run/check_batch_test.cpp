#include "tools/single_run/check_batch.h"

#include <gtest/gtest.h>

namespace {

TEST(CheckBatch, an_answer_of_the_checker_is_taken_with_its_first_error_in_words) {
    checked_batch checked;
    ASSERT_TRUE(take_answer(
        R"({"batches":[{"status":"unsound","counts":{"triangles":2},"errors":2,"warnings":1,"findings":[)"
        R"({"severity":"note","text":"a"},{"severity":"error","file":"batch_file.txt","line":7,"text":"b"}]}]})",
        checked));
    EXPECT_FALSE(checked.verdict.is_sound);
    EXPECT_EQ(checked.verdict.counts, R"({"triangles":2})");
    EXPECT_EQ(checked.verdict.errors, 2u);
    EXPECT_EQ(checked.verdict.warnings, 1u);
    EXPECT_EQ(checked.first_error, "batch_file.txt, line 7: b");
}

TEST(CheckBatch, what_is_no_answer_about_one_batch_is_not_taken) {
    for (const char* text :
         {"", "7", "{}", R"({"batches":{}})", R"({"batches":[]})", R"({"batches":[1]})", R"({"batches":[{},{}]})"}) {
        checked_batch checked;
        EXPECT_FALSE(take_answer(text, checked)) << text;
    }
}

TEST(CheckBatch, an_answer_of_other_kinds_and_of_any_depth_is_not_sound) {
    const std::string deep = std::string(3000000, '[') + std::string(3000000, ']');
    checked_batch checked;
    EXPECT_TRUE(
        take_answer(R"({"batches":[{"status":1,"errors":-1,"findings":)" + deep + R"(,"counts":7}]})", checked));
    EXPECT_FALSE(checked.verdict.is_sound);
    EXPECT_EQ(checked.verdict.counts, "{}");
    EXPECT_LT(checked.verdict.findings.size(), 100u);
    EXPECT_EQ(checked.verdict.errors, 0u);
}

} // namespace
