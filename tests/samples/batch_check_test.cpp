// Every sample converted by the built program: the checker finds nothing in what a run leaves, notes aside; and a run
// leaves something of each model that opens.

#include "tests/samples/convert_sample.h"
#include "tests/samples/expected_figures.h"
#include "tools/batch_check/check_batch.h"
#include "tools/batch_check/first_screen.h"

#include <gtest/gtest.h>

namespace {

// There is a batch of each model that opens, and of no other.
void expect_sound(const std::string& sample, const temporary_folder& batch) {
    const bool opens = expected_figures()[sample]["opens"].get<bool>();
    ASSERT_EQ(batch.has("batch_file.txt"), opens);
    if (!opens)
        return;
    const auto report = batch_check::check_batch(*batch_check::folder_on_disk(batch.name()));
    EXPECT_TRUE(report.is_sound(true)) << batch_check::finding_lines(report.found);
}

class SampleCheck : public testing::TestWithParam<std::string> {};

TEST_P(SampleCheck, finds_nothing_in_a_batch_without_settings) {
    const temporary_folder batch;
    convert(GetParam(), batch);
    expect_sound(GetParam(), batch);
}

TEST_P(SampleCheck, finds_nothing_where_both_sides_and_all_edges_are_shown) {
    const temporary_folder batch;
    batch.write("option_globals.txt",
                "ivl_2_sided_faces; 2\r\nivl_edge_lines; 1\r\nrvl_edge_line_width; 1\r\nivl_resy; 600\r\n");
    convert(GetParam(), batch);
    expect_sound(GetParam(), batch);
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SampleCheck);
INSTANTIATE_TEST_SUITE_P(Samples, SampleCheck, testing::ValuesIn(sample_names()),
                         [](const auto& sample) { return test_name_of(sample.param); });

} // namespace
