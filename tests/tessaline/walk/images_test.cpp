// Pictures placed in the model: which are written, where their corners are, and what stands in their blocks.

#include "qlw/trace_state.h"
#include "tests/tessaline/exported_pictures.h"

#include <limits>

namespace {

using image::picture_format;
using namespace sketchup;

class Images : public exported_pictures_test {
protected:
    Images() { set_global_double("rvl_image_offset", 0); }

    // An image entity whose file has this many pixels.
    entity_place place(std::uint32_t width, std::uint32_t height, const transform& where = identity_transform) {
        const picture_bytes file = encoded(gradient(width, height), picture_format::png);
        const entity_place placed =
            builder.root().image(builder.image_definition(file, "Tree.png", width, height), where);
        builder.placement(placed).id = 88;
        builder.placement(placed).casts_shadows = true;
        return placed;
    }

    // What ProcessImage gives for the model's only image.
    int process(const transform16& matrix = identity16) {
        open_next();
        SUEntitiesRef entities = SU_INVALID;
        SUModelGetEntities(open_model, &entities);
        return reader.ProcessImage(all_handles(SUEntitiesGetNumImages, SUEntitiesGetImages, entities).front(), matrix,
                                   "");
    }

    // What declares the image's material.
    const std::string declaration = lines({"MATF;IMAGE_TX_Tree_88.png.OrnMaterial", "MTX2;1", "MATI;10"});

    // The stream without it.
    std::string block() {
        const std::string text = stream_text();
        EXPECT_EQ(text.substr(0, declaration.size()), declaration);
        return text.substr(declaration.size());
    }

