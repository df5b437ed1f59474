#include "qlw/qlw_text_files.h"
#include "tests/support/answering_desktop.h"
#include "tests/support/trace_capture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace {

std::string shown(const std::function<void()>& action) {
    testing::internal::CaptureStderr();
    action();
    const std::string text = testing::internal::GetCapturedStderr();
    return text.substr(0, text.find("\n\n    (VER: "));
}

std::string not_created(const std::string& name) {
    return "Cannot create file: '" + name +
           "'. \n\nMake sure that the file path exists and that the file is not in use by another program.";
}

// A user who may not read what a mask of all bits leaves; root reads everything.
class as_ordinary_user {
public:
    as_ordinary_user() : old_mask(umask(0777)), old_user(geteuid()) {
        if (old_user == 0 && seteuid(65534) != 0)
            ADD_FAILURE() << "cannot become another user";
    }
    as_ordinary_user(const as_ordinary_user&) = delete;
    as_ordinary_user& operator=(const as_ordinary_user&) = delete;
    ~as_ordinary_user() {
        umask(old_mask);
        EXPECT_EQ(seteuid(old_user), 0);
    }

private:
    mode_t old_mask;
    uid_t old_user;
};

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

TEST(OutputFile, the_write_test_finds_a_file_that_cannot_be_opened_again) {
    const temporary_folder folder;
    const trace_capture capture;
    answering_desktop desktop;
    desktop.answers = {answering_desktop::ok_and_silence()};
    chmod(folder.name().c_str(), 0777);
    cl_output_file file;
    {
        const as_ordinary_user user;
        EXPECT_FALSE(file.open(folder / "a", output_file_mode::write_test));
    }
    EXPECT_FALSE(file.is_open());
    ASSERT_EQ(desktop.shown.size(), 1u);
    EXPECT_THAT(desktop.shown[0].text,
                testing::StartsWith("Cannot create file: '" + (folder / "a") +
                                    "'. Unable to write to, and then re-open file\r\n\r\nMake sure that the file path "
                                    "exists and that the file is not in use by another program.\r\n"));
    // The user may not write to the trace either; silencing the place tells which it is.
    ASSERT_EQ(trace_state().suppressed_sources.size(), 1u);
    EXPECT_EQ(trace_state().suppressed_sources[0].source_file, "output_file");
    EXPECT_EQ(trace_state().suppressed_sources[0].function, "cl_output_file::open");
}

// The file of the process's own name keeps 15 bytes; what is written for the test is longer.
TEST(OutputFile, the_write_test_finds_a_file_that_forgets_what_is_written) {
    const std::string name = "/proc/self/comm";
    const std::string before = text_of_file(name);
    const trace_capture capture;
    cl_output_file file;
    EXPECT_EQ(shown([&] { EXPECT_FALSE(file.open(name, output_file_mode::write_test)); }),
              "Tessaline - Error: Cannot create file: '/proc/self/comm'. Unable to write to, and then re-read file\n\n"
              "Make sure that the file path exists and that the file is not in use by another program.");
    EXPECT_FALSE(file.is_open());
    EXPECT_EQ(capture.text_without_line_numbers(),
              "output_file(#): cl_output_file::open():: *** ERROR: Cannot create file: '/proc/self/comm'. Unable to "
              "write to, and then re-read "
              "file\n\nMake sure that the file path exists and that the file is not in use by another program.\n");
    std::ofstream(name) << before;
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

TEST(OutputFile, raw_data_that_a_full_disk_refuses_is_traced_and_counts_as_written) {
    const trace_capture capture;
    const std::string data(100000, 'x');
    cl_output_file file;
    ASSERT_TRUE(file.open_binary("/dev/full", open_failure::shown));
    EXPECT_EQ(shown([&] { EXPECT_TRUE(file.write_data(data.data(), data.size())); }), "");
    EXPECT_EQ(capture.text_without_line_numbers(),
              "output_file(#): cl_output_file::write_data():: *** ERROR: Cannot write to file: /dev/full.\n");
}

} // namespace
