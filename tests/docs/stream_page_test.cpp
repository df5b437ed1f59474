// The page of the geometry stream is right and complete: the checker takes its examples, and knows the same records.

#include "tests/docs/pages.h"
#include "tests/support/files_in_memory.h"
#include "tests/support/page_examples.h"
#include "tools/batch_check/check_stream.h"
#include "tools/batch_check/first_screen.h"
#include "tools/batch_check/stream_lines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

const std::string page = "docs/geometry-stream.md";
constexpr std::string_view line_end = "\r\n";
constexpr std::string_view first_line = "#;Tessaline Geometry, new extractor\r\n";

// What the checker finds in a stream; nothing if it is right.
std::string found_in(const std::string& stream) {
    const files_in_memory files({{"batch_file.txt", stream}});
    batch_check::findings found;
    batch_check::check_stream(*files.open("batch_file.txt"), "batch_file.txt", found);
    return batch_check::finding_lines(found);
}

// An example without the first and the last lines of a stream gets them.
std::string whole(const std::string& example) {
    if (example.starts_with(first_line))
        return example;
    return std::string(first_line) +
           "#;09/09/2001  01:46:40 GMT\r\nDFFC;ffffff\r\nDFBC;ffffff\r\nDFEC;000000\r\n#;\r\n#;\r\nPASS;0\r\n#;\r\n" +
           example + "#;\r\nEND;\r\n";
}

TEST(StreamPage, the_checker_takes_every_example) {
    const std::vector<pages::example> examples = pages::examples_of(page, "stream");
    EXPECT_GE(examples.size(), 10U);
    for (const pages::example& example : examples)
        EXPECT_EQ(found_in(whole(example.text(line_end))), "") << page << ", line " << example.line;
    for (const std::string& example : page_examples("geometry-stream.md"))
        EXPECT_EQ(found_in(whole(example)), "") << example;
}

TEST(StreamPage, every_record_that_the_checker_knows_has_a_row_and_no_other) {
    std::vector<std::string> described;
    for (const pages::row& row : pages::rows_under(page, "Record"))
        described.push_back(pages::codes_in(row.at(0)).at(0));
    std::vector<std::string> known;
    for (const std::string_view tag : batch_check::known_records())
        known.push_back(std::string(tag) + ";");
    EXPECT_THAT(described, testing::UnorderedElementsAreArray(known));
}

TEST(StreamPage, the_example_of_every_record_stands_in_an_example_that_the_checker_takes) {
    std::set<std::string> lines;
    for (const pages::example& example : pages::examples_of(page, "stream"))
        lines.insert(example.lines.begin(), example.lines.end());
    for (const pages::row& row : pages::rows_under(page, "Record")) {
        ASSERT_EQ(row.size(), 3U) << row.at(0);
        const std::string record = pages::codes_in(row[0]).at(0);
        const std::vector<std::string> shown = pages::codes_in(row[2]);
        ASSERT_EQ(shown.size(), 1U) << record;
        EXPECT_THAT(shown[0], testing::StartsWith(record));
        EXPECT_TRUE(lines.contains(shown[0])) << shown[0] << " stands in no example";
    }
}

} // namespace
