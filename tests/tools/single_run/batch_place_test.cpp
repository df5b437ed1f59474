// What a killed run can leave, at each of its steps, and what the next one makes of it.

#include "tools/single_run/batch_place.h"

#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

constexpr const char* finished_by_us = R"({"program":"tessaline-run"})";

class BatchPlace : public testing::Test {
protected:
    // A finished batch whose file "which" tells it from others.
    void make_finished(const std::string& folder, const std::string& which) const {
        here.write(folder + "/which", which);
        here.write(folder + "/tessaline-run.json", finished_by_us);
    }
    void make_unfinished(const std::string& folder) const {
        here.write(folder + "/Plants/half", "of something");
        here.write(folder + "/tessaline-run.json.part", "");
    }
    void recover() const {
        batch_place place(here / "batch");
        EXPECT_EQ(place.recover(run_clock(std::nullopt)), "");
    }
    bool has_put_aside() const { return here.has("batch.tessaline-run.before"); }
    std::string which() const { return here.read("batch/which"); }

    temporary_folder here;
};

TEST_F(BatchPlace, killed_behind_putting_aside_the_old_batch_comes_back) {
    make_finished("batch.tessaline-run.before", "old");
    recover();
    EXPECT_EQ(which(), "old");
    EXPECT_FALSE(has_put_aside());
}

TEST_F(BatchPlace, killed_behind_making_the_folder_the_old_batch_comes_back) {
    make_finished("batch.tessaline-run.before", "old");
    here.make_folder("batch");
    recover();
    EXPECT_EQ(which(), "old");
}

TEST_F(BatchPlace, killed_in_its_work_the_old_batch_comes_back) {
    make_finished("batch.tessaline-run.before", "old");
    make_unfinished("batch");
    recover();
    EXPECT_EQ(which(), "old");
    EXPECT_FALSE(here.has("batch/Plants"));
    EXPECT_FALSE(has_put_aside());
}

TEST_F(BatchPlace, killed_behind_its_last_step_but_one_the_new_batch_stays) {
    make_finished("batch.tessaline-run.before", "old");
    make_finished("batch", "new");
    recover();
    EXPECT_EQ(which(), "new");
    EXPECT_FALSE(has_put_aside());
}

TEST_F(BatchPlace, killed_while_it_removes_the_old_batch_the_rest_of_that_goes) {
    make_unfinished("batch.tessaline-run.before");
    make_finished("batch", "new");
    recover();
    EXPECT_EQ(which(), "new");
    EXPECT_FALSE(has_put_aside());
}

TEST_F(BatchPlace, killed_in_its_work_on_a_new_batch_the_claim_clears_what_it_left) {
    make_unfinished("batch");
    batch_place place(here / "batch");
    const run_clock clock(std::nullopt);
    EXPECT_EQ(place.recover(clock), "");
    EXPECT_EQ(place.claim(clock), "");
    EXPECT_FALSE(here.has("batch/Plants"));
    EXPECT_TRUE(here.has("batch/tessaline-run.json.part"));
    EXPECT_EQ(place.abandon(), "");
    EXPECT_FALSE(here.has("batch"));
}

TEST_F(BatchPlace, what_is_beside_the_batch_and_none_of_ours_is_never_touched) {
    here.write("batch.tessaline-run.before/letter.txt", "dear reader");
    recover();
    EXPECT_EQ(here.read("batch.tessaline-run.before/letter.txt"), "dear reader");
    make_finished("batch", "old");
    batch_place place(here / "batch");
    EXPECT_EQ(place.claim(run_clock(std::nullopt)),
              "cannot be put aside: " + here / "batch.tessaline-run.before" + " exists");
    EXPECT_EQ(which(), "old");
}

