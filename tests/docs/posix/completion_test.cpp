// What bash offers behind the programs.

#include "tests/docs/pages.h"
#include "tests/docs/program_help.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace {

using namespace program_help;
using testing::UnorderedElementsAre;

class Completion : public testing::Test {
protected:
    // The words that may stand in place of the last one, in a folder with files of all kinds.
    std::vector<std::string> offered(const std::vector<std::string>& words) const {
        std::vector<std::string> arguments = {"-c",
                                              "source '" TESSALINE_SOURCE_DIR "/completions/tessaline'\n"
                                              "COMP_WORDS=(\"$@\") COMP_CWORD=$(($# - 1))\n"
                                              "_tessaline \"$1\"\n"
                                              "printf '%s\\n' \"${COMPREPLY[@]}\"",
                                              "bash"};
        arguments.insert(arguments.end(), words.begin(), words.end());
        const std::string path = PROGRAMS ":" + std::string(std::getenv("PATH"));
        const program_result seen = run_program({"/bin/bash", arguments, folder.name(), {{"PATH", path}}});
        EXPECT_EQ(seen.errors, "");
        return pages::lines_of(seen.output);
    }

    void SetUp() override {
        for (const char* name : {"a room.skp", "page.html", "picture.png", "model.glb", "notes.txt"})
            folder.write(name, "");
        folder.make_folder("batch");
    }

private:
    temporary_folder folder;
};

TEST_F(Completion, offers_the_options_of_each_program_and_no_others) {
    for (const std::string& program : programs()) {
        std::set<std::string> options;
        for (const std::string& word : offered({program, "-"}))
            options.insert(word.substr(0, word.find('=')));
        EXPECT_EQ(options, options_of(program)) << program;
    }
}

TEST_F(Completion, offers_what_begins_as_the_word_does) {
    EXPECT_THAT(offered({"skp-dump", "--t"}), UnorderedElementsAre("--tree", "--textures"));
    EXPECT_THAT(offered({"tessaline-run", "--progress", ""}), UnorderedElementsAre("openjd"));
}

TEST_F(Completion, offers_models_to_what_takes_models_and_folders_to_what_takes_batches) {
    EXPECT_THAT(offered({"tessaline-run", ""}), UnorderedElementsAre("a room.skp", "batch"));
    EXPECT_THAT(offered({"skp-view", "a"}), UnorderedElementsAre("a room.skp"));
    EXPECT_THAT(offered({"batch-check", ""}), UnorderedElementsAre("batch"));
    EXPECT_THAT(offered({"skp-view", "a room.skp", "-o", ""}), UnorderedElementsAre("page.html", "batch"));
    EXPECT_THAT(offered({"batch-view", "batch", "--png", "p"}), UnorderedElementsAre("picture.png"));
    EXPECT_THAT(offered({"batch-to-glb", "m"}), UnorderedElementsAre("model.glb"));
}

TEST_F(Completion, offers_the_codes_of_the_checker_to_be_ignored) {
    EXPECT_THAT(offered({"batch-check", "--ignore", "picture-e"}), UnorderedElementsAre("picture-equal"));
}

} // namespace
