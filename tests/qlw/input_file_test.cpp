#include "platform/platform.h"
#include "qlw/qlw_text_files.h"
#include "tests/support/shown_to_user.h"
#include "tests/support/trace_capture.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

std::string shown(const std::function<void()>& action) {
    const std::string text = shown_to_user(action);
    return text.substr(0, text.find("\n\n    (VER: ")); // the version and the machine are the dialog's affair
}

// In the words of the system.
std::string why_not_opened(const std::string& name) {
    platform::file file;
    EXPECT_FALSE(file.open(name, platform::open_mode::read));
    EXPECT_NE(file.failure(), "");
    return file.failure();
}

TEST(InputFile, opens_what_exists_without_a_word) {
    const temporary_folder folder;
    const trace_capture capture;
    cl_input_file file;
    EXPECT_TRUE(file.open(folder.write("a.txt", "text"), open_failure::shown, "source", 5));
    EXPECT_TRUE(file.is_open());
    EXPECT_EQ(file.path(), folder / "a.txt");
    EXPECT_EQ(capture.text(), "");
}

TEST(InputFile, missing_and_quiet_is_only_traced) {
    const temporary_folder folder;
    const trace_capture capture;
    cl_input_file file;
    EXPECT_EQ(shown([&] { EXPECT_FALSE(file.open(folder / "none", open_failure::quiet, "caller", 77)); }), "");
    EXPECT_FALSE(file.is_open());
    EXPECT_EQ(capture.text_without_line_numbers(),
              "qlw_std(#): cl_input_file::open():: REPORT: File not opened: " + (folder / "none") + ": " +
                  why_not_opened(folder / "none") + ": caller 77\n");
}

TEST(InputFile, missing_and_not_quiet_is_shown_too) {
    const temporary_folder folder;
    const trace_capture capture;
    cl_input_file file;
    EXPECT_EQ(shown([&] { EXPECT_FALSE(file.open(folder / "none", open_failure::shown, "", 0)); }),
              "Tessaline - Error: Cannot open file: '" + (folder / "none") + "' " + why_not_opened(folder / "none") +
                  ":  0");
    EXPECT_EQ(capture.text_without_line_numbers(),
              "qlw_std(#): cl_input_file::open():: REPORT: File not opened: " + (folder / "none") + ": " +
                  why_not_opened(folder / "none") + ":  0\n" +
                  "qlw_std(#): cl_input_file::open():: *** ERROR: Cannot open file: '" + (folder / "none") + "' " +
                  why_not_opened(folder / "none") + ":  0\n");
}

TEST(InputFile, a_folder_is_no_file) {
    const temporary_folder folder;
    const trace_capture capture;
    cl_input_file file;
    EXPECT_FALSE(file.open(folder.name(), open_failure::quiet, "", 0));
    EXPECT_EQ(capture.text_without_line_numbers(), "qlw_std(#): cl_input_file::open():: REPORT: File not opened: " +
                                                       folder.name() + ": " + why_not_opened(folder.name()) + ":  0\n");
}

TEST(InputFile, a_binary_file_that_is_missing_is_shown_unless_quiet_and_never_just_traced) {
    const temporary_folder folder;
    const trace_capture capture;
    cl_input_file file;
    EXPECT_FALSE(file.open_binary(folder / "none", open_failure::quiet, "caller", 77));
    EXPECT_EQ(capture.text(), "");
    EXPECT_EQ(shown([&] { EXPECT_FALSE(file.open_binary(folder / "none", open_failure::shown, "caller", 77)); }),
              "Tessaline - Error: Cannot open file: " + (folder / "none") + ": caller 77");
    EXPECT_EQ(capture.text_without_line_numbers(),
              "input_file(#): cl_input_file::open_binary():: *** ERROR: Cannot open file: " + (folder / "none") +
                  ": caller 77\n");
}

TEST(InputFile, an_ini_file_is_announced_even_if_only_its_folder_has_the_word) {
    const temporary_folder folder;
    const trace_capture capture;
    cl_input_file file;
    EXPECT_TRUE(file.open(folder.write("user.ini", ""), open_failure::shown, "", 0));
    EXPECT_TRUE(file.open(folder.write("x.initial/a.txt", ""), open_failure::shown, "", 0));
    EXPECT_TRUE(file.open_binary(folder / "user.ini", open_failure::shown, "", 0));
    EXPECT_EQ(capture.text_without_line_numbers(),
              "input_file(#): cl_input_file::open():: Opening .ini file: " + (folder / "user.ini") + "\n" +
                  "input_file(#): cl_input_file::open():: Opening .ini file: " + (folder / "x.initial/a.txt") + "\n");
}

