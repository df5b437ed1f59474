#include "tools/single_run/report_file.h"

#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ReportFile : public testing::Test {
protected:
    std::vector<std::string> names() const {
        std::vector<std::string> names;
        const auto entries = platform::list_folder(here.name());
        for (const auto& entry : entries.value())
            names.push_back(entry.name);
        return names;
    }
    // Of the file that stands beside a report until that is written.
    std::string name_beside(const std::string& report) const {
        report_file opened;
        EXPECT_EQ(opened.open(report), "");
        return names().at(0);
    }

    temporary_folder here;
};

TEST_F(ReportFile, one_that_is_never_written_leaves_nothing) {
    {
        report_file unwritten;
        EXPECT_EQ(unwritten.open(here / "report.json"), "");
        EXPECT_EQ(names().size(), 1u);
    }
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(ReportFile, what_a_killed_run_has_left_beside_it_is_taken_up) {
    const std::string beside = name_beside(here / "report.json");
    here.write(beside, "half a report of a run that was killed");
    report_file written;
    EXPECT_EQ(written.open(here / "report.json"), "");
    EXPECT_TRUE(written.write("whole"));
    EXPECT_THAT(names(), ElementsAre("report.json"));
    EXPECT_EQ(here.read("report.json"), "whole");
}

TEST_F(ReportFile, a_second_run_is_told_that_the_first_writes_it) {
    report_file first;
    report_file second;
    EXPECT_EQ(first.open(here / "report.json"), "");
    EXPECT_EQ(second.open(here / "report.json"), "another run writes it");
    EXPECT_TRUE(first.write("of the first"));
    EXPECT_EQ(here.read("report.json"), "of the first");
}

TEST_F(ReportFile, a_folder_takes_none) {
    here.make_folder("report.json");
    report_file none;
    EXPECT_NE(none.open(here / "report.json"), "");
    EXPECT_THAT(names(), ElementsAre("report.json"));
}

TEST_F(ReportFile, one_that_was_never_asked_for_is_written_nowhere) {
    report_file none;
    EXPECT_TRUE(none.write("nowhere"));
    EXPECT_THAT(names(), IsEmpty());
}

} // namespace
