// Disks that are full, and folders that an ordinary user may not write.

#include "tests/tools/single_run/posix/started_program.h"
#include "tests/tools/single_run/run_fixture.h"

#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace sketchup;
using testing::HasSubstr;
using testing::StartsWith;

class RefusingDisk : public RunFixture {
protected:
    // The run, with its batch folder on a disk of so many KiB of its own: the status, and on further lines the names
    // that are left on that disk. Nothing if no such disk can be had.
    std::optional<std::string> outcome_on_disk_of(int kibibytes) const {
        const program_start start = start_with({});
        program_start on_disk = start;
        const std::string command = "mount -t tmpfs -o size=\"$1\"k tmpfs \"$2\" || exit 99\n"
                                    "\"$3\" \"$4\" \"$2/batch\" >/dev/null\n"
                                    "echo $?; ls \"$2\"; ls \"$2/batch\" | grep run";
        on_disk.program = "/usr/bin/unshare";
        on_disk.arguments = {"-m",
                             "sh",
                             "-c",
                             command,
                             "sh",
                             std::to_string(kibibytes),
                             here.make_folder("disk"),
                             start.program,
                             here / "model.skp"};
        const program_result result = run_program(on_disk);
        return result.output.empty() ? std::nullopt : std::optional(result.output);
    }
};

TEST_F(RefusingDisk, whatever_a_full_disk_refuses_the_run_says_so_and_leaves_nothing) {
    put_model(800); // a model of 200 KiB, a stream of 300
    int done = 0;
    int refused = 0;
    for (int size = 8; size <= 1024; size *= 2)
        for (const int kibibytes : {size, size + size / 4, size + size / 2}) {
            const auto outcome = outcome_on_disk_of(kibibytes);
            if (!outcome && geteuid() == 0)
                FAIL() << "the superuser cannot mount a disk here";
            if (!outcome)
                GTEST_SKIP() << "only the superuser can mount a disk";
            const bool is_done = outcome->starts_with("0\n");
            EXPECT_EQ(*outcome, is_done ? "0\nbatch\ntessaline-run.json\n" : "4\n") << kibibytes << " KiB";
            (is_done ? done : refused) += 1;
        }
    EXPECT_GT(done, 0);
    EXPECT_GT(refused, 10);
}

// The system would end the program for a file that grows beyond the limit; the run and its converter are told instead.
TEST_F(RefusingDisk, a_limit_on_the_size_of_files_counts_as_a_full_disk) {
    put_model(800);
    program_start start = start_with({});
    start.arguments.insert(start.arguments.begin(), {"-c", "ulimit -f 300; exec \"$@\"", "sh", start.program});
    start.program = "/bin/sh";
    const program_result outcome = run_program(start);
    EXPECT_EQ(outcome.status, 4) << outcome.errors;
    EXPECT_THAT(last_line(outcome.errors), HasSubstr("File too large"));
    EXPECT_FALSE(here.has("batch"));
}

TEST_F(RefusingDisk, a_folder_that_an_ordinary_user_may_not_write_has_status_4_and_nothing_in_it) {
    const std::string locked = here.make_folder("locked");
    chmod(here.name().c_str(), 0755);
    chmod((here / "home").c_str(), 0777);
    chmod(locked.c_str(), 0555);
    program_start start = start_of({here / "model.skp", locked + "/batch"});
    constexpr uid_t nobody = 65534;
    // What it writes to standard error lies where it may not write, and is open before it loses its rights.
    started_program run(start, geteuid() == 0 ? nobody : 0);
    EXPECT_EQ(run.wait(), 4);
    EXPECT_EQ(last_line(run.errors()),
              "tessaline-run: " + locked + "/batch cannot be made: the folder above it takes nothing.");
    EXPECT_FALSE(here.has("locked/batch"));
    chmod(locked.c_str(), 0755);
}

