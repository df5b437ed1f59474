// The order of a reading, and what it leaves in the batch folder.

#include "tests/tessaline/run_fixture.h"

#include "platform/platform.h"
#include "tests/support/answering_desktop.h"

namespace {

using sketchup::list_builder;
using sketchup::model_builder;
using testing::ElementsAre;
using testing::IsEmpty;

class ModelReading : public run_fixture {};

TEST_F(ModelReading, a_model_that_cannot_be_opened_leaves_no_stream_and_no_folders) {
    const std::string broken = batch.write("geometry.qlm", "this is no model");
    EXPECT_EQ(reader.ReadSkpFile(broken, batch / "batch_file.txt"), -1);
    EXPECT_FALSE(batch.has("batch_file.txt"));
    EXPECT_FALSE(batch.has("ZynBatch_Lights"));
}

TEST_F(ModelReading, a_model_that_cannot_be_opened_is_traced) {
    const trace_capture trace;
    answering_desktop desktop;
    reader.ReadSkpFile(batch / "missing.skp", batch / "batch_file.txt");
    const std::string result_text = ": result " + std::to_string(SU_ERROR_SERIALIZATION) + "\n";
    EXPECT_EQ(trace.text_without_line_numbers(),
              "model_reading(#): SketchUpReader::ReadSkpFile():: Cannot open model " + batch / "missing.skp" +
                  result_text);
    EXPECT_TRUE(desktop.shown.empty());
}

TEST_F(ModelReading, a_stream_that_cannot_be_opened_does_not_stop_the_run) {
    model_builder m;
    m.root().square(10);
    EXPECT_EQ(reader.ReadSkpFile(save(m), batch / "no such folder/batch_file.txt"), 1);
    EXPECT_EQ(reader.items_done, 1);
}

TEST_F(ModelReading, a_run_without_an_option_file_leaves_none) {
    model_builder m;
    body_of(m);
    EXPECT_EQ(result, 1);
    EXPECT_FALSE(batch.has("option_globals.txt"));
}

TEST_F(ModelReading, an_option_file_is_read_and_written_again) {
    batch.write("option_globals.txt", "# a comment\nivl_resx;800\n");
    model_builder m;
    body_of(m);
    EXPECT_EQ(get_global_int("ivl_resx"), 800);
    const std::string text = batch.read("option_globals.txt");
    EXPECT_THAT(text, testing::HasSubstr("ivl_resx; 800\r\n"));
    EXPECT_THAT(text, testing::Not(testing::HasSubstr("# a comment")));
}

TEST_F(ModelReading, settings_of_the_model_override_the_option_file_and_reach_it) {
    batch.write("option_globals.txt", "ivl_resx;800\n");
    model_builder m;
    m.attribute(m.root().list(), "qlw_globals", "ivl_resx", sketchup::whole_number(640));
    body_of(m);
    EXPECT_THAT(batch.read("option_globals.txt"), testing::HasSubstr("ivl_resx; 640\r\n"));
}

TEST_F(ModelReading, settings_come_from_the_dictionary_of_that_name_alone_and_by_the_type_of_their_names) {
    model_builder m;
    const sketchup::entity_place list = m.root().list();
    m.attribute(list, "qlw_globals", "svl_sky_hdr", sketchup::text("noon.hdr"));
    m.attribute(list, "qlw_globals", "bvl_sun_on", sketchup::text("2"));
    m.attribute(list, "qlw_globals", "bvl_ground_plane_opaque", sketchup::text("true")); // a text whose number is 0
    m.attribute(list, "qlw_globals", "rvl_gamma_factor", sketchup::real_number(2.123456789));
    m.attribute(list, "qlw_globals", "ivl_kept_number", sketchup::text("12 and more"));
    m.attribute(list, "qlw_globals", "cvl_fog_color", sketchup::whole_number(255));
    m.attribute(list, "QLW_globals", "ivl_resx", sketchup::whole_number(640));
    body_of(m);
    EXPECT_EQ(get_global_string("svl_sky_hdr"), "noon.hdr");
    EXPECT_TRUE(get_global_bool("bvl_sun_on"));
    EXPECT_FALSE(get_global_bool("bvl_ground_plane_opaque"));
    EXPECT_EQ(get_global_double("rvl_gamma_factor"), 2.123457); // six decimals
    EXPECT_EQ(get_global_int("ivl_kept_number"), 12);
    EXPECT_EQ(get_global_COLORREF("cvl_fog_color"), 0xffffffu); // colours cannot be set so
    EXPECT_EQ(get_global_int("ivl_resx"), 600);
}

TEST_F(ModelReading, option_and_view_file_lie_beside_the_model_wherever_the_stream_goes) {
    batch.write("in/option_globals.txt", "ivl_resx;800\n");
    batch.write("in/zyn_view.txt", "FOV;35\n");
    batch.write("out/option_globals.txt", "ivl_resx;1\n");
    batch.write("out/zyn_view.txt", "FOV;99\n");
    model_builder m;
    reader.ReadSkpFile(save(m, "in/geometry.qlm"), batch / "out/batch_file.txt");
    EXPECT_EQ(get_global_int("ivl_resx"), 800);
    EXPECT_EQ(reader.view.field_of_view, 35);
    EXPECT_EQ(theApp.batch_folder, batch / "in");
    EXPECT_THAT(batch.read("in/option_globals.txt"), testing::HasSubstr("ivl_resx; 800\r\n"));
    EXPECT_EQ(batch.read("out/option_globals.txt"), "ivl_resx;1\n");
}

TEST_F(ModelReading, old_results_are_gone_and_kept_files_stay) {
    for (const char* name :
         {"ZynBatch_Lights/light_0.txt", "ZynBatch_Materials/old.qlobj", "ZynBatch_Materials/old.OrnMaterial",
          "ZynBatch_Materials/Zyn_Ground_Plane.OrnMaterial", "ZynBatch_Materials/Zyn%20Default%20Color.qlobj",
          "ZynBatch_Materials/notes.txt", "Batch_SketchUp_Textures/old.png", "Batch_OrnTexture_Files/old.png",
          "Plants/oak.plant", "ZynBatch_Images/old.png"})
        batch.write(name, "old");
    model_builder m;
    body_of(m);
    EXPECT_FALSE(batch.has("ZynBatch_Lights/light_0.txt"));
    EXPECT_FALSE(batch.has("ZynBatch_Materials/old.qlobj"));
    EXPECT_FALSE(batch.has("ZynBatch_Materials/old.OrnMaterial"));
    EXPECT_FALSE(batch.has("Batch_SketchUp_Textures/old.png"));
    EXPECT_FALSE(batch.has("Batch_OrnTexture_Files/old.png"));
    EXPECT_TRUE(batch.has("ZynBatch_Materials/Zyn_Ground_Plane.OrnMaterial"));
    EXPECT_TRUE(batch.has("ZynBatch_Materials/Zyn%20Default%20Color.qlobj"));
    EXPECT_TRUE(batch.has("ZynBatch_Materials/notes.txt"));
    EXPECT_TRUE(batch.has("Plants/oak.plant"));
    EXPECT_TRUE(batch.has("ZynBatch_Images/old.png"));
}

TEST_F(ModelReading, empty_folder_names_get_their_defaults) {
    theApp.lights_folder.clear();
    theApp.materials_folder.clear();
    theApp.textures_folder.clear();
    model_builder m;
    body_of(m);
    EXPECT_TRUE(batch.has("ZynBatch_Lights"));
    EXPECT_TRUE(batch.has("ZynBatch_Materials"));
    EXPECT_TRUE(batch.has("Batch_SketchUp_Textures"));
    EXPECT_EQ(theApp.images_folder, "ZynBatch_Images");
}

TEST_F(ModelReading, the_layer_table_stands_in_the_header_of_an_animation_alone) {
    const auto layer_lines = [this](bool is_animation) {
        theApp.is_doing_animation = is_animation;
        model_builder m;
        m.layer("Walls", false);
        SketchUpReader one;
        one.ReadSkpFile(save(m), batch / "batch_file.txt");
        return tagged(stream_lines(), "LY");
    };
    EXPECT_THAT(layer_lines(false), IsEmpty());
    EXPECT_THAT(layer_lines(true), ElementsAre("LYIN;0", "LYNM;Layer0", "LYIN;1", "LYNM;Walls"));
}

TEST_F(ModelReading, a_visible_Layer0_sets_no_flag) {
    model_builder m;
    body_of(m);
    EXPECT_FALSE(reader.layer0_hidden);
}

TEST_F(ModelReading, a_model_in_the_folder_for_3D_documents_turns_their_mode_on) {
    model_builder m;
    reader.ReadSkpFile(save(m, "3dpdf_batch/geometry.qlm"), batch / "3dpdf_batch/batch_file.txt");
    EXPECT_EQ(theApp.extract_mode, "QLW 3D PDF");
}

TEST_F(ModelReading, a_model_of_another_name_in_that_folder_does_not) {
    model_builder m;
    reader.ReadSkpFile(save(m, "3dpdf_batch/house.skp"), batch / "3dpdf_batch/batch_file.txt");
    EXPECT_EQ(theApp.extract_mode, "Tessaline");
}

TEST_F(ModelReading, the_folder_and_the_name_of_3D_documents_count_anywhere_in_a_path) {
    const auto mode_for = [this](const char* inside) {
        theApp.extract_mode = "Tessaline";
        model_builder m;
        SketchUpReader one;
        one.ReadSkpFile(save(m, inside), batch / "stream.txt");
        return theApp.extract_mode;
    };
    EXPECT_EQ(mode_for("3dpdf_batch/geometry.qlm.d/house.skp"), "QLW 3D PDF");
    EXPECT_EQ(mode_for("my3dpdf_batch/geometry.qlm"), "QLW 3D PDF");
    EXPECT_EQ(mode_for("3dpdf_batch/old/geometry.qlm"), "Tessaline");
}

TEST_F(ModelReading, the_times_of_the_reading_are_kept) {
    model_builder m;
    body_of(m);
    EXPECT_GT(theApp.xml_options.reading_started, 1'600'000'000);
    EXPECT_GE(theApp.xml_options.reading_ended, theApp.xml_options.reading_started);
}

TEST_F(ModelReading, a_reading_that_is_broken_off_has_ended_too) {
    reader.abandon_reading();
    EXPECT_GT(theApp.xml_options.reading_ended, 1'600'000'000);
}

// "[hex_data][00000004]-4869": a frame of 4 digits that spell "Hi". 25 characters.
constexpr const char* framed_hi = "[hex_data][00000004]-4869";

void add_ground_plane(model_builder& m, const std::string& header, const char* dictionary = "Zyn_Ground_Plane") {
    m.attribute(m.root().list(), dictionary, "Ground_Plane_Saved", sketchup::truth(true));
    m.attribute(m.root().list(), dictionary, "hex_data", sketchup::text(header));
    m.attribute(m.root().list(), dictionary, "hex_data_chunk0", sketchup::text(framed_hi));
}

TEST_F(ModelReading, the_ground_plane_of_the_model_is_restored) {
    model_builder m;
    add_ground_plane(m, "25;1;x;");
    body_of(m);
    EXPECT_EQ(batch.read("ZynBatch_Materials/Zyn_Ground_Plane.OrnMaterial"), "Hi");
}

TEST_F(ModelReading, a_ground_plane_file_that_lies_there_wins_over_the_model) {
    batch.write("ZynBatch_Materials/Zyn_Ground_Plane.OrnMaterial", "edited");
    model_builder m;
    add_ground_plane(m, "25;1;x;");
    body_of(m);
    EXPECT_EQ(batch.read("ZynBatch_Materials/Zyn_Ground_Plane.OrnMaterial"), "edited");
}

TEST_F(ModelReading, a_ground_plane_whose_last_chunk_is_missing_restores_nothing) {
    model_builder m;
    add_ground_plane(m, "25;2;x;");
    body_of(m);
    EXPECT_FALSE(batch.has("ZynBatch_Materials/Zyn_Ground_Plane.OrnMaterial"));
}

TEST_F(ModelReading, a_ground_plane_that_is_not_saved_restores_nothing) {
    model_builder m;
    m.attribute(m.root().list(), "Zyn_Ground_Plane", "hex_data", sketchup::text("25;1;x;"));
    m.attribute(m.root().list(), "Zyn_Ground_Plane", "hex_data_chunk0", sketchup::text(framed_hi));
    body_of(m);
    EXPECT_FALSE(batch.has("ZynBatch_Materials/Zyn_Ground_Plane.OrnMaterial"));
}

TEST_F(ModelReading, a_ground_plane_in_a_dictionary_of_another_name_restores_nothing) {
    model_builder m;
    add_ground_plane(m, "25;1;x;", "Zyn_Ground_Plane_2");
    add_ground_plane(m, "25;1;x;", "zyn_ground_plane");
    body_of(m);
    EXPECT_FALSE(batch.has("ZynBatch_Materials/Zyn_Ground_Plane.OrnMaterial"));
}

TEST_F(ModelReading, a_model_without_a_ground_plane_makes_no_file_of_it) {
    model_builder m;
    body_of(m);
    EXPECT_FALSE(batch.has("ZynBatch_Materials/Zyn_Ground_Plane.OrnMaterial"));
}

} // namespace
