// The commands of the user guide do what it says.

#include "tests/docs/pages.h"
#include "tests/support/run_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace {

const std::string page = "docs/user-guide.md";

TEST(UserGuide, its_commands_work_from_top_to_bottom_and_print_what_it_shows) {
    const temporary_folder folder;
    ASSERT_EQ(run_program({PROGRAMS "/example_room", {folder / "room.skp"}}).status, 0);
    std::string script = "set -e\n";
    for (const pages::example& example : pages::examples_of(page, "sh"))
        script += example.text("\n");
    folder.write("guide.sh", script);
    std::vector<environment_change> environment = settings_in(folder.name());
    environment.emplace_back("PATH", PROGRAMS ":" + std::string(std::getenv("PATH")));
    const program_result seen = run_program({"/bin/sh", {"guide.sh"}, folder.name(), environment});
    EXPECT_EQ(seen.status, 0) << seen.errors;
    // But for where the batch lies and how long it took.
    for (const pages::example& shown : pages::examples_of(page, "text"))
        for (const std::string& line : shown.lines)
            EXPECT_THAT(seen.output + seen.errors, testing::HasSubstr(line.substr(0, line.find(" in /"))));
}

} // namespace
