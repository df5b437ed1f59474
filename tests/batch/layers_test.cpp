// What layers and hidden things do to the stream.

#include "tests/batch/batch_runner.h"

#include <gtest/gtest.h>

namespace {

using namespace sketchup;

// A square of 10 inches whose low corner is there, looking up; gives the face.
entity_place add_square(list_builder list, double x = 0, double z = 0) {
    return list.face({{x, 0, z}, {x + 10, 0, z}, {x + 10, 10, z}, {x, 10, z}});
}

list_builder add_group(model_builder& m, list_builder list, sketchup::index layer) {
    list_builder made = list.group();
    m.element(made.placement()).layer = layer;
    return made;
}

constexpr sketchup::index layer0 = 0;

TEST(LayersBatch, what_is_on_layer0_counts_as_on_the_layer_of_the_nearest_group_that_has_one) {
    batch b;
    model_builder m;
    const sketchup::index walls = m.layer("Walls");
    const sketchup::index doors = m.layer("Doors");
    list_builder outer = add_group(m, m.root(), walls);
    add_square(outer);
    add_square(add_group(m, outer, layer0), 0, 10);
    list_builder inner = add_group(m, outer, doors);
    add_square(inner, 0, 20);
    m.element(add_square(inner, 20, 20)).layer = walls;
    add_square(m.root(), 40);
    b.put_model(m);
    expect_run(b, "layers_of_nested_groups");
}

TEST(LayersBatch, a_layer_without_a_name_lets_the_layer_of_the_group_around_it_through) {
    batch b;
    model_builder m;
    const sketchup::index walls = m.layer("Walls");
    const sketchup::index unnamed = m.layer("");
    list_builder inner = add_group(m, add_group(m, m.root(), walls), unnamed);
    add_square(inner);
    m.element(add_square(inner, 20)).layer = unnamed;
    b.put_model(m);
    expect_run(b, "layer_without_a_name");
}

TEST(LayersBatch, hidden_faces_groups_and_instances_are_left_out) {
    batch b;
    model_builder m;
    list_builder hidden = add_group(m, m.root(), layer0);
    m.element(hidden.placement()).hidden = true;
    add_square(hidden);
    add_square(add_group(m, hidden, layer0));
    list_builder shown = add_group(m, m.root(), layer0);
    m.element(add_square(shown)).hidden = true;
    add_square(shown, 20);
    list_builder component = m.component("tile");
    add_square(component, 0, 10);
    m.element(m.root().instance(component)).hidden = true;
    m.root().instance(component);
    b.put_model(m);
    expect_run(b, "hidden_things");
}

TEST(LayersBatch, a_layer_switched_off_hides_faces_but_not_nested_groups_elsewhere) {
    batch b;
    model_builder m;
    const sketchup::index off = m.layer("Off", false);
    list_builder half_shown = add_group(m, m.root(), layer0);
    m.element(add_square(half_shown)).layer = off;
    add_square(half_shown, 0, 20);
    add_square(add_group(m, half_shown, layer0), 0, 10);
    add_square(add_group(m, m.root(), off));
    add_square(add_group(m, add_group(m, m.root(), layer0), off));
    list_builder component = m.component("tile");
    add_square(component);
    m.element(m.root().instance(component)).layer = off;
    m.element(add_square(m.root())).layer = off;
    add_square(m.root(), 20);
    b.put_model(m);
    expect_run(b, "layer_switched_off");
}

TEST(LayersBatch, with_layer0_hidden_the_inherited_layer_decides) {
    batch b;
    model_builder m;
    m.model().layers[layer0].hidden = true;
    const sketchup::index on = m.layer("Shown");
    const sketchup::index off = m.layer("Off", false);
    add_square(m.root());
    m.element(add_square(add_group(m, m.root(), layer0))).layer = on;
    list_builder shown = add_group(m, m.root(), on);
    add_square(shown, 0, 10);
    m.element(add_square(shown)).layer = off;
    add_square(add_group(m, shown, layer0), 0, 20);
    b.put_model(m);
    expect_run(b, "hidden_layer0");
}

void put_model_for_animation(batch& b) {
    model_builder m;
    const sketchup::index walls = m.layer("Walls");
    const sketchup::index doors = m.layer("Doors", false);
    list_builder outer = add_group(m, m.root(), walls);
    add_square(outer, 0, 10);
    list_builder inner = add_group(m, outer, doors);
    add_square(inner, 0, 20);
    m.element(add_square(inner, 20, 20)).layer = walls;
    add_square(add_group(m, outer, layer0), 0, 30);
    list_builder component = m.component("tile");
    add_square(component, 0, 40);
    m.element(m.root().instance(component)).layer = doors;
    list_builder plain = m.component("plain tile");
    add_square(plain, 0, 50);
    m.root().instance(plain);
    add_square(m.root());
    b.put_model(m);
}

TEST(LayersBatch, an_animation_holds_all_layers_with_their_table_and_chains) {
    batch b;
    put_model_for_animation(b);
    expect_run(b, "animation", {b / "batch_file.txt", "-is_animation"});
}

TEST(LayersBatch, an_animation_needs_no_name_for_its_stream) {
    batch b;
    put_model_for_animation(b);
    expect_run(b, "animation", {"-is_animation"});
}

// The instance stays, but the faces of it that would count as on that layer go.
TEST(LayersBatch, groups_on_a_beam_layer_are_dropped_and_instances_are_not) {
    batch b;
    model_builder m;
    const sketchup::index beams = m.layer("QLW_Lamp_Beams");
    const sketchup::index more_beams = m.layer("my qlw_lamp_beams 2");
    const sketchup::index walls = m.layer("Walls");
    for (const sketchup::index layer : {beams, more_beams})
        m.element(add_square(add_group(m, m.root(), layer))).layer = walls;
    list_builder component = m.component("spot");
    add_square(component);
    m.element(add_square(component, 20, 20)).layer = walls;
    add_square(add_group(m, component, layer0));
    add_square(add_group(m, component, walls), 0, 30);
    m.element(m.root().instance(component)).layer = beams;
    b.put_model(m);
    expect_run(b, "lamp_beams");
}

TEST(LayersBatch, names_of_layers_go_out_as_they_are) {
    batch b;
    model_builder m;
    const sketchup::index garden = m.layer("M\xC3\xB6"
                                           "bel im Garten; 1. Stock");
    const sketchup::index stairs = m.layer(" \xE9\x9A\x8E\xE6\xAE\xB5 ");
    add_square(add_group(m, m.root(), garden));
    list_builder named = m.root().group("  a; name\twith blanks  ");
    m.element(add_square(named, 20)).layer = stairs;
    b.put_model(m);
    expect_run(b, "layer_names");
}

} // namespace
