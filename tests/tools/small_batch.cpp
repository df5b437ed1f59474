#include "tests/tools/small_batch.h"

#include "image/encode_picture.h"

#include <initializer_list>

namespace small_batch {
namespace {

using lines = std::vector<std::string>;

lines joined(std::initializer_list<lines> parts) {
    lines all;
    for (const lines& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

std::string text_of(const lines& all) {
    std::string text;
    for (const std::string& line : all)
        text += line + "\r\n";
    return text;
}

const lines head = {"#;Tessaline Geometry, new extractor",
                    "#;09/09/2001  01:46:40 GMT",
                    "DFFC;ffffff",
                    "DFBC;ffffff",
                    "DFEC;000000",
                    "#;"};
const lines pass = {"#;", "PASS;0", "#;"};
const lines end = {"#;", "END;"};

lines declaration(const std::string& name, int number) {
    return {"MATF;" + name + ".OrnMaterial", "MTX2;1", "MATI;" + std::to_string(number)};
}

// A triangle in the plane z = 1, whose vertices have the numbers from `first` on.
lines triangle(int first) {
    const auto number = [first](int corner) { return std::to_string(first + corner); };
    return {"NORM;(0,0,1)",      "VERT;(0,0,1)",
            "ADDV;" + number(0), "NORM;(0,0,1)",
            "VERT;(2.54,0,1)",   "ADDV;" + number(1),
            "NORM;(0,0,1)",      "VERT;(0,2.54,1)",
            "ADDV;" + number(2), "FACE;" + number(0) + "," + number(1) + "," + number(2)};
}

lines textured_triangle(int first) {
    lines all;
    for (const std::string& line : triangle(first)) {
        all.push_back(line);
        if (line.starts_with("NORM;"))
            all.push_back("UVQ;(0.5,1.5,1)");
    }
    return all;
}

lines state(int material) {
    const std::string number = std::to_string(material);
    return {"TLAY;Layer0", "CULL;0", "MATL;" + number, "MAT2;" + number};
}

const lines face_head = {"#; ProcessFace MESH", "MESH;"};
const lines stray_close = {"EMSH; Face"};
const lines close = {"EMSH;"};
const lines end_of_lamp = {"EMSH; END OF LAMP"};

lines image(int first, int material) {
    const auto number = [first](int corner) { return std::to_string(first + corner); };
    lines all = {"TLAY;Pictures", "CULL;0", "MPUV;1", "MATL;" + std::to_string(material), "MPU2;1", "MAT2;10"};
    int corner = 0;
    for (const char* uvq : {"UVQ;(0,0,0)", "UVQ;(1,0,0)", "UVQ;(1,1,0)", "UVQ;(0,1,0)"})
        all = joined({all, {"NORM;(0,0,1)", uvq, "VERT;(1,2,3)", "ADDV;" + number(corner++)}});
    return joined({all,
                   {"FACE;" + number(0) + ", " + number(1) + ", " + number(2),
                    "FACE;" + number(2) + ", " + number(3) + ", " + number(0)}});
}

// Beams for so many edges along the z axis.
lines beams(int count) {
    lines all;
    for (int first = 0; first < 16 * count; first += 4) {
        const std::string normal = first % 16 < 8 ? "NORM;(1,0,0)" : "NORM;(0,1,0)"; // of two sides each
        const auto number = [first](int corner) { return std::to_string(first + corner); };
        for (int corner = 0; corner < 4; ++corner)
            all = joined({all, {normal, "VERT;(0,0,0.5)", "ADDV;" + number(corner)}});
        all.push_back("FACE;" + number(0) + "," + number(1) + "," + number(2));
        all.push_back("FACE;" + number(2) + "," + number(3) + "," + number(0));
    }
    return all;
}

// Lamp 0 is a group with an image in it, 1 a face, 2 a bulb with a face that has no block.
lines lamps() {
    return joined({{"#; Process Group Lamp", "MESH;", "LITE;0", "INVS;1", "SHDW;0"},
                   state(10),
                   triangle(0),
                   declaration("IMAGE_TX_Tree_88.png", 13),
                   {"#;", "#;INSERT IMAGE IN LAMP"},
                   image(3, 13),
                   end_of_lamp,
                   {"EMSH; Close for new Face Lamp MESH", "#; Process Face Lamp MESH", "MESH;", "LITE;1"},
                   state(0),
                   triangle(0),
                   end_of_lamp,
                   {"#; Process Instance Lamp Direct Light", "LGHT;2"},
                   state(0),
                   triangle(0),
                   close});
}

lines two_sides() {
    const lines alone = {"TLAY;Walls", "CULL;1"};
    return joined({stray_close,
                   face_head,
                   {"SHDW;0", "GCOR;-1", "GNDC;" + folder + "/Plants/Meadow.cover"},
                   alone,
                   {"MATL;10"},
                   triangle(0),
                   close,
                   stray_close,
                   face_head,
                   alone,
                   {"MATL;11", "MPUV;1"},
                   textured_triangle(0),
                   close});
}

lines glowing_faces() {
    return joined(
        {declaration("COL%3a0014_Panel", 12),
         {"#; Process Material Illum MESH", "MESH;", "TLAY;Layer0", "CULL;0", "MPUV;1", "MATL;12", "MPU2;1", "MAT2;12"},
         triangle(0),
         textured_triangle(3),
         {"EMSH; END OF ILLUM material"}});
}

lines places() {
    return {"CLPN;(0,0,1)",
            "CLPP;(1,2,3)",
            "#;PLANT",
            "PLLB;OrnPlant",
            "PLNM;" + folder + "/Plants/Oak",
            "PLLC;(10,0,0)",
            "PLDM;1.000000",
            "PLSN;1",
            "PLRT;90.000000",
            "PLSC;0.950000",
            "PLNT;1",
            "#",
            "RPCP;(0,0,0)",
            "RPCX;(1,0,0)",
            "RPCY;(0,1,0)",
            "RPCZ;(0,0,1)",
            "RPSX;1.000000",
            "RPSY;1.000000",
            "RPSZ;1.000000",
            "RPCL;Layer0",
            "RPCN;0",
            "#"};
}

lines still_stream() {
    return joined({head,
                   pass,
                   declaration("COL%3a0012_Wall", 10),
                   face_head,
                   state(10),
                   triangle(0),
                   close,
                   declaration("TEX%3a0001_Brick", 11),
                   two_sides(),
                   glowing_faces(),
                   lamps(),
                   {"#;", "#;NEW MESH for Image", "MESH"},
                   image(0, 13),
                   close,
                   places(),
                   {"#;", "#;EDGES", "EMSH; Edges", "#;MESH for Edges", "MESH;"},
                   state(1),
                   beams(2),
                   {"EMSH; Edges"},
                   end});
}

std::string material(const std::string& name, const std::string& display, const std::string& picture,
                     const std::string& tile = "0.0254") {
    return text_of({"Matl: " + name + ".OrnMaterial",
                    "Disp: " + display,
                    "Orig: " + display,
                    "#",
                    "OrnMaterial Type: ",
                    "Base_Material: ",
                    "Use_Entity_Color: 0",
                    "Color: 3302600",
                    "#;Color: RGB(200,100,50)",
                    "IconColor: 16777215",
                    "Trans: 0.25",
                    "Translucency: 0",
                    "Refl: 0",
                    "Refr: 1.5",
                    "IrayInitialOpacity: 1",
                    "#",
                    "# Glow is a pct = 1.0 = 100 watts",
                    "Glow: 0.25",
                    "Glow_Lumens: 425",
                    "SelfGlow: 0",
                    "#",
                    "Blurry: 0",
                    "Glossy: 1",
                    "#;For Select Material dialog and 3D PDF",
                    "Filter: ",
                    "Category: ",
                    "Image_Path: " + (picture.empty() ? picture : folder + "/" + picture),
                    "ImageWidth: 0",
                    "TileX: " + tile,
                    "TileY: 1e-05",
                    "AutoBump: 0",
                    "ColorStrength: 0",
                    "BumpStrength: 0",
                    "Marbled: 0",
                    "MarbleScale: 0",
                    "MarbleStrength: 0",
                    "TopiaryOrientation: 0",
                    "#"});
}

std::string lamp(const std::string& location, const std::string& type) {
    return text_of({"location;" + location,
                    "direction;(0.000000,0.000000,-1.000000)",
                    "xaxis;(1.000000,0.000000,0.000000)",
                    "hide;0",
                    "use_object_color;0",
                    "color;#fff1d6",
                    "channel;2",
                    "beam_length;-1.000000",
                    "beam_angle;30.000000",
                    "field_angle;60.000000",
                    "intensity;75.000000",
                    "intensity_lumens;1275.000000",
                    "length;-1.000000",
                    "size;-1.000000",
                    "width;-1.000000",
                    "type;" + type,
                    "unit;Watts",
                    "spotlight_shape;",
                    "ies_file_name;",
                    "ies_pattern;-1"});
}

std::string picture(std::uint8_t grey) {
    image::picture pixels = *image::picture::make({2, 3, 24});
    for (std::uint8_t& byte : pixels.bytes())
        byte = grey;
    const std::vector<std::uint8_t> file = image::encode_picture(pixels, image::picture_format::png);
    return {file.begin(), file.end()};
}

} // namespace

files_by_name still() {
    const std::string nowhere = "(0.000000,0.000000,0.000000)";
    return {{"batch_file.txt", text_of(still_stream())},
            {"geometry.qlm", "the model"},
            {"option_globals.txt",
             text_of({"bvl_show_bulbs; 0", "cvl_layer_color; 255", "ivl_resy; 600", "pcomm_origin; (1, 2.5, -3)",
                      "rvl_edge_line_width; 1.5", "scomm_note; C:\\\\rooms; attic"})},
            {"ZynBatch_Materials/COL%3a0012_Wall.qlobj", material("COL%3a0012_Wall", "Wall", "")},
            {"ZynBatch_Materials/COL%3a0014_Panel.qlobj", material("COL%3a0014_Panel", "Panel", "", "0.5")},
            {"ZynBatch_Materials/TEX%3a0001_Brick.qlobj",
             material("TEX%3a0001_Brick", "Brick", "Batch_SketchUp_Textures/TX0001_Brick.PNG")},
            {"ZynBatch_Materials/IMAGE_TX_Tree_88.png.qlobj",
             material("IMAGE_TX_Tree_88.png", "Tree_88.png", "ZynBatch_Images/Tree_88.png")},
            {"Batch_SketchUp_Textures/TX0001_Brick.PNG", picture(50)},
            {"ZynBatch_Images/Tree_88.png", picture(60)},
            {"ZynBatch_Lights/light_0.txt", lamp(nowhere, "rect_glow")},
            {"ZynBatch_Lights/light_1.txt", lamp(nowhere, "round_glow")},
            {"ZynBatch_Lights/light_2.txt", lamp("(2.286000,1.752600,1.676400)", "bulb")},
            {"Plants/Oak", "a plant"},
            {"Plants/Meadow.cover", "a ground cover"}};
}

files_by_name animation() {
    const lines table = {"LYIN;0", "LYNM;Layer0", "LYIN;1", "LYNM;Walls"};
    const lines listed = {"TLAY;Walls", "LYRS;0,1", "CULL;0", "MATL;0", "MAT2;0"};
    const lines edge = {"#;",   "MESH;", "EDGE;1", "TLAY;Edges", "EDG1;(0, 0, 0)", "EDG2;(10, 0, 0)", "EDGN;(0, 0, 1)",
                        "EMSH;"};
    return {{"batch_file.txt",
             text_of(joined(
                 {head, table, pass, face_head, listed, triangle(0), close, {"#;", "#;EDGES"}, edge, edge, end}))},
            {"geometry.qlm", "the model"}};
}

} // namespace small_batch
