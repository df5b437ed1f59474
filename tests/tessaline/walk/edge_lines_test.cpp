// Which edges are kept for the edge block.

#include "tests/support/trace_capture.h"
#include "tests/tessaline/count_allocations.h"
#include "tests/tessaline/reader_fixture.h"

#include <gmock/gmock.h>

namespace {

using sketchup::entity_place;
using sketchup::vec3;
using testing::ElementsAre;
using testing::IsEmpty;

class EdgeLines : public reader_test {
protected:
    EdgeLines() { set_global_int("ivl_edge_lines", all); }

    static constexpr int all = 1;
    static constexpr int stand_alone = 2;
    static constexpr int painted = 3;

    std::vector<SUEdgeRef> edges() const {
        SUEntitiesRef entities = SU_INVALID;
        SUModelGetEntities(open_model, &entities);
        return edges_of(entities, false);
    }

    // Offers all edges of the model's own list to the reader; gives what each offer gave.
    std::vector<int> results(const transform16& matrix = identity16) {
        std::vector<int> given;
        for (const SUEdgeRef edge : edges())
            given.push_back(reader.ProcessEdge(edge, matrix, "1-"));
        return given;
    }

    entity_place line = builder.root().edge({0, 0, 0}, {10, 20, 30});
};

TEST_F(EdgeLines, an_edge_is_kept_with_its_ends_in_world_inches) {
    open();
    transform16 doubled_and_moved = identity16;
    doubled_and_moved[0] = doubled_and_moved[5] = doubled_and_moved[10] = 2;
    doubled_and_moved[12] = 100;
    EXPECT_THAT(results(doubled_and_moved), ElementsAre(1));
    ASSERT_EQ(edge_records.size(), 1u);
    EXPECT_EQ(edge_records[0].start, (fpt{100, 0, 0}));
    EXPECT_EQ(edge_records[0].end, (fpt{120, 40, 60}));
    EXPECT_TRUE(edge_records[0].enabled);
}

TEST_F(EdgeLines, every_edge_counts_as_being_on_one_layer) {
    builder.element(line).layer = builder.layer("Walls");
    open();
    results();
    ASSERT_EQ(edge_records.size(), 1u);
    EXPECT_EQ(edge_records[0].layer, 0);
}

TEST_F(EdgeLines, a_hidden_edge_is_left_out) {
    builder.element(line).hidden = true;
    open();
    EXPECT_THAT(results(), ElementsAre(0));
    EXPECT_THAT(edge_records, IsEmpty());
}

TEST_F(EdgeLines, an_edge_on_a_layer_that_is_off_is_left_out) {
    builder.element(line).layer = builder.layer("off", false);
    open();
    EXPECT_THAT(results(), ElementsAre(0));
}

TEST_F(EdgeLines, an_animation_keeps_the_edges_of_all_layers_but_no_hidden_ones) {
    theApp.is_doing_animation = true;
    const auto off = builder.layer("off", false);
    builder.element(line).layer = off;
    const entity_place hidden = builder.root().edge({0, 0, 50}, {10, 0, 50});
    builder.element(hidden).layer = off;
    builder.element(hidden).hidden = true;
    open();
    EXPECT_THAT(results(), ElementsAre(1, 0));
}

TEST_F(EdgeLines, while_Layer0_is_off_the_inherited_layer_decides) {
    builder.model().layers[0].hidden = true;
    builder.layer("on");
    open();
    reader.layer0_hidden = true;
    EXPECT_THAT(results(), ElementsAre(0));
    current_oparms = oparms_array.push();
    set_layer(*current_oparms, "on");
    EXPECT_THAT(results(), ElementsAre(1));
}

TEST_F(EdgeLines, soft_and_smooth_edges_between_coplanar_faces_are_left_out) {
    sketchup::model_builder& m = builder;
    m.root().face({{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}});
    m.root().face({{10, 0, 0}, {20, 0, 0}, {20, 10, 0}, {10, 10, 0}});
    m.edge(m.root().edge({10, 0, 0}, {10, 10, 0})).soft = true;
    m.edge(m.root().edge({20, 0, 0}, {20, 10, 0})).smooth = true;
    open();
    const auto given = results();
    EXPECT_EQ(given.size(), 8u); // the line of the fixture, four edges and three
    EXPECT_EQ(std::count(given.begin(), given.end(), 1), 6);
}

TEST_F(EdgeLines, stand_alone_edges_leave_out_those_of_faces) {
    set_global_int("ivl_edge_lines", stand_alone);
    builder.root().square(10);
    open();
    EXPECT_THAT(results(), ElementsAre(1, 0, 0, 0, 0));
}

TEST_F(EdgeLines, painted_edges_leave_out_those_without_a_material_of_their_own) {
    set_global_int("ivl_edge_lines", painted);
    builder.element(builder.root().edge({0, 0, 50}, {10, 0, 50})).material = builder.material("Red", {255, 0, 0, 255});
    open();
    EXPECT_THAT(results(), ElementsAre(0, 1));
}

TEST_F(EdgeLines, any_other_choice_keeps_all) {
    builder.root().square(10);
    open();
    for (const int choice : {all, 4, -1}) {
        set_global_int("ivl_edge_lines", choice);
        EXPECT_THAT(results(), ElementsAre(1, 1, 1, 1, 1)) << choice;
    }
}

TEST_F(EdgeLines, beyond_the_most_that_are_kept_all_are_left_out_with_one_report) {
    builder.root().square(10);
    open();
    reader.most_edges = 2;
    const trace_capture trace;
    EXPECT_THAT(results(), ElementsAre(1, 1, 0, 0, 0));
    EXPECT_EQ(edge_records.size(), 2u);
    EXPECT_EQ(trace.text_without_line_numbers(),
              "edge_lines(#): SketchUpReader::ProcessEdge():: REPORT: Only 2 edges are shown as lines\n");
}

TEST_F(EdgeLines, the_second_thousand_edges_allocate_nothing_but_the_growing_table) {
    builder.element(line).layer = builder.layer("A layer with a name that is long");
    open();
    const SUEdgeRef edge = edges().front();
    const std::string path = "1234567-1234567-1234567-";
    const auto keep_thousand = [&] {
        for (int i = 0; i != 1000; ++i)
            reader.ProcessEdge(edge, identity16, path);
    };
    keep_thousand();
    edge_records.reserve(2000);
    EXPECT_EQ(allocations_during(keep_thousand), 0);
}

} // namespace
