// Which paths and switches a command line holds, as pure text.

#include "tessaline/start/command_line.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

TEST(CommandLine, two_unquoted_words_are_the_two_paths) {
    const command_line line = parse_command_line("/opt/tessaline /b/model.skp /b/out.txt");
    EXPECT_EQ(line.input_path, "/b/model.skp");
    EXPECT_EQ(line.output_path, "/b/out.txt");
    EXPECT_EQ(line.rest, "/b/out.txt"); // an output path without an end is not cut
}

TEST(CommandLine, two_quoted_fields_keep_their_blanks) {
    const command_line line = parse_command_line(R"("/opt/my programs/tessaline" "/a b/in.skp" "/a b/out.txt")");
    EXPECT_EQ(line.input_path, "/a b/in.skp");
    EXPECT_EQ(line.output_path, "/a b/out.txt");
    EXPECT_EQ(line.rest, "");
}

TEST(CommandLine, a_quoted_input_alone_leaves_no_output) {
    const command_line line = parse_command_line(R"(tessaline "/a b/geometry.qlm")");
    EXPECT_EQ(line.input_path, "/a b/geometry.qlm");
    EXPECT_EQ(line.output_path, "");
    EXPECT_EQ(line.rest, "");
}

TEST(CommandLine, a_single_unquoted_word_goes_to_the_output_path_and_stays) {
    const command_line line = parse_command_line("tessaline /b/geometry.qlm");
    EXPECT_EQ(line.input_path, "");
    EXPECT_EQ(line.output_path, "/b/geometry.qlm");
    EXPECT_EQ(line.rest, "/b/geometry.qlm");
}

TEST(CommandLine, a_quoted_field_that_does_not_end_loses_its_mark_only) {
    // The program's path does not end: the whole line is left, and its next blank ends the input path.
    const command_line program = parse_command_line(R"("prog in out)");
    EXPECT_EQ(program.input_path, "prog");
    EXPECT_EQ(program.output_path, "in");
    EXPECT_EQ(program.rest, "out");

    const command_line input = parse_command_line(R"(prog "in out)");
    EXPECT_EQ(input.input_path, "");
    EXPECT_EQ(input.output_path, "in");
    EXPECT_EQ(input.rest, "out");

    const command_line output = parse_command_line(R"(prog in "out put)");
    EXPECT_EQ(output.input_path, "in");
    EXPECT_EQ(output.output_path, "");
    EXPECT_EQ(output.rest, "out put");
}

TEST(CommandLine, a_quoted_field_ends_at_the_mark_and_not_at_a_blank) {
    const command_line line = parse_command_line(R"(prog "in"out rest)");
    EXPECT_EQ(line.input_path, "in");
    EXPECT_EQ(line.output_path, "out");
    EXPECT_EQ(line.rest, "rest");
}

TEST(CommandLine, an_unquoted_output_ends_at_a_blank_and_leaves_what_follows) {
    const command_line line = parse_command_line("prog in out t");
    EXPECT_EQ(line.output_path, "out");
    EXPECT_EQ(line.rest, "t");
}

TEST(CommandLine, doubled_blanks_between_fields_are_trimmed) {
    const command_line line = parse_command_line("  prog   in    out  ");
    EXPECT_EQ(line.input_path, "in");
    EXPECT_EQ(line.output_path, "out");
}

TEST(CommandLine, switches_are_removed_ahead_of_the_fields) {
    const command_line line =
        parse_command_line(R"(prog "a b" "c d" -load_all_layers -incl_edge_lines -incl_views -all_atts)");
    EXPECT_TRUE(line.load_all_layers);
    EXPECT_TRUE(line.incl_edge_lines);
    EXPECT_TRUE(line.incl_views);
    EXPECT_FALSE(line.is_animation);
    EXPECT_EQ(line.input_path, "a b");
    EXPECT_EQ(line.output_path, "c d");
    EXPECT_EQ(line.rest, "");
}

