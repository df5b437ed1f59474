#include "tests/sketchup/api/test_model.h"

#include <gtest/gtest.h>

using sketchup::model_builder;

TEST(Edge, gives_its_ends_and_its_flags) {
    model_builder builder;
    const sketchup::entity_place edge = builder.root().edge({1, 2, 3}, {4, 5, 6});
    builder.edge(edge).soft = true;
    test_model opened(builder);
    SUVertexRef start = SU_INVALID, end = SU_INVALID;
    EXPECT_EQ(SUEdgeGetStartVertex(opened.edge(), &start), SU_ERROR_NONE);
    EXPECT_EQ(SUEdgeGetEndVertex(opened.edge(), &end), SU_ERROR_NONE);
    SUPoint3D from{}, to{};
    EXPECT_EQ(SUVertexGetPosition(start, &from), SU_ERROR_NONE);
    EXPECT_EQ(SUVertexGetPosition(end, &to), SU_ERROR_NONE);
    EXPECT_EQ(from.x, 1);
    EXPECT_EQ(to.z, 6);
    bool soft = false, smooth = true;
    EXPECT_EQ(SUEdgeGetSoft(opened.edge(), &soft), SU_ERROR_NONE);
    EXPECT_EQ(SUEdgeGetSmooth(opened.edge(), &smooth), SU_ERROR_NONE);
    EXPECT_TRUE(soft);
    EXPECT_FALSE(smooth);
}

TEST(Edge, lists_the_faces_it_bounds) {
    model_builder builder;
    builder.root().face({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}});
    builder.root().face({{0, 0, 0}, {1, 0, 0}, {0, 0, 1}}); // shares the first edge
    test_model opened(builder);
    const auto both = all_of(SUEdgeGetNumFaces, SUEdgeGetFaces, opened.edge(0));
    ASSERT_EQ(both.size(), 2u);
    EXPECT_TRUE(same(both[0], opened.face(0)));
    EXPECT_TRUE(same(both[1], opened.face(1)));
    EXPECT_EQ(all_of(SUEdgeGetNumFaces, SUEdgeGetFaces, opened.edge(1)).size(), 1u);
}
