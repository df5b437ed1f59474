// The table of a list: what a row takes from a report, and how the table is spelt.

#include "tools/model_lists/report_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* report_of_a_lamp =
    R"({"format":1,"status":0,"sentence":"The batch is done.","seconds":1.25,"peak_memory_bytes":3145728,)"
    R"("counts":{"layers":1,"triangles":1134},"errors":0,"warnings":3,)"
    R"("findings":[{"code":"lamp-dark","severity":"warning"},{"code":"lamp-dark","severity":"warning"},)"
    R"({"code":"picture-twice","severity":"note"},{"code":"number-unknown","severity":"warning"}]})";

TEST(ReportTable, a_row_holds_what_the_report_tells) {
    const table_row row = row_of_report("a/x.skp", report_of_a_lamp);
    EXPECT_EQ(row.model, "a/x.skp");
    EXPECT_EQ(row.status, 0);
    EXPECT_EQ(row.seconds, 1.25);
    EXPECT_EQ(row.memory_bytes, 3145728U);
    EXPECT_EQ(row.triangles, 1134U);
    EXPECT_EQ(row.findings, 3U);
    EXPECT_THAT(row.codes, ElementsAre("lamp-dark", "number-unknown"));
    EXPECT_EQ(row.sentence, "");
}

TEST(ReportTable, a_refused_model_has_its_sentence_and_no_counts) {
    const table_row row = row_of_report("x.skp", R"({"status":3,"sentence":"no model","seconds":0.5,"counts":null})");
    EXPECT_EQ(row.status, 3);
    EXPECT_EQ(row.sentence, "no model");
    EXPECT_EQ(row.triangles, std::nullopt);
    EXPECT_EQ(row.findings, std::nullopt);
}

TEST(ReportTable, a_model_without_a_report_counts_as_failed) {
    const table_row row = row_of_report("x.skp", std::nullopt);
    EXPECT_EQ(row.status, 6);
    EXPECT_EQ(row.sentence, "its run has left no report");
    EXPECT_EQ(row.seconds, std::nullopt);
}

TEST(ReportTable, a_report_that_cannot_be_read_counts_as_failed) {
    for (const char* report :
         {"", "{", "[]", "null", "7", R"({"format":1})", R"({"status":"0"})", R"({"status":-1})", R"({"status":8})",
          R"({"status":0.5})", R"({"status":0}})", "{\"status\":0,\"a\":\"\xFF\"}"}) {
        const table_row row = row_of_report("x.skp", report);
        EXPECT_EQ(row.status, 6) << report;
        EXPECT_EQ(row.sentence, "the report of its run cannot be read") << report;
    }
}

TEST(ReportTable, fields_of_another_kind_are_left_empty) {
    const table_row row = row_of_report(
        "x.skp",
        R"({"status":5,"sentence":7,"seconds":"1","peak_memory_bytes":-1,"counts":[1],"errors":1,"findings":{}})");
    EXPECT_EQ(row.status, 5);
    EXPECT_EQ(row.sentence, "");
    EXPECT_EQ(row.seconds, std::nullopt);
    EXPECT_EQ(row.memory_bytes, std::nullopt);
    EXPECT_EQ(row.triangles, std::nullopt);
    EXPECT_EQ(row.findings, std::nullopt);
    EXPECT_THAT(row.codes, IsEmpty());
}

TEST(ReportTable, values_that_lie_deeper_than_any_report_are_left_out) {
    const std::string deep = std::string(3000000, '[') + std::string(3000000, ']');
    const table_row row =
        row_of_report("x.skp", R"({"status":5,"findings":)" + deep + R"(,"counts":)" + deep + R"(,"sentence":"no"})");
    EXPECT_EQ(row.status, 5);
    EXPECT_EQ(row.sentence, "no");
    EXPECT_THAT(row.codes, IsEmpty());
}

TEST(ReportTable, the_status_of_a_table_is_the_highest_of_its_rows) {
    EXPECT_EQ(highest_status({}), 0);
    EXPECT_EQ(highest_status({row_of_report("a", report_of_a_lamp)}), 0);
    EXPECT_EQ(highest_status({row_of_report("a", report_of_a_lamp), row_of_report("b", R"({"status":5})"),
                              row_of_report("c", R"({"status":3})")}),
              5);
}

TEST(ReportTable, comma_separated_values_have_a_head_and_a_line_for_each_model) {
    EXPECT_EQ(table_as_csv({row_of_report("a/x.skp", report_of_a_lamp), row_of_report("b.skp", std::nullopt)}),
              "model,status,seconds,memory_bytes,triangles,findings,codes,sentence\n"
              "a/x.skp,0,1.250,3145728,1134,3,lamp-dark number-unknown,\n"
              "b.skp,6,,,,,,its run has left no report\n");
}

TEST(ReportTable, commas_quotation_marks_and_line_feeds_stand_in_quotation_marks) {
    EXPECT_EQ(table_as_csv({row_of_report("a, \"b\"\n日.skp", R"({"status":3,"sentence":"no \"skp\", no"})")}),
              "model,status,seconds,memory_bytes,triangles,findings,codes,sentence\n"
              "\"a, \"\"b\"\"\n日.skp\",3,,,,,,\"no \"\"skp\"\", no\"\n");
}

TEST(ReportTable, the_text_has_the_model_last_and_sums_up) {
    EXPECT_EQ(table_as_text({row_of_report("a/x.skp", report_of_a_lamp),
                             row_of_report("y.skp", R"({"status":3,"sentence":"no model","seconds":12.5})")}),
              "status   seconds       MiB  triangles findings  model\n"
              "     0     1.250       3.0       1134        3  a/x.skp: lamp-dark number-unknown\n"
              "     3    12.500         -          -        -  y.skp: no model\n"
              "2 models, 1 done, 1 not done\n");
}

TEST(ReportTable, control_characters_do_not_break_the_lines_of_the_text) {
    EXPECT_EQ(table_as_text({row_of_report("a\n\x1B\x7F日.skp", R"({"status":0})")}),
              "status   seconds       MiB  triangles findings  model\n"
              "     0         -         -          -        -  a\\x0a\\x1b\\x7f日.skp\n"
              "1 models, 1 done, 0 not done\n");
}

} // namespace
