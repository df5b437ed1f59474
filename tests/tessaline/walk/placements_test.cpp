// What becomes of a placement that has a level, before anything of it is written.

#include "tessaline/walk/placements.h"

#include "tests/tessaline/reader_fixture.h"

#include <gtest/gtest.h>

namespace {

using enum placement_decision;

class PlacementDecision : public reader_test {
protected:
    placement_decision seen() const { return decision_on_level(light, reader.blocks, false); }
    placement_decision on_a_layer_that_is_off() const { return decision_on_level(light, reader.blocks, true); }

    cl_slp_light light;
};

TEST_F(PlacementDecision, what_is_no_lamp_is_walked_and_on_a_layer_that_is_off_leaves_its_level) {
    EXPECT_EQ(seen(), walk);
    EXPECT_EQ(on_a_layer_that_is_off(), leave_level);
}

TEST_F(PlacementDecision, a_lamp_with_a_shape_is_walked_as_one_on_any_layer) {
    for (const char* const type : {"rect", "spot_beams", "bulb_glow", "anything"}) {
        light.lamp_type = type;
        EXPECT_EQ(seen(), walk_as_lamp) << type;
        EXPECT_EQ(on_a_layer_that_is_off(), walk_as_lamp) << type;
    }
}

TEST_F(PlacementDecision, a_lamp_by_number_has_a_shape) {
    for (const int number : {1, 2, 3, 4, -1}) {
        light.light_type = number;
        EXPECT_EQ(seen(), walk_as_lamp) << number;
    }
}

TEST_F(PlacementDecision, a_bulb_or_a_spot_is_a_light_ahead_of_its_content_or_of_a_level_that_stays) {
    for (const char* const type : {"bulb", "spot"}) {
        light.lamp_type = type;
        EXPECT_EQ(seen(), light_and_walk) << type;
        EXPECT_EQ(on_a_layer_that_is_off(), light_and_leave_level) << type;
    }
}

// What an object says holds for all that is inside it.
TEST_F(PlacementDecision, a_lamp_inside_a_bulb_is_a_direct_light_too) {
    light.direct_light = true;
    light.lamp_type = "rect";
    EXPECT_EQ(seen(), light_and_walk);
}

TEST_F(PlacementDecision, all_that_is_inside_a_lamp_block_is_walked_and_nothing_is_a_lamp) {
    reader.blocks.open_lamp_block(0, false, 0);
    for (const char* const type : {"", "rect", "bulb"}) {
        light.lamp_type = type;
        EXPECT_EQ(seen(), walk) << type;
        EXPECT_EQ(on_a_layer_that_is_off(), walk) << type;
    }
}

TEST_F(PlacementDecision, among_the_beams_of_a_lamp_nothing_is_a_lamp) {
    reader.blocks.want_beam_pass();
    ASSERT_TRUE(reader.blocks.begin_beam_pass());
    for (const char* const type : {"", "rect", "bulb"}) {
        light.lamp_type = type;
        EXPECT_EQ(seen(), walk) << type;
        EXPECT_EQ(on_a_layer_that_is_off(), leave_level) << type;
    }
}

} // namespace
