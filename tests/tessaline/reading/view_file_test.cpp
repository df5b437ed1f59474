// What the parent's view file says, and which file that is.

#include "tessaline/reading/view_file.h"

#include "tests/tessaline/run_fixture.h"

#include "tests/support/page_examples.h"
#include "tests/support/trace_capture.h"

namespace {

using sketchup::model_builder;

// The view after these lines, all of which belong to it.
camera_view view_of(std::initializer_list<const char*> lines) {
    camera_view view;
    for (const char* line : lines)
        EXPECT_TRUE(read_view_line(line, view)) << line;
    return view;
}

TEST(ViewLine, every_key_fills_its_field) {
    const camera_view view =
        view_of({"EYE;(1,2,3)", "TARGETX;4", "TARGETY;5.5", "TARGETZ;-6", "FOV;35", "CAMERATYPE;ortho", "M_D;0.1",
                 "M_L;0.2", "M_R;0.3", "M_B;0.4", "M_T;0.5", "PIXELWIDTH;800", "PIXELHEIGHT;600", "ORTHOHEIGHT;12.5"});
    EXPECT_EQ(view.eye, (fpt{1, 2, 3}));
    EXPECT_EQ(view.target, (fpt{4, 5.5, -6}));
    EXPECT_TRUE(view.target_seen);
    EXPECT_EQ(view.field_of_view, 35);
    EXPECT_EQ(view.camera_type, "ortho");
    EXPECT_EQ(view.margin_d, 0.1);
    EXPECT_EQ(view.margin_l, 0.2);
    EXPECT_EQ(view.margin_r, 0.3);
    EXPECT_EQ(view.margin_b, 0.4);
    EXPECT_EQ(view.margin_t, 0.5);
    EXPECT_EQ(view.pixel_width, 800);
    EXPECT_EQ(view.pixel_height, 600);
    EXPECT_EQ(view.ortho_height, 12.5);
}

TEST(ViewLine, the_eye_can_come_one_coordinate_at_a_time) {
    EXPECT_EQ(view_of({"EYEX;1", "EYEY;2", "EYEZ;3"}).eye, (fpt{1, 2, 3}));
    EXPECT_EQ(view_of({"EYE;(1,2,3)", "EYEY;9"}).eye, (fpt{1, 9, 3}));
}

TEST(ViewLine, a_key_in_lower_case_is_honoured) {
    EXPECT_EQ(view_of({"fov;35"}).field_of_view, 35);
    EXPECT_EQ(view_of({"PixelHeight;600"}).pixel_height, 600);
}

TEST(ViewLine, a_key_is_not_trimmed) {
    EXPECT_EQ(view_of({" FOV;35", "FOV ;36"}).field_of_view, 0);
}

TEST(ViewLine, unknown_keys_comments_and_lines_without_a_key_change_nothing) {
    const camera_view view = view_of({"ASPECT;2", "#FOV;35", "FOV", "", ";FOV;35", "FOVX;35"});
    EXPECT_EQ(view.field_of_view, 0);
}

TEST(ViewLine, the_key_ends_at_the_first_separator) {
    EXPECT_EQ(view_of({"CAMERATYPE;a;b"}).camera_type, "a;b");
}

TEST(ViewLine, the_camera_type_stays_as_it_stands) {
    EXPECT_EQ(view_of({"CAMERATYPE; Ortho "}).camera_type, " Ortho ");
}

TEST(ViewLine, a_height_of_zero_leaves_the_earlier_pixel_height) {
    EXPECT_EQ(view_of({"PIXELHEIGHT;600", "HEIGHT;0"}).pixel_height, 600);
    EXPECT_EQ(view_of({"PIXELHEIGHT;600", "HEIGHT;700"}).pixel_height, 700);
    EXPECT_EQ(view_of({"HEIGHT;600", "PIXELHEIGHT;-1"}).pixel_height, 600);
}

TEST(ViewLine, a_width_or_an_ortho_height_that_is_not_above_zero_is_not_taken) {
    EXPECT_EQ(view_of({"PIXELWIDTH;800", "PIXELWIDTH;0", "PIXELWIDTH;-5"}).pixel_width, 800);
    EXPECT_EQ(view_of({"ORTHOHEIGHT;2", "ORTHOHEIGHT;0", "ORTHOHEIGHT;-1", "ORTHOHEIGHT;nan"}).ortho_height, 2);
}

TEST(ViewLine, a_target_y_alone_does_not_mean_that_a_target_was_seen) {
    const camera_view view = view_of({"TARGETY;5", "TARGETZ;6"});
    EXPECT_FALSE(view.target_seen);
    EXPECT_EQ(view.target, (fpt{0, 5, 6}));
}

TEST(ViewLine, values_that_are_no_numbers_count_as_zero) {
    const camera_view view = view_of({"FOV;35", "FOV;wide", "EYEX;1", "EYEX;", "PIXELWIDTH;many"});
    EXPECT_EQ(view.field_of_view, 0);
    EXPECT_EQ(view.eye.x, 0);
    EXPECT_EQ(view.pixel_width, 0);
}

TEST(ViewLine, a_pixel_size_with_a_fraction_loses_it) {
    EXPECT_EQ(view_of({"PIXELWIDTH;800.9"}).pixel_width, 800);
}

TEST(ViewLine, the_end_of_the_view_is_told) {
    camera_view view;
    EXPECT_FALSE(read_view_line("END_CURRENT;", view));
    EXPECT_FALSE(read_view_line("end_current;anything", view));
    EXPECT_TRUE(read_view_line("END_CURRENT", view)) << "a line without a separator is no key";
}

fpt eye_of(const char* line) {
    return view_of({line}).eye;
}

TEST(ViewPoint, brackets_and_blanks_are_optional) {
    for (const char* line : {"EYE;(1,2,3)", "EYE;1,2,3", "EYE;  ( 1 , 2 , 3 )  ", "EYE;(1,2,3", "EYE;1,2,3)"})
        EXPECT_EQ(eye_of(line), (fpt{1, 2, 3})) << line;
}

TEST(ViewPoint, two_numbers_are_x_and_z) {
    EXPECT_EQ(eye_of("EYE;(1,2)"), (fpt{1, 0, 2}));
}

TEST(ViewPoint, a_single_number_is_no_point) {
    EXPECT_EQ(eye_of("EYE;(5)"), (fpt{0, 0, 0}));
    EXPECT_EQ(eye_of("EYE;5"), (fpt{0, 0, 0}));
    EXPECT_EQ(eye_of("EYE;"), (fpt{0, 0, 0}));
}

TEST(ViewPoint, a_missing_second_number_leaves_z_unread) {
    EXPECT_EQ(eye_of("EYE;(1,,3)"), (fpt{1, 0, 0})); // ",3" is the number behind the first comma, and none
    EXPECT_EQ(eye_of("EYE;(,2,3)"), (fpt{0, 0, 0}));
}

TEST(ViewPoint, a_fourth_number_is_not_read) {
    EXPECT_EQ(eye_of("EYE;(1,2,3,4)"), (fpt{1, 2, 3}));
}

TEST(ViewPoint, a_later_point_replaces_all_of_an_earlier_one) {
    EXPECT_EQ(view_of({"EYE;(1,2,3)", "EYE;(7,8)"}).eye, (fpt{7, 0, 8}));
}

TEST(ViewFile, the_view_is_taken_before_the_pages) {
    temporary_folder batch;
    batch.write("zyn_view.txt", "FOV;35\r\n");
    batch.write("zyn_pages.txt", "FOV;45\r\n");
    EXPECT_EQ(read_view_file(batch.name()).field_of_view, 35);
}

TEST(ViewFile, of_three_pages_only_the_first_counts) {
    temporary_folder batch;
    batch.write("zyn_pages.txt", "FOV;45\r\nEND_CURRENT;\r\nFOV;55\r\nHEIGHT;700\r\nEND_CURRENT;\r\nFOV;65\r\n");
    const camera_view view = read_view_file(batch.name());
    EXPECT_EQ(view.field_of_view, 45);
    EXPECT_EQ(view.pixel_height, 0);
}

TEST(ViewFile, lines_may_end_without_a_carriage_return) {
    temporary_folder batch;
    batch.write("zyn_view.txt", "CAMERATYPE;ortho\nHEIGHT;700");
    const camera_view view = read_view_file(batch.name());
    EXPECT_EQ(view.camera_type, "ortho");
    EXPECT_EQ(view.pixel_height, 700);
}

TEST(ViewFile, without_a_file_the_view_is_all_zero) {
    temporary_folder batch;
    const camera_view view = read_view_file(batch.name());
    EXPECT_EQ(view.eye, fpt());
    EXPECT_EQ(view.target, fpt());
    EXPECT_FALSE(view.target_seen);
    EXPECT_EQ(view.camera_type, "");
    EXPECT_EQ(view.pixel_width + view.pixel_height, 0);
    EXPECT_EQ(view.field_of_view + view.ortho_height, 0);
}

TEST(ViewFile, a_file_that_cannot_be_read_gives_no_view) {
    temporary_folder batch;
    batch.make_folder("zyn_view.txt");
    batch.write("zyn_pages.txt", "FOV;45\n"); // not asked: the other one exists
    const trace_capture trace;
    EXPECT_EQ(read_view_file(batch.name()).field_of_view, 0);
    EXPECT_THAT(trace.text(), testing::HasSubstr(": view_file ")) << "who asked for it";
}

TEST(ViewFile, the_example_of_the_documentation_is_read_as_it_says) {
    temporary_folder batch;
    batch.write("zyn_view.txt", page_examples("view-file.md").at(0));
    const camera_view view = read_view_file(batch.name());
    EXPECT_EQ(view.camera_type, "perspective");
    EXPECT_EQ(view.eye, (fpt{7.62, -7.62, 5.08}));
    EXPECT_EQ(view.target, (fpt{7.62, 6.096, 0.508}));
    EXPECT_EQ(view.field_of_view, 40);
    EXPECT_EQ(view.pixel_width, 600);
    EXPECT_EQ(view.pixel_height, 420);
}

class ViewOfARun : public run_fixture {};

TEST_F(ViewOfARun, comes_from_the_batch_folder) {
    batch.write("zyn_view.txt", "EYE;(1,2,3)\r\nFOV;35\r\n");
    model_builder m;
    body_of(m);
    EXPECT_EQ(reader.view.eye, (fpt{1, 2, 3}));
    EXPECT_EQ(reader.view.field_of_view, 35);
    EXPECT_EQ(batch.read("zyn_view.txt"), "EYE;(1,2,3)\r\nFOV;35\r\n");
}

TEST_F(ViewOfARun, may_be_missing) {
    model_builder m;
    body_of(m);
    EXPECT_EQ(result, 1);
    EXPECT_EQ(reader.view.pixel_height, 0);
}

} // namespace