TEST_F(RefusingDisk, a_finished_batch_that_an_ordinary_user_may_not_replace_stays) {
    ASSERT_EQ(run().status, 0);
    const auto before = files_in("batch");
    chmod(here.name().c_str(), 0755);
    program_start start = start_of({"--force", here / "model.skp", here / "batch"});
    constexpr uid_t nobody = 65534;
    if (geteuid() != 0)
        GTEST_SKIP() << "only the superuser can start a program as another user";
    started_program run(start, nobody);
    EXPECT_EQ(run.wait(), 4);
    EXPECT_EQ(files_in("batch"), before);
}

TEST_F(RefusingDisk, a_report_that_the_disk_refuses_has_status_4_and_the_batch_stays) {
    const program_result outcome = run_with({"--json", "/dev/full"});
    EXPECT_EQ(outcome.status, 4);
    EXPECT_THAT(last_line(outcome.errors), testing::EndsWith(" The report could not be written to /dev/full."));
    EXPECT_TRUE(here.has("batch/tessaline-run.json"));
}

TEST_F(RefusingDisk, a_last_line_that_standard_output_refuses_has_status_4_and_the_batch_stays) {
    program_start start = start_with({});
    start.arguments.insert(start.arguments.begin(), {"-c", "exec \"$@\" >/dev/full", "sh", start.program});
    start.program = "/bin/sh";
    const program_result outcome = run_program(start);
    EXPECT_EQ(outcome.status, 4);
    EXPECT_THAT(last_line(outcome.errors), testing::EndsWith(" Standard output does not take this sentence."));
    EXPECT_TRUE(here.has("batch/tessaline-run.json"));
}

TEST_F(RefusingDisk, a_run_whose_standard_streams_are_closed_writes_its_words_into_no_file) {
    program_start start = start_with({"--progress", "openjd", "--json", here / "report.json"});
    start.arguments.insert(start.arguments.begin(), {"-c", "exec \"$@\" <&- >&- 2>&-", "sh", start.program});
    start.program = "/bin/sh";
    EXPECT_EQ(run_program(start).status, 0);
    EXPECT_EQ(report()["counts"]["triangles"], 2);
    EXPECT_EQ(nlohmann::json::parse(here.read("report.json"))["status"], 0);
}

TEST_F(RefusingDisk, a_name_with_line_feeds_makes_no_line_of_its_own) {
    std::filesystem::rename(here / "model.skp", here / "a\nopenjd_fail: b.skp");
    const program_result done =
        run_program(start_of({"--progress", "openjd", here / "a\nopenjd_fail: b.skp", here / "batch"}));
    EXPECT_EQ(done.status, 0);
    EXPECT_THAT(done.output, testing::Not(HasSubstr("\nopenjd_fail")));
    EXPECT_THAT(last_line(done.output), StartsWith("a\\x0aopenjd_fail: b.skp is converted: "));
    const program_result refused = run_program(start_of({here / "none\nopenjd_fail: c.skp", here / "other"}));
    EXPECT_EQ(refused.status, 3);
    EXPECT_THAT(refused.errors, testing::Not(HasSubstr("\nopenjd_fail")));
}

// The memory of a process is a plain file, and nothing can be read at its begin.
TEST_F(RefusingDisk, a_model_that_the_disk_fails_to_give_has_status_3_with_the_words_of_the_system) {
    const program_result outcome = run_program(start_of({"/proc/self/mem", here / "batch"}));
    EXPECT_EQ(outcome.status, 3);
    EXPECT_EQ(last_line(outcome.errors), "tessaline-run: /proc/self/mem cannot be read: Input/output error.");
    EXPECT_FALSE(here.has("batch"));
}