// All fields of a line; a line that is never used up would give 20.
std::vector<std::string> fields_of(std::string line) {
    std::vector<std::string> fields;
    do
        fields.push_back(cl_input_file::read_field_csv(line));
    while (!line.empty() && fields.size() < 20);
    return fields;
}

using texts = std::vector<std::string>;

TEST(CsvField, fields_are_cut_off_one_by_one_until_nothing_is_left) {
    std::string line = "a;b;c";
    EXPECT_EQ(cl_input_file::read_field_csv(line), "a");
    EXPECT_EQ(line, "b;c");
    EXPECT_EQ(cl_input_file::read_field_csv(line), "b");
    EXPECT_EQ(line, "c");
    EXPECT_EQ(cl_input_file::read_field_csv(line), "c");
    EXPECT_EQ(line, "");
    EXPECT_EQ(cl_input_file::read_field_csv(line), "");
}

TEST(CsvField, an_empty_field_is_empty) {
    EXPECT_EQ(fields_of(";a;;b;"), (texts{"", "a", "", "b"}));
}

TEST(CsvField, two_quotes_are_an_empty_field) {
    EXPECT_EQ(fields_of("\"\";c"), (texts{"", "c"}));
}

TEST(CsvField, a_separator_inside_quotes_is_kept) {
    EXPECT_EQ(fields_of("\"a;b\";c"), (texts{"a;b", "c"}));
}

TEST(CsvField, a_doubled_quote_inside_quotes_is_one_quote) {
    EXPECT_EQ(fields_of("\"say \"\"hi\"\" now\";c"), (texts{"say \"hi\" now", "c"}));
}

TEST(CsvField, a_quote_with_n_or_r_inside_quotes_is_a_line_end) {
    EXPECT_EQ(fields_of("\"a\"nb\"rc\";d"), (texts{"a\nb\rc", "d"}));
}

TEST(CsvField, blanks_around_a_field_go_also_inside_quotes) {
    EXPECT_EQ(fields_of("  a b \t;\"  c  \"; \r"), (texts{"a b", "c", ""}));
}

TEST(CsvField, a_quote_inside_an_unquoted_field_starts_an_escape) {
    const trace_capture capture;
    std::string line = "ab\"xc;d";
    testing::internal::CaptureStderr();
    EXPECT_EQ(cl_input_file::read_field_csv(line), "abxc");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "an error for developers, without a dialog";
    EXPECT_EQ(line, "d");
    EXPECT_EQ(
        capture.text_without_line_numbers(), // x has the code 120; the error itself is for developers
        "input_file(#): cl_input_file::read_field_csv():: *** ERROR: Bad \\ escape character: 120 x (ab\"xc;d)\n");
}

TEST(CsvField, a_separator_ends_an_unquoted_field_even_behind_a_quote) {
    EXPECT_EQ(fields_of("ab\";c"), (texts{"ab", "c"}));
}

TEST(CsvField, a_blank_before_the_quote_makes_the_field_unquoted) {
    const trace_capture capture;
    EXPECT_EQ(fields_of(" \"ab;c"), (texts{"ab", "c"}));
    EXPECT_EQ(capture.text_without_line_numbers(),
              "input_file(#): cl_input_file::read_field_csv():: *** ERROR: Bad \\ escape character: 97 a ( \"ab;c)\n");
}

TEST(CsvField, a_line_feed_ends_the_field_even_inside_quotes) {
    EXPECT_EQ(fields_of("\"ab\nc;d"), (texts{"ab", "c", "d"}));
}

TEST(CsvField, quotes_that_are_never_closed_take_the_rest) {
    EXPECT_EQ(fields_of("\"a;b;c"), texts{"a;b;c"});
    EXPECT_EQ(fields_of("\""), texts{""});
}

TEST(CsvField, a_field_may_be_longer_than_any_buffer) {
    const std::string field(100000, 'x');
    EXPECT_EQ(fields_of("\"" + field + "\";b"), (texts{field, "b"}));
}

} // namespace
