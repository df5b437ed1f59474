// Small batches and what becomes of them.

#include "image/encode_picture.h"
#include "tests/gltf/read_glb.h"
#include "tests/support/temporary_folder.h"
#include "tools/batch_glb/batch_glb.h"

#include <gtest/gtest.h>

using nlohmann::json;

namespace {

// Four corners of the unit square, numbers 0 to 3, u and v along x and y.
std::string square(bool with_coordinates = false) {
    std::string text;
    for (int i = 0; i < 4; ++i) {
        const std::string x = i == 1 || i == 2 ? "1" : "0";
        const std::string y = i >= 2 ? "1" : "0";
        text += "NORM;(0,0,1)\r\n";
        if (with_coordinates)
            text.append("UVQ;(").append(x).append(",").append(y).append(",1)\r\n");
        text.append("VERT;(").append(x).append(",").append(y).append(",0)\r\nADDV;").append(std::to_string(i));
        text += "\r\n";
    }
    return text;
}

class batch {
public:
    // stream: without the header and "END;".
    explicit batch(const std::string& stream) {
        for (const char* inside : {"in", "in/ZynBatch_Materials", "in/ZynBatch_Lights", "in/Batch_SketchUp_Textures"})
            platform::make_folder(folder / inside);
        write("batch_file.txt", "#;head\r\n" + stream + "#;\r\nEND;\r\n");
    }

    void write(const std::string& name, const std::string& bytes) { folder.write("in/" + name, bytes); }

    void material(const std::string& name, const std::string& lines) {
        write("ZynBatch_Materials/" + name + ".qlobj", "Matl: " + name + ".OrnMaterial\r\n" + lines);
    }

