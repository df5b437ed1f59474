// How collected edges stand at the end of the stream.

#include "tests/tessaline/reader_fixture.h"

#include <gmock/gmock.h>

namespace {

// One corner of a beam.
std::string corner(const std::string& normal, const std::string& position, int number) {
    return lines({"NORM;" + normal, "VERT;" + position, "ADDV;" + std::to_string(number)});
}

std::string two_triangles(int first) {
    const auto at = [first](int place) { return std::to_string(first + place); };
    return lines({"FACE;" + at(0) + "," + at(1) + "," + at(2), "FACE;" + at(2) + "," + at(3) + "," + at(0)});
}

const std::string beginning = lines({"#;", "#;EDGES"});
const std::string head = lines({"#;MESH for Edges", "MESH;", "TLAY;Layer0", "CULL;0", "MATL;1", "MAT2;1"});
const std::string close = lines({"EMSH; Edges"});

// A beam of half-width 0.005 m along x, from 0 to 2.54 m: a is (0,-0.005,0), b is (0,0,-0.005).
std::string level_beam(int first = 0) {
    const std::string a = "(0,-1,0)";
    const std::string b = "(0,0,-1)";
    return corner(a, "(0,-0.005,0.005)", first) + corner(a, "(0,-0.005,-0.005)", first + 1) +
           corner(a, "(2.54,-0.005,-0.005)", first + 2) + corner(a, "(2.54,-0.005,0.005)", first + 3) +
           two_triangles(first) + corner(a, "(0,0.005,0.005)", first + 4) + corner(a, "(0,0.005,-0.005)", first + 5) +
           corner(a, "(2.54,0.005,-0.005)", first + 6) + corner(a, "(2.54,0.005,0.005)", first + 7) +
           two_triangles(first + 4) + corner(b, "(0,0.005,-0.005)", first + 8) +
           corner(b, "(0,-0.005,-0.005)", first + 9) + corner(b, "(2.54,-0.005,-0.005)", first + 10) +
           corner(b, "(2.54,0.005,-0.005)", first + 11) + two_triangles(first + 8) +
           corner(b, "(0,0.005,0.005)", first + 12) + corner(b, "(0,-0.005,0.005)", first + 13) +
           corner(b, "(2.54,-0.005,0.005)", first + 14) + corner(b, "(2.54,0.005,0.005)", first + 15) +
           two_triangles(first + 12);
}

class EdgeBlock : public reader_test {
protected:
    EdgeBlock() { set_global_double("rvl_edge_line_width", 2); }

    // 4.2 m over 420 pixels, 2 pixels wide: 0.02 m, of which a quarter is the half-width.
    void look_in_parallel() {
        reader.view.camera_type = "ortho";
        reader.view.ortho_height = 4.2;
        reader.view.pixel_height = 420;
    }

    static void keep(const fpt& start, const fpt& end) { edge_records.push_back({.start = start, .end = end}); }
    static void keep_level_edge() { keep({0, 0, 0}, {100, 0, 0}); }

