// The checker where what it has to say finds no place, and where a picture is larger than memory.

#include "tests/tools/posix/into_full_disk.h"
#include "tests/tools/small_batch_on_disk.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::EndsWith;
using testing::HasSubstr;

class FullOutput : public testing::Test {
protected:
    void SetUp() override { put_small_batch(disk, "room"); }

    void expect_refused(const std::vector<std::string>& arguments) const {
        const program_result seen = run_into_full_disk("batch-check", arguments);
        EXPECT_EQ(seen.status, 2) << seen.end;
        EXPECT_THAT(seen.errors, EndsWith("batch-check: standard output takes nothing\n"));
    }

    temporary_folder disk;
};

TEST_F(FullOutput, is_status_2_for_the_words_of_a_sound_batch) {
    expect_refused({disk / "room"});
}

TEST_F(FullOutput, is_status_2_and_the_last_word_where_something_is_found) {
    std::filesystem::remove(disk / "room/ZynBatch_Lights/light_1.txt");
    expect_refused({disk / "room"});
}

TEST_F(FullOutput, is_status_2_for_the_document) {
    expect_refused({"--json", disk / "room"});
}

TEST_F(FullOutput, is_status_2_for_the_list_of_codes) {
    expect_refused({"--list-codes"});
}

TEST_F(FullOutput, keeps_no_document_from_its_file) {
    expect_refused({"--json=" + disk / "report.json", disk / "room"});
    EXPECT_THAT(disk.read("report.json"), HasSubstr("\"status\": \"sound\""));
}

TEST(NamesThatAreGiven, make_no_line_of_their_own_on_standard_error) {
    const temporary_folder disk;
    const std::string checker = std::string(PROGRAMS) + "/batch-check";
    const std::string folder = run_program({checker, {disk / "no\nbatch"}}).errors;
    EXPECT_THAT(folder, EndsWith("batch: the folder cannot be read\n"));
    EXPECT_EQ(std::count(folder.begin(), folder.end(), '\n'), 1);
    put_small_batch(disk, "room");
    const std::string file = run_program({checker, {"--json=" + disk / "none/a\nb", disk / "room"}}).errors;
    EXPECT_THAT(file, HasSubstr("batch-check: cannot write "));
    EXPECT_EQ(std::count(file.begin(), file.end(), '\n'), 1);
}

// A file without blocks on the disk, so that it costs nothing but what the checker takes for it.
TEST(LargePicture, of_3_GiB_is_noted_and_takes_no_memory) {
    const temporary_folder disk;
    put_small_batch(disk, "room");
    std::filesystem::resize_file(disk / "room/ZynBatch_Images/Tree_88.png", std::uintmax_t{3} << 30U);
    const program_result seen =
        run_program({std::string(PROGRAMS) + "/batch-check", {"--json", "--strict", disk / "room"}});
    EXPECT_EQ(seen.status, 0) << seen.output << seen.errors;
    EXPECT_THAT(seen.output, HasSubstr("\"picture-large\""));
    EXPECT_LT(seen.most_bytes, std::uint64_t{1} << 30U); // what the test itself takes may count
}

} // namespace
