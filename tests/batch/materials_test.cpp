// What becomes of materials: their numbers, their text files, their pictures, and what their names can do.

#include "tests/batch/batch_runner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace sketchup;
using sketchup::index; // and not the C library's

// A picture of 2 by 2 pixels: black, red, green, white.
std::vector<std::uint8_t> small_bmp() {
    return {'B', 'M', 70, 0,   0,   0,   0, 0, 0, 0, 54, 0, 0, 0,           // the file's header
            40,  0,   0,  0,   2,   0,   0, 0, 2, 0, 0,  0, 1, 0,   24, 0,  // the picture's
            0,   0,   0,  0,   16,  0,   0, 0, 0, 0, 0,  0, 0, 0,   0,  0,  //
            0,   0,   0,  0,   0,   0,   0, 0,                              //
            0,   255, 0,  255, 255, 255, 0, 0, 0, 0, 0,  0, 0, 255, 0,  0}; // rows of 6 bytes and 2, from the bottom
}

// Squares of 10 inches side by side, 20 inches apart.
class painted_row {
public:
    explicit painted_row(model_builder& model) : m(model) {}

    entity_place square(index front, index back = no_index) { return add_to(m.root(), front, back); }
    entity_place add_to(list_builder list, index front, index back = no_index) {
        const double x = 20 * count++;
        const entity_place made = list.face({{x, 0, 0}, {x + 10, 0, 0}, {x + 10, 10, 0}, {x, 10, 0}});
        m.element(made).material = front;
        m.face(made).back_material = back;
        return made;
    }

private:
    model_builder& m;
    int count = 0;
};

index brick(model_builder& m, std::string_view name = "Brick") {
    return m.textured_material(name, small_bmp(), "brick.bmp", 5, 2.5);
}

void say(model_builder& m, index material, std::string_view key, std::string_view value) {
    m.attribute({entity_kind::material, material}, "Vellane_material", key, text(value));
}

TEST(MaterialsBatch, a_face_with_two_materials_has_two_blocks_and_declares_both_once) {
    batch b;
    model_builder m;
    const index red = m.material("Red", {200, 100, 50, 255});
    const index blue = m.material("Blue", {0, 0, 255, 255});
    painted_row row(m);
    row.square(red, blue);
    row.square(blue, red);
    row.square(red, red);
    b.put_model(m);
    expect_run(b, "painted_both_sides");
}

// Plain, clear by opacity, mirror, reflective, lamp shade, clear by a word, by attributes without and with a type, and
// a glowing one, whose block is its own.
TEST(MaterialsBatch, each_kind_of_material_has_its_text_file) {
    batch b;
    model_builder m;
    const rgba color{200, 100, 50, 255};
    painted_row row(m);
    const auto shown = [&](std::string_view name, double opacity = 1) {
        const index made = m.material(name, color, opacity);
        row.square(made, made);
        return made;
    };
    shown("Plain");
    shown("Clear", 0.25);
    shown("Mirror_ref95");
    shown("Reflective_ref40");
    shown("Shade_trluc40");
    shown("Glass_ref80_trans30");
    const index untyped = shown("Untyped");
    say(m, untyped, "Highlight_intensity", "0.95");
    say(m, untyped, "Ior", "1.3");
    say(m, untyped, "Auto Bump", "true");
    say(m, untyped, "Bump_color_strength", "0.5");
    say(m, untyped, "Bump_intensity", "7.5");
    say(m, untyped, "Base_Material", "Chrome");
    m.attribute({entity_kind::material, untyped}, "Vellane_material", "Glossy", truth(true));
    const index typed = shown("Typed", 0.5);
    say(m, typed, "Type", "5");
    say(m, typed, "OrnMaterial Type", "SketchUp");
    say(m, typed, "XML_initial_opacity", "0.75");
    say(m, typed, "Self_Glow_intensity", "2");
    say(m, typed, "Bump-Marbled", "true");
    say(m, typed, "Bump-Marbled-Strength", "4");
    say(m, typed, "Bump-Marbled-Scale", "5");
    say(m, typed, "ORNZyn Material Settings", "41;1;x;");
    say(m, typed, "ORNZyn Material Settings_chunk0", "[ORNZyn Material Settings][00000004]-4869");
    shown("Lamp_glow25");
    b.put_model(m);
    expect_run(b, "kinds_of_materials");
}

TEST(MaterialsBatch, an_inherited_material_stretches_the_coordinates_and_has_the_texture_number_0) {
    batch b;
    model_builder m;
    const index bricks = brick(m);
    painted_row row(m);
    row.square(bricks, bricks);
    list_builder group = m.root().group("bricks");
    m.element(group.placement()).material = bricks;
    row.add_to(group, no_index);
    list_builder component = m.component("inherits");
    row.add_to(component, no_index);
    m.element(m.root().instance(component)).material = bricks;
    b.put_model(m);
    expect_run(b, "inherited_material");
}

