// The manual page of each program says what its help says, and names no other options. The help of Windows is shorter.

#include "tests/docs/pages.h"
#include "tests/docs/program_help.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace program_help;

// The words with one blank between them.
std::string in_one_line(const std::string& text) {
    std::string line;
    std::istringstream words(text);
    for (std::string word; words >> word;)
        line += (line.empty() ? "" : " ") + word;
    return line;
}

// What a help says, piece by piece: a way to call the program, an option or a status with its meaning, a sentence.
std::vector<std::string> pieces_of(const std::string& help) {
    constexpr std::string_view usage = "usage: ";
    constexpr std::string_view margin = "  ";
    std::vector<std::string> pieces;
    bool goes_on = false; // the next line belongs to the last piece, unless it begins one
    bool is_text = false;
    for (const std::string& line : pages::lines_of(help)) {
        const bool is_usage = line.starts_with(usage);
        const bool is_indented = line.starts_with(margin);
        const bool begins = is_indented && line.size() > margin.size() && line[margin.size()] != ' ';
        const bool is_heading = !is_indented && line.ends_with(":");
        if (is_usage || begins || line.starts_with("       tessaline "))
            pieces.push_back(is_usage ? line.substr(usage.size()) : line);
        else if (!line.empty() && !is_heading && goes_on && is_text == !is_indented)
            pieces.back() += " " + line;
        else if (!line.empty() && !is_heading)
            pieces.push_back(line);
        goes_on = !line.empty() && !is_heading && !is_usage;
        is_text = !is_indented && !is_usage;
    }
    std::vector<std::string> sentences;
    for (const std::string& piece : pieces) {
        std::string rest = in_one_line(piece);
        for (std::size_t end = rest.find(". "); end != std::string::npos; end = rest.find(". ")) {
            sentences.push_back(rest.substr(0, end + 1));
            rest.erase(0, end + 2);
        }
        sentences.push_back(rest);
    }
    return sentences;
}

// A manual page as its reader sees it, in one line.
std::string read_page(const std::string& source) {
    std::string text;
    for (std::string line : pages::lines_of(source)) {
        if (line.starts_with(".B") || line.starts_with(".I"))
            line.erase(0, line.find(' '));
        else if (line.starts_with('.'))
            continue;
        text += line + "\n";
    }
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\\')
            plain += text[at];
        else if (text[++at] == 'f') // a change of font and its letter
            ++at;
        else if (text[at] != '&')
            plain += text[at] == 'e' ? '\\' : text[at];
    }
    return in_one_line(plain);
}

class ManPages : public testing::TestWithParam<std::string> {};

TEST_P(ManPages, say_all_that_the_help_says) {
    const std::string page = read_page(pages::text_of("man/" + GetParam() + ".1"));
    const std::vector<std::string> pieces = pieces_of(help_of(GetParam()));
    EXPECT_GE(pieces.size(), 3U);
    for (const std::string& piece : pieces)
        EXPECT_THAT(page, testing::HasSubstr(piece));
}

TEST_P(ManPages, name_the_options_of_the_program_and_no_others) {
    const std::string page = read_page(pages::text_of("man/" + GetParam() + ".1"));
    EXPECT_EQ(options_in(page), options_of(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(All, ManPages, testing::ValuesIn(programs()), [](const auto& program) {
    std::string name = program.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

} // namespace
