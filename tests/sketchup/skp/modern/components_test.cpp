// Definitions and placements of the archive container.

#include "sketchup/skp/read_model.h"
#include "tests/sketchup/skp/modern/record_bytes.h"

#include <gtest/gtest.h>

using namespace record_bytes;
using sketchup::definition_kind;

TEST(ModernComponents, a_definition_has_its_fields) {
    const bytes behavior = rec(7000, rec(7001, i32(2)) + rec(7002, i32(5)) + rec(7003, u8(1)) + rec(7004, u8(1)) +
                                         rec(7005, u8(1)) + rec(7006, u8(1)));
    const bytes d =
        rec(5500, rec(5000, drawing(50)) + rec(5501, guid(9)) + rec(5502, text("Door")) + rec(5503, text("of oak")) +
                      rec(5504, text("C:\\door.skp")) + rec(5506, u8(1)) + rec(5507, i32(0)) +
                      rec(5505, raw(std::uint32_t{1600000000})) + behavior + rec(5509, rec(9500)));
    const auto m = read_parts(definitions(rec(99, i32(0)) + d));
    ASSERT_EQ(m->definitions.size(), 1u);
    const sketchup::component_definition& door = m->definitions[0];
    EXPECT_EQ(door.persistent_id, 50);
    EXPECT_EQ(door.guid[0], 9);
    EXPECT_EQ(door.name, "Door");
    EXPECT_EQ(door.description, "of oak");
    EXPECT_EQ(door.path, "C:\\door.skp");
    EXPECT_EQ(door.what, definition_kind::component);
    EXPECT_EQ(door.time, 1600000000u);
    EXPECT_EQ(door.behavior.snap_to, 2u);
    EXPECT_EQ(door.behavior.no_scale_mask, 5u);
    EXPECT_TRUE(door.behavior.glues);
    EXPECT_TRUE(door.behavior.cuts_opening);
    EXPECT_TRUE(door.behavior.always_faces_camera);
    EXPECT_TRUE(door.behavior.shadow_faces_sun);
}

TEST(ModernComponents, instances_groups_and_images_are_told_apart_by_their_lists) {
    const auto m =
        read_parts(definitions(definition(50, "a") + definition(51, "b", {}, 1) + definition(52, "c", {}, 2)) +
                   content(rec(5004, instance(60, 50)) + rec(5005, rec(7500, instance(61, 51))) +
                           rec(5008, rec(8000, instance(62, 52)))));
    EXPECT_EQ(m->definitions[1].what, definition_kind::group);
    EXPECT_EQ(m->definitions[2].what, definition_kind::image);
    ASSERT_EQ(m->placements.size(), 3u);
    EXPECT_EQ(m->root.instances, (std::vector<sketchup::index>{0}));
    EXPECT_EQ(m->root.groups, (std::vector<sketchup::index>{1}));
    EXPECT_EQ(m->root.images, (std::vector<sketchup::index>{2}));
    EXPECT_EQ(m->placements[0].kind, sketchup::entity_kind::component_instance);
    EXPECT_EQ(m->placements[1].kind, sketchup::entity_kind::group);
    EXPECT_EQ(m->placements[2].kind, sketchup::entity_kind::image);
    EXPECT_EQ(m->placements[2].definition, 2u);
}

TEST(ModernComponents, a_placement_has_its_fields) {
    const bytes placed = rec(6500, drawing(60, rec(2003, u8(0x27))) + rec(6501, text("front")) +
                                       rec(6502, doubles({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13})) +
                                       rec(6503, id(50)) + rec(6504, guid(3)));
    const auto m = read_parts(definitions(definition(50, "a")) + content(rec(5004, placed + instance(61, 50))));
    ASSERT_EQ(m->placements.size(), 2u);
    const sketchup::placement& p = m->placements[0];
    EXPECT_EQ(p.name, "front");
    EXPECT_EQ(p.guid[15], 3);
    EXPECT_TRUE(p.locked);
    EXPECT_TRUE(p.hidden);
    EXPECT_EQ(p.transform, (sketchup::transform{1, 4, 7, 0, 2, 5, 8, 0, 3, 6, 9, 0, 10, 11, 12, 13}));
    EXPECT_EQ(m->placements[1].transform, sketchup::identity_transform);
    EXPECT_FALSE(m->placements[1].locked);
}

TEST(ModernComponents, a_definition_may_place_one_that_comes_later) {
    const auto m =
        read_parts(definitions(definition(50, "outer", rec(5004, instance(60, 51))) + definition(51, "inner")));
    ASSERT_EQ(m->placements.size(), 1u);
    EXPECT_EQ(m->placements[0].definition, 1u);
    EXPECT_EQ(m->definitions[0].entities.instances, (std::vector<sketchup::index>{0}));
}

TEST(ModernComponents, a_placement_of_an_unknown_definition_is_left_out) {
    const auto m = read_parts(definitions(definition(50, "a")) +
                              content(rec(5004, instance(60, 99)) + rec(5005, rec(7500) + rec(7500, rec(6500)))));
    EXPECT_TRUE(m->placements.empty());
    EXPECT_TRUE(m->root.instances.empty());
    EXPECT_TRUE(m->root.groups.empty());
}

TEST(ModernComponents, a_definition_without_an_id_is_left_out) {
    const auto m = read_parts(definitions(rec(5500, rec(5502, text("nobody"))) + definition(50, "a")));
    ASSERT_EQ(m->definitions.size(), 1u);
    EXPECT_EQ(m->definitions[0].name, "a");
}

TEST(ModernComponents, an_unknown_kind_of_definition_is_an_error) {
    EXPECT_THROW(read_parts(definitions(definition(50, "a", {}, 3))), skp::format_error);
}

TEST(ModernComponents, a_definition_that_contains_itself_is_refused) {
    const bytes direct = definitions(definition(50, "a", rec(5004, instance(60, 50))));
    const bytes around = definitions(definition(50, "a", rec(5004, instance(60, 51))) +
                                     definition(51, "b", rec(5005, rec(7500, instance(61, 50)))));
    EXPECT_EQ(refusal(file_of_parts(direct)), skp::failure::damaged);
    EXPECT_EQ(refusal(file_of_parts(around)), skp::failure::damaged);
}

TEST(ModernComponents, dictionaries_of_a_definition_hang_on_its_entity_list) {
    const bytes dictionary = rec(14003, rec(14004, text("qlw")));
    const bytes d = rec(5500, rec(5000, rec(2000, entity(50, dictionary))) + rec(5502, text("a")));
    const auto m = read_parts(definitions(d));
    ASSERT_EQ(m->definitions.size(), 1u);
    EXPECT_EQ(m->definitions[0].dictionaries.count, 1u);
    EXPECT_EQ(m->definitions[0].entities.dictionaries.first, m->definitions[0].dictionaries.first);
    EXPECT_EQ(m->definitions[0].entities.dictionaries.count, 1u);
}
