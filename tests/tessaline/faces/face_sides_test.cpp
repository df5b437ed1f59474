#include "tessaline/faces/face_sides.h"

#include <gtest/gtest.h>

namespace {

face_side side(int number, bool textured = false) {
    face_side result;
    result.number = number;
    result.textured = textured;
    return result;
}

} // namespace

TEST(FaceSides, the_setting_one_shows_both_sides_of_two_materials) {
    EXPECT_TRUE(wants_both_sides(1, 10, 11));
    EXPECT_FALSE(wants_both_sides(1, 10, 10)) << "the same material on both sides";
    EXPECT_FALSE(wants_both_sides(1, 0, 11));
    EXPECT_FALSE(wants_both_sides(1, 10, 0));
    EXPECT_FALSE(wants_both_sides(1, 9, 10));
}

TEST(FaceSides, the_setting_two_shows_both_sides_always_and_others_never) {
    EXPECT_TRUE(wants_both_sides(2, 0, 0));
    EXPECT_TRUE(wants_both_sides(2, 10, 10));
    for (const int setting : {0, 3, -1})
        EXPECT_FALSE(wants_both_sides(setting, 10, 11)) << setting;
}

TEST(FaceSides, a_material_on_the_back_only_shows_on_a_one_sided_face) {
    const face_plan plan = plan_for(side(0), side(12, true), 0, true);
    EXPECT_TRUE(plan.back_is_primary);
    EXPECT_EQ(plan.front.number, 12);
    EXPECT_TRUE(plan.front.textured);
    EXPECT_EQ(source_of_uvq(plan, face_pass::front), uvq_source::back);
}

TEST(FaceSides, the_back_is_primary_up_to_the_setting_one) {
    const face_plan plan = plan_for(side(0), side(12, true), 1, true);
    EXPECT_FALSE(plan.two_sided);
    EXPECT_TRUE(plan.back_is_primary);
    EXPECT_EQ(plan.front.number, 12);
    EXPECT_TRUE(plan.front.textured);
    EXPECT_TRUE(plan_for(side(0), side(12, true), -1, true).back_is_primary);
    EXPECT_FALSE(plan_for(side(0), side(12, true), 3, true).back_is_primary);
}

TEST(FaceSides, a_material_on_both_sides_shows_the_front) {
    const face_plan plan = plan_for(side(11, true), side(12, true), 0, true);
    EXPECT_FALSE(plan.back_is_primary);
    EXPECT_EQ(plan.front.number, 11);
    EXPECT_EQ(source_of_uvq(plan, face_pass::front), uvq_source::front);
}

TEST(FaceSides, the_setting_two_never_makes_the_back_primary) {
    EXPECT_FALSE(plan_for(side(0), side(12), 2, true).back_is_primary);
    // Nor does it on a face that opens an illuminated block and so is one-sided.
    const face_plan plan = plan_for(side(0), side(12), 2, false);
    EXPECT_FALSE(plan.two_sided);
    EXPECT_FALSE(plan.back_is_primary);
}

TEST(FaceSides, a_face_that_opens_an_illuminated_block_is_one_sided) {
    EXPECT_TRUE(plan_for(side(10), side(11), 1, true).two_sided);
    EXPECT_FALSE(plan_for(side(10), side(11), 1, false).two_sided);
}

TEST(FaceSides, each_pass_of_a_two_sided_face_asks_its_own_side) {
    const face_plan front_textured = plan_for(side(10, true), side(11), 1, true);
    EXPECT_EQ(source_of_uvq(front_textured, face_pass::front), uvq_source::front);
    EXPECT_EQ(source_of_uvq(front_textured, face_pass::back), uvq_source::none);
    const face_plan back_textured = plan_for(side(10), side(11, true), 1, true);
    EXPECT_EQ(source_of_uvq(back_textured, face_pass::front), uvq_source::none);
    EXPECT_EQ(source_of_uvq(back_textured, face_pass::back), uvq_source::back);
}

TEST(FaceSides, a_one_sided_face_with_a_texture_on_the_hidden_side_still_has_coordinates) {
    EXPECT_EQ(source_of_uvq(plan_for(side(10), side(11, true), 0, true), face_pass::front), uvq_source::front);
}

TEST(FaceSides, a_face_without_texture_has_no_coordinates) {
    EXPECT_EQ(source_of_uvq(plan_for(side(10), side(11), 0, true), face_pass::front), uvq_source::none);
    EXPECT_EQ(source_of_uvq(plan_for(side(0), side(0), 2, true), face_pass::back), uvq_source::none);
}

TEST(FaceSides, a_side_without_a_named_material_takes_over_that_of_the_other) {
    int painted = 0;
    face_side front;
    face_side back;
    front.material.ptr = &painted;
    share_material(front, back, true, false);
    EXPECT_EQ(back.material.ptr, &painted);

    front = face_side();
    share_material(front, back, false, true);
    EXPECT_EQ(front.material.ptr, &painted);
}

TEST(FaceSides, beam_faces_leave_the_block_of_their_lamp) {
    EXPECT_TRUE(is_gated_by_beam("qlw_lamp_beam_glow", true, false));
    EXPECT_FALSE(is_gated_by_beam("layer0", true, false));
}

TEST(FaceSides, the_beam_pass_writes_beam_faces_only) {
    EXPECT_TRUE(is_gated_by_beam("layer0", false, true));
    EXPECT_FALSE(is_gated_by_beam("qlw_lamp_beam_glow", false, true));
}

TEST(FaceSides, outside_of_lamps_every_layer_passes) {
    EXPECT_FALSE(is_gated_by_beam("qlw_lamp_beam_glow", false, false));
    EXPECT_FALSE(is_gated_by_beam("layer0", false, false));
}

TEST(FaceSides, beam_helpers_are_known_by_a_part_of_the_layer_name) {
    EXPECT_TRUE(is_beam_helper_layer("my qlw_lamp_beams 2"));
    EXPECT_FALSE(is_beam_helper_layer("qlw_lamp_beam_glow"));
}
