// The floors of the program include downwards only, as docs/architecture.md draws them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

const fs::path source_folder = TESSALINE_SOURCE_DIR;

// The floors that each floor may include; itself is understood.
using floor_plan = std::map<std::string, std::set<std::string>>;

std::string text_of(const fs::path& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

std::vector<std::string> matches_of(const std::string& text, const std::regex& pattern) {
    std::vector<std::string> found;
    for (std::sregex_iterator at(text.begin(), text.end(), pattern), end; at != end; ++at)
        found.push_back((*at)[1]);
    return found;
}

// The table of floors in a page: rows "| `floor/` | what lives there | `floor/`, `floor/` |", or a dash for none.
floor_plan plan_in(const std::string& page) {
    const std::regex row("\\| `(\\w+)/` \\| [^|\n]+ \\| ([^|\n]+) \\|\n");
    const std::string table = page.substr(page.find("| Floor |"));
    floor_plan plan;
    for (std::sregex_iterator at(table.begin(), table.end(), row), end; at != end; ++at) {
        const auto below = matches_of((*at)[2], std::regex("`(\\w+)/`"));
        plan[(*at)[1]] = {below.begin(), below.end()};
    }
    return plan;
}

floor_plan drawn_plan() {
    return plan_in(text_of(source_folder / "docs" / "architecture.md"));
}

// The floors that a file of `floor` includes against the plan; a file of the room itself counts as the floor "".
std::vector<std::string> forbidden_includes(const floor_plan& plan, const std::string& floor, const std::string& text) {
    std::vector<std::string> forbidden;
    for (const std::string& below : matches_of(text, std::regex("#include \"tessaline/(?:(\\w+)/)?[^/\"]+\"")))
        if (below != floor && !plan.at(floor).contains(below))
            forbidden.push_back(below);
    return forbidden;
}

// The floors that can be reached from one by the arrows of the plan.
std::set<std::string> reached_from(const floor_plan& plan, const std::string& floor) {
    std::set<std::string> reached;
    std::vector<std::string> open{floor};
    while (!open.empty()) {
        const std::string at = open.back();
        open.pop_back();
        for (const std::string& below : plan.at(at))
            if (reached.insert(below).second)
                open.push_back(below);
    }
    return reached;
}

} // namespace

TEST(Floors, every_source_file_lies_on_a_floor_of_the_plan) {
    const floor_plan plan = drawn_plan();
    std::set<std::string> floors;
    for (const auto& entry : fs::recursive_directory_iterator(source_folder / "tessaline"))
        if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h")
            floors.insert(fs::relative(entry.path().parent_path(), source_folder / "tessaline").string());
    std::set<std::string> drawn;
    for (const auto& [floor, below] : plan)
        drawn.insert(floor);
    EXPECT_EQ(floors, drawn);
}

TEST(Floors, no_file_includes_a_floor_that_the_plan_does_not_give_it) {
    const floor_plan plan = drawn_plan();
    for (const auto& [floor, below] : plan)
        for (const auto& entry : fs::directory_iterator(source_folder / "tessaline" / floor))
            EXPECT_THAT(forbidden_includes(plan, floor, text_of(entry.path())), IsEmpty()) << entry.path();
}

TEST(Floors, no_arrow_of_the_plan_leads_back) {
    const floor_plan plan = drawn_plan();
    for (const auto& [floor, below] : plan)
        EXPECT_FALSE(reached_from(plan, floor).contains(floor)) << floor;
}

TEST(Floors, an_include_against_the_plan_is_found) {
    const floor_plan plan = plan_in("| Floor | Lives there | May include |\n"
                                    "|---|---|---|\n"
                                    "| `upper/` | what is above | `lower/` |\n"
                                    "| `lower/` | what is below | - |\n");
    EXPECT_THAT(forbidden_includes(plan, "upper", "#include \"tessaline/lower/a.h\"\n"), IsEmpty());
    EXPECT_THAT(forbidden_includes(plan, "lower", "#include \"tessaline/lower/a.h\"\n"), IsEmpty());
    EXPECT_THAT(forbidden_includes(plan, "lower", "#include \"tessaline/upper/a.h\"\n"), ElementsAre("upper"));
    EXPECT_THAT(forbidden_includes(plan, "upper", "#include \"tessaline/a.h\"\n"), ElementsAre(""));
}

TEST(Floors, an_arrow_that_leads_back_is_found) {
    const floor_plan plan{{"a", {"b"}}, {"b", {"c"}}, {"c", {"b"}}};
    EXPECT_THAT(reached_from(plan, "b"), Contains("b"));
    EXPECT_THAT(reached_from(plan, "a"), testing::Not(Contains("a")));
}
