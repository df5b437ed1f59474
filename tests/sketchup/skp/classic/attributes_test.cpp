#include "sketchup/model/model.h"
#include "sketchup/skp/format_error.h"
#include "sketchup/skp/read_model.h"
#include "tests/sketchup/skp/classic/classic_bytes.h"

#include <gtest/gtest.h>

namespace {

using classic::assembler;
using classic::small_model;

constexpr int with_persistent_ids = 5;

// An edge whose persistent id has this mask and these bytes.
std::int64_t persistent_id(unsigned mask, const std::vector<unsigned>& bytes) {
    small_model small(with_persistent_ids);
    small.entities.bytes.clear();
    small.entities.u32(1).new_class("CEdge").null().u8(mask);
    for (const unsigned b : bytes)
        small.entities.u8(b);
    small.entities.drawing_behind_entity().new_class("CVertex").entity().v3(0, 0, 0).ref(8).null();
    return skp::read_model(small.file())->edges.at(0).persistent_id;
}

// The root's base: a container (class 3) of one dictionary (class 5) "outer" that holds another one "inner".
assembler nested_dictionaries(const small_model& around) {
    assembler a = around.empty;
    a.new_class("CAttributeContainer").entity();
    a.new_class("CAttributeNamed").new_of(3).entity(); // the outer one's own container
    a.new_of(5).entity().u32(0).text("inner").text("depth").u8(4).u32(2).text("").null();
    a.u32(0).text("outer").text("flag").u8(7).u8(1).text("name").u8(10).text("lamp").text("");
    a.new_of(5).entity().u32(0).text("second").text("");
    return a.null();
}

} // namespace

TEST(ClassicAttributes, a_mask_tells_which_bytes_of_a_persistent_id_are_stored) {
    EXPECT_EQ(persistent_id(0, {}), 0);
    EXPECT_EQ(persistent_id(0x01, {0x2A}), 42);
    EXPECT_EQ(persistent_id(0x05, {0x34, 0x12}), 0x120034);
    EXPECT_EQ(persistent_id(0x80, {0x01}), 0x0100000000000000);
    EXPECT_EQ(persistent_id(0xFF, {1, 2, 3, 4, 5, 6, 7, 8}), 0x0807060504030201);
}

TEST(ClassicAttributes, dictionaries_of_the_model_hang_on_the_root_component) {
    small_model small;
    small.root_base = nested_dictionaries(small).drawing_behind_entity();
    const auto m = skp::read_model(small.file());
    EXPECT_EQ(m->properties.count, 0u);
    ASSERT_EQ(m->root.dictionaries.count, 2u);
    const sketchup::attribute_dictionary& outer = m->dictionaries[m->root.dictionaries.first];
    EXPECT_EQ(outer.name, "outer");
    ASSERT_EQ(outer.entries.size(), 2u);
    EXPECT_EQ(outer.entries[0].key, "flag");
    EXPECT_EQ(outer.entries[0].value, (sketchup::typed_value{sketchup::value_code::boolean, true}));
    EXPECT_EQ(outer.entries[1].key, "name");
    EXPECT_EQ(outer.entries[1].value, (sketchup::typed_value{sketchup::value_code::string, std::string("lamp")}));
    EXPECT_EQ(m->dictionaries[m->root.dictionaries.first + 1].name, "second");
}

TEST(ClassicAttributes, a_dictionary_may_hold_dictionaries) {
    small_model small;
    small.root_base = nested_dictionaries(small).drawing_behind_entity();
    const auto m = skp::read_model(small.file());
    ASSERT_EQ(m->dictionaries.size(), 3u);
    const sketchup::attribute_dictionary& outer = m->dictionaries[m->root.dictionaries.first];
    ASSERT_EQ(outer.dictionaries.count, 1u);
    const sketchup::attribute_dictionary& inner = m->dictionaries[outer.dictionaries.first];
    EXPECT_EQ(inner.name, "inner");
    ASSERT_EQ(inner.entries.size(), 1u);
    EXPECT_EQ(inner.entries[0].key, "depth");
    EXPECT_EQ(inner.dictionaries.count, 0u);
    EXPECT_LT(outer.id, inner.id);
}

TEST(ClassicAttributes, a_dictionary_may_be_read_only_since_its_layout_1) {
    small_model small;
    small.set_number("CAttributeNamed", 1);
    small.root_base.bytes.clear();
    small.root_base.new_class("CAttributeContainer").entity();
    small.root_base.new_class("CAttributeNamed").entity().u32(0).text("GSU_ContributorsInfo").text("").u32(1);
    small.root_base.new_of(5).entity().u32(0).text("mine").text("").u32(0).null().drawing_behind_entity();
    const auto m = skp::read_model(small.file());
    ASSERT_EQ(m->root.dictionaries.count, 2u);
    EXPECT_TRUE(m->dictionaries[0].read_only);
    EXPECT_FALSE(m->dictionaries[1].read_only);
}

TEST(ClassicAttributes, a_container_that_holds_itself_is_refused) {
    small_model small;
    small.root_base.bytes.clear();
    small.root_base.new_class("CAttributeContainer").ref(4).null().drawing_behind_entity();
    EXPECT_THROW(skp::read_model(small.file()), skp::format_error);
}

TEST(ClassicAttributes, dictionaries_that_nest_without_end_are_refused) {
    small_model small;
    small.root_base.bytes.clear();
    small.root_base.new_class("CAttributeContainer").entity().new_class("CAttributeNamed");
    for (int i = 0; i < 10000; ++i)
        small.root_base.new_of(3).entity().new_of(5);
    EXPECT_THROW(skp::read_model(small.file()), skp::format_error);
}