TEST_F(RefusingDisk, a_link_in_place_of_the_folder_is_refused_whatever_it_leads_to) {
    const std::string elsewhere = here.make_folder("elsewhere");
    std::filesystem::create_directory_symlink(elsewhere, here / "batch");
    for (const char* name : {"batch", "batch/"}) {
        const program_result outcome = run_program(start_of({"--force", here / "model.skp", here / name}));
        EXPECT_EQ(outcome.status, 4);
        EXPECT_EQ(last_line(outcome.errors), "tessaline-run: " + here / "batch" + " is a link.");
    }
    EXPECT_TRUE(files_in("elsewhere").empty());
    std::filesystem::remove(elsewhere);
    EXPECT_EQ(run().status, 4); // it leads nowhere now
}

TEST_F(RefusingDisk, a_report_in_the_batch_folder_is_refused_under_whatever_name) {
    ASSERT_EQ(run().status, 0);
    std::filesystem::create_directory_symlink(here / "batch", here / "link");
    EXPECT_EQ(run_with({"--force", "--json", here / "link/report.json"}).status, 2);
    EXPECT_EQ(run_with({"--force", "--json", here / "home/../batch/report.json"}).status, 2);
    EXPECT_FALSE(here.has("batch/report.json"));
}

TEST_F(RefusingDisk, a_report_behind_a_link_never_replaces_the_model) {
    const std::string model = here.read("model.skp");
    std::filesystem::create_symlink(here / "model.skp", here / "report.json");
    EXPECT_EQ(run_with({"--json", here / "report.json"}).status, 2);
    EXPECT_EQ(here.read("model.skp"), model);
}

// The folder above a link's target is not the one above the link.
TEST_F(RefusingDisk, two_dots_behind_a_link_lead_to_the_folder_above_its_target) {
    here.make_folder("a/b");
    std::filesystem::create_directory_symlink(here / "a/b", here / "link");
    EXPECT_EQ(run_program(start_of({here / "model.skp", here / "link/../batch"})).status, 0);
    EXPECT_TRUE(here.has("a/batch/tessaline-run.json"));
}

TEST_F(RefusingDisk, two_dots_above_everything_lead_nowhere_else) {
    EXPECT_EQ(run_program(start_of({here / "model.skp", "/.." + here / "batch"})).status, 0);
    EXPECT_EQ(report()["folder"], here / "batch");
}

TEST_F(RefusingDisk, a_report_goes_to_a_pipe_and_a_link_to_a_report_stays) {
    here.write("report.json", "old");
    std::filesystem::create_symlink(here / "report.json", here / "link.json");
    EXPECT_EQ(run_with({"--json", here / "link.json"}).status, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(here / "link.json"));
    EXPECT_EQ(nlohmann::json::parse(here.read("report.json"))["status"], 0);
    program_start start = start_with({"--json", "/dev/stdout"});
    start.arguments.insert(start.arguments.begin(), {"-c", "\"$@\" | cat", "sh", start.program});
    start.program = "/bin/sh";
    const program_result piped = run_program(start);
    EXPECT_THAT(piped.output, HasSubstr("\"program\": \"tessaline-run\""));
}

TEST_F(RefusingDisk, a_link_in_place_of_the_mark_makes_no_unfinished_batch) {
    here.write("elsewhere.txt", "of somebody else");
    here.make_folder("batch");
    std::filesystem::create_symlink(here / "elsewhere.txt", here / "batch/tessaline-run.json.part");
    EXPECT_EQ(run().status, 4);
    EXPECT_EQ(here.read("elsewhere.txt"), "of somebody else");
}

TEST_F(RefusingDisk, links_in_an_unfinished_batch_go_and_what_they_lead_to_stays) {
    here.write("elsewhere/letter.txt", "dear reader");
    here.write("batch/tessaline-run.json.part", "");
    std::filesystem::create_directory_symlink(here / "elsewhere", here / "batch/Plants");
    EXPECT_EQ(run().status, 0);
    EXPECT_EQ(here.read("elsewhere/letter.txt"), "dear reader");
    EXPECT_FALSE(std::filesystem::is_symlink(here / "batch/Plants"));
}

} // namespace
