// What the rendering options of a model decide.

#include "tessaline/reading/model_settings.h"

#include "tests/tessaline/reader_fixture.h"

namespace {

class RenderingOptions : public reader_test {
protected:
    // What becomes of colour by layer, switched on before, in a model with that answer.
    bool color_by_layer_with(sketchup::typed_value answer) {
        builder.model().rendering_options.values = {{"DisplayColorByLayer", std::move(answer)}};
        open();
        theApp.color_by_layer = true;
        read_color_by_layer();
        return theApp.color_by_layer;
    }
};

// Models in memory, as a file keeps a boolean for this option whatever it is given.
TEST_F(RenderingOptions, turn_colour_by_layer_on_if_they_say_so) {
    EXPECT_TRUE(color_by_layer_with(sketchup::truth(true)));
}

TEST_F(RenderingOptions, turn_colour_by_layer_off_if_they_say_so) {
    EXPECT_FALSE(color_by_layer_with(sketchup::truth(false)));
}

TEST_F(RenderingOptions, turn_colour_by_layer_off_with_a_whole_number) {
    EXPECT_FALSE(color_by_layer_with(sketchup::whole_number(1)));
}

TEST_F(RenderingOptions, turn_colour_by_layer_off_with_a_text) {
    EXPECT_FALSE(color_by_layer_with(sketchup::text("true")));
}

TEST_F(RenderingOptions, turn_colour_by_layer_off_with_a_real_number) {
    EXPECT_FALSE(color_by_layer_with(sketchup::real_number(1)));
}

} // namespace
