// The program on folders of the disk: statuses, what it prints, the JSON document.

#include "tests/support/run_program.h"
#include "tests/support/temporary_folder.h"
#include "tests/tools/small_batch_on_disk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;

program_result check(const std::vector<std::string>& arguments) {
    return run_program({std::string(PROGRAMS) + "/batch-check" + PROGRAM_ENDING, arguments});
}

TEST(BatchCheckProgram, a_sound_batch_is_status_0_and_nothing_on_standard_error) {
    const temporary_folder disk;
    put_small_batch(disk, "room");
    const program_result seen = check({"--strict", disk / "room"});
    EXPECT_EQ(seen.status, 0) << seen.output;
    EXPECT_EQ(seen.errors, "");
    EXPECT_THAT(seen.output, StartsWith(disk / "room" + "\nis it all there?\n"));
    EXPECT_THAT(seen.output, HasSubstr("\n  geometry            28 triangles in 9 meshes, 2 edges, 3 layers\n"));
    EXPECT_THAT(seen.output, HasSubstr("\nwhy is it black?\n  pictures missing    0\n"));
    EXPECT_THAT(seen.output, HasSubstr("\nwhy is it large?\n"));
}

TEST(BatchCheckProgram, findings_are_status_1_with_a_line_each_and_their_number_in_the_last_line) {
    const temporary_folder disk;
    put_small_batch(disk, "room");
    std::filesystem::remove(disk / "room/ZynBatch_Lights/light_1.txt");
    const program_result seen = check({disk / "room"});
    EXPECT_EQ(seen.status, 1);
    EXPECT_THAT(seen.output, HasSubstr("\nerror lamp-missing: batch_file.txt, line 161: lamp 1 has no file\n"));
    EXPECT_EQ(seen.errors, "batch-check: " + disk / "room" + ": 1 error, no warnings, no notes\n");
}

TEST(BatchCheckProgram, a_folder_without_stream_and_one_that_is_not_there_are_status_2) {
    const temporary_folder disk;
    disk.make_folder("empty");
    EXPECT_EQ(check({disk / "empty"}).status, 2);
    EXPECT_EQ(check({disk / "empty"}).errors,
              "batch-check: " + disk / "empty" + ": the folder holds no stream that can be read\n");
    EXPECT_EQ(check({disk / "none"}).status, 2);
    EXPECT_EQ(check({disk / "none"}).errors, "batch-check: " + disk / "none" + ": the folder cannot be read\n");
}

TEST(BatchCheckProgram, of_several_batches_the_worst_gives_the_status) {
    const temporary_folder disk;
    put_small_batch(disk, "good");
    put_small_batch(disk, "bad");
    disk.write("bad/ZynBatch_Lights/light_1.txt", "");
    EXPECT_EQ(check({disk / "good", disk / "bad"}).status, 1);
    EXPECT_EQ(check({disk / "good", disk / "bad", disk / "none"}).status, 2);
    EXPECT_EQ(check({disk / "none", disk / "good"}).status, 2);
}

TEST(BatchCheckProgram, warnings_make_a_batch_unsound_in_strict_mode_alone) {
    const temporary_folder disk;
    put_small_batch(disk, "room");
    disk.write("room/ZynBatch_Lights/light_9.txt", "");
    EXPECT_EQ(check({disk / "room"}).status, 0);
    EXPECT_THAT(check({disk / "room"}).output, HasSubstr("\nwarning orphan: ZynBatch_Lights/light_9.txt: "));
    EXPECT_EQ(check({"--strict", disk / "room"}).status, 1);
}

TEST(BatchCheckProgram, an_ignored_code_counts_as_not_found) {
    const temporary_folder disk;
    put_small_batch(disk, "room");
    std::filesystem::remove(disk / "room/ZynBatch_Lights/light_1.txt");
    disk.write("room/ZynBatch_Lights/light_9.txt", "");
    const program_result seen = check({"--strict", "--ignore", "lamp-missing", "--ignore", "orphan", disk / "room"});
    EXPECT_EQ(seen.status, 0) << seen.output;
    EXPECT_EQ(check({"--ignore", "no-such-code", disk / "room"}).status, 2);
    EXPECT_EQ(check({disk / "room", "--ignore"}).status, 2);
}

