// Files that take no text: rights withdrawn, a full disk, a file that forgets.

#include "qlw/qlw_text_files.h"
#include "tests/support/answering_desktop.h"
#include "tests/support/shown_to_user.h"
#include "tests/support/trace_capture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace {

std::string shown(const std::function<void()>& action) {
    const std::string text = shown_to_user(action);
    return text.substr(0, text.find("\n\n    (VER: "));
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

TEST(UnwillingFile, the_write_test_finds_a_file_that_cannot_be_opened_again) {
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
TEST(UnwillingFile, the_write_test_finds_a_file_that_forgets_what_is_written) {
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

TEST(UnwillingFile, raw_data_that_a_full_disk_refuses_is_traced_and_counts_as_written) {
    const trace_capture capture;
    const std::string data(100000, 'x');
    cl_output_file file;
    ASSERT_TRUE(file.open_binary("/dev/full", open_failure::shown));
    EXPECT_EQ(shown([&] { EXPECT_TRUE(file.write_data(data.data(), data.size())); }), "");
    EXPECT_EQ(capture.text_without_line_numbers(),
              "output_file(#): cl_output_file::write_data():: *** ERROR: Cannot write to file: /dev/full.\n");
}

TEST(UnwillingFile, a_full_disk_shows_at_the_close) {
    cl_output_file file;
    ASSERT_TRUE(file.open("/dev/full", output_file_mode::report_failure));
    EXPECT_TRUE(file.write_string("gathered"));
    EXPECT_FALSE(file.close());
    EXPECT_FALSE(file.is_open());
}

} // namespace
