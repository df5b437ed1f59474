// Which number a face's side gets for its material, and what a new material sets going.

#include "tests/support/trace_capture.h"
#include "tests/tessaline/painted_model.h"

#include <filesystem>
#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

class MaterialNumbers : public painted_model_test {};

TEST_F(MaterialNumbers, begin_at_10_in_the_order_of_first_use) {
    const auto red = plain(12, "Red");
    square(red, plain(5, "Blue"));
    square(plain(30, "Green"), red);
    open_painted();
    EXPECT_EQ(number_of(faces()[0], false), 10);
    EXPECT_EQ(number_of(faces()[0], true), 11);
    EXPECT_EQ(number_of(faces()[1], true), 12);
    EXPECT_EQ(number_of(faces()[1], false), 11);
    EXPECT_EQ(stream_text(),
              lines({"MATF;COL%3a0005_Blue.OrnMaterial", "MTX2;1", "MATI;10", "MATF;COL%3a0012_Red.OrnMaterial",
                     "MTX2;1", "MATI;11", "MATF;COL%3a0030_Green.OrnMaterial", "MTX2;1", "MATI;12"}));
}

TEST_F(MaterialNumbers, no_material_is_0_and_tells_nothing) {
    square(plain(12, "Red"));
    open_painted();
    const material_of_side side = told(faces()[0], false);
    EXPECT_EQ(side.number, 0);
    EXPECT_FALSE(side.has_texture);
    EXPECT_EQ(stream_text(), "");
    EXPECT_TRUE(std::filesystem::is_empty(batch.name()));
}

TEST_F(MaterialNumbers, a_material_with_an_id_below_0_is_none) {
    square(textured(-1, "Red"));
    open_painted();
    const material_of_side side = told(faces()[0]);
    EXPECT_EQ(side.number, 0);
    EXPECT_FALSE(side.has_texture);
    EXPECT_EQ(stream_text(), "");
}

TEST_F(MaterialNumbers, two_faces_with_one_texture_share_a_record_and_its_lines) {
    const auto brick = textured(12, "Brick");
    square(brick);
    square(brick);
    open_painted();
    EXPECT_EQ(number_of(faces()[0]), 10);
    const material_of_side second = told(faces()[1]);
    EXPECT_EQ(second.number, 10);
    EXPECT_TRUE(second.has_texture);
    EXPECT_FALSE(second.not_affine);
    EXPECT_EQ(material_records.size(), 1U);
    EXPECT_EQ(stream_text(), lines({"MATF;TEX%3a0001_Brick.OrnMaterial", "MTX2;1", "MATI;10"}));
    EXPECT_TRUE(has_material_file("TEX%3a0001_Brick.qlobj"));
    EXPECT_TRUE(has_picture("TX0001_Brick.BMP"));
}

TEST_F(MaterialNumbers, a_distorted_face_has_a_texture_and_so_a_record_of_its_own) {
    const auto brick = textured(12, "Brick");
    square(brick);
    distort_front(square(brick));
    open_painted();
    const material_of_side straight = told(faces()[0]);
    EXPECT_EQ(straight.number, 10);
    EXPECT_FALSE(straight.not_affine);
    const material_of_side distorted = told(faces()[1]);
    EXPECT_EQ(distorted.number, 11);
    EXPECT_TRUE(distorted.not_affine);
    EXPECT_EQ(stream_text(), lines({"MATF;TEX%3a0001_Brick.OrnMaterial", "MTX2;1", "MATI;10",
                                    "MATF;TEX%3a0002_Brick.OrnMaterial", "MTX2;1", "MATI;11"}));
    EXPECT_TRUE(has_picture("TX0002_Brick.BMP"));
}

TEST_F(MaterialNumbers, a_distorted_front_says_nothing_of_the_back) {
    const auto brick = textured(12, "Brick");
    distort_front(square(brick, brick));
    open_painted();
    EXPECT_TRUE(told(faces()[0], true).not_affine);
    EXPECT_FALSE(told(faces()[0], false).not_affine);
}

