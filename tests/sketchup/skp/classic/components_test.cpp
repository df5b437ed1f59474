#include "sketchup/model/model.h"
#include "sketchup/skp/classic/model_reader.h"
#include "sketchup/skp/format_error.h"
#include "sketchup/skp/read_model.h"
#include "tests/sketchup/skp/classic/classic_bytes.h"

#include <gtest/gtest.h>

namespace {

using classic::assembler;
using classic::small_model;

assembler empty_definition(const small_model& around, const std::string& name) {
    return classic::definition_head(around).u32(0).append(classic::definition_tail(around, name));
}

// Definitions that are each introduced by the first placement inside the one before: slots 6, 9, 11, 13 and so on.
void nest_definitions(small_model& small, unsigned depth) {
    assembler& a = small.definitions;
    a.bytes.clear();
    a.u32(depth).new_class("CComponentDefinition");
    for (unsigned level = 1; level < depth; ++level) {
        a.append(classic::definition_head(small)).u32(1);
        if (level == 1)
            a.new_class("CComponentInstance");
        else
            a.new_of(7);
        a.append(classic::placement_head(small)).new_of(5);
    }
    a.append(empty_definition(small, "innermost"));
    for (unsigned level = depth - 1; level > 0; --level) {
        a.append(classic::placement_tail(small, ""));
        a.append(classic::definition_tail(small, "level " + std::to_string(level)));
    }
    for (unsigned level = 1; level < depth; ++level)
        a.ref(7 + 2 * level);
    small.entities.bytes.clear();
    small.entities.u32(1).new_of(7).append(classic::placement_head(small)).ref(6);
    small.entities.append(classic::placement_tail(small, ""));
}

} // namespace

TEST(ClassicComponents, definitions_stand_in_the_order_of_the_roots_list) {
    small_model small;
    assembler& a = small.definitions;
    a.bytes.clear();
    a.u32(3).new_class("CComponentDefinition").append(classic::definition_head(small)); // 6
    a.u32(1).new_class("CComponentInstance").append(classic::placement_head(small));    // 8
    a.new_of(5).append(empty_definition(small, "inner"));                               // 9
    a.append(classic::placement_tail(small, "placed")).append(classic::definition_tail(small, "outer"));
    a.new_of(5).append(empty_definition(small, "third")).ref(9);
    const auto m = skp::read_model(small.file());
    ASSERT_EQ(m->definitions.size(), 3u);
    EXPECT_EQ(m->definitions[0].name, "outer");
    EXPECT_EQ(m->definitions[1].name, "third");
    EXPECT_EQ(m->definitions[2].name, "inner");
    ASSERT_EQ(m->definitions[0].entities.instances.size(), 1u);
    const sketchup::placement& p = m->placements[m->definitions[0].entities.instances[0]];
    EXPECT_EQ(p.definition, 2u);
    EXPECT_EQ(p.name, "placed");
}

TEST(ClassicComponents, a_definition_has_an_id_and_a_behaviour) {
    small_model small;
    small.definitions.bytes.clear();
    small.definitions.u32(1).new_class("CComponentDefinition").append(empty_definition(small, "chair"));
    const auto m = skp::read_model(small.file());
    ASSERT_EQ(m->definitions.size(), 1u);
    EXPECT_EQ(m->definitions[0].guid[0], 0x20);
    EXPECT_EQ(m->definitions[0].guid[15], 0x2F);
    EXPECT_EQ(m->definitions[0].what, sketchup::definition_kind::component);
    EXPECT_FALSE(m->definitions[0].behavior.always_faces_camera);
    EXPECT_EQ(m->layers.size(), 1u);
}

TEST(ClassicComponents, a_placement_keeps_the_translation_in_the_last_column) {
    small_model small;
    nest_definitions(small, 2);
    const auto m = skp::read_model(small.file());
    ASSERT_EQ(m->root.instances.size(), 1u);
    const sketchup::placement& p = m->placements[m->root.instances[0]];
    EXPECT_EQ(p.transform, (sketchup::transform{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 10, 20, 30, 1}));
    EXPECT_EQ(m->definitions[p.definition].name, "level 1");
}

TEST(ClassicComponents, definitions_introduced_1000_deep_open) {
    small_model small;
    nest_definitions(small, 1000);
    const auto m = skp::read_model(small.file());
    EXPECT_EQ(m->definitions.size(), 1000u);
    EXPECT_EQ(m->definitions[999].name, "innermost");
}

TEST(ClassicComponents, definitions_introduced_10000_deep_are_refused) {
    small_model small;
    nest_definitions(small, 10000);
    try {
        skp::read_model(small.file());
        FAIL() << "opened";
    } catch (const skp::format_error& e) {
        const std::string reason = "objects nest deeper than " + std::to_string(skp::deepest_object_nesting);
        EXPECT_NE(std::string(e.what()).find(reason), std::string::npos) << e.what();
    }
}

TEST(ClassicComponents, a_definition_that_places_itself_is_refused) {
    small_model small;
    assembler& a = small.definitions;
    a.bytes.clear();
    a.u32(1).new_class("CComponentDefinition").append(classic::definition_head(small));
    a.u32(1).new_class("CComponentInstance").append(classic::placement_head(small)).ref(6);
    a.append(classic::placement_tail(small, "")).append(classic::definition_tail(small, "snake"));
    try {
        skp::read_model(small.file());
        FAIL() << "opened";
    } catch (const skp::format_error& e) {
        EXPECT_STREQ(e.what(), "offset 0, model: definition \"snake\" contains itself");
    }
}

TEST(ClassicComponents, the_active_section_plane_is_named_by_the_list) {
    small_model small;
    small.entities.bytes.clear();
    small.entities.u32(2).new_class("CSectionPlane").drawing().v3(0, 0, 1).f64(-4);
    small.entities.new_of(5).drawing().v3(1, 0, 0).f64(-6);
    small.active_section_plane.bytes.clear();
    small.active_section_plane.ref(7);
    const auto m = skp::read_model(small.file());
    ASSERT_EQ(m->root.section_planes.size(), 2u);
    EXPECT_EQ(m->root.active_section_plane, m->root.section_planes[1]);
    EXPECT_EQ(m->section_planes[1].plane, (sketchup::plane{1, 0, 0, -6}));
}

TEST(ClassicComponents, a_list_cannot_hold_what_is_no_entity) {
    small_model small;
    small.entities.bytes.clear();
    small.entities.u32(1).ref(4);
    EXPECT_THROW(skp::read_model(small.file()), skp::format_error);
}
