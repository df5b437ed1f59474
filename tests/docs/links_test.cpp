// Links within the documentation lead somewhere, and every page is led to.

#include "tests/docs/pages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <regex>
#include <set>

namespace {

const std::string root = TESSALINE_SOURCE_DIR;

// All pages, from the root of the project, as "docs/glb.md". Builds and what begins with a dot hold none.
std::vector<std::string> all_pages() {
    std::vector<std::string> found;
    const std::filesystem::recursive_directory_iterator end;
    for (std::filesystem::recursive_directory_iterator at(root + "/"); at != end; ++at) {
        const std::string name = at->path().filename().string();
        if (at->is_directory() && (name == "build" || name == "node_modules" || name[0] == '.'))
            at.disable_recursion_pending();
        else if (at->path().extension() == ".md")
            found.push_back(at->path().generic_string().substr(root.size() + 1));
    }
    return found;
}

struct link {
    std::string text; // as it stands in the page
    std::string file; // from the root of the project; of the page itself if it names none
    std::string anchor;
};

// Those that lead out of the project left out.
std::vector<link> links_of(const std::string& page) {
    const std::regex form(R"re(\]\(([^)\s]+)\))re");
    const std::string text = pages::text_of(page);
    std::vector<link> found;
    for (std::sregex_iterator at(text.begin(), text.end(), form), end; at != end; ++at) {
        const std::string target = (*at)[1];
        if (target.find("://") != std::string::npos)
            continue;
        const std::size_t mark = target.find('#');
        const std::string file = target.substr(0, mark);
        const std::filesystem::path from(page);
        found.push_back({target, file.empty() ? page : (from.parent_path() / file).lexically_normal().generic_string(),
                         mark == std::string::npos ? "" : target.substr(mark + 1)});
    }
    return found;
}

// By which a heading is linked to: lower case, blanks as hyphens, other signs left out.
std::string anchor_of(const std::string& heading) {
    std::string anchor;
    for (const char letter : heading.substr(heading.find_first_not_of("# "))) {
        if (std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '-' || letter == '_')
            anchor += static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
        else if (letter == ' ')
            anchor += '-';
    }
    return anchor;
}

std::set<std::string> anchors_of(const std::string& page) {
    std::set<std::string> anchors;
    for (const std::string& line : pages::lines_of(pages::text_of(page)))
        if (line.starts_with('#'))
            anchors.insert(anchor_of(line));
    return anchors;
}

TEST(Links, every_link_of_every_page_leads_to_a_file_and_to_a_heading_in_it) {
    std::size_t links = 0;
    for (const std::string& page : all_pages()) {
        for (const link& each : links_of(page)) {
            ++links;
            EXPECT_TRUE(std::filesystem::exists(root + "/" + each.file)) << page << ": " << each.text;
            const bool has_heading = each.anchor.empty() || anchors_of(each.file).contains(each.anchor);
            EXPECT_TRUE(has_heading) << page << ": " << each.text;
        }
    }
    EXPECT_GT(links, 50U);
}

TEST(Links, lead_from_the_first_page_to_every_page_of_the_documentation) {
    std::set<std::string> reached;
    std::vector<std::string> open = {"README.md"};
    while (!open.empty()) {
        const std::string page = open.back();
        open.pop_back();
        if (!page.ends_with(".md") || !reached.insert(page).second)
            continue;
        for (const link& each : links_of(page))
            open.push_back(each.file);
    }
    for (const std::string& page : all_pages()) {
        const bool is_led_to = !page.starts_with("docs/") || reached.contains(page);
        EXPECT_TRUE(is_led_to) << page;
    }
}

} // namespace
