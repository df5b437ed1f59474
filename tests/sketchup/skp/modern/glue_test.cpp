// Glue relations of the archive container.

#include "tests/sketchup/skp/modern/record_bytes.h"

#include <gtest/gtest.h>

using namespace record_bytes;
using sketchup::entity_kind;
using sketchup::glue_relation;

namespace {

bytes relation(std::uint64_t base, std::uint64_t glued) {
    return rec(25500, rec(25501, id(base)) + rec(25502, id(glued)));
}

bytes glue_list(const bytes& relations) {
    return rec(5019, rec(25503, rec(25504, relations)));
}

bytes placement(std::uint64_t persistent_id) {
    return rec(6500, drawing(persistent_id) + rec(6503, id(500)));
}

// A square face 21, an instance 31 and a group 32 of one definition, with what is glued to what.
std::vector<glue_relation> read_glue(const bytes& glue) {
    const auto m = read_parts(definitions(definition(500, "window")) +
                              content(glue + square_lists() + rec(5003, square_face(21)) + rec(5004, placement(31)) +
                                      rec(5005, rec(7500, placement(32)))));
    return m->root.glue;
}

constexpr glue_relation instance_on_face = {{entity_kind::face, 0}, {entity_kind::component_instance, 0}};
constexpr glue_relation group_on_instance = {{entity_kind::component_instance, 0}, {entity_kind::group, 1}};

} // namespace

TEST(ModernGlue, relations_name_a_face_or_a_placement_and_what_is_glued_to_it) {
    EXPECT_EQ(read_glue(glue_list(relation(21, 31) + rec(99, i32(0)) + relation(31, 32))),
              (std::vector<glue_relation>{instance_on_face, group_on_instance}));
}

TEST(ModernGlue, relations_that_name_what_the_list_does_not_hold_are_left_out) {
    EXPECT_EQ(read_glue(glue_list(relation(77, 31) + relation(21, 77) + relation(21, 0) + relation(31, 21) +
                                  rec(25500) + relation(21, 31))),
              std::vector<glue_relation>{instance_on_face});
}

TEST(ModernGlue, all_managers_of_a_list_are_read) {
    EXPECT_EQ(read_glue(glue_list(relation(21, 31)) + glue_list(relation(31, 32))),
              (std::vector<glue_relation>{instance_on_face, group_on_instance}));
}
