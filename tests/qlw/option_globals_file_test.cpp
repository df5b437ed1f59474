// How settings travel in the option file.

#include "qlw/option_globals_file.h"

#include "settings_fixture.h"
#include "tests/support/matches_pattern.h"
#include "tests/support/page_examples.h"
#include "tests/support/temporary_folder.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class OptionGlobalsFile : public settings_fixture {
protected:
    OptionGlobalsFile() { register_all_globals(); }

    // Whether reading these lines changed a setting.
    bool changes(const std::string& lines) {
        cl_input_file file;
        EXPECT_TRUE(file.open(folder.write("in.txt", lines), open_failure::shown, "test", __LINE__));
        return read_option_globals_from_open_file(file);
    }

    std::string written() {
        cl_output_file file;
        EXPECT_TRUE(file.open(folder / "out.txt", output_file_mode::quiet));
        write_option_globals_to_open_file(file);
        file.close();
        return folder.read("out.txt");
    }

    temporary_folder folder;
};

TEST_F(OptionGlobalsFile, comments_blank_lines_and_lines_without_a_name_are_skipped) {
    set_global_int("ivl_resx", 640);
    EXPECT_FALSE(changes("# comment\n#ivl_resx;1\n  # ivl_resx;1\n\n   \n;value\n ;value\nivl_resx\n"));
    EXPECT_EQ(get_global_int("ivl_resx"), 640);
}

TEST_F(OptionGlobalsFile, a_blank_behind_the_separator_makes_no_difference) {
    set_global_int("ivl_resx", 640);
    EXPECT_TRUE(changes("ivl_resx;800\n"));
    EXPECT_EQ(get_global_int("ivl_resx"), 800);
    EXPECT_FALSE(changes("  ivl_resx ; 800  \r\n"));
}

TEST_F(OptionGlobalsFile, a_name_alone_with_its_separator_has_the_empty_value) {
    set_global_int("ivl_resx", 640);
    set_global_string("stest_text", "text");
    EXPECT_TRUE(changes("ivl_resx;\nstest_text;\n"));
    EXPECT_EQ(get_global_int("ivl_resx"), 0);
    EXPECT_EQ(get_global_string("stest_text"), "");
}

TEST_F(OptionGlobalsFile, every_type_is_read_by_the_first_letter_of_its_name) {
    EXPECT_TRUE(changes("btest_flag; 7\nitest_count; -3\nrtest_size; 0.5\nptest_point; (1, 2, 3)\nstest_text; a b\n"
                        "ctest_color; 16777215\nxtest_other; 1\n"));
    EXPECT_TRUE(get_global_bool("btest_flag"));
    EXPECT_EQ(get_global_int("itest_count"), -3);
    EXPECT_EQ(get_global_double("rtest_size"), 0.5);
    EXPECT_EQ(get_global_fpt("ptest_point"), (fpt{1, 2, 3}));
    EXPECT_EQ(get_global_string("stest_text"), "a b");
    EXPECT_EQ(get_global_COLORREF("ctest_color"), 0xffffffu);
    EXPECT_EQ(global_variables.lookup("xtest_other"), nullptr);
}

TEST_F(OptionGlobalsFile, the_name_ends_at_the_first_separator) {
    changes("stest_text; a;b ; c\n");
    EXPECT_EQ(get_global_string("stest_text"), "a;b ; c");
}

TEST_F(OptionGlobalsFile, a_boolean_is_true_for_any_number_but_zero) {
    changes("btest_a; 2\nbtest_b; -1\nbtest_c; true\nbtest_d; 0\n");
    EXPECT_TRUE(get_global_bool("btest_a"));
    EXPECT_TRUE(get_global_bool("btest_b"));
    EXPECT_FALSE(get_global_bool("btest_c"));
    EXPECT_FALSE(get_global_bool("btest_d"));
}

TEST_F(OptionGlobalsFile, values_that_are_the_same_are_no_change) {
    changes("btest_flag; 1\nitest_count; 3\nrtest_size; 0.1\nptest_point; (1, 2, 3)\nstest_text; a\\\\b\n"
            "ctest_color; 255\n");
    EXPECT_FALSE(changes(written()));
}

TEST_F(OptionGlobalsFile, reading_tells_that_a_setting_changed_wherever_its_line_stands) {
    changes("itest_a; 1\nitest_b; 2\n");
    EXPECT_TRUE(changes("itest_a; 9\nitest_b; 2\n"));
    EXPECT_TRUE(changes("itest_a; 9\nitest_b; 3\n"));
}

TEST_F(OptionGlobalsFile, the_last_of_two_equal_names_wins) {
    changes("itest_a; 1\nitest_a; 2\n");
    EXPECT_EQ(get_global_int("itest_a"), 2);
}

TEST_F(OptionGlobalsFile, names_are_compared_with_their_case) {
    set_global_int("ivl_resx", 640);
    changes("ivl_ResX; 800\n");
    EXPECT_EQ(get_global_int("ivl_resx"), 640);
}