TEST_F(MaterialNumbers, a_texture_that_is_not_the_face_s_own_has_the_number_0) {
    const auto brick = textured(12, "Brick");
    square(brick);
    square(sketchup::no_index);
    open_painted();
    SUMaterialRef inherited = SU_INVALID;
    SUFaceGetFrontMaterial(faces()[0], &inherited);
    EXPECT_EQ(reader.get_material_number(faces()[1], inherited, "face", true).number, 10);
    EXPECT_EQ(stream_text(), lines({"MATF;TEX%3a0000_Brick.OrnMaterial", "MTX2;1", "MATI;10"}));
    EXPECT_EQ(material_records[0].tile_x, 0.1);
    EXPECT_EQ(material_records[0].tile_y, 0.05);
    EXPECT_TRUE(has_picture("TX0000_Brick.BMP"));
}

TEST_F(MaterialNumbers, without_a_texture_writer_the_material_id_stands_in_and_nothing_is_asked) {
    distort_front(square(textured(12, "Brick")));
    open();
    const material_of_side side = told(faces()[0]);
    EXPECT_EQ(side.number, 10);
    EXPECT_TRUE(side.has_texture);
    EXPECT_FALSE(side.not_affine);
    EXPECT_EQ(stream_text(), lines({"MATF;TEX%3a0012_Brick.OrnMaterial", "MTX2;1", "MATI;10"}));
}

TEST_F(MaterialNumbers, among_scattered_components_textures_go_by_material_and_are_straight) {
    distort_front(square(textured(12, "Brick")));
    open_painted();
    in_skatter_instances = true;
    const material_of_side side = told(faces()[0]);
    EXPECT_EQ(side.number, 10);
    EXPECT_FALSE(side.not_affine);
    EXPECT_EQ(stream_text(), lines({"MATF;TEX%3a0012_Brick.OrnMaterial", "MTX2;1", "MATI;10"}));
}

TEST_F(MaterialNumbers, a_star_in_a_name_becomes_a_word_everywhere) {
    square(plain(12, "*1"));
    open_painted();
    number_of(faces()[0]);
    EXPECT_EQ(stream_text(), lines({"MATF;COL%3a0012_Material1.OrnMaterial", "MTX2;1", "MATI;10"}));
    EXPECT_THAT(material_file("COL%3a0012_Material1.qlobj"),
                testing::StartsWith("Matl: COL%3a0012_Material1.OrnMaterial\r\n"
                                    "Disp: Material1\r\n"
                                    "Orig: Material1\r\n#\r\n"));
    EXPECT_EQ(material_records[0].name, "Material1");
}

TEST_F(MaterialNumbers, where_colours_go_by_layer_the_name_stands_alone) {
    square(plain(12, "Wall"));
    open_painted();
    theApp.color_by_layer = true;
    EXPECT_EQ(number_of(faces()[0]), 10);
    EXPECT_EQ(stream_text(), lines({"MATF;Wall.OrnMaterial", "MTX2;1", "MATI;10"}));
    EXPECT_TRUE(has_material_file("Wall.qlobj"));
}

TEST_F(MaterialNumbers, where_colours_go_by_layer_each_reflection_makes_a_material) {
    square(plain(12, "Wall"));
    open_painted();
    theApp.color_by_layer = true;
    EXPECT_EQ(number_of(faces()[0]), 10);
    current_oparms->reflection = 50.7;
    EXPECT_EQ(number_of(faces()[0]), 11);
    current_oparms->reflection = 50.2;
    EXPECT_EQ(number_of(faces()[0]), 11) << "the same in whole per cent";
    current_oparms->reflection = 51;
    EXPECT_EQ(number_of(faces()[0]), 12);
    current_oparms->reflection = 0.5;
    EXPECT_EQ(number_of(faces()[0]), 13);
    current_oparms->reflection = 0;
    EXPECT_EQ(number_of(faces()[0]), 10);
    EXPECT_EQ(material_records[1].values.reflection, 50.7 * 0.01);
    EXPECT_EQ(stream_text(),
              lines({"MATF;Wall.OrnMaterial", "MTX2;1", "MATI;10", "MATF;COL%3a0012_Wall_ref50.OrnMaterial", "MTX2;1",
                     "MATI;11", "MATF;COL%3a0012_Wall_ref51.OrnMaterial", "MTX2;1", "MATI;12",
                     "MATF;COL%3a0012_Wall_ref00.OrnMaterial", "MTX2;1", "MATI;13"}));
}

