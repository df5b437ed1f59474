#include "qlw/qlw_text_files.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/trace_capture.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

std::vector<std::string> lines_of(const std::string& path, bool binary = false) {
    cl_input_file file;
    if (binary)
        file.open_binary(path, open_failure::quiet, "", 0);
    else
        file.open(path, open_failure::quiet, "", 0);
    std::vector<std::string> lines;
    for (std::string line; file.read_line(line);)
        lines.push_back(line);
    return lines;
}

using texts = std::vector<std::string>;

TEST(TextFile, lines_end_with_cr_lf_on_every_platform) {
    const temporary_folder folder;
    cl_output_file file;
    ASSERT_TRUE(file.open(folder / "a", output_file_mode::report_failure));
    EXPECT_TRUE(file.write_string("one\n\ntwo\nend"));
    EXPECT_TRUE(file.close());
    EXPECT_EQ(folder.read("a"), "one\r\n\r\ntwo\r\nend");
}

TEST(TextFile, a_reader_takes_cr_lf_and_lf) {
    const temporary_folder folder;
    EXPECT_EQ(lines_of(folder.write("a", "one\r\ntwo\n\r\n\nend")), (texts{"one", "two", "", "", "end"}));
}

TEST(TextFile, a_line_end_at_the_end_of_the_file_starts_no_further_line) {
    const temporary_folder folder;
    EXPECT_EQ(lines_of(folder.write("a", "one\r\n")), texts{"one"});
    EXPECT_EQ(lines_of(folder.write("b", "\n")), texts{""});
    EXPECT_EQ(lines_of(folder.write("c", "")), texts{});
}

TEST(TextFile, a_carriage_return_inside_a_line_stays) {
    const temporary_folder folder;
    EXPECT_EQ(lines_of(folder.write("a", "a\rb\r\n\rc")), (texts{"a\rb", "\rc"}));
}

TEST(TextFile, lines_and_line_ends_across_the_buffers_edge_stay_whole) {
    const temporary_folder folder;
    const std::string to_the_edge(65535, 'a'); // the CR is the last byte of the first block
    const std::string longer(200000, 'b');
    EXPECT_EQ(lines_of(folder.write("a", to_the_edge + "\r\n" + longer + "\n")), (texts{to_the_edge, longer}));
}

TEST(TextFile, a_line_beyond_the_longest_is_passed_over_with_a_trace) {
    const temporary_folder folder;
    const trace_capture trace;
    const std::string name = folder.write("a", "four\nfives\n\nend\nlonger still");
    cl_input_file file;
    ASSERT_TRUE(file.open(name, open_failure::quiet, "", 0));
    file.longest_line = 4;
    texts found;
    for (std::string line; file.read_line(line);)
        found.push_back(line);
    EXPECT_EQ(found, (texts{"four", "", "end"}));
    const std::string report =
        "stdio_file(#): cl_stdio_file::read_line():: A line of more than 4 bytes is passed over: " + name + "\n";
    EXPECT_EQ(trace.text_without_line_numbers(), report + report);
}

TEST(TextFile, a_line_beyond_the_longest_may_take_many_buffers) {
    const temporary_folder folder;
    cl_input_file file;
    ASSERT_TRUE(file.open(folder.write("a", std::string(300000, 'a') + "\r\nend\r\n"), open_failure::quiet, "", 0));
    file.longest_line = 100000;
    std::string line;
    ASSERT_TRUE(file.read_line(line));
    EXPECT_EQ(line, "end");
    EXPECT_FALSE(file.read_line(line));
}

TEST(TextFile, more_than_a_buffer_is_written_whole_and_in_order) {
    const temporary_folder folder;
    cl_output_file file;
    file.open(folder / "a", output_file_mode::report_failure);
    std::string expected;
    for (int i = 0; i < 20000; i++) {
        file.write_format("line %d\n", i);
        expected += "line " + std::to_string(i) + "\r\n";
    }
    file.close();
    EXPECT_EQ(folder.read("a"), expected);
}

TEST(BinaryFile, bytes_are_written_unchanged) {
    const temporary_folder folder;
    const std::string bytes("a\nb\r\n\0c", 7);
    cl_output_file output;
    ASSERT_TRUE(output.open_binary(folder / "a", open_failure::shown));
    EXPECT_TRUE(output.write_data(bytes.data(), bytes.size()));
    output.close();
    EXPECT_EQ(folder.read("a"), bytes);
}

TEST(BinaryFile, a_carriage_return_belongs_to_the_line) {
    const temporary_folder folder;
    EXPECT_EQ(lines_of(folder.write("a", "one\r\ntwo"), true), (texts{"one\r", "two"}));
}

TEST(File, a_flush_puts_what_was_written_on_the_disk) {
    const temporary_folder folder;
    cl_output_file file;
    file.open(folder / "a", output_file_mode::report_failure);
    file.write_string("x");
    EXPECT_EQ(folder.read("a"), "");
    EXPECT_TRUE(file.flush());
    EXPECT_EQ(folder.read("a"), "x");
}

TEST(File, a_seek_goes_on_from_another_place) {
    const temporary_folder folder;
    cl_input_file input;
    input.open(folder.write("a", "one\ntwo\n"), open_failure::shown, "", 0);
    std::string line;
    input.read_line(line);
    EXPECT_TRUE(input.seek(1));
    input.read_line(line);
    EXPECT_EQ(line, "ne");

    cl_output_file output;
    output.open_binary(folder / "b", open_failure::shown);
    output.write_string("0123456789");
    EXPECT_TRUE(output.seek(3));
    output.write_string("xy");
    output.close();
    EXPECT_EQ(folder.read("b"), "012xy56789");
}

TEST(File, is_closed_when_built_and_takes_nothing) {
    cl_output_file file;
    EXPECT_FALSE(file.is_open());
    EXPECT_FALSE(file.write_string("x"));
    EXPECT_FALSE(file.flush());
    EXPECT_FALSE(file.close());
    file.write_format("%d", 1);
    std::string line = "kept?";
    cl_input_file input;
    EXPECT_FALSE(input.read_line(line));
    EXPECT_EQ(line, "");
}

TEST(File, is_closed_when_destroyed) {
    const temporary_folder folder;
    {
        cl_output_file file;
        file.open(folder / "a", output_file_mode::report_failure);
        file.write_string("x\n");
    }
    EXPECT_EQ(folder.read("a"), "x\r\n");
}

TEST(File, opening_another_file_closes_the_first) {
    const temporary_folder folder;
    cl_output_file file;
    file.open(folder / "a", output_file_mode::report_failure);
    file.write_string("first");
    file.open(folder / "b", output_file_mode::report_failure);
    file.write_string("second");
    EXPECT_EQ(file.path(), folder / "b");
    file.close();
    EXPECT_EQ(folder.read("a"), "first");
    EXPECT_EQ(folder.read("b"), "second");
}

} // namespace
