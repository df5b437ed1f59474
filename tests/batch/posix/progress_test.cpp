// What a run shows of how far it is.

#include "tests/batch/batch_runner.h"

#include <gtest/gtest.h>

namespace {

using namespace sketchup;

void add_squares(list_builder list, int count) {
    for (int i = 0; i < count; ++i) {
        const double x = 20 * i;
        list.face({{x, 0, 0}, {x + 10, 0, 0}, {x + 10, 10, 0}, {x, 10, 0}});
    }
}

std::string shown_by_run(model_builder& m) {
    batch b;
    b.put_model(m);
    const program_result outcome = b.run();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(b.has("batch_file.txt")); // with nothing wrong in it: see run()
    return outcome.errors;
}

TEST(ProgressBatch, ninety_nine_faces_show_nothing) {
    model_builder m;
    add_squares(m.root(), 99);
    EXPECT_EQ(shown_by_run(m), quiet_errors);
}

TEST(ProgressBatch, the_display_moves_with_every_hundredth_face) {
    model_builder m;
    add_squares(m.root(), 150);
    EXPECT_EQ(shown_by_run(m), "Converting Model Geometry [#############.......] 66% Complete,  Please Wait...\n");
}

TEST(ProgressBatch, what_is_hidden_counts_and_is_never_done) {
    model_builder m;
    add_squares(m.root(), 100);
    list_builder hidden = m.root().group();
    m.element(hidden.placement()).hidden = true;
    add_squares(hidden, 100);
    EXPECT_EQ(shown_by_run(m), "Converting Model Geometry [##########..........] 50% Complete,  Please Wait...\n");
}

TEST(ProgressBatch, a_component_counts_once_for_each_placement) {
    model_builder m;
    list_builder tiles = m.component("tiles");
    add_squares(tiles, 50);
    for (int i = 0; i < 4; ++i)
        m.root().instance(tiles, moved({0, 20.0 * i, 0}));
    EXPECT_EQ(shown_by_run(m), "Converting Model Geometry [####################] 100% Complete,  Please Wait...\n");
}

} // namespace