TEST_F(MaterialNumbers, the_first_object_s_reflection_makes_the_material_and_later_ones_change_nothing) {
    square(plain(12, "Wall"));
    open_painted();
    current_oparms->reflection = 95;
    EXPECT_EQ(number_of(faces()[0]), 10);
    const std::string written = material_file("COL%3a0012_Wall.qlobj");
    EXPECT_THAT(written, HasSubstr("\r\nRefl: 0.95\r\n"));
    current_oparms->reflection = 20;
    EXPECT_EQ(number_of(faces()[0]), 10);
    EXPECT_EQ(material_file("COL%3a0012_Wall.qlobj"), written);
    EXPECT_EQ(material_records[0].values.reflection, 95 * 0.01);
}

TEST_F(MaterialNumbers, a_small_reflection_makes_a_metal_of_the_material) {
    square(plain(12, "Wall"));
    open_painted();
    current_oparms->reflection = 40;
    number_of(faces()[0]);
    EXPECT_TRUE(material_records[0].values.metallic);
    EXPECT_EQ(material_records[0].values.sharpness, 0.9);
    EXPECT_THAT(material_file("COL%3a0012_Wall.qlobj"), HasSubstr("\r\nRefl: 0.4\r\n"));
}

TEST_F(MaterialNumbers, a_glowing_material_is_told_each_time) {
    square(plain(12, "Lamp_glow25"));
    square(plain(13, "Red"));
    open_painted();
    EXPECT_TRUE(told(faces()[0]).has_glow);
    EXPECT_FALSE(told(faces()[1]).has_glow);
    EXPECT_TRUE(told(faces()[0]).has_glow);
}

TEST_F(MaterialNumbers, what_is_no_face_is_named_as_an_image) {
    square(textured(12, "Brick"));
    open_painted();
    SUMaterialRef material = SU_INVALID;
    SUFaceGetFrontMaterial(faces()[0], &material);
    reader.get_material_number(faces()[0], material, "other", true);
    EXPECT_EQ(stream_text(), lines({"MATF;IMG%3a0001_Brick.OrnMaterial", "MTX2;1", "MATI;10"}));
}

TEST_F(MaterialNumbers, a_plain_material_that_counts_as_textured_does_not_tell_the_caller_so) {
    square(plain(12, "Red"));
    open_painted();
    SUMaterialRef material = SU_INVALID;
    SUFaceGetFrontMaterial(faces()[0], &material);
    EXPECT_FALSE(reader.get_material_number(faces()[0], material, "other", true).has_texture);
    EXPECT_EQ(stream_text(), lines({"MATF;IMG%3a0012_Red.OrnMaterial", "MTX2;1", "MATI;10"}));
    EXPECT_EQ(material_records[0].image_path, "");
}

TEST_F(MaterialNumbers, a_material_called_as_another_s_file_in_brackets_is_taken_for_it) {
    square(plain(12, "[COL%253a0013_Red.OrnMaterial]"));
    square(plain(13, "Red"));
    open_painted();
    EXPECT_EQ(number_of(faces()[0]), 10);
    EXPECT_EQ(material_records[0].name, "[COL%3a0013_Red.OrnMaterial]");
    EXPECT_EQ(number_of(faces()[1]), 10);
    EXPECT_EQ(number_of(faces()[1]), 10);
    EXPECT_EQ(material_records.size(), 1U);
}

TEST_F(MaterialNumbers, a_material_called_as_the_file_of_another_stands_in_for_it_from_then_on) {
    theApp.color_by_layer = true;
    square(plain(12, "Wall"));
    square(plain(13, "Wall.OrnMaterial"));
    open_painted();
    EXPECT_EQ(number_of(faces()[0]), 10);
    EXPECT_EQ(number_of(faces()[0]), 10);
    EXPECT_EQ(number_of(faces()[1]), 11);
    EXPECT_EQ(number_of(faces()[0]), 11);
    EXPECT_EQ(number_of(faces()[0]), 11);
}

TEST_F(MaterialNumbers, an_index_beyond_the_records_is_an_invalid_argument) {
    square(plain(12, "Red"));
    open_painted();
    material_name_map["COL%3a0012_Red.OrnMaterial"] = 5;
    EXPECT_THROW(number_of(faces()[0]), std::invalid_argument);
    material_name_map["COL%3a0012_Red.OrnMaterial"] = -2;
    reader.materials.forget();
    EXPECT_EQ(number_of(faces()[0]), 0);
}