    void picture(const std::string& name) {
        const auto made = image::picture::make({2, 2, 24});
        const auto bytes = image::encode_picture(*made, image::format_of_name(name));
        write("Batch_SketchUp_Textures/" + name, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    }

    read_glb convert() {
        result = write_batch_glb(folder / "in", folder / "out.glb", 100);
        EXPECT_EQ(result.failure, "");
        return read_glb(folder / "out.glb");
    }

    temporary_folder folder;
    batch_glb_result result;
};

std::string declaration(const std::string& name, int number) {
    return "MATF;" + name + ".OrnMaterial\r\nMTX2;1\r\nMATI;" + std::to_string(number) + "\r\n";
}

using numbers = std::vector<double>;

} // namespace

TEST(BatchGlb, has_a_mesh_for_each_layer_and_a_primitive_for_each_material) {
    batch made(
        declaration("Red", 10) + declaration("Blue", 11) + "MESH;\r\nTLAY;Walls\r\nCULL;0\r\nMATL;10\r\nMAT2;10\r\n" +
        square() + "FACE;0,1,2\r\nEMSH;\r\nEMSH; Face\r\nMESH;\r\nTLAY;Walls\r\nCULL;0\r\nMATL;11\r\nMAT2;11\r\n" +
        square() + "FACE;0,1,2\r\nFACE;0,2,3\r\nEMSH;\r\nMESH;\r\nTLAY;Floor\r\nCULL;0\r\nMATL;10\r\nMAT2;10\r\n" +
        square() + "FACE;1,2,3\r\nEMSH;\r\n");
    made.material("Red", "Color: 255\r\n");
    made.material("Blue", "Color: 16711680\r\n");
    const read_glb glb = made.convert();
    const json walls = glb.mesh_of("Walls")["primitives"];
    const json floor = glb.mesh_of("Floor")["primitives"];
    ASSERT_EQ(walls.size(), 2U);
    ASSERT_EQ(floor.size(), 1U);
    EXPECT_EQ(glb.material_of(walls[0])["extras"], json({{"material_number", 10}, {"name", "Red.OrnMaterial"}}));
    EXPECT_EQ(glb.material_of(walls[0])["pbrMetallicRoughness"]["baseColorFactor"], json({1, 0, 0, 1}));
    EXPECT_EQ(glb.material_of(walls[1])["pbrMetallicRoughness"]["baseColorFactor"], json({0, 0, 1, 1}));
    EXPECT_EQ(walls[0]["material"], floor[0]["material"]);
    EXPECT_EQ(glb.indices(walls[1]), (numbers{0, 1, 2, 0, 2, 3}));
    EXPECT_EQ(glb.attribute(walls[0], "POSITION"), (numbers{0, 0, 0, 1, 0, 0, 1, 1, 0})); // the fourth is not used
    EXPECT_EQ(glb.attribute(walls[0], "NORMAL"), (numbers{0, 0, 1, 0, 0, 1, 0, 0, 1}));
    EXPECT_FALSE(walls[0]["attributes"].contains("TEXCOORD_0"));
    EXPECT_EQ(glb.node("Walls")["extras"], json({{"layer", "Walls"}, {"visible", true}}));
    EXPECT_EQ(glb.extras()["counts"]["triangles"], 4);
    EXPECT_EQ(glb.extras()["box_metres"], json({{0, 0, 0}, {1, 1, 0}}));
}

TEST(BatchGlb, has_one_root_that_turns_z_up_into_y_up) {
    batch made("MESH;\r\nTLAY;a\r\nCULL;0\r\nMATL;0\r\nMAT2;0\r\n" + square() + "FACE;0,1,2\r\nEMSH;\r\n");
    const read_glb glb = made.convert();
    ASSERT_EQ(glb.text["scenes"][0]["nodes"].size(), 1U);
    const json root = glb.text["nodes"][glb.text["scenes"][0]["nodes"][0].get<std::size_t>()];
    EXPECT_EQ(root["rotation"], json({-0.70710677, 0, 0, 0.70710677}));
    EXPECT_EQ(root["children"].size(), 1U);
    EXPECT_EQ(glb.extras()["kind"], "batch");
}

TEST(BatchGlb, changes_the_material_within_a_lamp_while_vertex_numbers_go_on) {
    batch made(declaration("Red", 10) + declaration("Blue", 11) +
               "MESH;\r\nLITE;0\r\nTLAY;a\r\nCULL;0\r\nMATL;10\r\nMAT2;10\r\n" + square() +
               "FACE;0,1,2\r\nTLAY;a\r\nCULL;0\r\nMATL;11\r\nMAT2;11\r\nNORM;(0,0,1)\r\nVERT;(5,5,5)\r\nADDV;4\r\n"
               "FACE;0,2,4\r\nEMSH; END OF LAMP\r\n");
    made.write("ZynBatch_Lights/light_0.txt", "type;bulb_glow\r\nintensity_lumens;125.663706\r\n");
    const read_glb glb = made.convert();
    const json parts = glb.mesh_of("a")["primitives"];
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_EQ(glb.attribute(parts[1], "POSITION"), (numbers{0, 0, 0, 1, 1, 0, 5, 5, 5}));
    EXPECT_EQ(glb.indices(parts[1]), (numbers{0, 1, 2}));
    // The lamp stands in the middle of its shape; 125.663706 lumens by 4 pi are 10 candela.
    const json lamp = glb.node("lamp 0");
    EXPECT_EQ(lamp["translation"], json({2.5, 2.5, 2.5}));
    EXPECT_EQ(lamp["extras"],
              json({{"lamp_number", 0}, {"lamp_type", "bulb_glow"}, {"lumens", 125.663704}, {"layer", "a"}}));
    const json light = glb.text["extensions"]["KHR_lights_punctual"]["lights"][0];
    EXPECT_EQ(light["type"], "point");
    EXPECT_NEAR(light["intensity"].get<double>(), 10, 1e-5);
}

TEST(BatchGlb, tells_what_belongs_to_a_lamp_from_other_things_of_its_material) {
    const std::string painted = "TLAY;a\r\nCULL;0\r\nMATL;10\r\nMAT2;10\r\n" + square();
    batch made(declaration("Shade", 10) + "MESH;\r\n" + painted + "FACE;0,1,2\r\nEMSH;\r\nMESH;\r\nLITE;7\r\n" +
               painted + "FACE;0,1,2\r\nFACE;0,2,3\r\nEMSH; END OF LAMP\r\n");
    made.material("Shade", "Color: 255\r\nGlow: 1\r\n");
    const read_glb glb = made.convert();
    const json parts = glb.mesh_of("a")["primitives"];
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_FALSE(parts[0]["extras"].contains("lamp_number"));
    EXPECT_EQ(glb.indices(parts[0]).size(), 3U);
    EXPECT_EQ(parts[1]["extras"]["lamp_number"], 7);
    EXPECT_EQ(glb.indices(parts[1]).size(), 6U);
    EXPECT_EQ(parts[0]["material"], parts[1]["material"]);
}

TEST(BatchGlb, says_which_lamp_has_no_file) {
    batch made("MESH;\r\nLITE;4\r\nEMSH;\r\nMESH;\r\nLITE;3\r\nEMSH;\r\nMESH;\r\nLITE;5\r\nEMSH;\r\n");
    made.write("ZynBatch_Lights/light_3.txt", "type;bulb\r\n");
    const read_glb glb = made.convert();
    EXPECT_FALSE(glb.node("lamp 3").is_null());
    EXPECT_TRUE(glb.node("lamp 4").is_null());
    EXPECT_EQ(made.result.notes, (std::vector<std::string>{"lamps of the stream without a file that can be read: 2, "
                                                           "the first of them lamp 4"}));
}

TEST(BatchGlb, turns_v_round_and_embeds_the_picture_once) {
    batch made(declaration("Oak", 10) + "MESH;\r\nTLAY;a\r\nCULL;1\r\nMPUV;1\r\nMATL;10\r\n" + square(true) +
               "FACE;0,1,2\r\nFACE;0,2,3\r\nEMSH;\r\n");
    made.material("Oak", "Color: 255\r\nImage_Path: /made/elsewhere/TX0001_Oak.PNG\r\n");
    made.picture("TX0001_Oak.PNG");
    const read_glb glb = made.convert();
    const json part = glb.mesh_of("a")["primitives"][0];
    EXPECT_EQ(glb.attribute(part, "TEXCOORD_0"), (numbers{0, 1, 1, 1, 1, 0, 0, 0}));
    const json material = glb.material_of(part);
    EXPECT_EQ(material["pbrMetallicRoughness"]["baseColorTexture"]["index"], 0);
    EXPECT_EQ(material["pbrMetallicRoughness"]["baseColorFactor"], json({1, 1, 1, 1}));
    EXPECT_FALSE(material.contains("doubleSided"));
    ASSERT_EQ(glb.text["images"].size(), 1U);
    EXPECT_EQ(glb.text["images"][0]["mimeType"], "image/png");
}

TEST(BatchGlb, embeds_a_jpeg_as_it_is_and_a_bmp_as_png) {
    for (const auto& [name, type] : {std::pair("p.JPG", "image/jpeg"), std::pair("p.BMP", "image/png")}) {
        batch made(declaration("Oak", 10) + "MESH;\r\nTLAY;a\r\nCULL;1\r\nMPUV;1\r\nMATL;10\r\n" + square(true) +
                   "FACE;0,1,2\r\nEMSH;\r\n");
        made.material("Oak", "Image_Path: " + std::string(name) + "\r\n");
        made.picture(name);
        const read_glb glb = made.convert();
        EXPECT_EQ(glb.text["images"][0]["mimeType"], type);
        const json view = glb.text["bufferViews"][glb.text["images"][0]["bufferView"].get<std::size_t>()];
        const std::string bytes = glb.buffer.substr(view["byteOffset"], view["byteLength"]);
        const auto stored = file_bytes(made.folder / ("in/Batch_SketchUp_Textures/" + std::string(name)));
        EXPECT_EQ(bytes == std::string(stored.begin(), stored.end()), std::string(type) == "image/jpeg");
    }
}

TEST(BatchGlb, drops_a_picture_that_is_damaged_and_says_so) {
    batch made(declaration("Oak", 10) + "MESH;\r\nTLAY;a\r\nCULL;1\r\nMPUV;1\r\nMATL;10\r\n" + square(true) +
               "FACE;0,1,2\r\nEMSH;\r\n");
    made.material("Oak", "Color: 255\r\nImage_Path: oak.PNG\r\n");
    made.picture("oak.PNG");
    std::string bytes = made.folder.read("in/Batch_SketchUp_Textures/oak.PNG");
    char& damaged = bytes.at(bytes.find("IDAT") + 6); // so that the checksum of the pixels is wrong
    damaged = static_cast<char>(damaged ^ 1);
    made.write("Batch_SketchUp_Textures/oak.PNG", bytes);
    const read_glb glb = made.convert();
    EXPECT_FALSE(glb.text.contains("images"));
    EXPECT_EQ(made.result.notes, (std::vector<std::string>{"this is no picture that can be shown: oak.PNG"}));
}

TEST(BatchGlb, embeds_a_jpeg_that_was_cut_off_as_a_png_of_what_there_is) {
    batch made(declaration("Oak", 10) + "MESH;\r\nTLAY;a\r\nCULL;1\r\nMPUV;1\r\nMATL;10\r\n" + square(true) +
               "FACE;0,1,2\r\nEMSH;\r\n");
    made.material("Oak", "Image_Path: oak.JPG\r\n");
    made.picture("oak.JPG");
    const std::string bytes = made.folder.read("in/Batch_SketchUp_Textures/oak.JPG");
    made.write("Batch_SketchUp_Textures/oak.JPG", bytes.substr(0, bytes.size() - 2)); // without the mark of its end
    EXPECT_EQ(made.convert().text["images"][0]["mimeType"], "image/png");
}

TEST(BatchGlb, says_which_picture_is_missing_and_shows_the_colour) {
    batch made(declaration("Oak", 10) + "MESH;\r\nTLAY;a\r\nCULL;1\r\nMPUV;1\r\nMATL;10\r\n" + square(true) +
               "FACE;0,1,2\r\nEMSH;\r\n");
    made.material("Oak", "Color: 255\r\nImage_Path: gone.PNG\r\n");
    const read_glb glb = made.convert();
    const json part = glb.mesh_of("a")["primitives"][0];
    EXPECT_FALSE(part["attributes"].contains("TEXCOORD_0"));
    EXPECT_EQ(glb.material_of(part)["pbrMetallicRoughness"]["baseColorFactor"], json({1, 0, 0, 1}));
    EXPECT_EQ(made.result.notes, (std::vector<std::string>{"there is no picture gone.PNG"}));
}

TEST(BatchGlb, is_double_sided_where_culling_is_off) {
    batch made(declaration("Red", 10) + "MESH;\r\nTLAY;a\r\nCULL;0\r\nMATL;10\r\nMAT2;10\r\n" + square() +
               "FACE;0,1,2\r\nEMSH;\r\nMESH;\r\nTLAY;a\r\nCULL;1\r\nMATL;10\r\n" + square() +
               "FACE;0,1,2\r\nEMSH;\r\nMESH;\r\nTLAY;a\r\nCULL;0\r\nMATL;0\r\nMAT2;10\r\n" + square() +
               "FACE;0,1,2\r\nEMSH;\r\n");
    made.material("Red", "Color: 255\r\n");
    const read_glb glb = made.convert();
    const json parts = glb.mesh_of("a")["primitives"];
    ASSERT_EQ(parts.size(), 2U); // the last block shows the back's material, from both sides
    EXPECT_FALSE(glb.material_of(parts[0]).contains("doubleSided"));
    EXPECT_EQ(glb.material_of(parts[1])["doubleSided"], true);
    EXPECT_EQ(glb.indices(parts[1]).size(), 6U);
}

TEST(BatchGlb, makes_a_line_of_each_beam) {
    std::string beam = "MESH;\r\nTLAY;Layer0\r\nCULL;0\r\nMATL;1\r\nMAT2;1\r\n";
    int vertex = 0;
    for (int side = 0; side < 4; ++side) {
        const std::string y = side < 2 ? "0.5" : "-0.5";
        const std::string z = side % 2 == 0 ? "0.25" : "-0.25";
        for (const char* x : {"1", "1", "3", "3"})
            beam.append("NORM;(0,1,0)\r\nVERT;(")
                .append(x)
                .append(",")
                .append(y)
                .append(",")
                .append(z)
                .append(")\r\nADDV;")
                .append(std::to_string(vertex++))
                .append("\r\n");
        beam += "FACE;" + std::to_string(vertex - 4) + "," + std::to_string(vertex - 3) + "," +
                std::to_string(vertex - 2) + "\r\n";
    }
    batch made(beam + "EMSH; Edges\r\n");
    const read_glb glb = made.convert();
    const json mesh = glb.mesh_of("edges");
    EXPECT_EQ(mesh["extras"], json({{"edges", true}}));
    EXPECT_EQ(mesh["primitives"][0]["mode"], 1);
    EXPECT_EQ(glb.attribute(mesh["primitives"][0], "POSITION"), (numbers{1, 0, 0, 3, 0, 0}));
    EXPECT_EQ(glb.extras()["counts"]["lines"], 1);
    EXPECT_EQ(glb.extras()["counts"]["triangles"], 0);
}

TEST(BatchGlb, takes_the_lines_of_a_document_in_inches) {
    batch made(
        "MESH;\r\nEDGE;1\r\nTLAY;Edges\r\nEDG1;(0, 0, 100)\r\nEDG2;(100, 0, 100)\r\nEDGN;(0, 1, 0)\r\nEMSH;\r\n");
    const read_glb glb = made.convert();
    const numbers ends = glb.attribute(glb.mesh_of("edges")["primitives"][0], "POSITION");
    EXPECT_EQ(ends, (numbers{0, 0, double{2.54F}, double{2.54F}, 0, double{2.54F}}));
}

TEST(BatchGlb, tells_the_line_of_the_stream_for_each_row_of_triangles) {
    const std::string block =
        "MESH;\r\nTLAY;a\r\nCULL;0\r\nMATL;0\r\nMAT2;0\r\n" + square() + "FACE;0,1,2\r\nFACE;0,2,3\r\nEMSH;\r\n";
    batch made(block + block);
    const read_glb glb = made.convert();
    // A line of head, five of the first block's beginning, twelve of vertices: its faces are lines 19 and 20. The close
    // is line 21, so that the next faces are lines 39 and 40.
    EXPECT_EQ(glb.mesh_of("a")["primitives"][0]["extras"]["lines"], json({{0, 19}, {2, 39}}));
}

TEST(BatchGlb, leaves_out_what_the_camera_does_not_see) {
    batch made("MESH;\r\nINVS;1\r\nSHDW;0\r\nTLAY;a\r\nCULL;0\r\nMATL;0\r\nMAT2;0\r\n" + square() +
               "FACE;0,1,2\r\nEMSH;\r\n");
    const read_glb glb = made.convert();
    EXPECT_FALSE(glb.text.contains("meshes"));
    EXPECT_EQ(glb.extras()["counts"]["triangles_unseen"], 1);
    EXPECT_TRUE(glb.extras()["box_metres"].is_null());
}

TEST(BatchGlb, leaves_out_triangles_without_a_place_and_says_how_many) {
    batch made("MESH;\r\nTLAY;a\r\nCULL;0\r\nMATL;0\r\nMAT2;0\r\n" + square() +
               "NORM;(nan,0,1)\r\nVERT;(nan,0,0)\r\nADDV;4\r\nNORM;(0,0,1)\r\nVERT;(1e39,0,0)\r\nADDV;5\r\n"
               "FACE;0,1,2\r\nFACE;0,1,4\r\nFACE;0,1,5\r\nFACE;0,1,2000000000\r\nFACE;-1,0,1\r\nFACE;0,"
               "1\r\nrubbish\r\nEMSH;\r\n");
    const read_glb glb = made.convert();
    EXPECT_EQ(glb.extras()["counts"]["triangles"], 1);
    EXPECT_EQ(glb.extras()["counts"]["triangles_left_out"], 4);
    EXPECT_EQ(made.result.notes,
              (std::vector<std::string>{"2 lines of the stream cannot be read, the first of them line 30",
                                        "4 triangles have corners that do not exist, or that lie nowhere"}));
}

TEST(BatchGlb, gives_a_vertex_without_a_sound_normal_that_of_its_triangle) {
    batch made("MESH;\r\nTLAY;a\r\nCULL;0\r\nMATL;0\r\nMAT2;0\r\nNORM;(0,0,0)\r\nVERT;(0,0,0)\r\nADDV;0\r\n"
               "NORM;(inf,0,0)\r\nVERT;(0,1,0)\r\nADDV;1\r\nNORM;(0,3,4)\r\nVERT;(0,0,1)\r\nADDV;2\r\nFACE;0,1,"
               "2\r\nEMSH;\r\n");
    const read_glb glb = made.convert();
    EXPECT_EQ(glb.attribute(glb.mesh_of("a")["primitives"][0], "NORMAL"),
              (numbers{1, 0, 0, 1, 0, 0, 0, double{0.6F}, double{0.8F}}));
}

TEST(BatchGlb, cannot_read_a_normal_of_no_numbers) {
    batch made("NORM;\r\nNORM;(0,0,1)\r\nNORM;\r\n");
    made.convert();
    EXPECT_EQ(made.result.notes,
              (std::vector<std::string>{"2 lines of the stream cannot be read, the first of them line 2"}));
}

TEST(BatchGlb, takes_vertex_numbers_in_any_order_and_far_apart) {
    batch made("MESH;\r\nTLAY;a\r\nCULL;0\r\nMATL;0\r\nMAT2;0\r\nNORM;(0,0,1)\r\nVERT;(1,0,0)\r\nADDV;2000000000\r\n"
               "NORM;(0,0,1)\r\nVERT;(2,0,0)\r\nADDV;-5\r\nNORM;(0,0,1)\r\nVERT;(3,1,0)\r\nADDV;0\r\nFACE;0,-5,"
               "2000000000\r\nEMSH;\r\n");
    const read_glb glb = made.convert();
    EXPECT_EQ(glb.attribute(glb.mesh_of("a")["primitives"][0], "POSITION"), (numbers{3, 1, 0, 2, 0, 0, 1, 0, 0}));
}

TEST(BatchGlb, says_that_a_stream_without_end_is_not_whole) {
    batch made("");
    made.write("batch_file.txt", "MESH;\r\n");
    made.convert();
    ASSERT_EQ(made.result.notes.size(), 1U);
    EXPECT_NE(made.result.notes[0].find("no \"END;\""), std::string::npos);
}

TEST(BatchGlb, has_no_file_of_a_folder_without_a_stream) {
    const temporary_folder folder;
    const batch_glb_result result = write_batch_glb(folder.name(), folder / "out.glb");
    EXPECT_EQ(result.outcome, batch_glb_outcome::no_batch);
    EXPECT_FALSE(platform::exists(folder / "out.glb"));
}

TEST(BatchGlb, places_plants_outside_objects_and_section_planes) {
    batch made("#;PLANT\r\nPLLB;Trees\r\nPLNM;Oak\r\nPLLC;(100,0,0)\r\nPLDM;200.000000\r\nPLSN;2\r\nPLRT;90.000000\r\n"
               "PLSC;1.000000\r\nPLNT;1\r\n#\r\nRPCP;(0,100,0)\r\nRPCX;(1,0,0)\r\nRPCY;(0,1,0)\r\nRPCZ;(0,0,1)\r\n"
               "RPSX;2.000000\r\nRPSY;2.000000\r\nRPSZ;2.000000\r\nRPCL;People\r\nRPCN;walker\r\n#\r\n"
               "CLPN;(0,0,1)\r\nCLPP;(0,0,1.5)\r\n");
    const read_glb glb = made.convert();
    const json plant = glb.node("Oak");
    EXPECT_EQ(plant["translation"], json({2.54, 0, 0}));
    EXPECT_EQ(plant["rotation"], json({0, 0, 0.70710677, 0.70710677}));
    EXPECT_EQ(plant["extras"]["plant"],
              json({{"library", "Trees"}, {"name", "Oak"}, {"season", 2}, {"scale", 1}, {"diameter_metres", 5.08}}));
    const json object = glb.node("walker");
    EXPECT_EQ(object["scale"], json({2, 2, 2}));
    EXPECT_EQ(object["extras"]["layer"], "People");
    EXPECT_EQ(glb.extras()["section_planes"], json({{{"name", "section plane 1"}, {"plane", {0, 0, 1, -1.5}}}}));
    EXPECT_EQ(glb.node("section plane 1")["extras"], json({{"section_plane", true}, {"name", "section plane 1"}}));
}

TEST(BatchGlb, leaves_out_what_has_a_name_beyond_the_room_for_names_and_says_so) {
    std::string stream = "PLLB;";
    stream.resize(5 + 33554433, 'a'); // 32 MiB and one
    stream += "\r\nPLNM;Oak\r\nPLNT;1\r\nPLNT;1\r\nPLLB;Trees\r\nPLNM;Ash\r\nPLNT;1\r\n";
    batch made(stream);
    const read_glb glb = made.convert();
    EXPECT_TRUE(glb.node("Oak").is_null());
    EXPECT_FALSE(glb.node("Ash").is_null());
    EXPECT_EQ(glb.extras()["counts"]["plants"], 1);
    EXPECT_EQ(made.result.notes,
              (std::vector<std::string>{"left out of what the stream declares and places: 2; there is room for 1048576 "
                                        "records with 33554432 bytes of names"}));
}

TEST(BatchGlb, means_by_a_number_the_material_that_was_declared_last) {
    const std::string block = "MESH;\r\nTLAY;a\r\nCULL;1\r\nMATL;10\r\n" + square() + "FACE;0,1,2\r\nEMSH;\r\n";
    batch made(declaration("Red", 10) + block + declaration("Blue", 10) + block + declaration("Blue", 10) + block);
    made.material("Red", "Color: 255\r\n");
    made.material("Blue", "Color: 16711680\r\n");
    const read_glb glb = made.convert();
    const json parts = glb.mesh_of("a")["primitives"];
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_EQ(glb.material_of(parts[0])["extras"]["name"], "Red.OrnMaterial");
    EXPECT_EQ(glb.material_of(parts[1])["extras"]["name"], "Blue.OrnMaterial");
    EXPECT_EQ(glb.indices(parts[1]).size(), 6U);
    EXPECT_EQ(glb.extras()["counts"]["materials"], 2);
}

TEST(BatchGlb, sees_through_the_view_in_whichever_unit_shows_the_model) {
    const std::string stream =
        "MESH;\r\nTLAY;a\r\nCULL;0\r\nMATL;0\r\nMAT2;0\r\n" + square() + "FACE;0,1,2\r\nEMSH;\r\n";
    batch metres(stream);
    metres.write(
        "zyn_view.txt",
        "EYE;(0.5,-4,0)\r\nTARGETX;0.5\r\nTARGETY;1\r\nTARGETZ;0\r\nFOV;0.8\r\nPIXELWIDTH;200\r\nPIXELHEIGHT;100\r\n");
    const read_glb in_metres = metres.convert();
    EXPECT_EQ(in_metres.node("view")["translation"], json({0.5, -4, 0}));
    EXPECT_EQ(in_metres.text["cameras"][0]["perspective"], json({{"yfov", 0.8}, {"aspectRatio", 2}, {"znear", 0.01}}));
    EXPECT_EQ(in_metres.extras()["views"], json({"view"}));
    batch inches(stream);
    inches.write("zyn_view.txt", "EYE;(200,-10,0)\r\nTARGETX;20\r\nTARGETY;20\r\nTARGETZ;0\r\nFOV;45\r\n");
    EXPECT_EQ(inches.convert().node("view")["translation"], json({5.08, -0.254, 0}));
}

TEST(BatchGlb, shines_from_the_sun_if_it_is_on) {
    batch made("");
    made.write("option_globals.txt", "bvl_sun_on; 1\r\nrskp_sun_altitude; 1.57079633\r\nrskp_sun_azimuth; 0\r\n");
    const read_glb glb = made.convert();
    EXPECT_EQ(glb.text["extensions"]["KHR_lights_punctual"]["lights"][0]["type"], "directional");
    EXPECT_EQ(glb.node("sun")["extras"], json({{"sun", true}}));
    made.write("option_globals.txt", "bvl_sun_on; 0\r\nrskp_sun_altitude; 1\r\nrskp_sun_azimuth; 0\r\n");
    EXPECT_TRUE(made.convert().node("sun").is_null());
}
