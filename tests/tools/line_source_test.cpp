#include "tools/batch_reading/line_source.h"

#include "tests/support/files_in_memory.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using texts = std::vector<std::string>;

texts lines_of(std::string_view text, std::size_t block, std::size_t longest = line_source::longest_line) {
    files_in_memory::bytes_in_memory bytes(text);
    line_source lines(bytes, block, longest);
    texts all;
    for (; !lines.at_end(); lines.advance())
        all.emplace_back(lines.line());
    return all;
}

TEST(LineSource, gives_the_same_lines_however_small_its_block) {
    const std::string text = "one\r\n\r\na longer line than the others\r\nx\r\n";
    for (std::size_t block = 1; block < 50; ++block)
        EXPECT_EQ(lines_of(text, block), (texts{"one", "", "a longer line than the others", "x"})) << block;
}

TEST(LineSource, counts_lines_from_1_and_those_with_another_end) {
    files_in_memory::bytes_in_memory bytes("a\r\nb\nc\r\nd");
    line_source lines(bytes, 2);
    EXPECT_EQ(lines.number(), 1U);
    for (int i = 0; i < 3; ++i)
        lines.advance();
    EXPECT_EQ(lines.line(), "d");
    EXPECT_EQ(lines.number(), 4U);
    EXPECT_FALSE(lines.at_end());
    lines.advance();
    EXPECT_TRUE(lines.at_end());
    EXPECT_EQ(lines.wrong_ends(), 2U);
    EXPECT_EQ(lines.first_wrong_end(), 2U);
    EXPECT_EQ(lines.bytes_read(), 9U);
}

TEST(LineSource, an_empty_file_is_at_its_end_at_once) {
    EXPECT_EQ(lines_of("", 4).size(), 0U);
}

TEST(LineSource, sees_the_next_line_without_leaving_this_one) {
    for (std::size_t block = 1; block < 20; ++block) {
        files_in_memory::bytes_in_memory bytes("#;\r\nEND;\r\n");
        line_source lines(bytes, block);
        EXPECT_TRUE(lines.next_is("END;")) << block;
        EXPECT_FALSE(lines.next_is("END")) << block;
        EXPECT_FALSE(lines.next_is("END;;")) << block;
        EXPECT_FALSE(lines.next_is("")) << block;
        EXPECT_EQ(lines.line(), "#;") << block;
        lines.advance();
        EXPECT_EQ(lines.line(), "END;") << block;
        EXPECT_FALSE(lines.next_is("END;")) << block;
    }
}

// Looking for more moves the buffer, though none comes.
TEST(LineSource, sees_no_next_line_where_the_file_ends_behind_this_one) {
    for (std::size_t block = 1; block < 20; ++block)
        for (const char* text : {"#;\r\n", "#;", "a\r\n#;\r\n"}) {
            files_in_memory::bytes_in_memory bytes(text);
            line_source lines(bytes, block);
            while (!lines.at("#;"))
                lines.advance();
            EXPECT_FALSE(lines.next_is("END;")) << block;
            EXPECT_EQ(lines.line(), "#;") << block;
        }
}

TEST(LineSource, cuts_a_line_that_is_too_long_and_goes_on_behind_it) {
    for (std::size_t block = 1; block < 30; ++block) {
        const texts lines = lines_of("short\r\n" + std::string(100, 'x') + "\r\nlast\r\n", block, 10);
        ASSERT_EQ(lines.size(), 3U) << block;
        EXPECT_EQ(lines[0], "short");
        EXPECT_TRUE(std::string(100, 'x').starts_with(lines[1]) && lines[1].size() < 45U) << block;
        EXPECT_EQ(lines[2], "last");
    }
}

TEST(LineSource, a_line_without_end_takes_no_more_memory_than_is_kept_of_it) {
    // Gives the same character for ever, well beyond what memory holds if it were kept.
    class endless : public byte_source {
    public:
        std::size_t read(char* into, std::size_t size) override {
            if (given > std::size_t{1} << 30U)
                return 0;
            std::memset(into, 'x', size);
            given += size;
            return size;
        }
        std::size_t given = 0;
    } bytes;
    line_source lines(bytes, 65536, 1000);
    EXPECT_LE(lines.line().size(), 1000U + 65536U);
    EXPECT_EQ(lines.cut_lines(), 1U);
    lines.advance();
    EXPECT_TRUE(lines.at_end());
}

} // namespace
