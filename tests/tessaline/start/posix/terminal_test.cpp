// What a run by hand leaves on the terminal.

#include "tests/support/posix/terminal_run.h"

#include "tessaline/state/application.h"
#include "tests/support/run_program.h"
#include "tests/support/shown_to_user.h"
#include "tests/tessaline/run_fixture.h"

#include <filesystem>

namespace {

using sketchup::model_builder;
using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class OnATerminal : public run_fixture {
protected:
    // 150 faces move the display once, at the hundredth: 100 of 150 are 66%.
    void save_faces() {
        model_builder m;
        for (int i = 0; i < 150; ++i) {
            const double x = 20 * i;
            m.root().face({{x, 0, 0}, {x + 10, 0, 0}, {x + 10, 10, 0}, {x, 10, 0}});
        }
        save(m);
    }

    std::vector<std::string> rows_left_by_run(const std::string& variables = {}) const {
        return rows_left_on_terminal(variables + ' ' + shell_quoted(TESSALINE_PROGRAM) + ' ' +
                                     shell_quoted(batch / "geometry.qlm"));
    }
};

TEST_F(OnATerminal, a_run_that_ends_well_leaves_nothing) {
    save_faces();
    EXPECT_THAT(rows_left_by_run(), IsEmpty());
    EXPECT_THAT(batch.read("batch_file.txt"), testing::EndsWith("END;\r\n"));
}

TEST_F(OnATerminal, a_message_begins_on_a_line_of_its_own_and_the_bar_is_gone) {
    save_faces();
    std::filesystem::create_directory_symlink(batch.name(), batch / "ZynBatch_Lights"); // is refused to be emptied
    const std::vector<std::string> rows = rows_left_by_run();
    ASSERT_THAT(rows, Not(IsEmpty()));
    EXPECT_THAT(rows[0], StartsWith("Tessaline - Error: Cannot remove folder: '"));
    EXPECT_THAT(rows, Each(Not(HasSubstr("...."))));
}

TEST_F(OnATerminal, a_line_of_the_trace_takes_the_place_of_the_bar_too) {
    save_faces();
    std::filesystem::create_directory_symlink(batch.name(), batch / "ZynBatch_Lights");
    const std::vector<std::string> rows = rows_left_by_run("TESSALINE_TRACE=-");
    EXPECT_THAT(rows, Contains(AllOf(StartsWith("qlw_std("), HasSubstr("*** ERROR: Cannot remove folder: '"))));
    EXPECT_THAT(rows, Each(Not(HasSubstr("...."))));
}

TEST_F(OnATerminal, what_stands_on_the_line_already_is_not_erased_by_a_message) {
    const std::string missing = batch / "missing.qlm";
    const std::vector<std::string> rows =
        rows_left_on_terminal("printf 'first: '; " + shell_quoted(TESSALINE_PROGRAM) + ' ' + shell_quoted(missing));
    ASSERT_THAT(rows, Not(IsEmpty()));
    EXPECT_THAT(rows[0], StartsWith("first: Tessaline - "));
}

class MissingModel : public run_fixture {
protected:
    // Answered when it stands there whole: what is typed before would be shown in the midst of it.
    static terminal_exchange answer(const std::string& keys) { return {"]: ", keys}; }
};

TEST_F(MissingModel, a_missing_model_in_quotes_is_told_of_where_nobody_can_be_asked) {
    const std::string missing = batch / "a b/missing.qlm"; // holds a blank, so that the line has it in quotation marks
    const program_result run = run_program({TESSALINE_PROGRAM, {missing}});
    EXPECT_THAT(run.errors, testing::HasSubstr("Could not find input filename " + missing + ".\n"));
    EXPECT_EQ(run.status, 0);
    EXPECT_FALSE(batch.has("a b"));
}

TEST_F(MissingModel, a_missing_model_in_quotes_is_told_of_behind_the_question_for_the_stream) {
    const std::string missing = batch / "a b/missing.qlm";
    const std::string command = shell_quoted(TESSALINE_PROGRAM) + ' ' + shell_quoted(missing);
    const std::vector<std::string> rows = rows_left_on_terminal(command, {answer(batch / "out.xml\n")});
    const std::string shown = testing::PrintToString(rows);
    const std::size_t question = shown.find("Tessaline, Debug Mode - to create SKP XML file [");
    const std::size_t message = shown.find("Could not find input filename ");
    EXPECT_LT(question, message) << shown;
    EXPECT_NE(message, std::string::npos) << shown;
}

TEST_F(MissingModel, a_dismissed_question_ends_the_run_without_a_word) {
    const std::string command = shell_quoted(TESSALINE_PROGRAM) + ' ' + shell_quoted(batch / "a b/missing.qlm");
    const std::string end_of_input = "\x04";
    const std::string shown = testing::PrintToString(rows_left_on_terminal(command, {answer(end_of_input)}));
    EXPECT_THAT(shown, testing::HasSubstr("Tessaline, Debug Mode - to create SKP XML file ["));
    EXPECT_THAT(shown, testing::Not(testing::HasSubstr("Could not find")));
}

TEST_F(MissingModel, a_missing_model_in_quotes_leaves_the_stream_beside_it) {
    batch.write("batch_file.txt", "old");
    shown_to_user([&] { theApp.InitInstance("tessaline \"" + batch / "geometry.qlm" + "\""); });
    EXPECT_EQ(batch.read("batch_file.txt"), "old");
}

TEST_F(MissingModel, arguments_without_an_input_path_print_the_usage_and_delete_nothing) {
    model_builder m;
    const std::string model = save(m, "house.skp");
    EXPECT_THAT(shown_to_user([&] { theApp.InitInstance("tessaline " + model); }),
                testing::HasSubstr("usage: tessaline INPUT OUTPUT"));
    EXPECT_TRUE(batch.has("house.skp"));
    EXPECT_THAT(shown_to_user([] { theApp.InitInstance("tessaline -is_animation"); }),
                testing::HasSubstr("usage: tessaline INPUT OUTPUT"));
}

TEST_F(MissingModel, without_arguments_and_without_a_terminal_the_usage_is_printed) {
    if (platform::can_ask_for_file())
        GTEST_SKIP() << "somebody is there to be asked";
    EXPECT_THAT(shown_to_user([] { theApp.InitInstance("\"tessaline\""); }),
                testing::HasSubstr("usage: tessaline INPUT OUTPUT"));
}

} // namespace