TEST_F(MaterialNumbers, a_text_file_that_lies_there_already_counts_as_the_picture_s_too) {
    square(textured(12, "Zyn Default Color"));
    open_painted();
    batch.write("ZynBatch_Materials/TEX%3a0001_Zyn Default Color.qlobj", "kept");
    EXPECT_EQ(number_of(faces()[0]), 10);
    EXPECT_FALSE(has_picture("TX0001_Zyn Default Color.BMP"));
    EXPECT_EQ(material_records[0].image_path, "");
    EXPECT_EQ(material_records[0].tile_x, 0);
    EXPECT_EQ(material_file("TEX%3a0001_Zyn Default Color.qlobj").substr(0, 6), "Matl: ") << "written anew";
}

TEST_F(MaterialNumbers, the_record_is_the_complete_account_of_the_material) {
    const auto brick = textured(12, "Brick_glow30");
    builder.model().materials[brick].use_transparency = true;
    builder.model().materials[brick].transparency = 0.25;
    const sketchup::entity_place place{sketchup::entity_kind::material, brick};
    const std::pair<const char*, const char*> said[] = {
        {"OrnMaterial Type", "kind"},
        {"Base_Material", "base"},
        {"XML_file_name", "a.xml"},
        {"XML_scale_x", "2"},
        {"XML_scale_y", "3"},
        {"XML_initial_opacity", "0.5"},
        {"Marevo_XML_File", "b.xml"},
        {"Ior", "1.75"},
        {"Translucency", "0.125"},
        {"Highlight_intensity", "0.375"},
        {"Sharpness", "0.625"},
        {"Imetallic", "true"},
        {"Bump-Marbled", "true"},
        {"Bump-Marbled-Strength", "4"},
        {"Bump-Marbled-Scale", "5"},
        {"Bump-Rubble", "true"},
        {"Bump-Wrinkled", "true"},
        {"Bump-Sandpaper", "true"},
        {"Bump-Pyramid", "true"},
        {"Type", "1"},
        {"ORNZyn Material Settings", "41;1;x;"},
        {"ORNZyn Material Settings_chunk0", "[ORNZyn Material Settings][00000004]-4869"},
    };
    for (const auto& [key, value] : said)
        builder.attribute(place, "Vellane_material", key, sketchup::text(value));
    square(brick);
    open_painted();
    number_of(faces()[0]);
    ASSERT_EQ(material_records.size(), 1U);
    const cl_tsl_material& r = material_records[0];
    EXPECT_EQ(r.material_id, 12);
    EXPECT_EQ(r.name, "Brick_glow30");
    EXPECT_EQ(r.values.material_type, "kind");
    EXPECT_EQ(r.values.base_material, "base");
    EXPECT_EQ(r.values.xml_file_name, "a.xml");
    EXPECT_EQ(r.values.xml_scale_x, 2);
    EXPECT_EQ(r.values.xml_scale_y, 3);
    EXPECT_EQ(r.values.xml_initial_opacity, 0.5);
    EXPECT_EQ(r.values.marevo_xml_file, "b.xml");
    EXPECT_EQ(r.image_path, batch / "Batch_SketchUp_Textures/TX0001_Brick_glow30.BMP");
    EXPECT_EQ(r.values.edited_file, batch / "ZynBatch_Materials/TEX%3a0001_Brick_glow30.OrnMaterial");
    EXPECT_TRUE(r.has_glow);
    EXPECT_EQ(r.values.glow, 0.3);
    EXPECT_EQ(r.values.opacity, 0.75);
    EXPECT_EQ(r.values.refraction, 1.75);
    EXPECT_EQ(r.values.translucency, 0.125);
    EXPECT_EQ(r.values.reflection, 0.375);
    EXPECT_EQ(r.values.sharpness, 0.625);
    EXPECT_EQ(r.tile_x, 0.1);
    EXPECT_EQ(r.tile_y, 0.05);
    EXPECT_TRUE(r.values.metallic && r.values.marbled && r.values.rubble && r.values.wrinkled && r.values.sandpaper &&
                r.values.pyramid);
    EXPECT_EQ(r.values.marble_strength, 4);
    EXPECT_EQ(r.values.marble_scale, 5);
    EXPECT_EQ(material_id_map.at(12), 0);
    EXPECT_EQ(material_name_map.at("TEX%3a0001_Brick_glow30.OrnMaterial"), 0);
    EXPECT_EQ(material_name_map.at("Brick_glow30"), 0);
    EXPECT_EQ(batch.read("ZynBatch_Materials/TEX%3a0001_Brick_glow30.OrnMaterial"), "Hi");
}

