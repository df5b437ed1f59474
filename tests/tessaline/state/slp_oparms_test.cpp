#include "tessaline/state/slp_oparms.h"

#include "tessaline/walk/lamps.h"
#include "tests/support/trace_capture.h"
#include "tests/tessaline/reader_fixture.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

class LayerChain : public reader_test {
protected:
    LayerChain() { theApp.is_doing_animation = true; }
};

} // namespace

TEST(ParameterStack, a_fresh_record_has_nothing_set) {
    const cl_slp_oparms fresh;
    EXPECT_EQ(fresh.level, -1);
    EXPECT_EQ(fresh.layer_name, "");
    EXPECT_EQ(fresh.layer_chain, "");
    EXPECT_EQ(fresh.reflection, 0);
    EXPECT_TRUE(SUIsInvalid(fresh.material));
    EXPECT_FALSE(fresh.alpha_channel || fresh.daylight || fresh.monte_carlo || fresh.gather || fresh.caustics ||
                 fresh.thick || fresh.invisible);
    EXPECT_EQ(fresh.groundcover_file, "");
    EXPECT_EQ(fresh.groundcover_orientation, -1);
}

TEST(ParameterStack, a_fresh_lamp_shines_down_and_has_no_numbers) {
    const cl_slp_light fresh;
    EXPECT_EQ(fresh.lamp_type, "");
    EXPECT_EQ(fresh.direction, (fpt{0, 0, -1}));
    EXPECT_EQ(fresh.face_edge_vector, (fpt{0, 1, 0}));
    EXPECT_EQ(fresh.face_x_axis, (fpt{1, 0, 0}));
    for (const double number : {fresh.beam_length, fresh.beam_angle, fresh.field_angle, fresh.intensity,
                                fresh.intensity_lumens, fresh.length, fresh.size, fresh.width})
        EXPECT_EQ(number, -1.0);
    EXPECT_EQ(fresh.channel, -1);
    EXPECT_EQ(fresh.color, 0);
    EXPECT_EQ(fresh.light_direction, -1);
    EXPECT_EQ(fresh.light_orientation, -1);
    EXPECT_EQ(fresh.light_type, 0);
    EXPECT_EQ(fresh.ies_pattern, -1);
    EXPECT_FALSE(fresh.use_object_color || fresh.hide_locked || fresh.hide || fresh.treat_as_single_light ||
                 fresh.direct_light);
}

TEST(ParameterStack, the_first_level_is_level_zero_and_fresh) {
    cl_oparms_array stack;
    const cl_slp_oparms* const bottom = stack.push();
    EXPECT_EQ(bottom->level, 0);
    EXPECT_EQ(bottom->light.intensity, -1.0);
    EXPECT_EQ(stack.size(), 1);
}

TEST(ParameterStack, a_new_level_copies_the_one_above_it) {
    cl_oparms_array stack;
    cl_slp_oparms* const group = stack.push();
    group->layer_name = "Walls";
    group->light.lamp_type = "rect_glow";
    group->light.intensity = 60;
    group->groundcover_file = "grass.orn";
    const cl_slp_oparms* const face = stack.push();
    EXPECT_EQ(face->level, 1);
    EXPECT_EQ(face->layer_name, "Walls");
    EXPECT_EQ(face->light.intensity, 60);
    EXPECT_EQ(face->groundcover_file, "grass.orn");
    EXPECT_TRUE(is_lamp(face->light)) << "what is inside a lamp counts as a lamp too";
}

TEST(ParameterStack, what_a_level_says_does_not_reach_its_neighbours) {
    cl_oparms_array stack;
    stack.push();
    stack.push()->light.channel = 5;
    stack.pop();
    EXPECT_EQ(stack.push()->light.channel, -1);
}

TEST(ParameterStack, a_level_stays_where_it_is_until_it_is_popped) {
    cl_oparms_array stack;
    const cl_slp_oparms* const bottom = stack.push();
    for (int i = 0; i != 1000; ++i)
        stack.push();
    EXPECT_EQ(stack.at(0), bottom);
    EXPECT_EQ(stack.at(1000)->level, 1000);
}

TEST(ParameterStack, popping_the_bottom_level_is_traced_and_leaves_it) {
    const trace_capture trace;
    cl_oparms_array stack;
    cl_slp_oparms* const bottom = stack.push();
    bottom->layer_name = "Walls";
    testing::internal::CaptureStderr();
    EXPECT_EQ(stack.pop(), bottom);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "an error for developers, without a dialog";
    EXPECT_EQ(bottom->layer_name, "Walls");
    EXPECT_EQ(stack.size(), 1);
    EXPECT_EQ(trace.text_without_line_numbers(),
              "slp_oparms(#): cl_oparms_array::pop():: *** ERROR: Trying to pop first oparms\n");
}

TEST(ParameterStack, popping_an_empty_stack_is_an_invalid_argument) {
    cl_oparms_array stack;
    EXPECT_THROW(stack.pop(), std::invalid_argument);
}

