// What the paint on a face makes of its block: the numbers of both sides and the texture coordinates.

#include "tests/tessaline/painted_model.h"
#include "tests/tessaline/settled_faces.h"

namespace {

using PaintedFaces = painted_model_test;

// The head of a textured, one-sided block of the first material, with what declares that.
const std::string brick_head = lines({"MATF;TEX%3a0001_Brick.OrnMaterial", "MTX2;1", "MATI;10", "#; ProcessFace MESH",
                                      "MESH;", "TLAY;Layer0", "CULL;0", "MPUV;1", "MATL;10", "MPU2;1", "MAT2;10"});
const std::string two_triangles = lines({"FACE;0,1,2", "FACE;1,0,3", "EMSH;"});

// The face has lost its own paint, so that its coordinates are inches, and the layer's tile is 10 by 20 inches.
TEST_F(PaintedFaces, colour_by_layer_stretches_the_coordinates_by_the_picture_of_the_layer) {
    theApp.color_by_layer = true;
    set_global_int("ivl_2_sided_faces", 2);
    square(plain(12, "Red"));
    builder.model().layers[0].material = textured(13, "Brick");
    open_painted();
    process_faces();
    const std::string vertices =
        lines({"MATL;10", "MPUV;1", "NORM;(0,0,1)", "UVQ;(10,0,1)", "VERT;(2.54,0,0)", "ADDV;0", "NORM;(0,0,1)",
               "UVQ;(0,5,1)", "VERT;(0,2.54,0)", "ADDV;1", "NORM;(0,0,1)", "UVQ;(0,0,1)", "VERT;(0,0,0)", "ADDV;2",
               "NORM;(0,0,1)", "UVQ;(10,5,1)", "VERT;(2.54,2.54,0)", "ADDV;3"});
    const std::string head = lines({"#; ProcessFace MESH", "MESH;", "TLAY;Layer0", "CULL;1"});
    EXPECT_EQ(stream_text(), lines({"MATF;Brick.OrnMaterial", "MTX2;1", "MATI;10"}) + head + vertices +
                                 lines({"FACE;0,1,2", "FACE;1,0,3", "EMSH;", "EMSH; Face"}) + head + vertices +
                                 lines({"FACE;2,1,0", "FACE;3,0,1", "EMSH;"}));
}

// Without a texture writer nothing straightens the picture, and the helper gives q = 1 - x / 1000.
TEST_F(PaintedFaces, the_third_coordinate_is_1_and_is_not_divided_into_the_others) {
    const auto brick = textured(12, "Brick");
    distort_front(square(brick, brick));
    open();
    process_faces();
    const std::string text = stream_text();
    EXPECT_NE(text.find("UVQ;(10,0,1)\r\nVERT;(2.54,0,0)"), std::string::npos) << text;
    EXPECT_NE(text.find("UVQ;(10,5,1)\r\nVERT;(2.54,2.54,0)"), std::string::npos) << text;
}

// Turned by 90 degrees, doubled and moved: the point (x, y) goes to (100 - 2y, 200 + 2x, 300) inches. The tile is 10 by
// 20 inches of the face as it was drawn.
TEST_F(PaintedFaces, texture_coordinates_are_those_of_the_point_before_the_transform) {
    const auto brick = textured(12, "Brick");
    square(brick, brick);
    open_painted();
    process_faces({0, 2, 0, 0, -2, 0, 0, 0, 0, 0, 2, 0, 100, 200, 300, 1});
    EXPECT_EQ(stream_text(), brick_head +
                                 lines({"NORM;(0,0,1)", "UVQ;(10,0,1)", "VERT;(2.54,10.16,7.62)", "ADDV;0",
                                        "NORM;(0,0,1)", "UVQ;(0,5,1)", "VERT;(-2.54,5.08,7.62)", "ADDV;1",
                                        "NORM;(0,0,1)", "UVQ;(0,0,1)", "VERT;(2.54,5.08,7.62)", "ADDV;2",
                                        "NORM;(0,0,1)", "UVQ;(10,5,1)", "VERT;(-2.54,10.16,7.62)", "ADDV;3"}) +
                                 two_triangles);
}

// The matrices divide by 2 in front and by 4 on the back, the tile by 10 and 20. No texture writer straightens them.
TEST_F(PaintedFaces, each_pass_of_a_face_that_is_distorted_on_both_sides_has_the_coordinates_of_its_side) {
    set_global_int("ivl_2_sided_faces", 2);
    const auto brick = textured(12, "Brick");
    auto& mapping = builder.mapping(square(brick, brick));
    mapping.front.positioned = mapping.back.positioned = true;
    mapping.front.matrix = {2, 0, 0.001, 0, 2, 0, 0, 0, 1};
    mapping.back.matrix = {4, 0, 0.001, 0, 4, 0, 0, 0, 1};
    open();
    process_faces();
    const std::string text = stream_text();
    const auto behind = [&text](std::size_t from, std::string_view piece) { return text.find(piece, from); };
    const auto front_x = behind(0, "UVQ;(5,0,1)\r\nVERT;(2.54,0,0)");
    const auto front_y = behind(front_x, "UVQ;(0,2.5,1)\r\nVERT;(0,2.54,0)");
    const auto back_x = behind(front_y, "UVQ;(2.5,0,1)\r\nVERT;(2.54,0,0)");
    const auto back_y = behind(back_x, "UVQ;(0,1.25,1)\r\nVERT;(0,2.54,0)");
    EXPECT_NE(back_y, std::string::npos) << text;
}

// A material whose id is below 0 has a name and the number 0, so that the back shows.
TEST_F(PaintedFaces, a_picture_on_the_back_alone_shows_on_both_sides_with_the_coordinates_of_the_back) {
    const auto face = square(plain(-1, "Red"), textured(12, "Brick"));
    builder.mapping(face).back.positioned = true;
    builder.mapping(face).back.matrix = {2, 0, 0, 0, 2, 0, 0, 0, 1};
    open_painted();
    process_faces();
    EXPECT_EQ(stream_text(),
              brick_head +
                  lines({"NORM;(0,0,1)", "UVQ;(5,0,1)", "VERT;(2.54,0,0)", "ADDV;0", "NORM;(0,0,1)", "UVQ;(0,2.5,1)",
                         "VERT;(0,2.54,0)", "ADDV;1", "NORM;(0,0,1)", "UVQ;(0,0,1)", "VERT;(0,0,0)", "ADDV;2",
                         "NORM;(0,0,1)", "UVQ;(5,2.5,1)", "VERT;(2.54,2.54,0)", "ADDV;3"}) +
                  two_triangles);
}

class ColourByLayer : public painted_model_test, public testing::WithParamInterface<int> {};

// The first face alone is written, while the paint of the second, as that of an enclosing object, is in force.
TEST_P(ColourByLayer, takes_the_paint_off_both_sides_and_passes_over_that_of_the_enclosing_object) {
    theApp.color_by_layer = true;
    set_global_int("ivl_2_sided_faces", GetParam());
    square(plain(12, "Red"), plain(13, "Green"));
    square(plain(15, "Blue"));
    builder.model().layers[0].material = plain(14, "Wall");
    open_painted();
    SUFaceGetFrontMaterial(faces()[1], &current_oparms->material);
    reader.ProcessFace(faces()[0], identity16, false, "");
    EXPECT_EQ(stream_text(), lines({"MATF;Wall.OrnMaterial", "MTX2;1", "MATI;10", "#; ProcessFace MESH", "MESH;",
                                    "TLAY;Layer0", "CULL;0", "MATL;10", "MAT2;10"}) +
                                 square_from(0) + end_of_block);
    SUMaterialRef front = SU_INVALID;
    SUMaterialRef back = SU_INVALID;
    SUFaceGetFrontMaterial(faces()[0], &front);
    SUFaceGetBackMaterial(faces()[0], &back);
    EXPECT_TRUE(SUIsInvalid(front));
    EXPECT_TRUE(SUIsInvalid(back));
}

INSTANTIATE_TEST_SUITE_P(TwoSidedSetting, ColourByLayer, testing::Values(0, 1));

// Whoever asks for a material reads its attributes, unless the side is straight and its picture lies there already.
TEST_F(PaintedFaces, a_distorted_front_leaves_the_back_as_straight_as_it_is) {
    set_global_int("ivl_2_sided_faces", 1);
    const auto brick = textured(12, "Brick");
    const auto wood = textured(13, "Wood");
    builder.attribute({sketchup::entity_kind::material, brick}, "d", "k", sketchup::text("brick"));
    builder.attribute({sketchup::entity_kind::material, wood}, "d", "k", sketchup::text("wood"));
    square(brick, wood);
    distort_front(square(brick, wood));
    open_painted();
    process_faces();
    ASSERT_EQ(attribute_list.size(), 1u);
    EXPECT_EQ(attribute_list[0].value, "brick"); // that of the second face's front, the last that was evaluated
}

} // namespace