TEST(BatchCheckProgram, the_document_has_its_keys_in_order_and_no_place_of_the_disk) {
    const temporary_folder disk;
    put_small_batch(disk, "room");
    std::filesystem::remove(disk / "room/Batch_SketchUp_Textures/TX0001_Brick.PNG");
    const program_result seen = check({"--json", disk / "room"});
    EXPECT_EQ(seen.status, 1);
    EXPECT_EQ(seen.output.find(disk.name()), std::string::npos) << seen.output;
    const std::string expected = R"({"format":1,"program":"batch-check","version":")" PROJECT_VERSION
                                 R"(","batches":[{"batch":"room","status":"findings",)"
                                 R"("counts":{"layers":3,"meshes":9,"vertices":64,"triangles":28,"lines":2,)"
                                 R"("materials":4,"lamps":3,"pictures":1,"bytes":)";
    const nlohmann::ordered_json document = nlohmann::ordered_json::parse(seen.output);
    EXPECT_THAT(document.dump(), StartsWith(expected));
    const std::string sizes = R"(,"files":13,"stream_bytes":)" +
                              std::to_string(disk.read("room/batch_file.txt").size()) + R"(,"picture_bytes":)" +
                              std::to_string(disk.read("room/ZynBatch_Images/Tree_88.png").size()) + ",";
    EXPECT_THAT(document.dump(), HasSubstr(sizes));
    const std::string rest =
        R"("equal_picture_bytes":0,"equal_materials":0,"triangles_without_material":2,"sides_undeclared":0,)"
        R"("lamps_without_power":0},)"
        R"("box_metres":[[0.0,0.0,0.5],[2.54,2.54,3.0]],"lamps_by_type":{"bulb":1,"rect_glow":1,"round_glow":1},)"
        R"("triangles_by_material":[{"material":"IMAGE_TX_Tree_88.png","triangles":4},)"
        R"({"material":"COL%3a0012_Wall","triangles":3},{"material":"COL%3a0014_Panel","triangles":2},)"
        R"({"material":"TEX%3a0001_Brick","triangles":1}],)"
        R"("findings":[{"code":"picture-missing","severity":"error","file":"ZynBatch_Materials/TEX%3a0001_Brick.qlobj",)"
        R"("line":27,"text":"there is no picture \".../TX0001_Brick.PNG\""}],"errors":1,"warnings":0,"notes":0}]})";
    EXPECT_THAT(document.dump(), testing::EndsWith(rest));
}

TEST(BatchCheckProgram, the_document_goes_to_a_file_beside_the_words) {
    const temporary_folder disk;
    put_small_batch(disk, "room");
    const program_result seen = check({"--json=" + disk / "report.json", disk / "room" + platform::path_separator});
    EXPECT_EQ(seen.status, 0);
    EXPECT_THAT(seen.output, HasSubstr("is it all there?"));
    EXPECT_EQ(disk.read("report.json"), check({"--json", disk / "room"}).output);
    EXPECT_EQ(json::parse(disk.read("report.json"))["batches"][0]["batch"], "room");
    EXPECT_EQ(check({"--json=" + disk / "none/report.json", disk / "room"}).status, 2);
}

TEST(BatchCheckProgram, a_folder_without_stream_has_an_empty_box_in_the_document) {
    const temporary_folder disk;
    const json batch = json::parse(check({"--json", disk.name()}).output)["batches"][0];
    EXPECT_EQ(batch["status"], "not a batch");
    EXPECT_TRUE(batch["box_metres"].is_null());
    EXPECT_EQ(batch["findings"][0]["code"], "not-a-batch");
}

TEST(BatchCheckProgram, more_findings_of_a_kind_than_twenty_are_counted_and_not_listed) {
    const temporary_folder disk;
    put_small_batch(disk, "room");
    for (int i = 0; i < 25; ++i)
        disk.write("room/ZynBatch_Lights/light_" + std::to_string(100 + i) + ".txt", "");
    const program_result seen = check({"--json", disk / "room"});
    const json batch = json::parse(seen.output)["batches"][0];
    EXPECT_EQ(batch["warnings"], 25);
    EXPECT_EQ(batch["findings"].size(), 21U);
    EXPECT_EQ(batch["findings"][20]["text"], "and 5 more");
    EXPECT_THAT(check({disk / "room"}).output, testing::EndsWith("warning orphan: and 5 more\n"));
}

} // namespace
