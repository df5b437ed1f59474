// How many steps of progress a model has.

#include "tessaline/walk/counting.h"

#include "tests/tessaline/run_fixture.h"

namespace {

using sketchup::list_builder;
using sketchup::model_builder;

class Counting : public run_fixture {};

TEST(ItemCount, grows_by_what_is_added_and_ends_at_the_largest_number_of_32_bits) {
    int total = 2;
    add_items(total, 3);
    EXPECT_EQ(total, 5);
    add_items(total, 2147483641);
    EXPECT_EQ(total, 2147483646);
    add_items(total, 2);
    EXPECT_EQ(total, 2147483647);
    add_items(total, 18446744073709551615u);
    EXPECT_EQ(total, 2147483647);
}

TEST_F(Counting, an_empty_model_has_a_total_of_0) {
    model_builder m;
    body_of(m);
    EXPECT_EQ(reader.total_items, 0);
}

TEST_F(Counting, hidden_content_and_content_of_hidden_layers_counts) {
    model_builder m;
    list_builder hidden = m.root().group();
    hidden.square(10);
    m.element(hidden.placement()).hidden = true;
    list_builder off = m.root().group();
    off.square(10);
    m.element(off.placement()).layer = m.layer("off", false);
    body_of(m);
    EXPECT_EQ(reader.total_items, 2);
    EXPECT_EQ(reader.items_done, 0); // none of it was written
}

TEST_F(Counting, a_component_counts_once_for_each_placement) {
    model_builder m;
    list_builder component = m.component("part");
    component.square(10);
    for (int at = 0; at < 1000; ++at)
        m.root().instance(component);
    body_of(m);
    EXPECT_EQ(reader.total_items, 1000);
    EXPECT_EQ(reader.items_done, 1000);
}

TEST_F(Counting, a_plant_is_counted_as_geometry) {
    model_builder m;
    list_builder plant = m.component("oak");
    plant.square(10);
    m.attribute(plant.list(), "qlw_plant", "library", sketchup::text("Trees"));
    m.root().instance(plant);
    body_of(m);
    EXPECT_EQ(reader.total_items, 1);
}

TEST_F(Counting, edges_count_only_when_they_are_asked_for) {
    const auto total_with = [this](int edge_lines) {
        set_global_int("ivl_edge_lines", edge_lines);
        model_builder m;
        m.root().square(10);
        m.root().edge({0, 0, 50}, {10, 0, 50});
        SketchUpReader one;
        one.ReadSkpFile(save(m), batch / "batch_file.txt");
        return one.total_items;
    };
    EXPECT_EQ(total_with(0), 1);
    EXPECT_EQ(total_with(1), 6); // a face, its four edges and the one that stands alone
    EXPECT_EQ(total_with(2), 2); // a face and the edge that stands alone
}

TEST_F(Counting, edges_that_are_written_count_as_done_even_if_they_are_hidden) {
    const auto done_with = [this](int edge_lines) {
        set_global_int("ivl_edge_lines", edge_lines);
        model_builder m;
        m.root().square(10);
        m.element(m.root().edge({0, 0, 50}, {10, 0, 50})).hidden = true;
        SketchUpReader one;
        one.ReadSkpFile(save(m), batch / "batch_file.txt");
        return one.items_done;
    };
    EXPECT_EQ(done_with(0), 1);
    EXPECT_EQ(done_with(1), 6); // a face, its four edges and the one that stands alone
    EXPECT_EQ(done_with(2), 2); // a face and the edge that stands alone
}

TEST_F(Counting, comes_behind_the_settings_of_the_model) {
    model_builder m;
    m.attribute(m.root().list(), "qlw_globals", "ivl_edge_lines", sketchup::whole_number(1));
    m.root().square(10);
    body_of(m);
    EXPECT_EQ(reader.total_items, 5); // a face and its four edges
}

TEST_F(Counting, a_scattered_component_counts_its_content_and_every_line_once_more) {
    model_builder m;
    list_builder pebble = m.component("pebble");
    pebble.square(10);
    pebble.square(20);
    batch.write("skatter_insts.txt", "#\na;b;c;pebble;1\na;b;c;unknown;1\n");
    body_of(m);
    EXPECT_EQ(reader.total_items, 4); // two faces, and two lines that are no comments
}

TEST_F(Counting, a_scattered_plant_counts_once_beside_its_line) {
    model_builder m;
    list_builder oak = m.component("oak");
    oak.square(10);
    oak.square(20);
    m.attribute(oak.list(), "qlw_plant", "ornplant_name", sketchup::text("oak.plant"));
    batch.write("skatter_insts.txt", "a;b;c;oak;1\n");
    body_of(m);
    EXPECT_EQ(reader.total_items, 2);
}

TEST_F(Counting, a_scattered_plant_counts_as_geometry_where_plants_are_shown_as_what_they_hold) {
    const auto total = [this] {
        model_builder m;
        list_builder oak = m.component("oak");
        oak.square(10);
        oak.square(20);
        m.attribute(oak.list(), "qlw_plant", "ornplant_name", sketchup::text("oak.plant"));
        batch.write("skatter_insts.txt", "a;b;c;oak;1\n");
        skatter_counted = false;
        SketchUpReader one;
        one.ReadSkpFile(save(m), batch / "batch_file.txt");
        return one.total_items;
    };
    set_global_bool("bvl_display_all_plants_as_2d_images", true);
    EXPECT_EQ(total(), 3); // two faces and the line
    set_global_bool("bvl_display_all_plants_as_2d_images", false);
    EXPECT_EQ(total(), 2); // the plant and the line
    theApp.extract_mode = "QLW 3D PDF";
    EXPECT_EQ(total(), 3);
}

TEST_F(Counting, a_file_of_scattered_components_that_cannot_be_opened_is_passed_over) {
    batch.make_folder("skatter_insts.txt");
    model_builder m;
    m.component("pebble").square(10);
    m.root().square(10);
    testing::internal::CaptureStderr();
    body_of(m);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(result, 1);
    EXPECT_EQ(reader.total_items, 1);
}

TEST_F(Counting, a_file_of_scattered_components_is_traced_with_every_name_that_is_compared) {
    trace_capture trace;
    batch.write("skatter_insts.txt", "a;b;c;stone;1\n");
    model_builder m;
    m.component("pebble").square(10);
    m.component("stone").square(10);
    m.component("sand").square(10);
    body_of(m);
    const std::string text = trace.text_without_line_numbers();
    const std::string found =
        "skatter_instances(#): SketchUpReader::CountEntities():: Skatter_insts.txt file was found\n";
    const std::string compared = "skatter_instances(#): find_definition():: stone <> pebble\n"
                                 "skatter_instances(#): find_definition():: stone <> stone\n";
    const std::size_t counted = text.find(found + compared);
    ASSERT_NE(counted, std::string::npos) << text;
    EXPECT_NE(text.find(compared, counted + found.size() + compared.size()), std::string::npos); // the walk's turn
    EXPECT_EQ(text.find("stone <> sand"), std::string::npos);
}

TEST_F(Counting, an_image_counts_once_for_each_placement) {
    model_builder m;
    list_builder frame = m.component("frame");
    frame.image(m.image_definition({'B', 'M', 0, 0}, "picture.bmp", 16, 16));
    m.root().instance(frame);
    m.root().instance(frame);
    body_of(m);
    EXPECT_EQ(reader.total_items, 2);
    EXPECT_EQ(reader.items_done, 2);
}

TEST_F(Counting, lines_of_a_model_without_components_do_not_count) {
    model_builder m;
    batch.write("skatter_insts.txt", "a;b;c;oak;1\n");
    body_of(m);
    EXPECT_EQ(reader.total_items, 0);
}

TEST_F(Counting, the_content_of_scattered_components_counts_once_in_a_process) {
    batch.write("skatter_insts.txt", "a;b;c;pebble;1\n");
    for (const int expected : {2, 1}) { // the second reading counts the line alone
        model_builder m;
        m.component("pebble").square(10);
        SketchUpReader one;
        one.ReadSkpFile(save(m), batch / "batch_file.txt");
        EXPECT_EQ(one.total_items, expected);
    }
}

} // namespace
