#include "tessaline/stream/geometry_stream.h"

#include "tests/support/answering_desktop.h"
#include "tests/support/shown_to_user.h"
#include "tests/support/trace_capture.h"
#include "tests/tessaline/stream_text.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr fpt up{0, 0, 1};

// One call of every writer, and what each gives.
void write_one_of_each(geometry_stream& stream) {
    stream.write_header("01/02/2024  03:04:05 UTC");
    stream.write_layer(0, "Layer0");
    stream.write_layer(1, "Roof; north");
    stream.write_pass();
    stream.write_material_declaration("TEX%3a0007_Brick.OrnMaterial", 10);
    stream.write_block_label("ProcessFace MESH");
    stream.write_mesh_opening();
    stream.write_lamp_shape(3);
    stream.write_no_shadow();
    stream.write_ground_cover(-1, "grass.orn");
    stream.write_invisible();
    stream.write_layer_name("Layer0");
    stream.write_layer_chain("0,4,2");
    stream.write_culling(true);
    stream.write_culling(false);
    stream.write_front_textured();
    stream.write_front_material(11);
    stream.write_back_textured();
    stream.write_back_material(12);
    const fpt uvq{1.5, -2.25, 1};
    stream.write_vertex(0, up, &uvq, {2.54, -1e-8, 0.333333333333});
    stream.write_vertex(1, up, nullptr, {0, 0, 0});
    stream.write_face(0, 1, 2);
    stream.write_image_face(2, 3, 0);
    stream.write_mesh_closing("");
    stream.write_mesh_closing("Face");
    stream.write_image_mesh_opening();
    stream.write_direct_light(4);
    stream.write_clip_plane({1, 0, 0}, {0.5, -1.25, 5e-8});
    stream.write_line_mark();
    stream.write_line({0, 0, 0}, {10, 0, 0}, {0, 1, 0});
    stream.write_end();
}

const std::string one_of_each = lines({"#;Tessaline Geometry, new extractor",
                                       "#;01/02/2024  03:04:05 UTC",
                                       "DFFC;ffffff",
                                       "DFBC;ffffff",
                                       "DFEC;000000",
                                       "#;",
                                       "LYIN;0",
                                       "LYNM;Layer0",
                                       "LYIN;1",
                                       "LYNM;Roof; north",
                                       "#;",
                                       "PASS;0",
                                       "#;",
                                       "MATF;TEX%3a0007_Brick.OrnMaterial",
                                       "MTX2;1",
                                       "MATI;10",
                                       "#; ProcessFace MESH",
                                       "MESH;",
                                       "LITE;3",
                                       "SHDW;0",
                                       "GCOR;-1",
                                       "GNDC;grass.orn",
                                       "INVS;1",
                                       "SHDW;0",
                                       "TLAY;Layer0",
                                       "LYRS;0,4,2",
                                       "CULL;1",
                                       "CULL;0",
                                       "MPUV;1",
                                       "MATL;11",
                                       "MPU2;1",
                                       "MAT2;12",
                                       "NORM;(0,0,1)",
                                       "UVQ;(1.5,-2.25,1)",
                                       "VERT;(2.54,0,0.333333333)",
                                       "ADDV;0",
                                       "NORM;(0,0,1)",
                                       "VERT;(0,0,0)",
                                       "ADDV;1",
                                       "FACE;0,1,2",
                                       "FACE;2, 3, 0",
                                       "EMSH;",
                                       "EMSH; Face",
                                       "MESH",
                                       "LGHT;4",
                                       "CLPN;(1,0,0)",
                                       "CLPP;(0.5,-1.25,0)",
                                       "EDGE;1",
                                       "EDG1;(0, 0, 0)",
                                       "EDG2;(10, 0, 0)",
                                       "EDGN;(0, 1, 0)",
                                       "#;",
                                       "END;"});

} // namespace

TEST(GeometryStream, every_record_has_its_own_spelling) {
    EXPECT_EQ(written_by(write_one_of_each), one_of_each);
}

TEST(GeometryStream, a_block_of_sixteen_bytes_gives_the_same_text) {
    EXPECT_EQ(written_by(write_one_of_each, 16), one_of_each);
    EXPECT_EQ(written_by(write_one_of_each, 1), one_of_each);
}

TEST(GeometryStream, every_block_size_gives_the_same_text) {
    for (std::size_t block = 1; block != 200; ++block)
        ASSERT_EQ(written_by(write_one_of_each, block), one_of_each) << "block of " << block;
}