    std::string written() {
        reader.write_edge_lines();
        return stream_text();
    }
};

TEST_F(EdgeBlock, without_edges_not_even_the_comments_are_written) {
    block_seen = true;
    EXPECT_EQ(written(), "");
    EXPECT_TRUE(block_seen);
}

TEST_F(EdgeBlock, a_level_edge_in_a_parallel_view_becomes_a_beam_of_four_sides) {
    look_in_parallel();
    keep_level_edge();
    EXPECT_EQ(written(), beginning + head + level_beam() + close);
    EXPECT_FALSE(block_seen);
}

TEST_F(EdgeBlock, a_vertical_edge_has_its_sides_by_the_x_axis) {
    look_in_parallel();
    keep({0, 0, 0}, {0, 0, 100}); // a = (0,0.005,0), b = (-0.005,0,0)
    const std::string a = "(0,1,0)";
    const std::string b = "(-1,0,0)";
    EXPECT_EQ(written(), beginning + head + corner(a, "(0.005,0.005,0)", 0) + corner(a, "(-0.005,0.005,0)", 1) +
                             corner(a, "(-0.005,0.005,2.54)", 2) + corner(a, "(0.005,0.005,2.54)", 3) +
                             two_triangles(0) + corner(a, "(0.005,-0.005,0)", 4) + corner(a, "(-0.005,-0.005,0)", 5) +
                             corner(a, "(-0.005,-0.005,2.54)", 6) + corner(a, "(0.005,-0.005,2.54)", 7) +
                             two_triangles(4) + corner(b, "(-0.005,-0.005,0)", 8) + corner(b, "(-0.005,0.005,0)", 9) +
                             corner(b, "(-0.005,0.005,2.54)", 10) + corner(b, "(-0.005,-0.005,2.54)", 11) +
                             two_triangles(8) + corner(b, "(0.005,-0.005,0)", 12) + corner(b, "(0.005,0.005,0)", 13) +
                             corner(b, "(0.005,0.005,2.54)", 14) + corner(b, "(0.005,-0.005,2.54)", 15) +
                             two_triangles(12) + close);
}

TEST_F(EdgeBlock, the_second_edge_of_a_block_counts_on) {
    look_in_parallel();
    keep_level_edge();
    keep_level_edge();
    EXPECT_EQ(written(), beginning + head + level_beam() + level_beam(16) + close);
}

TEST_F(EdgeBlock, a_block_that_was_opened_before_is_closed_once_more) {
    look_in_parallel();
    keep_level_edge();
    block_seen = true;
    reader.blocks.end_face_pass(77, true); // a lamp of its own that could not be ended
    EXPECT_EQ(written(), beginning + close + head + level_beam() + close);
    EXPECT_EQ(reader.blocks.state().vertex_base, 0);
}

TEST_F(EdgeBlock, a_perspective_view_makes_lines_as_thick_as_they_are_far) {
    reader.view.pixel_height = 420;
    reader.view.field_of_view = 0.5235987755982988; // its sine as it stands, in radians, is 0.5
    reader.view.eye = {1.27, 0, 8.4};               // from the midpoint 8.4 m: 0.5 x 8.4 x 2 / 420 = 0.02 m
    keep_level_edge();
    EXPECT_EQ(written(), beginning + head + level_beam() + close);
}

// The sine of 35 radians is -0.428182669: the beam turns inside out, at 0.428182669 x 8.4 x 2 / 420 / 4 m.
TEST_F(EdgeBlock, the_field_of_view_of_a_beam_is_not_converted_from_degrees) {
    reader.view.pixel_height = 420;
    reader.view.field_of_view = 35;
    reader.view.eye = {1.27, 0, 8.4};
    keep_level_edge();
    const std::string a = "(0,1,0)";
    const std::string first_side =
        corner(a, "(0,0.00428182669,-0.00428182669)", 0) + corner(a, "(0,0.00428182669,0.00428182669)", 1) +
        corner(a, "(2.54,0.00428182669,0.00428182669)", 2) + corner(a, "(2.54,0.00428182669,-0.00428182669)", 3);
    EXPECT_THAT(written(), testing::StartsWith(beginning + head + first_side));
}

TEST_F(EdgeBlock, without_a_view_lines_have_no_thickness_and_no_normals) {
    set_global_int("ivl_resy", 420);
    keep_level_edge();
    const std::string start = "(0,0,0)";
    const std::string end = "(2.54,0,0)";
    std::string sides;
    for (int first = 0; first != 16; first += 4)
        sides += corner("(0,0,0)", start, first) + corner("(0,0,0)", start, first + 1) +
                 corner("(0,0,0)", end, first + 2) + corner("(0,0,0)", end, first + 3) + two_triangles(first);
    EXPECT_EQ(written(), beginning + head + sides + close);
}

TEST_F(EdgeBlock, a_view_without_a_pixel_height_takes_that_of_the_settings_and_keeps_it) {
    set_global_int("ivl_resy", 420);
    reader.view.camera_type = "ortho";
    reader.view.ortho_height = 4.2;
    keep_level_edge();
    EXPECT_EQ(written(), beginning + head + level_beam() + close);
    EXPECT_EQ(reader.view.pixel_height, 420);
}

TEST_F(EdgeBlock, a_pixel_height_of_the_view_wins_over_the_settings) {
    set_global_int("ivl_resy", 1000);
    look_in_parallel();
    keep_level_edge();
    EXPECT_EQ(written(), beginning + head + level_beam() + close);
}

TEST_F(EdgeBlock, without_any_pixel_height_what_is_no_number_leaves_the_edge_out) {
    set_global_int("ivl_resy", 0);
    keep_level_edge(); // 0 x distance / 0
    EXPECT_EQ(written(), beginning);
}

TEST_F(EdgeBlock, without_any_pixel_height_an_infinite_size_leaves_the_edge_out) {
    set_global_int("ivl_resy", 0);
    reader.view.camera_type = "ortho";
    reader.view.ortho_height = 1;
    keep_level_edge();
    EXPECT_EQ(written(), beginning);
}

TEST_F(EdgeBlock, without_any_pixel_height_a_size_of_minus_infinity_lets_the_edge_through) {
    set_global_int("ivl_resy", 0);
    reader.view.field_of_view = 35;
    keep_level_edge();
    // a is (0, -2.54, 0) times minus infinity, b (0, 0, -6.4516) times it; 0 times it is no number.
    std::string sides;
    for (int first = 0; first != 16; first += 4) {
        for (int at = 0; at != 4; ++at)
            sides += corner(first < 8 ? "(nan,inf,nan)" : "(nan,nan,inf)", "(nan,nan,nan)", first + at);
        sides += two_triangles(first);
    }
    EXPECT_EQ(written(), beginning + head + sides + close);
}

TEST_F(EdgeBlock, the_camera_type_is_compared_exactly) {
    look_in_parallel();
    reader.view.camera_type = "Ortho"; // a perspective view then, of the field of view 0
    keep_level_edge();
    EXPECT_THAT(written(), testing::HasSubstr(corner("(0,0,0)", "(2.54,0,0)", 2)));
}

// Half of 0.02 m. 0.39370078 in is 0.00999999981 m, 0.39370079 in is 0.010000000066 m.
TEST_F(EdgeBlock, an_edge_no_longer_than_half_its_size_is_left_out) {
    look_in_parallel();
    keep({0, 0, 0}, {0.39370078, 0, 0});
    EXPECT_EQ(written(), beginning);
}

TEST_F(EdgeBlock, an_edge_longer_than_half_its_size_is_written) {
    look_in_parallel();
    keep({0, 0, 0}, {0.39370079, 0, 0});
    EXPECT_THAT(written(), testing::StartsWith(beginning + head));
}

TEST_F(EdgeBlock, a_close_is_due_at_the_end_even_if_all_edges_were_too_short) {
    look_in_parallel();
    keep({0, 0, 0}, {0.1, 0, 0});
    block_seen = true;
    EXPECT_EQ(written(), beginning + close);
    EXPECT_FALSE(block_seen);
}

TEST_F(EdgeBlock, the_first_block_holds_999_edges_and_those_too_short_do_not_count) {
    look_in_parallel();
    std::string expected = beginning + head;
    for (int i = 0; i != 999; ++i) {
        keep({0, 0, 0}, {0.1, 0, 0});
        keep_level_edge();
        expected += level_beam(16 * i);
    }
    expected += close + head;
    for (int i = 0; i != 1000; ++i) {
        keep_level_edge();
        expected += level_beam(16 * i);
    }
    keep_level_edge();
    expected += close + head + level_beam() + close;
    EXPECT_TRUE(written() == expected); // too long to print
}

TEST_F(EdgeBlock, the_width_is_that_of_the_setting) {
    look_in_parallel();
    reader.view.ortho_height = 2.1;
    set_global_double("rvl_edge_line_width", 4);
    keep_level_edge();
    EXPECT_EQ(written(), beginning + head + level_beam() + close);
}

TEST_F(EdgeBlock, for_a_document_the_width_comes_from_a_setting_that_only_an_option_file_has) {
    look_in_parallel();
    set_global_string("sqlw_extract_mode", "3dpdf");
    set_global_double("rvl_edge_line_width", 4);
    set_global_double("rvl_edge_lines", 2);
    keep_level_edge();
    EXPECT_EQ(written(), beginning + head + level_beam() + close);
}

TEST_F(EdgeBlock, for_a_document_without_that_setting_lines_have_no_thickness) {
    look_in_parallel();
    set_global_string("sqlw_extract_mode", "3dpdf");
    keep_level_edge();
    EXPECT_THAT(written(), testing::StartsWith(beginning + head + corner("(0,0,0)", "(0,0,0)", 0)));
}

TEST_F(EdgeBlock, in_an_animation_the_head_lists_the_layer) {
    theApp.is_doing_animation = true;
    open();
    look_in_parallel();
    keep_level_edge();
    EXPECT_EQ(written(),
              beginning + lines({"#;MESH for Edges", "MESH;", "TLAY;Layer0", "LYRS;0", "CULL;0", "MATL;1", "MAT2;1"}) +
                  level_beam() + close);
}

TEST_F(EdgeBlock, inside_an_open_lamp_no_block_opens) {
    look_in_parallel();
    open_lamp_block();
    keep_level_edge();
    EXPECT_EQ(written(), lamp_head + beginning + level_beam());
}

// ---- true lines

class EdgeBlockOfDocument : public EdgeBlock {
protected:
    EdgeBlockOfDocument() {
        theApp.extract_mode = "QLW 3D PDF";
        reader.view.pixel_height = 420;
        reader.view.field_of_view = 30; // degrees: the sine is 0.5
    }
};

TEST_F(EdgeBlockOfDocument, each_edge_is_a_block_of_its_own) {
    keep_level_edge();
    keep({10, 20, 30}, {10, 20, 130});
    block_seen = true;
    reader.blocks.end_face_pass(77, true); // a lamp of its own that could not be ended
    EXPECT_EQ(written(), beginning + lines({"#;", "MESH;", "EDGE;1", "TLAY;Edges", "EDG1;(0, 0, 0)", "EDG2;(100, 0, 0)",
                                            "EDGN;(0, 0, -1)", "EMSH;", "#;", "MESH;", "EDGE;1", "TLAY;Edges",
                                            "EDG1;(10, 20, 30)", "EDG2;(10, 20, 130)", "EDGN;(-1, 0, 0)", "EMSH;"}));
    EXPECT_TRUE(block_seen);
    EXPECT_EQ(reader.blocks.state().vertex_base, 0);
}

// From 2.54 / 2 m to the eye 4,200 m: 0.5 x 4200 x 2 / 420 = 10, which is compared with inches.
TEST_F(EdgeBlockOfDocument, the_size_in_metres_is_compared_with_the_length_in_inches) {
    reader.view.eye = {0, 0, 4200};
    keep({-4.99, 0, 0}, {4.99, 0, 0});
    keep({-5.01, 0, 0}, {5.01, 0, 0});
    EXPECT_EQ(written(), beginning + lines({"#;", "MESH;", "EDGE;1", "TLAY;Edges", "EDG1;(-5.01, 0, 0)",
                                            "EDG2;(5.01, 0, 0)", "EDGN;(0, 0, -1)", "EMSH;"}));
}

TEST_F(EdgeBlockOfDocument, a_parallel_view_is_measured_as_a_perspective_one) {
    reader.view.eye = {0, 0, 4200};
    reader.view.camera_type = "ortho";
    reader.view.ortho_height = 1;
    keep({-4.99, 0, 0}, {4.99, 0, 0});
    EXPECT_EQ(written(), beginning);
}

TEST_F(EdgeBlockOfDocument, without_a_view_every_edge_is_left_out) {
    set_global_int("ivl_resy", 420); // counts for beams only
    reader.view = {};
    keep_level_edge();
    EXPECT_EQ(written(), beginning);
    EXPECT_EQ(reader.view.pixel_height, 0);
}

} // namespace
