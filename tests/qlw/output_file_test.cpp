#include "qlw/qlw_text_files.h"
#include "tests/support/shown_to_user.h"
#include "tests/support/trace_capture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

std::string shown(const std::function<void()>& action) {
    const std::string text = shown_to_user(action);
    return text.substr(0, text.find("\n\n    (VER: "));
}

std::string not_created(const std::string& name) {
    return "Cannot create file: '" + name +
           "'. \n\nMake sure that the file path exists and that the file is not in use by another program.";
}

TEST(OutputFile, opening_empties_an_old_file) {
    const temporary_folder folder;
    const trace_capture capture;
    cl_output_file file;
    EXPECT_TRUE(file.open(folder.write("a", "old"), output_file_mode::report_failure));
    EXPECT_EQ(folder.read("a"), "");
    EXPECT_EQ(capture.text(), "");
}

TEST(OutputFile, that_cannot_be_made_is_shown_in_mode_0) {
    const temporary_folder folder;
    const trace_capture capture;
    cl_output_file file;
    EXPECT_EQ(shown([&] { EXPECT_FALSE(file.open(folder / "none/a", output_file_mode::report_failure)); }),
              "Tessaline - Error: " + not_created(folder / "none/a"));
    EXPECT_FALSE(file.is_open());
    EXPECT_EQ(capture.text_without_line_numbers(),
              "output_file(#): cl_output_file::open():: *** ERROR: " + not_created(folder / "none/a") + "\n");
}

TEST(OutputFile, that_cannot_be_made_is_passed_over_in_quiet_mode) {
    const temporary_folder folder;
    const trace_capture capture;
    cl_output_file file;
    EXPECT_FALSE(file.open(folder / "none/a", output_file_mode::quiet));
    EXPECT_FALSE(file.open_for_append(folder / "none/a", open_failure::quiet));
    EXPECT_FALSE(file.open_binary(folder / "none/a", open_failure::quiet));
    EXPECT_EQ(capture.text(), "");
}

TEST(OutputFile, an_ini_file_is_announced) {
    const temporary_folder folder;
    const trace_capture capture;
    cl_output_file file;
    EXPECT_TRUE(file.open(folder / "a.ini", output_file_mode::report_failure));
    EXPECT_EQ(capture.text_without_line_numbers(),
              "output_file(#): cl_output_file::open():: Opening .ini file: " + (folder / "a.ini") + "\n");
}

TEST(OutputFile, an_ini_file_is_announced_even_if_only_its_folder_has_the_word) {
    const temporary_folder folder;
    folder.make_folder("x.ini.d");
    const trace_capture capture;
    cl_output_file file;
    EXPECT_TRUE(file.open(folder / "x.ini.d/a", output_file_mode::report_failure));
    EXPECT_EQ(capture.text_without_line_numbers(),
              "output_file(#): cl_output_file::open():: Opening .ini file: " + (folder / "x.ini.d/a") + "\n");
}

TEST(OutputFile, appending_keeps_what_is_there_and_makes_what_is_missing) {
    const temporary_folder folder;
    cl_output_file file;
    EXPECT_TRUE(file.open_for_append(folder.write("a", "old\r\n"), open_failure::shown));
    file.write_string("new\n");
    EXPECT_TRUE(file.open_for_append(folder / "b", open_failure::shown));
    file.write_string("new\n");
    file.close();
    EXPECT_EQ(folder.read("a"), "old\r\nnew\r\n");
    EXPECT_EQ(folder.read("b"), "new\r\n");
}

TEST(OutputFile, appending_and_binary_opens_report_in_the_same_words) {
    const temporary_folder folder;
    trace_capture capture;
    cl_output_file file;
    EXPECT_EQ(shown([&] { EXPECT_FALSE(file.open_for_append(folder / "none/a", open_failure::shown)); }),
              "Tessaline - Error: " + not_created(folder / "none/a"));
    EXPECT_EQ(shown([&] { EXPECT_FALSE(file.open_binary(folder / "none/a", open_failure::shown)); }),
              "Tessaline - Error: " + not_created(folder / "none/a"));
    EXPECT_EQ(
        capture.text_without_line_numbers(),
        "output_file(#): cl_output_file::open_for_append():: *** ERROR: " + not_created(folder / "none/a") + "\n" +
            "output_file(#): cl_output_file::open_binary():: *** ERROR: " + not_created(folder / "none/a") + "\n");
}

TEST(OutputFile, the_write_test_leaves_an_empty_open_file) {
    const temporary_folder folder;
    const trace_capture capture;
    cl_output_file file;
    EXPECT_TRUE(file.open(folder.write("a", "old"), output_file_mode::write_test));
    EXPECT_TRUE(file.is_open());
    EXPECT_EQ(folder.read("a"), "");
    file.write_string("kept\n");
    file.close();
    EXPECT_EQ(folder.read("a"), "kept\r\n");
    EXPECT_EQ(capture.text(), "");
}

TEST(OutputFile, formatted_text_ends_its_lines_with_cr_lf) {
    const temporary_folder folder;
    cl_output_file file;
    file.open(folder / "a", output_file_mode::report_failure);
    file.write_format("%s=%d;%.9g\n", "name", 3, 0.1);
    file.write_format("too few: %d %d\n", 1);
    file.write_format("plain %%\n");
    file.close();
    EXPECT_EQ(folder.read("a"), "name=3;0.1\r\nplain %\r\n");
}

TEST(OutputFile, raw_data_in_a_text_file_stays_raw) {
    const temporary_folder folder;
    cl_output_file file;
    file.open(folder / "a", output_file_mode::report_failure);
    EXPECT_TRUE(file.write_data("a\nb", 3));
    file.close();
    EXPECT_EQ(folder.read("a"), "a\nb");
}

} // namespace
