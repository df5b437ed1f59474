#include "sketchup/skp/writer/definition_order.h"

#include "sketchup/builder/model_builder.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace sketchup;
using order = std::vector<sketchup::index>;

} // namespace

TEST(DefinitionOrder, definitions_that_place_only_earlier_ones_stay_where_they_are) {
    model_builder m;
    const list_builder inner = m.component("inner");
    m.component("alone");
    list_builder outer = m.component("outer");
    outer.instance(inner);
    EXPECT_EQ(skp::definitions_children_first(*m.finish()), (order{0, 1, 2}));
}

TEST(DefinitionOrder, a_definition_stands_behind_all_that_it_places_at_any_depth) {
    model_builder m;
    list_builder outer = m.component("outer");   // 0
    list_builder middle = m.component("middle"); // 1
    const list_builder inner = m.component("inner");
    outer.instance(middle);
    middle.instance(inner);
    outer.group("made last"); // 3
    EXPECT_EQ(skp::definitions_children_first(*m.finish()), (order{2, 1, 3, 0}));
}

TEST(DefinitionOrder, a_definition_that_contains_itself_is_named_once) {
    model_builder m;
    list_builder one = m.component("one");
    list_builder other = m.component("other");
    one.instance(other);
    other.instance(one);
    EXPECT_EQ(skp::definitions_children_first(*m.finish()), (order{1, 0}));
}
