// The pages show the options that the programs have: no others, and all of them. On Windows they have fewer.

#include "tests/docs/pages.h"
#include "tests/docs/program_help.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

namespace {

using namespace program_help;

const std::string script = "convert-list"; // its usage stands in it

// Of each program, as it tells them.
std::map<std::string, std::set<std::string>> all_options() {
    std::map<std::string, std::set<std::string>> options;
    for (const std::string& program : programs())
        options[program] = options_of(program);
    options[script] = options_in(pages::text_of("deploy/slurm/convert-list"));
    return options;
}

// What is code in a page: the lines of its blocks, and what stands between backticks.
std::vector<std::string> code_in(const std::string& page) {
    std::vector<std::string> code;
    std::string prose;
    bool is_fenced = false;
    for (const std::string& line : pages::lines_of(pages::text_of(page))) {
        if (line.starts_with("```"))
            is_fenced = !is_fenced;
        else if (is_fenced || line.starts_with("    "))
            code.push_back(line);
        else
            prose += line + " ";
    }
    for (std::string& text : pages::codes_in(prose))
        code.push_back(std::move(text));
    return code;
}

std::vector<std::string> all_pages() {
    std::vector<std::string> found = {"README.md"};
    for (const auto& entry : std::filesystem::directory_iterator(std::string(TESSALINE_SOURCE_DIR) + "/docs"))
        if (entry.path().extension() == ".md")
            found.push_back("docs/" + entry.path().filename().string());
    return found;
}

// Words of one line, up to where another command begins or the options of another program.
struct shown_option {
    std::string program; // empty if the text names none
    std::string option;
};

std::vector<shown_option> shown_in(const std::string& code, const std::map<std::string, std::set<std::string>>& known) {
    std::vector<shown_option> shown;
    std::string program;
    std::istringstream words(code);
    bool is_first = true;
    for (std::string word; words >> word; is_first = false) {
        const std::string name = word.substr(word.rfind('/') + 1);
        if (word == "||" || word == "&&" || word == "--")
            program.clear();
        else if (known.contains(name))
            program = name;
        else if (const std::string option = option_in(word);
                 !option.empty() && (!program.empty() || (is_first && option.starts_with("--"))))
            shown.push_back({program, option});
    }
    return shown;
}

TEST(ShownOptions, of_a_program_in_a_page_are_those_of_its_help) {
    const auto known = all_options();
    std::size_t seen = 0;
    for (const std::string& page : all_pages()) {
        for (const std::string& code : code_in(page)) {
            for (const auto& [program, option] : shown_in(code, known)) {
                ++seen;
                const std::string& wanted = option;
                const bool is_known = program.empty()
                                          ? std::any_of(known.begin(), known.end(),
                                                        [&](const auto& one) { return one.second.contains(wanted); })
                                          : known.at(program).contains(option);
                EXPECT_TRUE(is_known) << page << ": " << code;
            }
        }
    }
    EXPECT_GT(seen, 80U);
}

TEST(ShownOptions, are_all_that_the_programs_have) {
    const auto known = all_options();
    std::set<std::string> shown;
    for (const std::string& page : all_pages())
        for (const std::string& code : code_in(page))
            shown.merge(options_in(code));
    for (const std::string& program : programs()) {
        EXPECT_FALSE(known.at(program).empty());
        for (const std::string& option : known.at(program))
            EXPECT_TRUE(shown.contains(option)) << program << ": " << option;
    }
}

} // namespace
