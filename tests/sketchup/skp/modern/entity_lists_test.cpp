// Annotations and section planes of the archive container.

#include "tests/sketchup/skp/modern/record_bytes.h"

#include <gtest/gtest.h>

using namespace record_bytes;
using sketchup::annotation_kind;
using sketchup::no_index;

namespace {

bytes section_plane(std::uint64_t persistent_id, const bytes& rest = {}) {
    return rec(10500, drawing(persistent_id) + rec(10501, doubles({1, 0, 0, -5})) + rest);
}

} // namespace

TEST(ModernAnnotations, guides_texts_and_dimensions_are_kept_as_what_they_are) {
    const auto m = read_parts(content(rec(5009, rec(17001, rec(17000, drawing(1)) + rec(17002, bytes(64, 0)))) +
                                      rec(5010, rec(17004, rec(17000, drawing(2)))) +
                                      rec(5016, rec(22000, drawing(3, rec(2003, u8(7))) + rec(22001, text("note")))) +
                                      rec(5017, rec(23500, rec(23000, drawing(4))))));
    ASSERT_EQ(m->annotations.size(), 4u);
    EXPECT_EQ(m->annotations[0].what, annotation_kind::guide_line);
    EXPECT_EQ(m->annotations[1].what, annotation_kind::guide_point);
    EXPECT_EQ(m->annotations[2].what, annotation_kind::text);
    EXPECT_EQ(m->annotations[3].what, annotation_kind::linear_dimension);
    EXPECT_EQ(m->annotations[3].persistent_id, 4);
    EXPECT_TRUE(m->annotations[2].hidden);
    EXPECT_EQ(m->root.annotations, (std::vector<sketchup::index>{0, 1, 2, 3}));
}

TEST(ModernAnnotations, one_without_its_drawing_fields_is_left_out) {
    const auto m = read_parts(content(rec(5009, rec(17001, rec(17000))) + rec(5016, rec(22000))));
    EXPECT_TRUE(m->annotations.empty());
}

TEST(ModernSectionPlanes, a_plane_has_its_numbers_its_name_and_its_symbol) {
    const auto m = read_parts(
        content(rec(5012, id(72)) + rec(5011, rec(17500, drawing(71) + rec(17501, plane_up())) +
                                                  rec(17500, drawing(72) + rec(17501, doubles({1, 0, 0, -5})) +
                                                                 rec(17502, text("Cut\t1")) + rec(17503, text("A"))))));
    ASSERT_EQ(m->section_planes.size(), 2u);
    EXPECT_EQ(m->root.section_planes, (std::vector<sketchup::index>{0, 1}));
    EXPECT_EQ(m->root.active_section_plane, 1u);
    EXPECT_EQ(m->section_planes[0].name, "");
    EXPECT_EQ(m->section_planes[1].name, "Cut\t1");
    EXPECT_EQ(m->section_planes[1].symbol, "A");
    EXPECT_EQ(m->section_planes[1].plane, (sketchup::plane{1, 0, 0, -5}));
    EXPECT_EQ(m->section_planes[1].persistent_id, 72);
}

TEST(ModernSectionPlanes, a_record_without_a_plane_or_a_drawing_part_is_left_out) {
    const auto m = read_parts(
        content(rec(5011, rec(17500, drawing(71)) + rec(17500, rec(17501, plane_up()))) + rec(5012, id(71))));
    EXPECT_TRUE(m->section_planes.empty());
    EXPECT_EQ(m->root.active_section_plane, no_index);
}

TEST(ModernSectionPlanes, a_plane_in_a_list_of_unknown_number_is_found) {
    const auto m = read_parts(content(rec(5007, section_plane(71, rec(10502, text("Cut")) + rec(10503, text("A"))))));
    ASSERT_EQ(m->section_planes.size(), 1u);
    const sketchup::section_plane& s = m->section_planes[0];
    EXPECT_EQ(s.plane, (sketchup::plane{1, 0, 0, -5}));
    EXPECT_EQ(s.persistent_id, 71);
    EXPECT_EQ(s.name, "Cut");
    EXPECT_EQ(s.symbol, "A");
    EXPECT_EQ(m->root.section_planes, (std::vector<sketchup::index>{0}));
    EXPECT_EQ(m->root.active_section_plane, no_index);
}

TEST(ModernSectionPlanes, flags_are_no_name) {
    const auto m =
        read_parts(content(rec(5007, section_plane(71, rec(10502, u8(1)) + rec(10503, text("Schnitt \xC3\x84"))))));
    ASSERT_EQ(m->section_planes.size(), 1u);
    EXPECT_EQ(m->section_planes[0].name, "Schnitt \xC3\x84");
    EXPECT_EQ(m->section_planes[0].symbol, "");
}

TEST(ModernSectionPlanes, an_unknown_field_with_the_id_of_a_plane_makes_it_active) {
    const auto m = read_parts(content(rec(5020, id(72)) + rec(5007, section_plane(71) + section_plane(72))));
    ASSERT_EQ(m->section_planes.size(), 2u);
    EXPECT_EQ(m->root.active_section_plane, 1u);
}

TEST(ModernSectionPlanes, unknown_lists_of_other_things_are_passed_over) {
    const bytes no_plane = rec(10500, drawing(71) + rec(10501, doubles({1, 0, 0})));
    const bytes face_like = rec(10500, drawing(71) + rec(10501, plane_up()) + rec(3502));
    const bytes baseless = rec(10500, rec(10501, plane_up()));
    const auto m =
        read_parts(content(rec(5007, no_plane + face_like + baseless) + rec(5020, text("Section plane")) +
                           rec(5013, {1, 2, 3}) + rec(5018, rec(10500, text("seven b"))) + rec(5021, id(9))));
    EXPECT_TRUE(m->section_planes.empty());
    EXPECT_EQ(m->root.active_section_plane, no_index);
}
