#include "platform/posix/file_chooser.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

platform::file_question question_about(const std::string& title, const std::string& default_name) {
    platform::file_question question;
    question.title = title;
    question.default_name = default_name;
    return question;
}

TEST(FileChooser, shows_title_and_default_and_takes_the_line_without_blanks_around_it) {
    std::istringstream input("  /my models/house.skp \r\nnext\n");
    std::ostringstream prompt;
    EXPECT_EQ(platform::ask_for_name(question_about("Model", "/a.skp"), input, prompt), "/my models/house.skp");
    EXPECT_EQ(prompt.str(), "Model [/a.skp]: ");
}

TEST(FileChooser, an_empty_line_takes_the_default_name) {
    std::istringstream input(" \n");
    std::ostringstream prompt;
    EXPECT_EQ(platform::ask_for_name(question_about("Model", "/a.skp"), input, prompt), "/a.skp");
}

TEST(FileChooser, an_empty_line_without_a_default_dismisses_the_question) {
    std::istringstream input("\n");
    std::ostringstream prompt;
    EXPECT_FALSE(platform::ask_for_name(question_about("Model", ""), input, prompt).has_value());
    EXPECT_EQ(prompt.str(), "Model: ");
}

TEST(FileChooser, the_end_of_input_dismisses_the_question) {
    std::istringstream input("");
    std::ostringstream prompt;
    EXPECT_FALSE(platform::ask_for_name(question_about("Model", "/a.skp"), input, prompt).has_value());
}

TEST(FileChooser, only_a_yes_replaces_a_file) {
    for (const char* yes : {"y\n", "Yes\n"}) {
        std::istringstream input(yes);
        std::ostringstream prompt;
        EXPECT_TRUE(platform::ask_to_replace("/a.xml", input, prompt)) << yes;
        EXPECT_EQ(prompt.str(), "/a.xml exists. Replace it? [y/N]: ");
    }
    for (const char* no : {"\n", "n\n", "", "ok\n"}) {
        std::istringstream input(no);
        std::ostringstream prompt;
        EXPECT_FALSE(platform::ask_to_replace("/a.xml", input, prompt)) << no;
    }
}

} // namespace
