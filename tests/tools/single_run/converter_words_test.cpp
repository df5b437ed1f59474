#include "tools/single_run/converter_words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct heard {
    std::vector<int> progress;
    std::string trace;
    converter_words words{[this](int percent) { progress.push_back(percent); },
                          [this](std::string_view line) { trace += line; }};

    explicit heard(const std::string& text) {
        for (const char letter : text) // a piece of each size is a piece of one
            words.add({&letter, 1});
        words.finish();
    }
};

TEST(ConverterWords, progress_trace_and_messages_are_told_apart) {
    const heard said("progress 0\nimages(12):: a text\nCannot create file: 'a:: b'.\nprogress 66\nprogress at last\n");
    EXPECT_THAT(said.progress, ElementsAre(0, 66));
    EXPECT_EQ(said.trace, "images(12):: a text\n");
    EXPECT_THAT(said.words.messages, ElementsAre("Cannot create file: 'a:: b'.", "progress at last"));
}

TEST(ConverterWords, the_first_write_that_was_refused_counts) {
    const heard said("file:: REPORT: Cannot write /a: No space left on device\n"
                     "file:: REPORT: Cannot write /b: No space left on device\n");
    EXPECT_EQ(said.words.refused_write, "/a: No space left on device");
    EXPECT_FALSE(said.words.lost_options);
    EXPECT_THAT(said.words.messages, IsEmpty());
}

TEST(ConverterWords, a_model_that_was_refused_and_options_that_were_lost_are_known_by_the_trace) {
    const heard said("model_reading(4):: Cannot open model /m: result 6\n"
                     "model_reading(9):: REPORT: Options not rewritten: /o\n");
    EXPECT_EQ(said.words.refused_model, "/m: result 6");
    EXPECT_TRUE(said.words.lost_options);
}

TEST(ConverterWords, an_end_for_want_of_memory_is_known_by_its_last_line_even_without_a_line_end) {
    EXPECT_TRUE(heard("Tessaline: std::bad_alloc").words.out_of_memory);
    EXPECT_FALSE(heard("Tessaline: another end\n").words.out_of_memory);
}

TEST(ConverterWords, of_more_messages_than_a_hundred_the_first_hundred_are_kept) {
    std::string text;
    for (int i = 0; i < 150; ++i)
        text += "message\n";
    EXPECT_EQ(heard(text).words.messages.size(), 100u);
}

} // namespace
