// A reading on a disk that is full, for which a limit on the size of files stands.

#include "tests/tessaline/run_fixture.h"

#include "platform/platform.h"
#include "tests/support/answering_desktop.h"

#include <csignal>

#include <sys/resource.h>

namespace {

using sketchup::model_builder;

// No file of the process grows beyond that: a full disk, but for what lies on it already.
class largest_file {
public:
    explicit largest_file(rlim_t bytes) : old_handler(std::signal(SIGXFSZ, SIG_IGN)) {
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &old_limit), 0);
        rlimit limit = old_limit;
        limit.rlim_cur = bytes;
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    largest_file(const largest_file&) = delete;
    largest_file& operator=(const largest_file&) = delete;
    ~largest_file() {
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &old_limit), 0);
        std::signal(SIGXFSZ, old_handler);
    }

private:
    void (*old_handler)(int);
    rlimit old_limit{};
};

class FullDiskReading : public run_fixture {};

// The disk has room for what the parent wrote and not for the settings that the program adds to it.
TEST_F(FullDiskReading, options_that_the_disk_has_no_room_for_are_reported_and_stay_as_they_were) {
    const std::string parents = "svl_note;" + std::string(260000, 'x') + "\n";
    batch.write("option_globals.txt", parents);
    model_builder m;
    const std::string model = save(m);
    const trace_capture trace;
    answering_desktop desktop;
    {
        const largest_file limit(parents.size() + 10);
        EXPECT_EQ(reader.ReadSkpFile(model, batch / "batch_file.txt"), 1);
    }
    EXPECT_TRUE(batch.read("option_globals.txt") == parents);
    EXPECT_THAT(trace.text_without_line_numbers(),
                testing::HasSubstr("\nmodel_reading(#): rewrite_option_globals():: REPORT: Options not rewritten: " +
                                   batch / "option_globals.txt" + "\n"));
    EXPECT_TRUE(desktop.shown.empty());
}

} // namespace
