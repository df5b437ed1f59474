// The script of the job template for farms with Open Job Description.

#include "tests/support/run_program.h"
#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

namespace {

using testing::HasSubstr;
using testing::Not;

// The text behind "data: |", without its indentation.
std::string script_of_the_template() {
    const std::string indentation(12, ' ');
    std::istringstream page(text_of_file(std::string(TESSALINE_SOURCE_DIR) + "/deploy/openjd/convert-list.yaml"));
    std::string script;
    bool is_script = false;
    for (std::string line; std::getline(page, line);) {
        is_script = is_script && line.starts_with(indentation);
        if (is_script)
            script += line.substr(indentation.size()) + '\n';
        is_script = is_script || line.ends_with("data: |");
    }
    return script;
}

TEST(JobTemplate, no_parameter_stands_in_the_text_of_its_script) {
    EXPECT_THAT(script_of_the_template(), HasSubstr("--models"));
    EXPECT_THAT(script_of_the_template(), Not(HasSubstr("{{")));
}

TEST(JobTemplate, what_the_parameters_hold_reaches_the_program_as_it_is) {
    const temporary_folder here;
    const std::string script = here.write("convert.sh", script_of_the_template());
    const std::string program = here.write("say words", "#!/bin/sh\nprintf '%s\\n' \"$@\"\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    const program_result seen =
        run_program({"/bin/bash", {script, "17", "16", program, "a \"list\"", "$HOME; exit 9", "`out` *"}});
    EXPECT_EQ(seen.status, 0) << seen.errors;
    EXPECT_EQ(seen.output, "--list\na \"list\"\n--models\n17-32\n--root\n$HOME; exit 9\n`out` *\n");
}

} // namespace
