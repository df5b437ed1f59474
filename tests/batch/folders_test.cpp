// Which files and folders a run finds, makes, empties and keeps.

#include "tests/batch/batch_runner.h"

#include <chrono>
#include <ctime>
#include <gtest/gtest.h>

namespace {

using namespace sketchup;

void put_square(batch& b, const std::string& inside = "geometry.qlm") {
    model_builder m;
    m.root().square(10);
    b.put_model(m, inside);
}

TEST(FoldersBatch, old_results_go_and_what_is_edited_by_hand_stays) {
    batch b;
    put_square(b);
    b.put("batch_file.txt", "an old stream");
    b.put("ZynBatch_Lights/light_0.txt", "old");
    b.put("ZynBatch_Materials/COL%3a0012_Wall.qlobj", "old");
    b.put("ZynBatch_Materials/COL%3a0012_Wall.OrnMaterial", "old");
    b.put("Batch_SketchUp_Textures/Brick.jpg", "old");
    b.put("Batch_OrnTexture_Files/Brick.png", "old");
    const files_by_name kept = {{"Plants/Oak.plant", "kept"},
                                {"ZynBatch_Images/0.png", "kept"},
                                {"ZynBatch_Materials/Zyn_Ground_Plane.OrnMaterial", "kept"},
                                {"ZynBatch_Materials/Zyn_Ground_Plane.qlobj", "kept"},
                                {"ZynBatch_Materials/Zyn%20Default%20Color.OrnMaterial", "kept"},
                                {"ZynBatch_Materials/notes.txt", "kept"},
                                {"notes.txt", "kept"}};
    for (const auto& [name, bytes] : kept)
        b.put(name, bytes);
    expect_run(b, "old_files");
}

// The file as the model carries it: a frame with the name of the data and the count of digits, then "plane" in
// hexadecimal; 31 characters in one chunk.
void put_square_with_ground_plane(batch& b) {
    model_builder m;
    m.root().square(10);
    const entity_place list = m.root().list();
    m.attribute(list, "Zyn_Ground_Plane", "Ground_Plane_Saved", truth(true));
    m.attribute(list, "Zyn_Ground_Plane", "hex_data", text("31;1;x;"));
    m.attribute(list, "Zyn_Ground_Plane", "hex_data_chunk0", text("[hex_data][00000010];706c616e65"));
    b.put_model(m);
}

TEST(FoldersBatch, the_ground_plane_that_the_model_carries_is_restored) {
    batch b;
    put_square_with_ground_plane(b);
    expect_run(b, "ground_plane");
}

TEST(FoldersBatch, a_ground_plane_that_lies_there_wins_over_that_of_the_model) {
    batch b;
    put_square_with_ground_plane(b);
    b.put("ZynBatch_Materials/Zyn_Ground_Plane.OrnMaterial", "edited by hand");
    b.run();
    EXPECT_EQ(b.read("ZynBatch_Materials/Zyn_Ground_Plane.OrnMaterial"), "edited by hand");
}

TEST(FoldersBatch, a_blank_in_the_name_of_the_folder_does_no_harm) {
    batch b("my batch folder");
    put_square(b);
    expect_run(b, "one_square");
}

TEST(FoldersBatch, names_beyond_ascii_do_no_harm) {
    batch b(platform::own_from_utf8("Gr\xC3\xB6\xC3\x9F"
                                    "e \xE9\x9A\x8E"));
    put_square(b);
    expect_run(b, "one_square");
}

// A parent that prepares a 3D document names the folder so; faces do not change by that.
TEST(FoldersBatch, the_folder_of_a_3d_document_gives_the_same_faces) {
    batch b("3dpdf_batch");
    put_square(b);
    expect_run(b, "one_square");
}

TEST(FoldersBatch, nothing_appears_around_the_batch_folder) {
    batch b;
    put_square(b);
    b.run();
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(b.surrounding().name()))
        names.insert(entry.path().filename().string());
    EXPECT_EQ(names, (std::set<std::string>{"batch", "home", "tmp"}));
    EXPECT_TRUE(std::filesystem::is_empty(b.surrounding() / "tmp"));
}

// The second line, for instance "#;09/08/2001  21:46:40 EDT".
TEST(FoldersBatch, the_date_line_holds_the_local_time_of_the_run) {
    batch b;
    put_square(b);
    b.set_date("", "EST5EDT");
    // The clock of std::time is a tick behind, so it may begin the span and not end it.
    const std::time_t before = std::time(nullptr);
    b.run();
    const std::time_t after = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    const std::string stream = b.read("batch_file.txt");
    const std::size_t start = stream.find('\n') + 1;
    const std::string line = stream.substr(start, stream.find('\n', start) - start);
    constexpr bool cuts_zone_names = platform::has_drive_letters; // Wine does, to "ES" and "ED"
    std::set<std::string> possible;
    for (std::time_t moment = before; moment <= after; ++moment)
        for (const int hours_west : {4, 5}) { // in summer and in winter
            const std::time_t local = moment - std::time_t{3600} * hours_west;
            const std::tm parts = *std::gmtime(&local);
            char text[64];
            std::strftime(text, sizeof text, "#;%m/%d/%Y  %H:%M:%S ", &parts);
            possible.insert(text + (cuts_zone_names ? "" : hours_west == 4 ? std::string("EDT\r") : "EST\r"));
        }
    EXPECT_TRUE(possible.contains(cuts_zone_names ? line.substr(0, line.rfind(' ') + 1) : line)) << line;
}

TEST(FoldersBatch, a_fixed_date_does_not_depend_on_the_time_zone) {
    batch b;
    put_square(b);
    b.set_date("1000000000", "EST5EDT");
    expect_run(b, "one_square");
}

TEST(FoldersBatch, a_stream_that_cannot_be_opened_stops_nothing_else) {
    batch b;
    put_square(b);
    b.put("batch_file.txt/in the way", ""); // a folder of the stream's name
    b.put("option_globals.txt", "");
    const program_result outcome = b.run();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, quiet_errors);
    EXPECT_NE(b.read("option_globals.txt"), "");
    std::set<std::string> folders = folders_of_every_run();
    folders.insert("batch_file.txt");
    EXPECT_EQ(b.folders(), folders);
}

TEST(FoldersBatch, folders_that_cannot_be_made_stop_nothing_else) {
    batch b;
    put_square(b);
    for (const std::string& name : folders_of_every_run())
        b.put(name, "a file in the way");
    const program_result outcome = b.run();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, quiet_errors);
    expect_batch(b, "files_in_the_way", {});
}

} // namespace