TEST(CommandLine, an_animation_and_a_progress_argument_leave_quoted_fields_unaffected) {
    const command_line line = parse_command_line(R"(prog "a b" "c d" -is_animation -progress 4711)");
    EXPECT_TRUE(line.is_animation);
    EXPECT_EQ(line.progress_argument, "4711");
    EXPECT_EQ(line.input_path, "a b");
    EXPECT_EQ(line.output_path, "c d");
}

TEST(CommandLine, the_animation_switch_takes_the_character_behind_it_along) {
    const command_line line = parse_command_line(R"(prog "a" "b -is_animation" x)");
    EXPECT_TRUE(line.is_animation);
    // The closing mark is lost: the field runs to no end, and the line keeps what stood behind its first mark.
    EXPECT_EQ(line.output_path, "");
    EXPECT_EQ(line.rest, "b x");
}

TEST(CommandLine, an_animation_switch_at_the_very_end_is_removed) {
    const command_line line = parse_command_line("prog in out -is_animation");
    EXPECT_TRUE(line.is_animation);
    EXPECT_EQ(line.output_path, "out");
}

TEST(CommandLine, the_animation_switch_joins_the_words_around_it) {
    // 14 characters and the blank behind them go, so nothing stands between the words any more.
    const command_line line = parse_command_line("prog in -is_animation out");
    EXPECT_EQ(line.input_path, "");
    EXPECT_EQ(line.output_path, "inout");
}

TEST(CommandLine, animation_views_and_progress_are_found_in_every_order) {
    std::vector<std::string> switches = {" -incl_views", " -is_animation", " -progress 5"};
    std::sort(switches.begin(), switches.end());
    do {
        const std::string text = R"(prog "a b" "c d")" + switches[0] + switches[1] + switches[2];
        const command_line line = parse_command_line(text);
        EXPECT_TRUE(line.is_animation) << text;
        EXPECT_TRUE(line.incl_views) << text;
        EXPECT_EQ(line.progress_argument, "5") << text;
        EXPECT_EQ(line.input_path, "a b") << text;
        EXPECT_EQ(line.output_path, "c d") << text;
        EXPECT_EQ(line.rest, "") << text;
    } while (std::next_permutation(switches.begin(), switches.end()));
}

TEST(CommandLine, only_the_first_of_two_equal_switches_is_removed) {
    const command_line line = parse_command_line("prog in out -incl_views -incl_views");
    EXPECT_TRUE(line.incl_views);
    EXPECT_EQ(line.rest, "-incl_views");
}

TEST(CommandLine, a_switch_of_another_case_becomes_part_of_a_field) {
    const command_line line = parse_command_line("prog in -Is_Animation");
    EXPECT_FALSE(line.is_animation);
    EXPECT_EQ(line.output_path, "-Is_Animation");
}

TEST(CommandLine, a_switch_at_the_start_of_the_line_does_not_count) {
    // Trimmed, the line begins with the switch itself, without the blank in front that is part of it.
    const command_line line = parse_command_line(" -incl_views in out");
    EXPECT_FALSE(line.incl_views);
    EXPECT_EQ(line.input_path, "in");
}

TEST(CommandLine, the_progress_argument_runs_to_the_end_of_the_line) {
    const command_line line = parse_command_line("prog in out -progress  12 in two words ");
    EXPECT_EQ(line.progress_argument, "12 in two words");
    EXPECT_EQ(line.output_path, "out");
}

TEST(CommandLine, a_progress_switch_at_the_start_does_not_count) {
    const command_line line = parse_command_line("-progress in out");
    EXPECT_EQ(line.progress_argument, "");
    EXPECT_EQ(line.input_path, "in");
}

TEST(CommandLine, a_progress_switch_without_a_blank_behind_is_a_field) {
    const command_line line = parse_command_line("prog in out -progress");
    EXPECT_EQ(line.progress_argument, "");
    EXPECT_EQ(line.rest, "-progress");
}

