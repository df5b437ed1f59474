// The table of versions is that of the reader and of the models at hand.

#include "sketchup/skp/format_error.h"
#include "sketchup/skp/header.h"
#include "sketchup/skp/read_model.h"
#include "tests/docs/pages.h"
#include "tests/samples_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

namespace {

const std::string page = "docs/skp-support.md";

// How the host calls a major version: 3 to 8, then 13 as 2013.
std::string name_of(int major) {
    return std::to_string(major > 8 ? major + 2000 : major);
}

TEST(SkpSupportPage, has_a_row_for_every_version_that_the_reader_takes) {
    std::vector<std::string> versions;
    for (int major = 3; major <= skp::newest_major_version; ++major)
        if (major <= 8 || major >= 13) // between them the host skipped four numbers
            versions.push_back(name_of(major));
    std::vector<std::string> found;
    for (const pages::row& row : pages::rows_under(page, "Version"))
        found.push_back(row.at(0));
    EXPECT_EQ(found, versions);
}

TEST(SkpSupportPage, counts_the_real_models_of_each_version_that_open) {
    const std::string folder = samples_folder();
    if (folder.empty())
        GTEST_SKIP() << "there are no real models";
    std::map<std::string, int> opened;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() != ".skp")
            continue;
        try {
            ++opened[name_of(skp::read_model(file_bytes(entry.path().string()))->version.major)];
        } catch (const skp::format_error&) { // among the samples are files that must be refused
        }
    }
    for (const pages::row& row : pages::rows_under(page, "Version"))
        EXPECT_EQ(row.at(2), std::to_string(opened[row.at(0)])) << row.at(0);
}

} // namespace