TEST_F(MaterialNumbers, the_record_s_opacity_is_the_model_s_whatever_the_name_says) {
    square(plain(12, "Glass_trans30", 0.5));
    open_painted();
    number_of(faces()[0]);
    EXPECT_EQ(material_records[0].values.opacity, 0.5);
    EXPECT_THAT(material_file("COL%3a0012_Glass_trans30.qlobj"), HasSubstr("\r\nTrans: 0.3\r\n"));
}

TEST_F(MaterialNumbers, a_highlight_of_0_or_below_is_not_recorded) {
    const auto red = plain(12, "Red");
    builder.attribute({sketchup::entity_kind::material, red}, "Vellane_material", "Highlight_intensity",
                      sketchup::text("-0.5"));
    builder.attribute({sketchup::entity_kind::material, red}, "Vellane_material", "Glow_intensity",
                      sketchup::text("-1"));
    square(red);
    open_painted();
    EXPECT_FALSE(told(faces()[0]).has_glow);
    EXPECT_EQ(material_records[0].values.reflection, 0);
    EXPECT_EQ(material_records[0].values.glow, 0);
    EXPECT_THAT(material_file("COL%3a0012_Red.qlobj"), HasSubstr("\r\nRefl: -0.5\r\n"));
}

// ---- the attribute list

class MaterialAttributeList : public painted_model_test {
protected:
    void say_something(sketchup::index material) {
        builder.attribute({sketchup::entity_kind::material, material}, "any", "key", sketchup::text("value"));
    }
    // Whether the call replaces what is in the list.
    bool replaces_list(SUFaceRef face) {
        attribute_list = {{"of", "another", "entity"}};
        number_of(face);
        return attribute_list.size() == 1 && attribute_list[0].dictionary == "any";
    }
};

TEST_F(MaterialAttributeList, is_replaced_by_a_new_material_and_left_alone_by_a_known_one) {
    const auto red = plain(12, "Red");
    say_something(red);
    square(red);
    open_painted();
    EXPECT_TRUE(replaces_list(faces()[0]));
    EXPECT_FALSE(replaces_list(faces()[0]));
    EXPECT_FALSE(replaces_list(faces()[0]));
}

TEST_F(MaterialAttributeList, is_replaced_each_time_by_a_distorted_texture) {
    const auto brick = textured(12, "Brick");
    say_something(brick);
    distort_front(square(brick));
    square(brick);
    open_painted();
    for (int i = 0; i != 3; ++i)
        EXPECT_TRUE(replaces_list(faces()[0])) << i;
    EXPECT_TRUE(replaces_list(faces()[1]));
    EXPECT_FALSE(replaces_list(faces()[1]));
}

TEST_F(MaterialAttributeList, is_replaced_each_time_by_a_material_whose_file_could_not_be_made) {
    const auto red = plain(12, "Red" + std::string(300, 'x'));
    say_something(red);
    square(red);
    open_painted();
    for (int i = 0; i != 3; ++i)
        EXPECT_TRUE(replaces_list(faces()[0])) << i;
    EXPECT_EQ(material_records.size(), 1U);
}

// A file that went away unnoticed would make the next call read the attributes again, and a folder that went away would
// be made again.
TEST_F(MaterialAttributeList, is_left_alone_by_a_known_material_whose_file_went_away_since_no_disk_is_asked) {
    const auto red = plain(12, "Red");
    const auto brick = textured(13, "Brick");
    say_something(red);
    say_something(brick);
    square(red);
    square(brick);
    open_painted();
    for (int round = 0; round != 2; ++round) // the first makes them, the second finds them
        for (const SUFaceRef face : faces())
            number_of(face);
    std::filesystem::remove_all(batch / "ZynBatch_Materials");
    std::filesystem::remove_all(batch / "Batch_SketchUp_Textures");
    for (const SUFaceRef face : faces())
        EXPECT_FALSE(replaces_list(face));
    EXPECT_TRUE(std::filesystem::is_empty(batch.name()));
}

