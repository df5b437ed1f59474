// Glue relations of the classic container.

#include "sketchup/model/model.h"
#include "sketchup/skp/classic/model_reader.h"
#include "sketchup/skp/format_error.h"
#include "sketchup/skp/read_model.h"
#include "tests/sketchup/skp/classic/classic_bytes.h"

#include <gtest/gtest.h>

namespace {

using classic::assembler;
using classic::small_model;
using sketchup::entity_kind;
using sketchup::glue_relation;

// A component in slot 6 and two instances of it in the slots 8 and 9, of the class in slot 7.
small_model two_instances() {
    small_model small;
    small.definitions.bytes.clear();
    small.definitions.u32(1).new_class("CComponentDefinition").append(classic::definition_head(small)).u32(0);
    small.definitions.append(classic::definition_tail(small, "window"));
    small.entities.bytes.clear();
    small.entities.u32(2).new_class("CComponentInstance").append(classic::placement_head(small)).ref(6);
    small.entities.append(classic::placement_tail(small, "lower")).new_of(7).append(classic::placement_head(small));
    small.entities.ref(6).append(classic::placement_tail(small, "upper"));
    small.relationships.bytes.clear();
    return small;
}

const std::vector<glue_relation> upper_on_lower = {
    {{entity_kind::component_instance, 0}, {entity_kind::component_instance, 1}}};

// The message of the reader that refuses the file; empty if it takes it.
std::string refusal(const small_model& small) {
    try {
        skp::read_model(small.file());
    } catch (const skp::format_error& e) {
        return e.what();
    }
    return "";
}

} // namespace

TEST(ClassicGlue, the_second_object_of_a_relation_is_glued_to_the_first) {
    small_model small = two_instances();
    small.relationships.u32(1).new_class("CRelationship").entity().ref(8).ref(9);
    EXPECT_EQ(skp::read_model(small.file())->root.glue, upper_on_lower);
}

TEST(ClassicGlue, a_relation_without_both_ends_is_left_out) {
    small_model small = two_instances();
    small.relationships.u32(3).new_class("CRelationship").entity().null().ref(9);
    small.relationships.new_of(10).entity().ref(8).null().new_of(10).entity().ref(8).ref(9);
    EXPECT_EQ(skp::read_model(small.file())->root.glue, upper_on_lower);
}

TEST(ClassicGlue, more_relations_than_bytes_are_refused) {
    small_model small = two_instances();
    small.relationships.u32(0x40000000);
    EXPECT_NE(refusal(small).find("count 1073741824 needs 2147483648 bytes"), std::string::npos) << refusal(small);
}

TEST(ClassicGlue, a_layer_is_glued_to_nothing) {
    small_model small = two_instances();
    small.relationships.u32(1).new_class("CRelationship").entity().ref(8).ref(4);
    EXPECT_NE(refusal(small).find("found CLayer"), std::string::npos) << refusal(small);
}

// Each definition is introduced by the first placement, and that by a relation, of the definition before.
TEST(ClassicGlue, relations_that_introduce_one_another_without_end_are_refused) {
    small_model small;
    assembler& a = small.definitions;
    a.bytes.clear();
    a.u32(1).new_class("CComponentDefinition"); // 5, the first object is 6
    for (int level = 0; level < skp::deepest_object_nesting; ++level) {
        a.append(classic::definition_head(small)).u32(0).u32(1); // no elements, a relation
        level == 0 ? a.new_class("CRelationship") : a.new_of(7);
        a.entity();
        level == 0 ? a.new_class("CComponentInstance") : a.new_of(9);
        a.append(classic::placement_head(small)).new_of(5);
    }
    EXPECT_NE(refusal(small).find("nest deeper"), std::string::npos) << refusal(small);
}
