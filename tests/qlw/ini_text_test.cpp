#include "qlw/ini_text.h"

#include <gtest/gtest.h>

#include <random>

namespace {

// The text after one value has been set; "unchanged" if nothing was to be done.
std::string text_after(const std::string& before, std::string_view section, std::string_view key,
                       std::string_view value) {
    ini_text text(before);
    return text.set_value(section, key, value) ? text.bytes() : "unchanged";
}

TEST(IniText, a_value_is_found_by_section_and_key) {
    const ini_text text("[One]\r\nkey=a\r\n[Two]\r\nkey=b\r\n");
    EXPECT_EQ(text.value("One", "key"), "a");
    EXPECT_EQ(text.value("Two", "key"), "b");
    EXPECT_EQ(text.value("Three", "key"), std::nullopt);
    EXPECT_EQ(text.value("One", "other"), std::nullopt);
}

TEST(IniText, the_case_of_names_does_not_count_and_that_of_values_stays) {
    const ini_text text("[GLOBALS]\nSvl_Name=MiXed\n");
    EXPECT_EQ(text.value("globals", "svl_name"), "MiXed");
    EXPECT_EQ(text.value("Globals", "SVL_NAME"), "MiXed");
}

TEST(IniText, blanks_around_names_and_values_do_not_count) {
    const ini_text text("  [ a ]  \n\t key \t=  two words \t\r\n");
    EXPECT_EQ(text.value("a", "key"), "two words");
    EXPECT_EQ(text.value(" a ", " key "), "two words");
}

TEST(IniText, one_pair_of_equal_quotation_marks_is_taken_off) {
    const ini_text text("[a]\n1=\" x \"\n2='y'\n3=\"z'\n4=\"\n5=\"\"\"\"\n");
    EXPECT_EQ(text.value("a", "1"), " x ");
    EXPECT_EQ(text.value("a", "2"), "y");
    EXPECT_EQ(text.value("a", "3"), "\"z'");
    EXPECT_EQ(text.value("a", "4"), "\"");
    EXPECT_EQ(text.value("a", "5"), "\"\"");
}

TEST(IniText, a_value_may_hold_what_opens_comments_and_names_elsewhere) {
    const ini_text text("[a]\nkey=x = [y] ; z # w\n");
    EXPECT_EQ(text.value("a", "key"), "x = [y] ; z # w");
}

TEST(IniText, a_key_without_a_value_holds_the_empty_text) {
    EXPECT_EQ(ini_text("[a]\nkey=\n").value("a", "key"), "");
    EXPECT_EQ(ini_text("[a]\nkey=").value("a", "key"), "");
}

TEST(IniText, a_comment_holds_no_value) {
    const ini_text text("[a]\n;key=1\n  ; key=2\n;[b]\nkey=3\n");
    EXPECT_EQ(text.value("a", "key"), "3");
    EXPECT_EQ(text.value("a", ";key"), std::nullopt);
    EXPECT_EQ(text.value("b", "key"), std::nullopt);
}

TEST(IniText, keys_in_front_of_the_first_section_belong_to_none) {
    const ini_text text("key=1\n[a]\n");
    EXPECT_EQ(text.value("", "key"), std::nullopt);
    EXPECT_EQ(text.value("a", "key"), std::nullopt);
}

TEST(IniText, the_first_of_equal_sections_and_of_equal_keys_counts) {
    const ini_text text("[a]\nx=1\nX=2\n[b]\nx=3\n[A]\nx=4\ny=5\n");
    EXPECT_EQ(text.value("a", "x"), "1");
    EXPECT_EQ(text.value("a", "y"), std::nullopt);
}

TEST(IniText, lines_that_mean_nothing_are_passed_over) {
    const ini_text text("[a]\nno equals sign\n=no name\n[never closed\nkey=1\n");
    EXPECT_EQ(text.value("a", "key"), "1");
    EXPECT_EQ(text.value("never closed", "key"), std::nullopt);
}

TEST(IniText, a_byte_order_mark_in_front_is_passed_over_and_stays) {
    EXPECT_EQ(ini_text("\xEF\xBB\xBF[a]\nkey=1\n").value("a", "key"), "1");
    EXPECT_EQ(text_after("\xEF\xBB\xBF[a]\nkey=1\n", "a", "key", "2"), "\xEF\xBB\xBF[a]\nkey=2\n");
    EXPECT_EQ(text_after("\xEF\xBB\xBF", "a", "key", "2"), "\xEF\xBB\xBF[a]\r\nkey=2\r\n");
}

TEST(IniText, a_text_of_two_bytes_a_letter_holds_nothing_and_is_never_edited) {
    const std::string text("\xFF\xFE[\0a\0]\0\n\0", 10);
    EXPECT_EQ(ini_text(text).value("a", "key"), std::nullopt);
    EXPECT_EQ(text_after(text, "a", "key", "1"), "unchanged");
    EXPECT_EQ(text_after("\xFE\xFF", "a", "key", "1"), "unchanged");
}

TEST(IniText, a_new_value_takes_the_place_of_the_old_one) {
    const std::string before = "; mine\r\n[a]\r\n  first = 1  \r\n\r\n; about second\r\nsecond=2\r\n[b]\r\nfirst=3\r\n";
    EXPECT_EQ(text_after(before, "A", "FIRST", "one"),
              "; mine\r\n[a]\r\n  first = one  \r\n\r\n; about second\r\nsecond=2\r\n[b]\r\nfirst=3\r\n");
}

TEST(IniText, an_empty_value_is_filled_behind_its_equals_sign) {
    EXPECT_EQ(text_after("[a]\nkey=\nother=2\n", "a", "key", "1"), "[a]\nkey=1\nother=2\n");
    EXPECT_EQ(text_after("[a]\r\nkey=   \r\n", "a", "key", "1"), "[a]\r\nkey=1   \r\n");
    EXPECT_EQ(text_after("[a]\nkey=", "a", "key", "1"), "[a]\nkey=1");
}

TEST(IniText, a_new_key_goes_behind_the_last_one_of_its_section) {
    EXPECT_EQ(text_after("[a]\nx=1\n; behind x\n\n; about b\n[b]\ny=2\n", "a", "new", "5"),
              "[a]\nx=1\nnew=5\n; behind x\n\n; about b\n[b]\ny=2\n");
    EXPECT_EQ(text_after("[a]\n\n[b]\ny=2\n", "a", "new", "5"), "[a]\nnew=5\n\n[b]\ny=2\n");
    EXPECT_EQ(text_after("[a]\nx=1\n[b]\n[a]\ny=2\n", "a", "new", "5"), "[a]\nx=1\nnew=5\n[b]\n[a]\ny=2\n");
}

TEST(IniText, a_new_section_goes_to_the_end) {
    EXPECT_EQ(text_after("[a]\nx=1\n", "b", "y", "2"), "[a]\nx=1\n[b]\ny=2\n");
    EXPECT_EQ(text_after("; only a comment\r\n", "b", "y", "2"), "; only a comment\r\n[b]\r\ny=2\r\n");
}

TEST(IniText, an_empty_file_gets_carriage_returns) {
    EXPECT_EQ(text_after("", "Globals", "ivl_x", "5"), "[Globals]\r\nivl_x=5\r\n");
}

TEST(IniText, a_missing_final_line_end_is_added_before_a_new_line) {
    EXPECT_EQ(text_after("[a]\nx=1", "a", "y", "2"), "[a]\nx=1\ny=2\n");
    EXPECT_EQ(text_after("[a]\r\nx=1", "b", "y", "2"), "[a]\r\nx=1\r\n[b]\r\ny=2\r\n");
    EXPECT_EQ(text_after("[a]", "a", "y", "2"), "[a]\r\ny=2\r\n");
}

TEST(IniText, a_value_that_reads_the_same_changes_nothing) {
    EXPECT_EQ(text_after("[a]\nkey = 1 \n", "A", "Key", "1"), "unchanged");
    EXPECT_EQ(text_after("[a]\nkey=\"1\"\n", "a", "key", "1"), "unchanged");
    EXPECT_EQ(text_after("[a]\nkey=\n", "a", "key", ""), "unchanged");
    EXPECT_EQ(text_after("[a]\nkey=x\n", "a", "key", "X"), "[a]\nkey=X\n");
}

TEST(IniText, a_value_that_would_lose_something_in_reading_is_quoted) {
    EXPECT_EQ(text_after("[a]\n", "a", "key", " x "), "[a]\nkey=\" x \"\n");
    EXPECT_EQ(text_after("[a]\n", "a", "key", "'x'"), "[a]\nkey=\"'x'\"\n");
    EXPECT_EQ(text_after("[a]\n", "a", "key", "two words"), "[a]\nkey=two words\n");
}

TEST(IniText, a_value_ends_at_its_first_line_end_or_zero_byte) {
    EXPECT_EQ(text_after("[a]\n", "a", "key", "x\n[b]\ny=1"), "[a]\nkey=x\n");
    EXPECT_EQ(text_after("[a]\n", "a", "key", "x\ry"), "[a]\nkey=x\n");
    EXPECT_EQ(text_after("[a]\n", "a", "key", std::string_view("x\0y", 3)), "[a]\nkey=x\n");
}

TEST(IniText, a_name_that_a_reader_could_not_find_again_is_not_written) {
    for (const char* key : {"", "  ", "a=b", "a\nb", "a\rb", ";a", "[a"})
        EXPECT_EQ(text_after("[a]\n", "a", key, "1"), "unchanged") << key;
    for (const char* section : {"a]b", "a\nb", "a\rb"})
        EXPECT_EQ(text_after("[a]\n", section, "key", "1"), "unchanged") << section;
    EXPECT_EQ(text_after("[a]\n", "a", std::string_view("a\0b", 3), "1"), "unchanged");
}

TEST(IniText, binary_rubbish_stays_as_it_is_around_an_edit) {
    const std::string rubbish("\0\xFF=\x01[\n]=\0\r\r\n=\x1A", 13);
    EXPECT_EQ(text_after(rubbish + "\n[a]\nkey=1\n" + rubbish, "a", "key", "2"), rubbish + "\n[a]\nkey=2\n" + rubbish);
}

TEST(IniText, whatever_is_set_is_read_back_and_nothing_else_changes) {
    constexpr unsigned seed = 20190326;
    std::mt19937 random(seed);
    const std::string letters = "aB =[];'\"#\t\\.\xC3\xA9";
    const auto any_text = [&](std::size_t longest) {
        std::string text;
        for (std::size_t size = random() % (longest + 1); text.size() < size;)
            text += letters[random() % letters.size()];
        return text;
    };
    for (int round = 0; round < 5000; ++round) {
        const std::string value = any_text(6);
        ini_text text("; first\n[s]\nkey=" + any_text(6) + "\nother=5\n; last");
        text.set_value("s", "key", value);
        ASSERT_EQ(text.value("s", "key"), value) << "seed " << seed << ", round " << round;
        ASSERT_EQ(text.value("s", "other"), "5");
        ASSERT_TRUE(text.bytes().starts_with("; first\n[s]\nkey="));
        ASSERT_TRUE(text.bytes().ends_with("\nother=5\n; last"));
        ASSERT_FALSE(text.set_value("s", "key", value));
    }
}

TEST(IniText, a_file_of_many_short_lines_is_read_in_full) {
    std::string bytes = "[a]\n";
    for (int i = 0; i < 100000; ++i)
        bytes += std::to_string(i) + "=" + std::to_string(i * 2) + "\n";
    const ini_text text(bytes);
    EXPECT_EQ(text.value("a", "0"), "0");
    EXPECT_EQ(text.value("a", "99999"), "199998");
}

} // namespace