TEST(CommandLine, all_atts_is_accepted_and_has_no_effect) {
    const command_line line = parse_command_line("prog in out -all_atts");
    EXPECT_EQ(line.input_path, "in");
    EXPECT_EQ(line.output_path, "out");
    EXPECT_EQ(line.rest, "out");
}

TEST(CommandLine, an_empty_text_has_nothing) {
    const command_line line = parse_command_line("");
    EXPECT_EQ(line.input_path, "");
    EXPECT_EQ(line.output_path, "");
    EXPECT_EQ(line.rest, "");
}

TEST(CommandLine, a_lone_quotation_mark_has_nothing) {
    const command_line line = parse_command_line("\"");
    EXPECT_EQ(line.input_path, "");
    EXPECT_EQ(line.output_path, "");
}

TEST(CommandLine, an_empty_quoted_field_is_an_empty_path) {
    const command_line line = parse_command_line(R"(prog "" "out")");
    EXPECT_EQ(line.input_path, "");
    EXPECT_EQ(line.output_path, "out");
}

TEST(CommandLine, a_backslash_is_a_letter_of_a_path) {
    const command_line line = parse_command_line(R"(prog /a\ b /c\\d)");
    EXPECT_EQ(line.input_path, R"(/a\)");
    EXPECT_EQ(line.output_path, "b");
}

TEST(CommandLine, one_unquoted_model_word_settles_both_paths) {
    command_line line = parse_command_line("prog /b/geometry.qlm");
    EXPECT_TRUE(take_model_word(line));
    EXPECT_EQ(line.input_path, "/b/geometry.qlm");
    EXPECT_EQ(line.output_path, "/b/batch_file.txt");
}

TEST(CommandLine, every_geometry_name_in_the_word_is_replaced) {
    command_line line = parse_command_line("prog /geometry.qlm/geometry.qlm");
    EXPECT_TRUE(take_model_word(line));
    EXPECT_EQ(line.output_path, "/batch_file.txt/batch_file.txt");
}

TEST(CommandLine, a_model_word_of_another_name_leaves_both_paths_equal) {
    command_line line = parse_command_line("prog /b/house.qlm");
    EXPECT_TRUE(take_model_word(line));
    EXPECT_EQ(line.input_path, "/b/house.qlm");
    EXPECT_EQ(line.output_path, "/b/house.qlm");
}

TEST(CommandLine, a_second_word_that_ends_in_qlm_takes_both_paths) {
    command_line line = parse_command_line("prog in.skp /b/geometry.qlm");
    EXPECT_TRUE(take_model_word(line));
    EXPECT_EQ(line.input_path, "/b/geometry.qlm");
    EXPECT_EQ(line.output_path, "/b/batch_file.txt");
}

TEST(CommandLine, a_last_word_without_the_ending_is_no_model_word) {
    command_line two_words = parse_command_line("prog in.skp out.txt");
    EXPECT_FALSE(take_model_word(two_words));
    EXPECT_EQ(two_words.input_path, "in.skp");
    command_line other_case = parse_command_line("prog /b/geometry.QLM");
    EXPECT_FALSE(take_model_word(other_case));
    command_line quoted = parse_command_line(R"(prog "/b/geometry.qlm")");
    EXPECT_FALSE(take_model_word(quoted));
}

TEST(CommandLine, only_text_behind_the_programs_own_path_is_an_argument) {
    EXPECT_FALSE(has_arguments(""));
    EXPECT_FALSE(has_arguments("prog"));
    EXPECT_FALSE(has_arguments("prog  "));
    EXPECT_FALSE(has_arguments(R"("/my programs/prog")"));
    EXPECT_TRUE(has_arguments("prog -all_atts"));
    EXPECT_TRUE(has_arguments(R"("/my programs/prog" "")"));
}

} // namespace