TEST_F(BatchPlace, a_claim_that_is_abandoned_puts_the_old_batch_back) {
    make_finished("batch", "old");
    batch_place place(here / "batch");
    ASSERT_EQ(place.claim(run_clock(std::nullopt)), "");
    here.write("batch/Plants/half", "of something");
    EXPECT_EQ(place.abandon(), "");
    EXPECT_EQ(which(), "old");
    EXPECT_FALSE(here.has("batch/Plants"));
    EXPECT_FALSE(has_put_aside());
}

TEST_F(BatchPlace, a_claim_that_is_finished_has_the_report_and_nothing_put_aside) {
    make_finished("batch", "old");
    batch_place place(here / "batch");
    ASSERT_EQ(place.claim(run_clock(std::nullopt)), "");
    EXPECT_EQ(place.finish("the report"), "");
    EXPECT_EQ(here.read("batch/tessaline-run.json"), "the report");
    EXPECT_FALSE(here.has("batch/tessaline-run.json.part"));
    EXPECT_FALSE(here.has("batch/which"));
    EXPECT_FALSE(has_put_aside());
}

TEST_F(BatchPlace, a_mark_that_is_none_of_ours_is_refused_and_nothing_is_removed) {
    here.write("batch/letter.txt", "dear reader");
    here.write("batch/tessaline-run.json.part", "half of a download");
    EXPECT_EQ(batch_place(here / "batch").claim(run_clock(std::nullopt)),
              "holds a tessaline-run.json.part that is none of this program's");
    EXPECT_EQ(here.read("batch/letter.txt"), "dear reader");
    EXPECT_EQ(here.read("batch/tessaline-run.json.part"), "half of a download");
}

TEST_F(BatchPlace, the_mark_of_a_run_at_work_tells_whose_it_is) {
    batch_place place(here / "batch");
    ASSERT_EQ(place.claim(run_clock(std::nullopt)), "");
    EXPECT_EQ(here.read("batch/tessaline-run.json.part"), "{\n \"format\": 1,\n \"program\": \"tessaline-run\"");
    EXPECT_EQ(place.abandon(), "");
}

TEST_F(BatchPlace, a_mark_beside_a_report_costs_nothing_of_the_finished_batch) {
    make_finished("batch", "old");
    here.write("batch/tessaline-run.json.part", "");
    batch_place place(here / "batch");
    ASSERT_EQ(place.claim(run_clock(std::nullopt)), "");
    EXPECT_TRUE(has_put_aside());
    EXPECT_EQ(place.abandon(), "");
    EXPECT_EQ(which(), "old");
    EXPECT_FALSE(has_put_aside());
}

TEST_F(BatchPlace, what_stands_in_the_place_of_what_was_put_aside_and_has_a_foreign_mark_is_never_touched) {
    here.write("batch.tessaline-run.before/tessaline-run.json.part", "half of a download");
    recover();
    make_finished("batch", "old");
    EXPECT_EQ(batch_place(here / "batch").claim(run_clock(std::nullopt)),
              "cannot be put aside: " + here / "batch.tessaline-run.before" + " exists");
    EXPECT_EQ(here.read("batch.tessaline-run.before/tessaline-run.json.part"), "half of a download");
}

TEST_F(BatchPlace, what_has_a_foreign_mark_never_makes_room_for_the_old_batch) {
    make_finished("batch.tessaline-run.before", "old");
    here.write("batch/letter.txt", "dear reader");
    here.write("batch/tessaline-run.json.part", "half of a download");
    recover();
    EXPECT_EQ(here.read("batch/letter.txt"), "dear reader");
    EXPECT_EQ(here.read("batch/tessaline-run.json.part"), "half of a download");
    EXPECT_TRUE(has_put_aside());
}

TEST_F(BatchPlace, a_folder_that_holds_a_mark_has_no_finished_report) {
    make_finished("batch", "old");
    EXPECT_EQ(batch_place(here / "batch").finished_report(), finished_by_us);
    here.write("batch/tessaline-run.json.part", "");
    EXPECT_EQ(batch_place(here / "batch").finished_report(), std::nullopt);
}

} // namespace
