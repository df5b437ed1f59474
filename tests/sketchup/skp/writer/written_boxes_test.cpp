#include "sketchup/skp/writer/written_boxes.h"

#include "sketchup/builder/model_builder.h"

#include <gtest/gtest.h>

namespace {

using namespace sketchup;

void expect_box(const box& actual, const vec3& minimum, const vec3& maximum) {
    EXPECT_EQ(actual.minimum, minimum);
    EXPECT_EQ(actual.maximum, maximum);
}

} // namespace

TEST(WrittenBoxes, a_box_holds_edges_and_faces_and_what_is_placed) {
    model_builder m;
    list_builder group = m.root().group("group", moved({10, 0, 0}));
    group.square(4);
    m.root().edge({0, 0, -1}, {0, 0, 2});
    const auto made = m.finish();
    const skp::written_boxes boxes(*made);
    expect_box(boxes.of_definition(0), {0, 0, 0}, {4, 4, 0});
    expect_box(boxes.of_root(), {0, 0, -1}, {14, 4, 2}); // the group from 10 to 10 + 4
}

TEST(WrittenBoxes, a_definition_made_after_the_one_that_holds_it_counts_in_it) {
    model_builder m;
    list_builder outer = m.root().group("outer");
    outer.group("inner", scaled(2, 2, 2)).square(3);
    const auto made = m.finish();
    expect_box(skp::written_boxes(*made).of_root(), {0, 0, 0}, {6, 6, 0});
}

TEST(WrittenBoxes, a_list_without_content_has_an_empty_box) {
    const auto made = model_builder().finish();
    EXPECT_TRUE(skp::written_boxes(*made).of_root().is_empty());
}
