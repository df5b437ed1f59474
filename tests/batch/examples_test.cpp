// The examples leave what is kept with them.

#include "tests/batch/batch_runner.h"
#include "tests/batch/stream_grammar.h"
#include "tests/run_program.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

std::vector<std::string> words_of(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> words;
    for (std::string word; in >> word;)
        words.push_back(word);
    return words;
}

class Examples : public testing::TestWithParam<std::string> {};

// "parent" holds what stands in the batch folder beside the model ahead of the run, "arguments" what stands behind the
// model on the command line, "expected" what the run must leave.
TEST_P(Examples, a_run_leaves_what_is_kept_with_the_example) {
    const std::string example = std::string(TESSALINE_SOURCE_DIR) + "/examples/" + GetParam();
    batch b;
    const std::string program = std::string(EXAMPLE_PROGRAMS) + "/example_" + GetParam();
    ASSERT_EQ(run_program(shell_quoted(program) + " " + shell_quoted(b / "geometry.qlm")).status, 0);
    for (const auto& [name, bytes] : files_below(example + "/parent"))
        b.put(name, bytes);
    const std::string model = b.read("geometry.qlm");
    EXPECT_EQ(b.run(words_of(text_of_file(example + "/arguments"))).status, 0);

    files_by_name expected = files_below(example + "/expected");
    for (auto& [name, text] : expected)
        text = with_batch_folder(std::move(text), b.folder());
    expected["geometry.qlm"] = model;
    EXPECT_EQ(differences(expected, b.files()), std::vector<std::string>());
    EXPECT_EQ(b.folders(), folders_of_every_run());
    EXPECT_EQ(first_grammar_fault(b.read("batch_file.txt")), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(All, Examples, testing::Values("garden", "stages"),
                         [](const testing::TestParamInfo<std::string>& one) { return one.param; });

} // namespace