TEST_F(OptionGlobalsFile, a_name_that_no_table_holds_is_reported_as_not_preset) {
    reported();
    changes("itest_unknown; 5\n");
    EXPECT_THAT(reported(), ElementsAre("REPORT: Global not preset properly: itest_unknown"));
}

TEST_F(OptionGlobalsFile, a_name_of_no_type_in_the_table_keeps_its_value) {
    global_variables.create_variable("xtest_other", OPTION_GLOBAL).set_double(3);
    EXPECT_FALSE(changes("xtest_other; 1\n"));
    EXPECT_EQ(global_variables.lookup("xtest_other")->get_double(), 3);
}

TEST_F(OptionGlobalsFile, a_line_of_a_megabyte_is_read_whole) {
    const std::string text(1 << 20, 'x');
    changes("stest_text; " + text + "\n");
    EXPECT_EQ(get_global_string("stest_text"), text);
}

TEST_F(OptionGlobalsFile, a_name_that_no_table_holds_survives_from_file_to_file) {
    changes("itest_unknown; 5\n");
    EXPECT_THAT(written(), HasSubstr("itest_unknown; 5\r\n"));
}

TEST_F(OptionGlobalsFile, a_doubled_backslash_is_one_and_is_doubled_again) {
    changes("stest_path; c:\\\\tmp\\\\x\n");
    EXPECT_EQ(get_global_string("stest_path"), "c:\\tmp\\x");
    EXPECT_THAT(written(), HasSubstr("stest_path; c:\\\\tmp\\\\x\r\n"));
}

TEST_F(OptionGlobalsFile, only_pairs_of_backslashes_become_one) {
    changes("stest_path; a\\b\\\\\\c\\\n"); // one, three, and one at the end
    EXPECT_EQ(get_global_string("stest_path"), "a\\b\\\\c\\");
}

TEST_F(OptionGlobalsFile, a_line_break_in_a_text_comes_back_as_a_backslash_and_n) {
    set_global_string("stest_text", "one\r\ntwo");
    const std::string text = written();
    EXPECT_THAT(text, HasSubstr("stest_text; one\\ntwo\r\n"));
    changes(text);
    EXPECT_EQ(get_global_string("stest_text"), "one\\ntwo");
}

TEST_F(OptionGlobalsFile, image_filters_are_left_out_unless_they_are_remembered) {
    set_global_bool("bvl_remember_filters", false);
    changes("ivl_image_filters; 3\nsvl_image_filters; blur\n");
    set_global_bool("bvl_remember_filters", false);
    EXPECT_THAT(written(), Not(HasSubstr("vl_image_filters")));
    set_global_bool("bvl_remember_filters", true);
    EXPECT_THAT(written(), HasSubstr("ivl_image_filters; 3\r\n"));
    EXPECT_THAT(written(), HasSubstr("svl_image_filters; blur\r\n"));
}

TEST_F(OptionGlobalsFile, a_double_that_differs_in_the_tenth_digit_counts_as_changed) {
    set_global_double("rtest_size", 0.12345678901);
    EXPECT_TRUE(changes("rtest_size; 0.123456789\n"));
    EXPECT_EQ(get_global_double("rtest_size"), 0.123456789);
}

TEST_F(OptionGlobalsFile, a_double_near_zero_is_written_as_it_is) {
    set_global_double("rtest_size", 1e-9);
    EXPECT_THAT(written(), HasSubstr("rtest_size; 1e-09\r\n"));
}

TEST_F(OptionGlobalsFile, a_point_that_is_nearly_the_same_is_left_alone) {
    set_global_fpt("ptest_point", {1, 2, 3});
    EXPECT_FALSE(changes("ptest_point; (1.00000009, 1.99999991, 3.00000009)\n"));
    EXPECT_EQ(get_global_fpt("ptest_point"), (fpt{1, 2, 3}));
    EXPECT_TRUE(changes("ptest_point; (1, 2, 3.0000002)\n"));
    EXPECT_EQ(get_global_fpt("ptest_point"), (fpt{1, 2, 3.0000002}));
}

TEST_F(OptionGlobalsFile, a_colour_written_as_a_number_reads_back_as_white) {
    EXPECT_TRUE(changes("cvl_layer_color; 16777215\n")); // its default is 0xe4e4e4
    EXPECT_EQ(get_global_COLORREF("cvl_layer_color"), 0xffffffu);
    EXPECT_FALSE(changes(written()));
}

TEST_F(OptionGlobalsFile, a_colour_is_written_as_a_plain_number) {
    set_global_COLORREF("ctest_color", 0xffffff);
    EXPECT_THAT(written(), HasSubstr("ctest_color; 16777215\r\n"));
}

TEST_F(OptionGlobalsFile, a_setting_of_the_profile_is_set_and_not_written) {
    global_variables.create_variable("itest_own", SAVE_PROFILE);
    changes("itest_own; 5\n");
    EXPECT_EQ(get_global_int("itest_own"), 5);
    EXPECT_THAT(written(), Not(HasSubstr("itest_own")));
}

TEST_F(OptionGlobalsFile, a_setting_of_the_profile_is_stored_there) {
    global_variables.create_variable("itest_own", SAVE_PROFILE);
    changes("itest_own; 5\n");
    EXPECT_THAT(profile.written, ElementsAre("Globals/itest_own=int 5"));
}

