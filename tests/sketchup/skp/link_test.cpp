#include "sketchup/skp/link.h"

#include "sketchup/model/model.h"
#include "sketchup/skp/format_error.h"

#include <gtest/gtest.h>

namespace {

void place(sketchup::model& m, sketchup::entity_list& list, sketchup::index definition) {
    list.instances.push_back(static_cast<sketchup::index>(m.placements.size()));
    m.placements.emplace_back(sketchup::entity_kind::component_instance).definition = definition;
}

// The root places the first definition, each definition the next one, so that chains of `length` placements arise.
void make_chain(sketchup::model& m, sketchup::index length, int times = 1) {
    m.definitions.resize(length);
    place(m, m.root, 0);
    for (sketchup::index d = 0; d + 1 < length; ++d)
        for (int i = 0; i < times; ++i)
            place(m, m.definitions[d].entities, d + 1);
}

std::string refusal(sketchup::model& m) {
    try {
        skp::link(m);
    } catch (const skp::format_error& e) {
        EXPECT_EQ(e.why, skp::failure::damaged);
        return e.what();
    }
    return "";
}

void add_loop(sketchup::model& m, const std::vector<sketchup::index>& edges) {
    m.loops.push_back({{static_cast<sketchup::index>(m.edge_uses.size()), static_cast<sketchup::index>(edges.size())}});
    for (const sketchup::index e : edges)
        m.edge_uses.push_back({e, false, 0});
}

std::vector<sketchup::index> faces_of(const sketchup::model& m, sketchup::index edge) {
    const sketchup::index_range range = m.edges[edge].faces;
    const auto first = m.faces_of_edges.begin() + range.first;
    return {first, first + range.count};
}

} // namespace

TEST(Link, an_edge_knows_each_of_its_faces_once) {
    sketchup::model m;
    m.edges.resize(4);
    m.faces.resize(2);
    add_loop(m, {0, 1, 1}); // runs along both sides of edge 1
    add_loop(m, {2});
    add_loop(m, {1, 2});
    m.faces[0].loops = {0, 2};
    m.faces[1].loops = {2, 1};
    skp::link(m);
    EXPECT_EQ(faces_of(m, 0), (std::vector<sketchup::index>{0}));
    EXPECT_EQ(faces_of(m, 1), (std::vector<sketchup::index>{0, 1}));
    EXPECT_EQ(faces_of(m, 2), (std::vector<sketchup::index>{0, 1}));
    EXPECT_EQ(faces_of(m, 3), (std::vector<sketchup::index>{}));
}

namespace {

// Two faces, a definition that cuts openings and one that does not, and in the model's list an instance of each.
void make_wall(sketchup::model& m) {
    m.faces.resize(2);
    m.root.faces = {0, 1};
    m.definitions.resize(2);
    m.definitions[0].behavior.cuts_opening = true;
    place(m, m.root, 0);
    place(m, m.root, 1);
}

void glue(sketchup::entity_list& list, sketchup::glue_end base, sketchup::index placement) {
    list.glue.push_back({base, {sketchup::entity_kind::component_instance, placement}});
}

std::vector<sketchup::index> cutters_of(const sketchup::model& m, sketchup::index face) {
    const sketchup::index_range range = m.faces[face].cutters;
    const auto first = m.cutters.begin() + range.first;
    return {first, first + range.count};
}

constexpr sketchup::glue_end face_0 = {sketchup::entity_kind::face, 0};
constexpr sketchup::glue_end face_1 = {sketchup::entity_kind::face, 1};
using indices = std::vector<sketchup::index>;

} // namespace

TEST(Link, a_face_knows_what_cuts_it_in_the_order_of_the_file) {
    sketchup::model m;
    make_wall(m);
    place(m, m.root, 0);
    glue(m.root, face_1, 2);
    glue(m.root, face_0, 2);
    glue(m.root, face_1, 0);
    skp::link(m);
    EXPECT_EQ(cutters_of(m, 0), (indices{2}));
    EXPECT_EQ(cutters_of(m, 1), (indices{2, 0}));
}

TEST(Link, what_is_glued_without_cutting_is_no_cutter) {
    sketchup::model m;
    make_wall(m);
    glue(m.root, face_0, 1);
    skp::link(m);
    EXPECT_EQ(cutters_of(m, 0), indices{});
}

TEST(Link, what_is_glued_to_a_placement_cuts_no_face) {
    sketchup::model m;
    make_wall(m);
    glue(m.root, {sketchup::entity_kind::component_instance, 1}, 0);
    skp::link(m);
    EXPECT_EQ(m.cutters, indices{});
}