// Of four levels two can still be popped to: the top one and the one below it.
TEST(ParameterStack, levels_that_cannot_come_back_are_forgotten_and_still_counted) {
    cl_oparms_array stack;
    stack.push();
    stack.push();
    cl_slp_oparms* const below = stack.push();
    below->light.channel = 5;
    cl_slp_oparms* const top = stack.push();
    stack.forget_all_below(1);
    EXPECT_EQ(stack.size(), 4);
    EXPECT_EQ(stack.at(3), top);
    EXPECT_EQ(stack.at(2), below);
    EXPECT_THROW(stack.at(1), std::invalid_argument);
    EXPECT_EQ(stack.push()->level, 4);
    EXPECT_EQ(stack.pop(), top);
    EXPECT_EQ(stack.pop(), below);
    EXPECT_EQ(stack.push()->light.channel, 5);
    EXPECT_EQ(stack.size(), 4);
}

TEST(ParameterStack, a_stack_that_holds_no_more_than_can_come_back_forgets_nothing) {
    cl_oparms_array stack;
    cl_slp_oparms* const bottom = stack.push();
    stack.push();
    stack.forget_all_below(1);
    stack.forget_all_below(7);
    EXPECT_EQ(stack.at(0), bottom);
}

TEST(ParameterStack, popping_an_upper_level_traces_nothing) {
    const trace_capture trace;
    cl_oparms_array stack;
    cl_slp_oparms* const bottom = stack.push();
    stack.push();
    EXPECT_EQ(stack.pop(), bottom);
    EXPECT_EQ(trace.text(), "");
}

TEST(ParameterStack, an_index_outside_is_an_invalid_argument) {
    cl_oparms_array stack;
    stack.push();
    EXPECT_THROW(stack.at(1), std::invalid_argument);
    EXPECT_THROW(stack.at(-1), std::invalid_argument);
}

TEST_F(LayerChain, three_nested_groups_chain_their_layers_from_the_outermost_down) {
    for (const char* const name : {"one", "two", "three", "four", "five"})
        builder.layer(name); // 1 to 5, behind "Layer0"
    open();
    for (const char* const name : {"two", "five", "Layer0"}) {
        cl_slp_oparms* const level = oparms_array.push(); // a group: current_oparms is still its parent's
        set_layer(*level, name);
        current_oparms = level;
    }
    EXPECT_EQ(current_oparms->layer_chain, "2,5,0");
    EXPECT_EQ(current_oparms->layer_name, "Layer0");
}

TEST_F(LayerChain, an_instance_gives_the_same_chain_as_a_group) {
    builder.layer("one");
    builder.layer("two");
    open();
    for (const char* const name : {"one", "two"}) {
        current_oparms = oparms_array.push(); // an instance: current_oparms is the new level already
        set_layer(*current_oparms, name);
    }
    EXPECT_EQ(current_oparms->layer_chain, "1,2");
}

TEST_F(LayerChain, a_layer_that_the_model_lacks_keeps_the_inherited_chain) {
    builder.layer("one");
    open();
    set_layer(*current_oparms, "one");
    current_oparms = oparms_array.push();
    set_layer(*current_oparms, "missing");
    EXPECT_EQ(current_oparms->layer_name, "missing");
    EXPECT_EQ(current_oparms->layer_chain, "1");
}

// Only an animation writes chains. In any other run a level of a hidden layer may stay on the stack, and a chain would
// grow with each of them.
TEST_F(LayerChain, no_chain_is_kept_outside_an_animation) {
    theApp.is_doing_animation = false;
    builder.layer("one");
    open();
    current_oparms = oparms_array.push();
    set_layer(*current_oparms, "one");
    EXPECT_EQ(current_oparms->layer_name, "one");
    EXPECT_EQ(current_oparms->layer_chain, "");
}

// As a group on Layer0 in one without a layer's name, in one on "Walls", in one on "Doors".
TEST(InheritedLayer, is_the_nearest_one_that_has_a_name_and_is_not_layer0) {
    cl_oparms_array stack;
    set_layer(*stack.push(), "Doors");
    set_layer(*stack.push(), "Walls");
    cl_slp_oparms* const unnamed = stack.push();
    set_layer(*unnamed, "");
    cl_slp_oparms* const inner = stack.push();
    set_layer(*inner, "Layer0");
    EXPECT_EQ(inner->inherited_layer(), "Walls");
    EXPECT_EQ(stack.push()->inherited_layer(), "Walls") << "the level of a face names no layer of its own";
    stack.pop();
    EXPECT_EQ(stack.pop(), unnamed);
    EXPECT_EQ(unnamed->inherited_layer(), "Walls");
    EXPECT_EQ(stack.pop()->inherited_layer(), "Walls");
    EXPECT_EQ(stack.pop()->inherited_layer(), "Doors");
}

TEST(InheritedLayer, is_none_where_no_level_has_a_real_one) {
    cl_oparms_array stack;
    stack.push();
    EXPECT_EQ(stack.at(0)->inherited_layer(), "");
    set_layer(*stack.push(), "Layer0");
    set_layer(*stack.push(), "");
    EXPECT_EQ(stack.at(2)->inherited_layer(), "");
}

TEST(InheritedLayer, outlives_the_levels_that_are_forgotten) {
    cl_oparms_array stack;
    set_layer(*stack.push(), "Walls");
    set_layer(*stack.push(), "");
    stack.forget_all_below(0);
    EXPECT_EQ(stack.at(1)->inherited_layer(), "Walls");
}

TEST(LampTest, a_type_as_text_or_as_number_makes_a_lamp) {
    cl_slp_light light;
    EXPECT_FALSE(is_lamp(light));
    light.light_type = 2;
    EXPECT_TRUE(is_lamp(light));
    light.light_type = 0;
    light.lamp_type = "anything";
    EXPECT_TRUE(is_lamp(light));
}