TEST_F(OptionGlobalsFile, only_three_save_types_are_written) {
    for (const save_types saved : {SAVE_UNKNOWN, SAVE_NONE, SAVE_PROFILE, SAVE_DATABASE, OPTION_GLOBAL,
                                   OPTION_NON_DATABASE_GLOBAL, SAVE_NONE_6, SAVE_NONE_7, SAVE_NONE_8})
        global_variables.create_variable("itest_saved_" + std::to_string(saved), saved);
    const std::string text = written();
    for (const int saved : {0, 3, 4})
        EXPECT_THAT(text, HasSubstr("itest_saved_" + std::to_string(saved) + "; 0\r\n"));
    for (const int saved : {1, 2, 5, 6, 7, 8})
        EXPECT_THAT(text, Not(HasSubstr("itest_saved_" + std::to_string(saved))));
}

TEST_F(OptionGlobalsFile, a_colour_is_written_with_all_32_bits) {
    global_variables.create_variable("ctest_color", OPTION_GLOBAL).set_int(-2);
    EXPECT_THAT(written(), HasSubstr("ctest_color; -2\r\n"));
}

TEST_F(OptionGlobalsFile, a_point_and_a_text_have_the_forms_of_their_types) {
    set_global_fpt("ptest_point", {1, -2.5, 1e-9});
    set_global_string("stest_text", "a b");
    set_global_bool("btest_flag", true);
    const std::string text = written();
    EXPECT_THAT(text, HasSubstr("ptest_point; (1, -2.5, 1e-09)\r\n"));
    EXPECT_THAT(text, HasSubstr("stest_text; a b\r\n"));
    EXPECT_THAT(text, HasSubstr("btest_flag; 1\r\n"));
}

TEST_F(OptionGlobalsFile, lines_come_out_sorted) {
    changes("itest_b; 1\nitest_a; 2\n");
    const std::string text = written();
    EXPECT_LT(text.find("itest_a"), text.find("itest_b"));
}

TEST_F(OptionGlobalsFile, a_name_of_no_type_is_reported_when_writing) {
    global_variables.create_variable("xtest_other", OPTION_GLOBAL);
    trace.take();
    EXPECT_THAT(written(), Not(HasSubstr("xtest_other")));
    EXPECT_THAT(trace.take(), ElementsAre(traced_line{"qlw_globals", "write_option_globals_to_open_file",
                                                      "*** ERROR: Unknown option_global: xtest_other"}));
}

TEST_F(OptionGlobalsFile, a_missing_file_changes_nothing) {
    reported();
    read_option_globals(folder / "missing.txt");
    read_option_globals("");
    EXPECT_THAT(reported(), testing::IsEmpty());
}

TEST_F(OptionGlobalsFile, a_file_is_read_by_its_name) {
    read_option_globals(folder.write("in.txt", "ivl_resx; 800\n"));
    EXPECT_EQ(get_global_int("ivl_resx"), 800);
}

TEST_F(OptionGlobalsFile, a_file_that_cannot_be_opened_is_reported_and_not_shown) {
    const std::string name = folder.make_folder("in.txt");
    trace.take();
    read_option_globals(name);
    const std::vector<traced_line> lines = trace.take();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_THAT(lines[0].text, testing::StartsWith("REPORT: File not opened: " + name + ": "));
    EXPECT_THAT(lines[0].text, MatchesPattern(".*: option_globals_file [0-9]+"));
    EXPECT_FALSE(lines[0].is_shown);
}

TEST_F(OptionGlobalsFile, a_file_that_is_not_open_is_reported) {
    trace.take();
    cl_output_file closed;
    write_option_globals_to_open_file(closed);
    EXPECT_THAT(trace.take(), ElementsAre(traced_line{"qlw_globals", "write_option_globals_to_open_file",
                                                      "*** ERROR: Options Global FIle not found", in_a_dialog}));
}

TEST_F(OptionGlobalsFile, the_example_of_the_documentation_is_read_and_written_as_it_says) {
    const std::vector<std::string> examples = page_examples("option-file.md");
    ASSERT_EQ(examples.size(), 2u);
    EXPECT_TRUE(changes(examples[0]));
    EXPECT_EQ(get_global_int("ivl_resy"), 600);
    EXPECT_FALSE(get_global_bool("bvl_show_bulbs"));
    EXPECT_EQ(get_global_double("rvl_edge_line_width"), 1.5);
    EXPECT_EQ(get_global_COLORREF("cvl_layer_color"), 255u);
    EXPECT_EQ(get_global_string("scomm_note"), "C:\\rooms; attic");
    EXPECT_EQ(get_global_fpt("pcomm_origin"), (fpt{1, 2.5, -3}));

    const std::string text = "\r\n" + written();
    std::size_t at = 0;
    std::istringstream wanted(examples[1]);
    for (std::string line; std::getline(wanted, line);) {
        const std::size_t found = text.find("\r\n" + line + '\n', at);
        ASSERT_NE(found, std::string::npos) << line << " does not follow";
        at = found + line.size();
    }
}

} // namespace
