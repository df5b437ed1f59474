#include "tests/fuzz/text_seeds.h"

#include <filesystem>
#include <fstream>
#include <string_view>

namespace {

struct seed {
    const char* target;
    const char* name;
    std::string_view bytes;
};

constexpr seed seeds[] = {
    {"fuzz_object_attributes", "lamp",
     "qlw_lamp;sorndll_lamp_type;spot\nqlw_lamp;rorndll_lamp_size;12\nqlw_lamp;cqlw_lamp_color;#ff8040\n\n"
     "qlw_overrides;intensity_override_mode;%\nqlw_overrides;intensity_override_value;50\n"},
    {"fuzz_object_attributes", "numbers",
     "Vellane_object_properties;light_type;-1\nVellane_object_properties;light_direction;5\n"
     "qlw_lamp;ivl_lamp_channel;2147483647\nqlw_lamp;rorndll_lamp_intensity_lumens;1e308\n"
     "qlw_placement_settings;light_color_override_value;rgb(1,2,3)\n"},
    // A letter is a place, from @ for 0; before an outline @ says rectangle, A star, B triangle, C quadrilateral.
    {"fuzz_plane_cut", "inside", "H@@@JH@AAAB"},
    {"fuzz_plane_cut", "notch_in_an_upright_face", "I@@@JH@D@BC"},
    {"fuzz_plane_cut", "hole_widened", "B@@@JH@DBBB@FBBB@AAGC"},
    {"fuzz_plane_cut", "across_a_star", "KAJJEPTPXP\\PTPXPT@HAC_CAAALDHKLM"},
    {"fuzz_plane_cut", "nothing_left", "H@@@JH@@@JH"},
    {"fuzz_plane_cut", "nearly_touching", "H@@@JH@\xA4\xC0\x42\x43@\xC6\xA1\xE2\x43"},
    {"fuzz_batch_glb", "a_lamp_of_two_materials",
     "#;head\r\nMATF;a.OrnMaterial\r\nMTX2;1\r\nMATI;10\r\nMESH;\r\nLITE;0\r\nTLAY;Walls\r\nCULL;0\r\nMPUV;1\r\n"
     "MATL;10\r\nMAT2;10\r\nNORM;(0,0,1)\r\nUVQ;(0,0,1)\r\nVERT;(0,0,0)\r\nADDV;0\r\nNORM;(0,0,1)\r\nUVQ;(1,0,1)\r\n"
     "VERT;(1,0,0)\r\nADDV;1\r\nNORM;(0,0,1)\r\nUVQ;(1,1,1)\r\nVERT;(1,1,0)\r\nADDV;2\r\nFACE;0,1,2\r\nMATL;0\r\n"
     "FACE;2,1,0\r\nEMSH;\r\n#;\r\nEND;\r\n== ZynBatch_Materials/a.qlobj\nMatl: a.OrnMaterial\nTrans: 0.5\nRefr: 1.4\n"
     "Glow: 2\n== ZynBatch_Lights/light_0.txt\ntype;spot_glow\nbeam_angle;30\nfield_angle;45\nintensity_lumens;850\n"
     "== zyn_view.txt\nEYE;(0,-4,0)\nTARGETX;0\nTARGETY;1\nTARGETZ;0\nFOV;40\nCAMERATYPE;ortho\nORTHOHEIGHT;2\n"
     "== option_globals.txt\nbvl_sun_on; 1\nrskp_sun_altitude; 0.5\nrskp_sun_azimuth; 1\n"},
    {"fuzz_batch_glb", "things_and_lines",
     "MESH;\nEDGE;1\nTLAY;Edges\nEDG1;(0, 0, 1)\nEDG2;(1, 0, 1)\nEMSH;\nCLPN;(0,0,1)\nCLPP;(0,0,2)\nPLLB;T\nPLNM;O\n"
     "PLLC;(1,2,3)\nPLDM;inf\nPLRT;45\nPLNT;1\nRPCP;(0,0,0)\nRPCX;(1,1,0)\nRPCY;(0,1,0)\nRPCZ;(0,0,1)\nRPSX;2\nRPCL;a\n"
     "RPCN;w\nMESH\nTLAY;a\nCULL;1\nMATL;3\nNORM;(nan,0,0)\nVERT;(1e39,0,0)\nADDV;2000000000\n"
     "FACE;2000000000, 0, 1\nEND;\n"},
    {"fuzz_run_report", "of_a_finished_batch",
     R"({"format":1,"program":"tessaline-run","version":"0.1.0","status":0,"folder":"/b","model":{"name":"m.skp","bytes":3,)"
     R"("xxh128":"00"},"files":[],"options":{},"counts":{"triangles":2},"findings":[{"code":"orphan"}],"errors":0,)"
     R"("warnings":1})"},
    {"fuzz_run_report", "of_other_kinds", R"({"program":7,"model":[],"counts":"x","findings":null,"errors":1e300})"},
    {"fuzz_run_report", "deep", R"({"findings":[[[[[[[[[[[[[[[[[[[[[[[[{"a":[1]}]]]]]]]]]]]]]]]]]]]]]]]]})"},
    {"fuzz_run_report", "of_the_checker",
     R"({"batches":[{"status":"unsound","counts":{"triangles":2},"errors":1,"warnings":0,"findings":[{"severity":"error",)"
     R"("file":"batch_file.txt","line":7,"text":"no end"}]}]})"},
    {"fuzz_ini", "empty", ""},
    {"fuzz_ini", "profile",
     "; mine\r\n[Globals]\r\nsvl_name=a b\r\nivl_number = -5 \r\n\r\n[Common]\r\nPhone=\"1\"\r\n"},
    {"fuzz_ini", "plain_line_ends", "\xEF\xBB\xBF[a]\nkey=1\nKEY=2\n[b]\n[A]\nkey='3'\nno end"},
    {"fuzz_ini", "rubbish", "=x\n[open\n]\r\r\n[]\n=\n;[a]\n[a] ; behind\nkey=[\"]=;"},
    {"fuzz_hex_chunks", "nothing", ""},
    {"fuzz_hex_chunks", "one_chunk",
     "ORNZyn Material Settings=41;1;x;\n"
     "ORNZyn Material Settings_chunk0=[ORNZyn Material Settings][00000004]-4869"},
    {"fuzz_hex_chunks", "missing_chunks",
     "ORNZyn Material Settings=2147483647;3;x;\n"
     "ORNZyn Material Settings_chunk2=4869\nORNZyn Material Settings_chunk=[ORNZyn"},
    {"fuzz_hex_chunks", "far_chunk",
     "ORNZyn Material Settings=9000000000;2147483647;x;\nORNZyn Material Settings_chunk2147483646=48"},
    {"fuzz_hex_chunks", "chunk_below_0", "ORNZyn Material Settings_chunk-1=48"},
    {"fuzz_hex_chunks", "bare_frame", "[ORNZyn Material Settings][00000007]-4869zz48"},
    {"fuzz_hex_chunks", "length_that_lies", "[ORNZyn Material Settings][99999999]-48"},
    {"fuzz_ini", "two_bytes_a_letter", "\xFF\xFE[a]\nkey=1\n"},
    {"fuzz_base64", "empty", ""},
    {"fuzz_base64", "whole_groups", "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/"},
    {"fuzz_base64", "padded", "T2FrIQ=="},
    {"fuzz_base64", "left_over", "T2FrIQT"},
    {"fuzz_base64", "broken_lines", "T2Fr\r\nIQ==\r\n"},
    {"fuzz_ini", "names", "a]|[key=;|'x'\r\n\"|[a]\nkey=1\n"},
    {"fuzz_ini", "names_of_the_file", " A | Key |two words|[a]\r\nkey = 1 \r\n"},
    {"fuzz_names", "escaped", "50%5 R%26D%zz%"},
    {"fuzz_names", "leading_away", "%252/../..\\away & \t.png"},
    {"fuzz_setting_text", "number", " -2147483649.5e3 and more"},
    {"fuzz_setting_text", "above_32_bits", "4294967296"},
    {"fuzz_model_list", "names", "a/x.skp\r\n\n./a//x.skp\n/m/../b \"c\".skp\n"},
    {"fuzz_model_list", "ended_by_zero", {"a\nb.skp\0../c\0", 13}},
    {"fuzz_model_list", "report",
     R"({"status":3,"sentence":"no","seconds":1.5,"peak_memory_bytes":7,"counts":{"triangles":2},"errors":1,)"
     R"("warnings":0,"findings":[{"code":"a","severity":"error"}]})"},
    {"fuzz_setting_text", "no_number", "nan"},
    {"fuzz_setting_text", "hexadecimal_color", "#ff0010"},
    {"fuzz_setting_text", "listed_color", "rgb(255,0,16)"},
    {"fuzz_setting_text", "short_color", "rgb(7,8"},
    {"fuzz_setting_text", "point", "V(1, 2.5, -1e-8)"},
    {"fuzz_setting_text", "binary_point", "B32AAAAAAAA8D8AAAAAAAAAQAAAAAAAAAhA"},
    {"fuzz_setting_text", "registry_path", "HKEY_LOCAL_MACHINE\\SOFTWARE\\Maker\\Owner"},
    {"fuzz_setting_text", "other_hive", "HKEY_CURRENT_USER\\Software\\Quillon Systems\\Profile\\Globals\\Azure\\x"},
    {"fuzz_setting_text", "part_of_a_path", "Maker\\\\Part\\"},
    {"fuzz_skatter_file", "all",
     "# comment\r\na;b;c;pebble;1;0;0;0;0;1;0;0;0;0;1;0;100;0;0;1\r\n"
     "a;\"b;b\";c;\"Stone; \"\"grey\"\"\"n\"r\"x\";1e2;x;;\n\na;b"},
    {"fuzz_view_file", "pages", "EYE;(1,2,3)\r\nTARGETX;4\r\nEND_CURRENT;\r\nEYE;(5,6,7)\r\nEND_CURRENT;\r\nFOV;9"},
};

bool write(const std::filesystem::path& file, std::string_view bytes) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary);
    out << bytes;
    return out.good();
}

} // namespace

bool write_text_seeds(const std::string& folder) {
    bool is_written = true;
    for (const seed& each : seeds)
        is_written = write(std::filesystem::path(folder) / each.target / each.name, each.bytes) && is_written;
    return is_written;
}