TEST(GeometryStream, a_plant_of_a_library_names_the_library) {
    plant_record plant;
    plant.library = "Trees";
    plant.name = "Oak";
    plant.base = {120, 0, -3e-8};
    plant.diameter = 196.85;
    plant.season = 2;
    plant.rotation_degrees = 5e-8;
    plant.scale = 1.5;
    EXPECT_EQ(written_by([&](geometry_stream& s) { s.write_plant(plant); }),
              lines({"#;PLANT", "PLLB;Trees", "PLNM;Oak", "PLLC;(120,0,0)", "PLDM;196.850000", "PLSN;2",
                     "PLRT;0.000000", "PLSC;1.500000", "PLNT;1", "#"}));
}

// Six decimals of a negative number that is not snapped keep its sign.
TEST(GeometryStream, the_sizes_of_a_plant_below_1e_7_are_plain_zero) {
    plant_record plant;
    plant.library = "Trees";
    plant.name = "Oak";
    plant.diameter = plant.rotation_degrees = plant.scale = -5e-8;
    EXPECT_EQ(written_by([&](geometry_stream& s) { s.write_plant(plant); }),
              lines({"#;PLANT", "PLLB;Trees", "PLNM;Oak", "PLLC;(0,0,0)", "PLDM;0.000000", "PLSN;1", "PLRT;0.000000",
                     "PLSC;0.000000", "PLNT;1", "#"}));
    plant.diameter = plant.rotation_degrees = plant.scale = -1e-7;
    EXPECT_EQ(written_by([&](geometry_stream& s) { s.write_plant(plant); }),
              lines({"#;PLANT", "PLLB;Trees", "PLNM;Oak", "PLLC;(0,0,0)", "PLDM;-0.000000", "PLSN;1", "PLRT;-0.000000",
                     "PLSC;-0.000000", "PLNT;1", "#"}));
}

TEST(GeometryStream, a_plant_with_data_of_its_own_has_a_fixed_library) {
    plant_record plant;
    plant.library = "Trees";
    plant.name = "Plants/oak.OrnPlant";
    plant.has_own_data = true;
    plant.rotation_degrees = -90;
    EXPECT_EQ(written_by([&](geometry_stream& s) { s.write_plant(plant); }),
              lines({"#;PLANT", "PLLB;OrnPlant", "PLNM;Plants/oak.OrnPlant", "PLLC;(0,0,0)", "PLDM;0.000000", "PLSN;1",
                     "PLRT;-90.000000", "PLSC;1.000000", "PLNT;1", "#"}));
}

TEST(GeometryStream, the_scales_of_an_rpc_object_are_not_snapped) {
    rpc_record rpc;
    rpc.position = {1, 2, 3};
    rpc.axes = {fpt{1, 0, 0}, fpt{0, 1, 0}, fpt{0, -4e-8, 1}};
    rpc.scales = {1, 0.5, -5e-8}; // six decimals of -5e-8 keep its sign; a snapped value would have none
    rpc.layer_name = "Cars";
    rpc.type_id = "0815";
    EXPECT_EQ(written_by([&](geometry_stream& s) { s.write_rpc(rpc); }),
              lines({"RPCP;(1,2,3)", "RPCX;(1,0,0)", "RPCY;(0,1,0)", "RPCZ;(0,0,1)", "RPSX;1.000000", "RPSY;0.500000",
                     "RPSZ;-0.000000", "RPCL;Cars", "RPCN;0815", "#"}));
}

TEST(GeometryStream, a_coordinate_below_1e_7_metres_is_written_as_plain_zero) {
    // 5e-8 and 3e-6 inches are 1.27e-9 and 7.62e-8 metres.
    EXPECT_EQ(written_by([](geometry_stream& s) {
                  s.write_vertex(0, {-0.00000005, 0, 1}, nullptr, {5e-08 * 0.0254, 3e-06 * 0.0254, 4e-06 * 0.0254});
              }),
              lines({"NORM;(0,0,1)", "VERT;(0,0,1.016e-07)", "ADDV;0"}));
}

TEST(GeometryStream, a_component_of_exactly_1e_7_stays) {
    EXPECT_EQ(written_by([](geometry_stream& s) {
                  s.write_vertex(7, {1e-07, -1e-07, 1}, nullptr, {0, 0, 0});
              }),
              lines({"NORM;(1e-07,-1e-07,1)", "VERT;(0,0,0)", "ADDV;7"}));
}

TEST(GeometryStream, a_normal_that_returns_after_another_is_written_anew) {
    EXPECT_EQ(written_by([](geometry_stream& s) {
                  s.write_vertex(0, {1, 0, 0}, nullptr, {0, 0, 0});
                  s.write_vertex(1, {0.6, 0, -0.8}, nullptr, {0, 0, 0});
                  s.write_vertex(2, {1, 0, 0}, nullptr, {0, 0, 0});
              }),
              lines({"NORM;(1,0,0)", "VERT;(0,0,0)", "ADDV;0", "NORM;(0.6,0,-0.8)", "VERT;(0,0,0)", "ADDV;1",
                     "NORM;(1,0,0)", "VERT;(0,0,0)", "ADDV;2"}));
}

