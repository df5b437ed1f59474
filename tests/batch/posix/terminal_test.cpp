// What the program asks somebody who starts it by hand on a terminal, and what becomes of the answers.

#include "tessaline/start/usage.h"
#include "tests/batch/batch_runner.h"
#include "tests/support/posix/terminal_run.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace sketchup;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const std::string model_question = "Tessaline, to create SKP XML file: ";

std::string stream_question(const std::string& offered) {
    return "Tessaline, Debug Mode - to create SKP XML file [" + offered + "]: ";
}

// What the terminal shows at last of a run that has both paths and never moves the display: the bar, cut to the width
// of the terminal, and that it goes.
const std::string progress = "\r\x1b[?7lTessaline Progress [....................]\x1b[K\x1b[?7h\r"
                             "\r\x1b[K";

void put_square(batch& b, const std::string& inside) {
    model_builder m;
    m.root().square(10);
    b.put_model(m, inside);
}

terminal_outcome answered(const batch& b, const std::vector<terminal_exchange>& talk) {
    terminal_outcome outcome = run_on_terminal(b.start_with({}, b.folder()), talk);
    expect_findings(b);
    return outcome;
}

std::string program_settings(const batch& b) {
    return b.surrounding().read("home/.config/Quillon Systems/Tessaline.ini");
}

std::string one_square() {
    return text_of_file(TESSALINE_SOURCE_DIR "/tests/batch/one_square/expected/batch_file.txt");
}

TEST(Terminal, both_paths_are_asked_for_and_an_empty_line_takes_the_stream_beside_the_model) {
    batch b("a blank");
    put_square(b, "house.skp");
    const terminal_outcome outcome =
        answered(b, {{model_question, b / "house.skp" + "\n"}, {stream_question(b / "house.xml"), "\n"}});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.shown, EndsWith(progress));
    EXPECT_EQ(outcome.shown.substr(0, outcome.shown.find('\r')), model_question + stream_question(b / "house.xml"));
    EXPECT_EQ(b.read("house.xml"), one_square()); // the ordinary stream, whatever the ending
    EXPECT_FALSE(b.has("batch_file.txt"));
}

TEST(Terminal, the_answers_may_be_relative_to_the_current_folder_and_have_blanks_around_them) {
    batch b;
    put_square(b, "house.skp");
    answered(b, {{model_question, "  house.skp \n"}, {stream_question(b / "house.xml"), " my stream.txt\t\n"}});
    EXPECT_EQ(b.read("my stream.txt"), one_square());
}

TEST(Terminal, the_model_is_remembered_in_the_programs_own_settings) {
    batch b;
    put_square(b, "house.skp");
    b.surrounding().write("home/.config/Quillon Systems/Tessaline.ini", "; mine\r\n[Common]\r\nlastskp=old\r\n");
    answered(b, {{model_question, b / "house.skp" + "\n"}, {stream_question(b / "house.xml"), "\x04"}});
    EXPECT_EQ(program_settings(b), "; mine\r\n[Common]\r\nlastskp=" + b / "house.skp" + "\r\n");
    EXPECT_FALSE(b.has("house.xml"));
}

TEST(Terminal, the_end_of_input_ends_the_program_without_a_message) {
    batch b;
    put_square(b, "house.skp");
    const terminal_outcome outcome = answered(b, {{model_question, "\x04"}});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.shown, model_question);
    EXPECT_EQ(b.files(), b.models());
    EXPECT_THAT(b.folders(), IsEmpty());
    EXPECT_EQ(program_settings(b), "");
}

TEST(Terminal, an_empty_line_names_no_model_and_ends_the_program) {
    batch b;
    const terminal_outcome outcome = answered(b, {{model_question, "\n"}});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.shown, model_question);
}

TEST(Terminal, a_stream_that_exists_is_replaced_only_with_leave) {
    batch b;
    put_square(b, "house.skp");
    b.put("house.xml", "old");
    const std::string leave = b / "house.xml" + " exists. Replace it? [y/N]: ";
    const std::vector<terminal_exchange> paths = {{model_question, b / "house.skp" + "\n"},
                                                  {stream_question(b / "house.xml"), "\n"}};
    std::vector<terminal_exchange> talk = paths;
    talk.push_back({leave, "n\n"});
    const terminal_outcome refused = answered(b, talk);
    EXPECT_EQ(refused.status, 0);
    EXPECT_THAT(refused.shown, EndsWith(leave));
    EXPECT_EQ(b.read("house.xml"), "old");
    talk.back().answer = "y\n";
    answered(b, talk);
    EXPECT_EQ(b.read("house.xml"), one_square());
}

TEST(Terminal, a_model_that_is_missing_is_told_of_and_nothing_is_written) {
    batch b;
    b.put("out.txt", "old");
    const terminal_outcome outcome = answered(b, {{model_question, b / "missing.skp" + "\n"},
                                                  {stream_question(b / "missing.xml"), b / "out.txt" + "\n"},
                                                  {"Replace it? [y/N]: ", "y\n"}});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.shown, HasSubstr("Tessaline - Tessaline conversion Error: Could not find input filename " +
                                         b / "missing.skp" + ".\n\n\n    (VER: SC26w - "));
    EXPECT_THAT(outcome.shown, Not(HasSubstr("Progress")));
    EXPECT_EQ(b.files(), (files_by_name{{"out.txt", "old"}}));
}

TEST(Terminal, arguments_without_a_model_are_answered_with_the_usage_and_no_question) {
    batch b;
    const terminal_outcome outcome = run_on_terminal(b.start_with({"-is_animation"}, b.folder()), {});
    expect_findings(b);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.shown, testing::StartsWith("usage: tessaline INPUT OUTPUT"));
    EXPECT_THAT(outcome.shown, Not(HasSubstr(model_question)));
}

TEST(Terminal, a_run_with_its_paths_asks_nothing) {
    batch b;
    put_square(b, "geometry.qlm");
    const terminal_outcome outcome = run_on_terminal(b.start_with({b / "geometry.qlm"}, b.folder()), {});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.shown, testing::StartsWith("\r"));
    EXPECT_THAT(outcome.shown, EndsWith(progress));
    expect_batch(b, "one_square");
}

TEST(NoTerminal, without_arguments_the_usage_is_told_and_nothing_is_touched) {
    batch b;
    put_square(b, "geometry.qlm");
    b.put("batch_file.txt", "an old stream");
    const files_by_name before = b.files();
    const program_result outcome = b.run_with({});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, usage_text);
    EXPECT_EQ(b.files(), before);
}

} // namespace
