// A run whose user wants the report of every error.

#include "tessaline/start/support_answers.h"

#include "platform/platform.h"
#include "qlw/qlw_std.h"
#include "qlw/qlw_trace.h"
#include "tests/support/run_program.h"
#include "tests/support/shown_to_user.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/trace_capture.h"
#include "text/letter_case.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

program_result run_tessaline(const std::vector<std::string>& arguments, const temporary_folder& folder) {
    return run_program(
        {TESSALINE_PROGRAM,
         arguments,
         {},
         {{"SOURCE_DATE_EPOCH", "951782400"}, {"XDG_CONFIG_HOME", folder / "config"}, {"APPDATA", folder / "config"}}});
}

TEST(SupportAnswers, show_the_dialog_behind_more_and_print_its_report) {
    const trace_capture capture;
    const cl_support_answers answers;
    std::string report;
    const std::string shown = shown_to_user([&] {
        testing::internal::CaptureStdout();
        cl_trace("source", 12, "function", 2, 0).report("No such\nfolder");
        report = testing::internal::GetCapturedStdout();
    });
    EXPECT_EQ(shown, "Tessaline - Error: No such\nfolder\n\n    (VER: SC26w - " +
                         in_capitals(platform::computer_name()) + ")\n         (Error occurred in source line: 12)\n");
    EXPECT_THAT(report, StartsWith("No such\nfolder\n\n     (Error occurred in source line: 12)\n\n     #Date: '"));
    EXPECT_THAT(report, EndsWith("     #SU Version: ''\n"));
}

TEST(SupportAnswers, end_with_their_life) {
    const trace_capture capture;
    { const cl_support_answers answers; }
    const std::string shown = shown_to_user([] { cl_trace("source", 12, "function", 2, 0).report("text"); });
    EXPECT_THAT(shown, HasSubstr("Click More to send message to Support."));
}

TEST(SupportReportProgram, prints_the_report_and_ends_with_status_0) {
    const temporary_folder folder;
    const program_result run = run_tessaline({"--support-report"}, folder);
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.output, StartsWith("     #Date: 'Tuesday, February 29, 2000'\n"
                                       "     #Computer: '" +
                                       in_capitals(platform::computer_name()) +
                                       "'\n"
                                       "     #Product: 'Tessaline'\n"
                                       "     #Version: 'SC26w'\n"
                                       "     #Build: 'SC26w Tuesday, March 26, 2019'\n"
                                       "     #Base: 'Tessaline'\n"));
    EXPECT_THAT(run.output, EndsWith("     #TL: 'zql'\n"
                                     "     #TC: 'zql'\n"
                                     "     #VC: '10'\n"
                                     "     #Windows: '" +
                                     get_windows_version_text() +
                                     "'\n"
                                     "     #SU Version: ''\n"));
    EXPECT_EQ(run.errors, "");
}

TEST(SupportReportProgram, in_front_of_a_run_prints_the_place_of_its_errors_and_their_report) {
    const temporary_folder folder;
    const std::string missing = folder / "missing.skp";
    const program_result run = run_tessaline({"--support-report", missing, folder / "out.txt"}, folder);
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.errors, StartsWith("Tessaline - Error: Could not find input filename " + missing +
                                       ".\n\n\n    (VER: SC26w - "));
    EXPECT_THAT(run.errors, HasSubstr("\n         (Error occurred in Tessaline line: "));
    EXPECT_THAT(run.output, StartsWith("Could not find input filename " + missing +
                                       ".\n\n\n     (Error occurred in Tessaline line: "));
    EXPECT_THAT(run.output, HasSubstr("     #Date: 'Tuesday, February 29, 2000'\n"));
}

} // namespace
