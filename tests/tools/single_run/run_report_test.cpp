#include "tools/single_run/batch_place.h"
#include "tools/single_run/run_report.h"

#include <gtest/gtest.h>

namespace {

TEST(RunReport, what_it_says_of_a_batch_is_read_from_it_again) {
    run_report report;
    report.verdict = {true, R"({"triangles":2})", R"([{"code":"orphan"}])", 0, 1};
    const batch_verdict read = verdict_in(text_of_report(report));
    EXPECT_TRUE(read.is_sound);
    EXPECT_EQ(read.counts, R"({"triangles":2})");
    EXPECT_EQ(read.findings, R"([{"code":"orphan"}])");
    EXPECT_EQ(read.errors, 0u);
    EXPECT_EQ(read.warnings, 1u);
}

TEST(RunReport, every_report_begins_as_a_mark_does) {
    EXPECT_TRUE(text_of_report({}).starts_with(report_beginning));
}

TEST(RunReport, values_that_lie_deeper_than_any_report_are_left_out) {
    const std::string deep = R"({"findings":)" + std::string(1000000, '[') + std::string(1000000, ']') + '}';
    EXPECT_LT(verdict_in(deep).findings.size(), 100u);
}

TEST(RunReport, the_program_of_a_report_may_be_of_any_depth) {
    const std::string deep = std::string(3000000, '[') + std::string(3000000, ']');
    EXPECT_FALSE(is_report(R"({"program":)" + deep + '}'));
    EXPECT_TRUE(is_report(R"({"program":"tessaline-run"})"));
}

TEST(RunReport, a_count_that_no_whole_number_is_counts_as_none) {
    EXPECT_EQ(verdict_in(R"({"errors":1e300,"warnings":"many"})").errors, 0u);
    EXPECT_EQ(verdict_in(R"({"errors":1e300,"warnings":"many"})").warnings, 0u);
}

TEST(RunReport, what_is_no_report_says_nothing) {
    EXPECT_FALSE(verdict_in("no JSON").is_sound);
    EXPECT_FALSE(is_same_run("no JSON", {}));
    EXPECT_FALSE(is_same_run(R"({"model":7})", {}));
}

} // namespace