// ---- what a name can do

TEST_F(MaterialNumbers, a_name_too_long_for_a_file_leaves_the_stream_s_lines_and_no_file) {
    const std::string name(500, 'x');
    square(textured(12, name));
    open_painted();
    const trace_capture trace;
    EXPECT_EQ(number_of(faces()[0]), 10);
    EXPECT_EQ(stream_text(), lines({"MATF;TEX%3a0001_" + name + ".OrnMaterial", "MTX2;1", "MATI;10"}));
    EXPECT_TRUE(std::filesystem::is_empty(batch / "ZynBatch_Materials"));
    EXPECT_TRUE(has_picture("TX0012.jpg")) << "the picture has a name to fall back on";
    EXPECT_EQ(material_records[0].image_path, batch / "Batch_SketchUp_Textures/TX0012.jpg");
}

// A name whose first percent sign is followed by nothing but one digit counts as escaped already, so that what stands
// in front of it reaches the file name as it is.
TEST_F(MaterialNumbers, a_name_that_leads_out_of_the_folder_leaves_the_stream_s_lines_and_no_file) {
    theApp.color_by_layer = true;
    const auto up = plain(12, "../up%255");
    builder.attribute({sketchup::entity_kind::material, up}, "Vellane_material", "ORNZyn Material Settings",
                      sketchup::text("41;0;x;"));
    square(up);
    square(plain(13, "..\\up%255"));
    square(plain(14, "x%00y%255"));
    open_painted();
    number_of(faces()[0]);
    number_of(faces()[1]);
    number_of(faces()[2]);
    EXPECT_EQ(stream_text(),
              lines({"MATF;../up%5.OrnMaterial", "MTX2;1", "MATI;10", "MATF;..\\up%5.OrnMaterial", "MTX2;1", "MATI;11",
                     std::string("MATF;x\0y%5.OrnMaterial", 22), "MTX2;1", "MATI;12"}));
    EXPECT_TRUE(std::filesystem::is_empty(batch / "ZynBatch_Materials"));
    EXPECT_FALSE(batch.has("up%5.qlobj"));
    EXPECT_FALSE(batch.has("up%5.OrnMaterial"));
}

TEST_F(MaterialNumbers, what_each_textured_side_asks_the_writer_is_traced) {
    square(textured(12, "Brick"));
    open_painted();
    const trace_capture trace;
    number_of(faces()[0]);
    EXPECT_EQ(trace.text_without_line_numbers(),
              "material_numbers(#): SketchUpReader::get_material_number():: txtr id: 1, is_front: 1\n"
              "material_numbers(#): SketchUpReader::get_material_number():: textureId? 1  back_textureId: 0\n");
    number_of(faces()[0]);
    EXPECT_EQ(trace.text_without_line_numbers(),
              "material_numbers(#): SketchUpReader::get_material_number():: txtr id: 1, is_front: 1\n"
              "material_numbers(#): SketchUpReader::get_material_number():: textureId? 1  back_textureId: 0\n"
              "material_numbers(#): SketchUpReader::get_material_number():: txtr id: 1, is_front: 1\n"
              "material_numbers(#): SketchUpReader::get_material_number():: textureId? 1  back_textureId: 0\n");
}

TEST_F(MaterialNumbers, what_the_writer_is_asked_is_traced_for_a_list_of_faces_too) {
    square(textured(12, "Brick"));
    open_painted();
    const trace_capture trace;
    SUEntitiesRef entities = SU_INVALID;
    SUModelGetEntities(open_model, &entities);
    std::string path;
    reader.ProcessEntities(entities, identity16, path, 1);
    EXPECT_THAT(trace.text_without_line_numbers(), testing::HasSubstr("txtr id: 1, is_front: 1\n"));
}

TEST_F(MaterialNumbers, folders_that_cannot_be_made_cost_the_files_and_nothing_else) {
    theApp.batch_folder = batch / "missing/folder";
    square(textured(12, "Brick"));
    open_painted();
    EXPECT_EQ(number_of(faces()[0]), 10);
    EXPECT_EQ(number_of(faces()[0]), 10);
    EXPECT_EQ(stream_text(), lines({"MATF;TEX%3a0001_Brick.OrnMaterial", "MTX2;1", "MATI;10"}));
    EXPECT_FALSE(batch.has("missing"));
}

} // namespace