TEST(Link, a_face_of_another_list_is_not_cut) {
    sketchup::model m;
    make_wall(m);
    glue(m.root, face_0, 0);
    m.definitions[1].entities.faces = {0};
    m.root.faces = {1};
    skp::link(m);
    EXPECT_EQ(cutters_of(m, 0), indices{});
}

TEST(Link, a_placement_of_another_list_does_not_cut) {
    sketchup::model m;
    make_wall(m);
    glue(m.root, face_0, 0);
    m.definitions[1].entities.instances = {0};
    m.root.instances = {1};
    skp::link(m);
    EXPECT_EQ(cutters_of(m, 0), indices{});
}

TEST(Link, a_placed_image_does_not_cut) {
    sketchup::model m;
    make_wall(m);
    m.placements[0].kind = sketchup::entity_kind::image;
    m.root.images = {0};
    m.root.instances = {1};
    m.root.glue.push_back({face_0, {sketchup::entity_kind::image, 0}});
    skp::link(m);
    EXPECT_EQ(cutters_of(m, 0), indices{});
}

TEST(Link, everything_knows_its_model) {
    sketchup::model m;
    m.edges.resize(1);
    m.definitions.resize(1);
    m.scenes.resize(1);
    m.scenes[0].shadow_info.emplace();
    m.scenes[0].rendering_options.emplace();
    skp::link(m);
    EXPECT_EQ(m.owner, &m);
    EXPECT_EQ(m.root.owner, &m);
    EXPECT_EQ(m.edges[0].owner, &m);
    EXPECT_EQ(m.definitions[0].entities.owner, &m);
    EXPECT_EQ(m.scenes[0].shadow_info->owner, &m);
    EXPECT_EQ(m.scenes[0].rendering_options->owner, &m);
}

TEST(Link, a_texture_knows_its_material) {
    sketchup::model m;
    m.materials.resize(2);
    m.textures.resize(1);
    m.materials[1].texture = 0;
    skp::link(m);
    EXPECT_EQ(m.textures[0].material, 1u);
}

TEST(Link, a_definition_inside_itself_is_refused) {
    sketchup::model m;
    m.definitions.resize(1);
    m.definitions[0].name = "snake";
    place(m, m.definitions[0].entities, 0);
    EXPECT_EQ(refusal(m), "offset 0, model: definition \"snake\" contains itself");
}

TEST(Link, a_longer_circle_is_refused_even_if_nothing_places_it) {
    sketchup::model m;
    m.definitions.resize(3);
    place(m, m.definitions[0].entities, 1);
    place(m, m.definitions[1].entities, 2);
    place(m, m.definitions[2].entities, 0);
    EXPECT_NE(refusal(m), "");
}

TEST(Link, two_ways_to_one_definition_are_no_circle) {
    sketchup::model m;
    m.definitions.resize(3);
    place(m, m.definitions[0].entities, 2);
    place(m, m.definitions[1].entities, 2);
    place(m, m.root, 0);
    place(m, m.root, 1);
    EXPECT_EQ(refusal(m), "");
}

TEST(Link, placements_nest_up_to_the_limit) {
    sketchup::model m;
    make_chain(m, skp::deepest_nesting);
    EXPECT_EQ(refusal(m), "");
    sketchup::model deeper;
    make_chain(deeper, skp::deepest_nesting + 1);
    EXPECT_EQ(refusal(deeper), "offset 0, model: placements nest deeper than 4096");
}

TEST(Link, a_chain_of_100000_definitions_is_refused_without_exhausting_the_stack) {
    sketchup::model m;
    make_chain(m, 100000);
    EXPECT_EQ(refusal(m), "offset 0, model: placements nest deeper than 4096");
}

TEST(Link, more_flattened_entities_than_32_bits_count_are_refused) {
    // Each list places the next one twice: 1 + 2 + 4 + … + 2^(n-1) = 2^n - 1 placements.
    sketchup::model most;
    make_chain(most, 31, 2);
    EXPECT_EQ(refusal(most), "");
    sketchup::model one_more;
    make_chain(one_more, 31, 2);
    one_more.root.annotations.push_back(0);
    one_more.annotations.resize(1);
    EXPECT_EQ(refusal(one_more), "offset 0, model: more than 2147483647 entities when flattened");
    sketchup::model endless;
    make_chain(endless, 1000, 2);
    EXPECT_NE(refusal(endless), "");
}