    // The positions of the four corners, in the order of the stream.
    std::vector<std::string> corners() {
        std::istringstream text(stream_text());
        std::vector<std::string> found;
        for (std::string line; std::getline(text, line);)
            if (line.starts_with("VERT;"))
                found.push_back(line.substr(0, line.find('\r')));
        return found;
    }
};

using corner_list = std::vector<std::string>;

// The four vertex groups of a picture of 640 by 480 pixels at the origin and its triangles, numbered from 0.
const std::string quad_640_480 =
    lines({"NORM;(0,0,1)", "UVQ;(0,0,0)", "VERT;(0,0,0)", "ADDV;0", "NORM;(0,0,1)", "UVQ;(1,0,0)", "VERT;(16.256,0,0)",
           "ADDV;1", "NORM;(0,0,1)", "UVQ;(1,1,0)", "VERT;(16.256,12.192,0)", "ADDV;2", "NORM;(0,0,1)", "UVQ;(0,1,0)",
           "VERT;(0,12.192,0)", "ADDV;3", "FACE;0, 1, 2", "FACE;2, 3, 0"});

// 640 x 0.0254 = 16.256, 480 x 0.0254 = 12.192
TEST_F(Images, a_pixel_is_an_inch_where_nothing_is_scaled) {
    place(640, 480);
    EXPECT_EQ(process(), 1);
    EXPECT_EQ(block(), lines({"#;", "#;NEW MESH for Image", "MESH", "TLAY;Layer0", "CULL;0", "MPUV;1", "MATL;10",
                              "MPU2;1", "MAT2;10"}) +
                           quad_640_480 + lines({"EMSH;"}));
}

TEST_F(Images, the_back_has_the_material_10_whatever_the_front_has) {
    material_records.resize(5);
    place(2, 2);
    process();
    const std::string text = stream_text();
    EXPECT_NE(text.find(lines({"MPUV;1", "MATL;15", "MPU2;1", "MAT2;10"})), std::string::npos) << text;
}

TEST_F(Images, the_material_is_declared_ahead_of_the_block) {
    place(2, 2);
    process();
    EXPECT_TRUE(stream_text().starts_with(
        lines({"MATF;IMAGE_TX_Tree_88.png.OrnMaterial", "MTX2;1", "MATI;10", "#;", "#;NEW MESH for Image", "MESH"})));
}

TEST_F(Images, a_picture_that_casts_no_shadow_says_so_behind_the_culling) {
    builder.placement(place(2, 2)).casts_shadows = false;
    process();
    EXPECT_TRUE(block().starts_with(
        lines({"#;", "#;NEW MESH for Image", "MESH", "TLAY;Layer0", "CULL;0", "SHDW;0", "MPUV;1", "MATL;10"})));
}

TEST_F(Images, in_a_lamp_block_no_mesh_is_opened_or_closed) {
    place(640, 480);
    open_lamp_block();
    EXPECT_EQ(process(), 1);
    EXPECT_EQ(stream_text(), lamp_head + declaration +
                                 lines({"#;", "#;INSERT IMAGE IN LAMP", "TLAY;Layer0", "CULL;0", "MPUV;1", "MATL;10",
                                        "MPU2;1", "MAT2;10"}) +
                                 quad_640_480);
}

TEST_F(Images, in_a_lamp_block_what_follows_is_numbered_4_higher) {
    place(640, 480);
    open_lamp_block();
    reader.blocks.end_face_pass(7, false);
    process();
    EXPECT_EQ(reader.blocks.state().vertex_base, 11);
    const std::string text = stream_text();
    EXPECT_TRUE(text.ends_with(lines({"ADDV;10", "FACE;7, 8, 9", "FACE;9, 10, 7"}))) << text;
}

TEST_F(Images, outside_a_lamp_block_what_follows_is_numbered_from_0) {
    place(2, 2);
    process();
    EXPECT_EQ(reader.blocks.state().vertex_base, 0);
}

TEST_F(Images, a_picture_opens_no_face_block) {
    place(2, 2);
    process();
    EXPECT_FALSE(block_seen);
}

TEST_F(Images, a_hidden_picture_writes_nothing) {
    builder.placement(place(2, 2)).hidden = true;
    EXPECT_EQ(process(), 0);
    EXPECT_EQ(stream_text(), "");
    EXPECT_TRUE(all_files().empty());
}

TEST_F(Images, a_picture_on_a_layer_that_is_off_writes_nothing) {
    builder.placement(place(2, 2)).layer = builder.layer("Off", false);
    EXPECT_EQ(process(), 0);
    EXPECT_EQ(stream_text(), "");
    EXPECT_TRUE(all_files().empty());
}

TEST_F(Images, in_an_animation_a_layer_that_is_off_counts_and_is_listed) {
    theApp.is_doing_animation = true;
    current_oparms->layer_chain = "0,4";
    builder.placement(place(2, 2)).layer = builder.layer("Off", false);
    EXPECT_EQ(process(), 1);
    EXPECT_TRUE(block().starts_with(
        lines({"#;", "#;NEW MESH for Image", "MESH", "TLAY;Off", "LYRS;0,4,1", "CULL;0", "MPUV;1"})));
}

TEST_F(Images, in_an_animation_a_hidden_picture_stays_out) {
    theApp.is_doing_animation = true;
    builder.placement(place(2, 2)).hidden = true;
    EXPECT_EQ(process(), 0);
}

TEST_F(Images, on_layer0_a_picture_is_on_the_layer_of_what_encloses_it) {
    current_oparms->layer_name = "Walls";
    place(2, 2);
    process();
    EXPECT_NE(block().find("TLAY;Walls\r\n"), std::string::npos);
}

// Half an inch, 0.0127 metres, along the normal.
TEST_F(Images, the_offset_lifts_all_corners_off_the_plane) {
    set_global_double("rvl_image_offset", 0.5);
    place(10, 5);
    process();
    EXPECT_EQ(corners(), (corner_list{"VERT;(0,0,0.0127)", "VERT;(0.254,0,0.0127)", "VERT;(0.254,0.127,0.0127)",
                                      "VERT;(0,0.127,0.0127)"}));
}

TEST_F(Images, the_offset_is_not_scaled_with_the_picture) {
    set_global_double("rvl_image_offset", 0.5);
    place(10, 5, scaled(2, 4, 100));
    process();
    EXPECT_EQ(corners(), (corner_list{"VERT;(0,0,0.0127)", "VERT;(0.508,0,0.0127)", "VERT;(0.508,0.508,0.0127)",
                                      "VERT;(0,0.508,0.0127)"}));
}

TEST_F(Images, the_offset_may_go_below_the_plane) {
    set_global_double("rvl_image_offset", -1);
    place(1, 1);
    process();
    EXPECT_EQ(corners().at(0), "VERT;(0,0,-0.0254)");
}

// The list stands upright: the second axis runs along z, the third, which is the picture's normal, against y.
TEST_F(Images, the_offset_goes_along_the_normal_of_the_picture_in_the_world) {
    set_global_double("rvl_image_offset", 0.5);
    place(10, 5);
    process({1, 0, 0, 0, 0, 0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1});
    EXPECT_EQ(block(), lines({"#;",           "#;NEW MESH for Image",
                              "MESH",         "TLAY;Layer0",
                              "CULL;0",       "MPUV;1",
                              "MATL;10",      "MPU2;1",
                              "MAT2;10",      "NORM;(0,-1,0)",
                              "UVQ;(0,0,0)",  "VERT;(0,-0.0127,0)",
                              "ADDV;0",       "NORM;(0,-1,0)",
                              "UVQ;(1,0,0)",  "VERT;(0.254,-0.0127,0)",
                              "ADDV;1",       "NORM;(0,-1,0)",
                              "UVQ;(1,1,0)",  "VERT;(0.254,-0.0127,0.127)",
                              "ADDV;2",       "NORM;(0,-1,0)",
                              "UVQ;(0,1,0)",  "VERT;(0,-0.0127,0.127)",
                              "ADDV;3",       "FACE;0, 1, 2",
                              "FACE;2, 3, 0", "EMSH;"}));
}

// Moved by (100, 0, 0) in the list, which is itself turned by 90 degrees about z and moved by (0, 0, 10): the first
// axis runs along y, the second against x.
TEST_F(Images, the_placement_is_taken_within_that_of_the_list) {
    place(10, 5, moved({100, 0, 0}));
    const transform16 matrix = {0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 10, 1};
    process(matrix);
    EXPECT_EQ(corners(), (corner_list{"VERT;(0,2.54,0.254)", "VERT;(0,2.794,0.254)", "VERT;(-0.127,2.794,0.254)",
                                      "VERT;(-0.127,2.54,0.254)"}));
}

// A weight of a half in the placement doubles its lengths.
TEST_F(Images, the_placement_is_normalised) {
    transform where = moved({3, 0, 0});
    where[15] = 0.5;
    place(10, 5, where);
    process();
    EXPECT_EQ(corners(), (corner_list{"VERT;(0.1524,0,0)", "VERT;(0.6604,0,0)", "VERT;(0.6604,0.254,0)",
                                      "VERT;(0.1524,0.254,0)"}));
}

TEST_F(Images, a_mirror_leaves_the_order_of_the_triangles) {
    place(10, 5, scaled(-1, 1, 1));
    process();
    const std::string text = stream_text();
    EXPECT_NE(text.find(lines({"FACE;0, 1, 2", "FACE;2, 3, 0"})), std::string::npos);
    EXPECT_NE(text.find(lines({"UVQ;(1,0,0)", "VERT;(-0.254,0,0)"})), std::string::npos);
}

TEST_F(Images, without_pixels_all_corners_fall_together_and_the_triangles_stand) {
    const entity_place placed =
        builder.root().image(builder.image_definition({}, "Tree.png", 10, 5), moved({100, 0, 0}));
    builder.placement(placed).casts_shadows = true;
    EXPECT_EQ(process(), 1);
    const auto vertex = [](const std::string& uvq, const std::string& number) {
        return lines({"NORM;(0,0,1)", "UVQ;" + uvq, "VERT;(2.54,0,0)", "ADDV;" + number});
    };
    EXPECT_EQ(stream_text(), lines({"#;", "#;NEW MESH for Image", "MESH", "TLAY;Layer0", "CULL;0", "MPUV;1", "MATL;0",
                                    "MPU2;1", "MAT2;10"}) +
                                 vertex("(0,0,0)", "0") + vertex("(1,0,0)", "1") + vertex("(1,1,0)", "2") +
                                 vertex("(0,1,0)", "3") + lines({"FACE;0, 1, 2", "FACE;2, 3, 0", "EMSH;"}));
}

TEST_F(Images, the_attributes_of_a_picture_are_read) {
    builder.attribute(place(2, 2), "qlw_test", "key", text("value"));
    process();
    ASSERT_EQ(attribute_list.size(), 1u);
    EXPECT_EQ(attribute_list[0].value, "value");
}

TEST_F(Images, the_attributes_of_a_picture_reach_the_parameters) {
    const entity_place placed = place(2, 2);
    builder.attribute(placed, "Vellane_object_properties", "invisible", truth(true));
    builder.attribute(placed, "qlw_lamp", "ivl_lamp_channel", whole_number(7));
    process();
    EXPECT_TRUE(current_oparms->invisible);
    EXPECT_EQ(current_oparms->light.channel, 7);
}

// A developer's build opens the log.
TEST_F(Images, the_extraction_log_names_picture_layer_and_place) {
    set_global_bool("bcomm_use_extraction_log_file", true);
    set_global_double("rvl_image_offset", 0.5);
    const std::string log_name = batch / "log.txt";
    trace_state().extraction_log.open(log_name, output_file_mode::quiet);
    place(2, 2, moved({1, 2, 3}));
    process();
    EXPECT_EQ(text_of_file(log_name), "Image: Tree.png,  layer: Layer0, loc: (1, 2, 3.5)\r\n") << "it was flushed";
    trace_state().extraction_log.close();
}

TEST_F(Images, the_extraction_log_stays_empty_while_its_setting_is_off) {
    set_global_bool("bcomm_use_extraction_log_file", false);
    const std::string log_name = batch / "log.txt";
    trace_state().extraction_log.open(log_name, output_file_mode::quiet);
    place(2, 2);
    process();
    EXPECT_EQ(text_of_file(log_name), "");
    trace_state().extraction_log.close();
}

} // namespace