TEST(GeometryStream, the_widest_vertex_fits) {
    constexpr double wide = -1.23456789e-300;
    const fpt uvq{-1.23456789e+300, -1.23456789e+300, -1.23456789e+300};
    const std::string widest = "(-1.23456789e+300,-1.23456789e+300,-1.23456789e+300)";
    EXPECT_EQ(written_by(
                  [&](geometry_stream& s) {
                      s.write_vertex(-2147483647 - 1, uvq, &uvq, uvq);
                      s.write_vertex(0, {wide, wide, wide}, nullptr, {0, 0, 0});
                  },
                  16),
              lines({"NORM;" + widest, "UVQ;" + widest, "VERT;" + widest, "ADDV;-2147483648", "NORM;(0,0,0)",
                     "VERT;(0,0,0)", "ADDV;0"}));
}

TEST(GeometryStream, a_name_of_any_length_is_written_whole) {
    const std::string name(3 * geometry_stream::usual_block + 17, 'n');
    EXPECT_EQ(written_by([&](geometry_stream& s) { s.write_layer_name(name); }), "TLAY;" + name + "\r\n");
    EXPECT_EQ(written_by([&](geometry_stream& s) { s.write_layer_name(name); }, 16), "TLAY;" + name + "\r\n");
}

TEST(GeometryStream, a_name_with_a_line_break_lands_in_the_line_as_it_stands) {
    EXPECT_EQ(written_by([](geometry_stream& s) { s.write_layer_name("up;\ndown"); }), "TLAY;up;\ndown\r\n");
}

TEST(GeometryStream, a_formatted_line_ends_as_all_others) {
    EXPECT_EQ(
        written_by([](geometry_stream& s) { s.write_stream_line("#; Process %s Direct Light", "Instance Lamp"); }),
        lines({"#; Process Instance Lamp Direct Light"}));
}

TEST(GeometryStream, a_closed_stream_drops_all_records) {
    geometry_stream stream;
    write_one_of_each(stream);
    stream.write_stream_line("%d", 1);
    stream.write_plant({});
    const temporary_folder folder;
    stream.open((folder / "stream.txt").c_str(), "Tessaline");
    stream.write_end();
    stream.close();
    stream.write_end();
    EXPECT_EQ(folder.read("stream.txt"), lines({"#;", "END;"}));
}

TEST(GeometryStream, the_mode_AcMarevo_makes_an_empty_file) {
    EXPECT_EQ(written_by(write_one_of_each, geometry_stream::usual_block, "AcMarevo"), "");
    EXPECT_EQ(written_by([](geometry_stream& s) { s.write_stream_line("%d", 1); }, 16, "AcMarevo"), "");
    EXPECT_EQ(written_by([](geometry_stream& s) { s.write_end(); }, 16, "acmarevo"), lines({"#;", "END;"}));
}

TEST(GeometryStream, an_old_file_of_that_name_is_replaced) {
    const temporary_folder folder;
    const std::string name = folder.write("stream.txt", "a stream that is longer than the new one");
    geometry_stream stream;
    stream.open(name.c_str(), "Tessaline");
    stream.write_end();
    stream.close();
    EXPECT_EQ(folder.read("stream.txt"), lines({"#;", "END;"}));
}

TEST(GeometryStream, a_file_that_cannot_be_made_leaves_the_stream_closed) {
    geometry_stream stream;
    const temporary_folder folder;
    stream.open((folder / "no_such_folder/stream.txt").c_str(), "Tessaline");
    EXPECT_FALSE(stream.is_open());
    write_one_of_each(stream);
    stream.close();
}

TEST(GeometryStream, no_path_means_standard_output) {
    const auto write = [] {
        geometry_stream stream;
        stream.open(nullptr, "Tessaline");
        EXPECT_TRUE(stream.is_open());
        EXPECT_TRUE(stream.is_standard_output());
        stream.write_end();
    };
    EXPECT_EQ(written_to_output(write), lines({"#;", "END;"}));
}

TEST(GeometryStream, a_full_disk_ends_the_stream_and_nothing_else) {
    const std::string full_device = "/dev/full";
    geometry_stream stream(16);
    stream.open(full_device.c_str(), "Tessaline");
    if (!stream.is_open())
        GTEST_SKIP() << "no device that refuses data here";
    const trace_capture trace;
    answering_desktop desktop;
    write_one_of_each(stream);
    stream.close();
    EXPECT_FALSE(stream.is_open());
    EXPECT_EQ(trace.text_without_line_numbers(),
              "geometry_stream(#): geometry_stream::send():: The geometry stream takes no more data; what follows is "
              "dropped\n");
    EXPECT_TRUE(desktop.shown.empty());
}
