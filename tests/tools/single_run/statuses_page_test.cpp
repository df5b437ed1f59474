// The manual's table of statuses is that of the program.

#include "tests/support/temporary_folder.h"
#include "tools/single_run/run_status.h"

#include <gtest/gtest.h>

#include <cctype>
#include <sstream>

namespace {

TEST(StatusesPage, the_manual_has_the_table_of_the_program) {
    std::string expected;
    for (const status_row& row : status_table())
        expected += "| " + std::to_string(static_cast<int>(row.status)) + " | " + std::string(row.meaning) + " |\n";
    std::istringstream page(text_of_file(std::string(TESSALINE_SOURCE_DIR) + "/docs/tessaline-run.md"));
    std::string found;
    bool is_table = false;
    for (std::string line; std::getline(page, line);) {
        is_table = line == "| Status | When |" || (is_table && line.starts_with('|'));
        if (is_table && line.size() > 2 && std::isdigit(static_cast<unsigned char>(line[2])) != 0)
            found += line + "\n";
    }
    EXPECT_EQ(found, expected);
}

} // namespace