// A side without a material takes over that of the other. Its texture is not the side's own, has the number 0, and so
// makes a material of its own.
TEST(MaterialsBatch, a_texture_on_one_side_makes_a_second_material_for_the_other) {
    batch b;
    model_builder m;
    painted_row row(m);
    m.attribute(m.root().list(), "qlw_globals", "ivl_2_sided_faces", whole_number(0));
    row.square(no_index, brick(m));
    b.put_model(m);
    expect_run(b, "texture_on_the_back");
}

TEST(MaterialsBatch, colours_of_layers_are_named_by_the_layers_materials_alone) {
    batch b;
    model_builder m;
    const index walls = m.layer("Walls", true, {200, 100, 50, 255});
    const index red = m.material("Red", {255, 0, 0, 255});
    painted_row row(m);
    m.element(row.square(red, red)).layer = walls;
    m.model().materials[m.model().layers[walls].material].name = "Wall";
    m.set_option("DisplayColorByLayer", truth(true));
    b.put_model(m);
    expect_run(b, "colours_of_layers");
}

TEST(MaterialsBatch, names_of_all_sorts_go_into_files_escaped) {
    batch b;
    b.expect_finding(batch_check::code::material_line);
    model_builder m;
    painted_row row(m);
    for (const char* name : {"*1", "50% off", "R%26D", "a b [c] (d)", "Straße", "up/../../x", "back\\slash",
                             "line\nbreak", "semi;colon"}) {
        const index made = m.material(name, {200, 100, 50, 255});
        row.square(made, made);
    }
    b.put_model(m);
    expect_run(b, "names_of_materials");
}

// ---- files that travel in attributes

constexpr std::string_view framed_hi = "[ORNZyn Material Settings][00000004]-4869";

TEST(MaterialsBatch, an_edited_material_without_its_last_chunk_ends_the_run_where_it_stands) {
    batch b;
    model_builder m;
    painted_row row(m);
    const index red = m.material("Red", {200, 100, 50, 255});
    const index edited = m.material("Edited", {200, 100, 50, 255});
    say(m, edited, "ORNZyn Material Settings", "41;2;x;");
    say(m, edited, "ORNZyn Material Settings_chunk0", framed_hi);
    row.square(red, red);
    row.square(edited, edited);
    b.put_model(m);
    b.put("option_globals.txt", "ivl_2_sided_faces; 1");
    b.expect_file("option_globals.txt", "ivl_2_sided_faces; 1"); // not written anew
    b.expect_finding(batch_check::code::stream_cut_off);
    b.expect_finding(batch_check::code::option_line_end); // the parent's own text has none
    const program_result outcome = b.run();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.errors,
                testing::StartsWith("Tessaline - Error: an edited material lacks a chunk of its file\n"));
    expect_batch(b, "edited_material_lacks_a_chunk");
}

TEST(MaterialsBatch, a_chunk_numbered_below_0_ends_the_run) {
    batch b;
    model_builder m;
    painted_row row(m);
    const index edited = m.material("Edited", {200, 100, 50, 255});
    say(m, edited, "ORNZyn Material Settings_chunk-1", "[ORNZyn");
    row.square(edited, edited);
    b.put_model(m);
    b.expect_finding(batch_check::code::stream_cut_off);
    const program_result outcome = b.run();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.errors,
                testing::StartsWith("Tessaline - Error: a chunk of an edited material has a number below 0\n"));
    expect_batch(b, "edited_material_has_a_chunk_below_0");
}

// The picture is exported before the attributes are looked at, and is whole.
TEST(MaterialsBatch, a_textured_material_that_ends_the_run_leaves_its_picture_whole) {
    batch b;
    model_builder m;
    painted_row row(m);
    const index bricks = brick(m);
    say(m, bricks, "ORNZyn Material Settings_chunk-1", "[ORNZyn");
    row.square(bricks, bricks);
    b.put_model(m);
    const std::vector<std::uint8_t> picture = small_bmp();
    b.expect_file("Batch_SketchUp_Textures/TX0001_Brick.BMP", std::string(picture.begin(), picture.end()));
    b.expect_finding(batch_check::code::stream_cut_off);
    EXPECT_EQ(b.run().status, 0);
    expect_batch(b, "edited_material_has_a_chunk_below_0");
}

TEST(MaterialsBatch, an_edited_material_that_cannot_be_saved_is_reported_and_the_material_goes_on) {
    batch b;
    model_builder m;
    painted_row row(m);
    const index edited = m.material("Edited", {200, 100, 50, 255});
    say(m, edited, "ORNZyn Material Settings", "41;1;x;");
    say(m, edited, "ORNZyn Material Settings_chunk0", framed_hi);
    row.square(edited, edited);
    b.put_model(m);
    const std::string in_the_way = "ZynBatch_Materials/COL%3a0005_Edited.OrnMaterial";
    b.surrounding().make_folder("batch/" + in_the_way);
    const program_result outcome = b.run();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.errors,
                testing::HasSubstr("Tessaline - Error: Cannot save edited Ornmaterial: " + b / in_the_way + "\n"));
    std::set<std::string> folders = folders_of_every_run();
    folders.insert(in_the_way);
    expect_batch(b, "edited_material_cannot_be_saved", folders);
}

} // namespace
