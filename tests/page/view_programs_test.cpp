// What batch-view and skp-view leave and how they end.

#include "image/decode_picture.h"
#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tests/support/run_program.h"
#include "tests/support/temporary_folder.h"
#include "tools/page/page_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

namespace {

program_result run(const std::string& program, const std::vector<std::string>& arguments) {
    return run_program({std::string(PROGRAMS) + "/" + program + PROGRAM_ENDING, arguments});
}

std::string stages_model(const temporary_folder& folder) {
    EXPECT_EQ(run("example_stages", {folder / "stages.skp"}).status, 0);
    return folder / "stages.skp";
}

const std::string stages_batch = std::string(TESSALINE_SOURCE_DIR) + "/examples/stages/expected";

image::picture decoded(const std::string& bytes) {
    return image::decode_picture({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()})
        .value_or(image::picture());
}

TEST(BatchView, the_picture_has_the_size_that_was_asked_for_and_shows_something) {
    const temporary_folder folder;
    const program_result seen = run("batch-view", {stages_batch, "--png", folder / "a.png", "--size", "60x40"});
    EXPECT_EQ(seen.status, 0) << seen.errors;
    const image::picture picture = decoded(folder.read("a.png"));
    EXPECT_EQ(picture.extent(), (image::picture_extent{60, 40, 24}));
    const std::uint8_t* const middle = picture.row(20) + std::size_t{30} * 3;
    EXPECT_NE((std::vector<int>{middle[0], middle[1], middle[2]}), (std::vector<int>{235, 235, 235})); // 0.92 * 255
    EXPECT_FALSE(folder.has("a.png.part"));
    EXPECT_FALSE(folder.has("a.html"));
}

// The files of this batch say that its pictures lie below "@BATCH@".
TEST(BatchView, pictures_of_a_batch_that_was_moved_are_found_in_it) {
    const temporary_folder folder;
    const std::string batch = std::string(TESSALINE_SOURCE_DIR) + "/examples/room/expected";
    const program_result seen = run("batch-view", {batch, "--png", folder / "a.png", "--size", "30x20"});
    EXPECT_EQ(seen.status, 0);
    EXPECT_EQ(seen.errors, "");
}

TEST(BatchView, a_file_that_is_missing_is_told_of_once_however_often_it_is_asked_for) {
    const temporary_folder folder;
    std::string stream = "#;\r\nMATF;a.OrnMaterial\r\n";
    for (int number = 10; number < 40; ++number)
        stream += "MATI;" + std::to_string(number) + "\r\n";
    folder.write("batch/batch_file.txt", stream + "END;\r\n");
    const program_result seen = run("batch-view", {folder / "batch", "--png", folder / "a.png", "--size", "8x8"});
    EXPECT_EQ(seen.status, 0);
    EXPECT_THAT(seen.errors, testing::StartsWith("batch-view: cannot read "));
    EXPECT_THAT(seen.errors, testing::EndsWith("a.qlobj\n"));
    EXPECT_EQ(std::count(seen.errors.begin(), seen.errors.end(), '\n'), 1);
}

TEST(BatchView, of_files_that_are_missing_twenty_are_told_of) {
    const temporary_folder folder;
    std::string stream = "#;\r\n";
    for (int number = 10; number < 40; ++number)
        stream += "MATF;m" + std::to_string(number) + "\r\nMATI;" + std::to_string(number) + "\r\n";
    folder.write("batch/batch_file.txt", stream + "END;\r\n");
    const program_result seen = run("batch-view", {folder / "batch", "--png", folder / "a.png", "--size", "8x8"});
    EXPECT_EQ(std::count(seen.errors.begin(), seen.errors.end(), '\n'), 20) << seen.errors;
}

// A block of one triangle from the origin, one metre along x and y or as far as is said. state: lines of its own.
std::string triangle_block(const std::string& far = "1", const std::string& state = "") {
    return "MESH;\r\n" + state + "TLAY;a\r\nCULL;0\r\nMATL;0\r\nMAT2;0\r\nNORM;(0,0,1)\r\nVERT;(0,0,0)\r\nADDV;0\r\n" +
           "NORM;(0,0,1)\r\nVERT;(" + far + ",0,0)\r\nADDV;1\r\nNORM;(0,0,1)\r\nVERT;(0," + far +
           ",0)\r\nADDV;2\r\nFACE;0,1,2\r\nEMSH;\r\n";
}

struct drawn_stream {
    std::string picture;
    std::string errors;
};

drawn_stream drawn_from(const std::string& blocks) {
    const temporary_folder folder;
    folder.write("batch/batch_file.txt", "#;\r\n" + blocks + "END;\r\n");
    const program_result seen = run("batch-view", {folder / "batch", "--png", folder / "a.png", "--size", "40x40"});
    EXPECT_EQ(seen.status, 0) << seen.errors;
    return {folder.read("a.png"), seen.errors};
}

TEST(BatchView, a_triangle_beyond_single_precision_does_not_take_the_view_away_from_the_others) {
    const drawn_stream without = drawn_from(triangle_block());
    const drawn_stream with = drawn_from(triangle_block() + triangle_block("1e300"));
    EXPECT_NE(without.picture, "");
    EXPECT_TRUE(with.picture == without.picture);
    EXPECT_EQ(without.errors, "");
    EXPECT_EQ(with.errors, "batch-view: 1 triangles have corners that lie nowhere\n");
}

TEST(BatchView, what_the_camera_does_not_see_is_neither_drawn_nor_looked_at) {
    const drawn_stream without = drawn_from(triangle_block());
    const drawn_stream with = drawn_from(triangle_block() + triangle_block("-5", "INVS;1\r\nSHDW;0\r\n"));
    EXPECT_TRUE(with.picture == without.picture);
    EXPECT_FALSE(with.picture == drawn_from(triangle_block() + triangle_block("-5")).picture);
}

// The material takes one of 1,048,576 places, its numbers the others.
TEST(BatchView, numbers_of_materials_beyond_the_room_for_them_are_told_of) {
    const temporary_folder folder;
    folder.write("batch/ZynBatch_Materials/a.qlobj", "Matl: a\r\nColor: 255\r\n");
    std::ofstream stream(folder.write("batch/batch_file.txt", "#;\r\nMATF;a\r\n"), std::ios::binary | std::ios::app);
    for (int number = 10; number < 1048590; ++number)
        stream << "MATI;" << number << "\r\n";
    stream << "END;\r\n";
    stream.close();
    EXPECT_EQ(run("batch-view", {folder / "batch", "--png", folder / "a.png", "--size", "8x8"}).errors,
              "batch-view: left out of what the stream declares and places: 5; there is room for 1048576 records with "
              "33554432 bytes of names\n");
}

TEST(BatchView, a_number_means_the_material_that_was_named_before_it) {
    const auto colour_with = [](const std::string& declarations) {
        const temporary_folder folder;
        folder.write("batch/ZynBatch_Materials/red.qlobj", "Matl: red\r\nColor: 255\r\n");
        folder.write("batch/ZynBatch_Materials/blue.qlobj", "Matl: blue\r\nColor: 16711680\r\n");
        std::string block = triangle_block();
        block.replace(block.find("MATL;0"), 6, "MATL;11");
        block.replace(block.find("MAT2;0"), 6, "MAT2;11");
        folder.write("batch/batch_file.txt", "#;\r\n" + declarations + block + "END;\r\n");
        EXPECT_EQ(run("batch-view", {folder / "batch", "--png", folder / "a.png", "--size", "9x9"}).errors, "");
        const image::picture picture = decoded(folder.read("a.png"));
        std::string seen;
        for (std::uint32_t at = 0; at < 9 * 9; ++at) {
            const std::uint8_t* const pixel = picture.row(at / 9) + std::size_t{3} * (at % 9); // blue, green, red
            if (pixel[1] == 0 && seen.empty())
                seen = pixel[0] > pixel[2] ? "blue" : "red";
        }
        return seen;
    };
    EXPECT_EQ(colour_with("MATF;red.OrnMaterial\r\nMATI;10\r\nMATI;11\r\n"), "red");
    EXPECT_EQ(colour_with("MATF;red.OrnMaterial\r\nMATI;10\r\nMATF;blue.OrnMaterial\r\nMATI;11\r\n"), "blue");
    EXPECT_EQ(colour_with("MATF;red.OrnMaterial\r\nMATI;11\r\nMATF;blue.OrnMaterial\r\nMATI;11\r\n"), "blue");
}

// The stream is written line by line, for what the test itself holds counts with what the program takes.
TEST(BatchView, a_stream_of_any_length_takes_no_more_memory) {
    const temporary_folder folder;
    std::ofstream stream(folder.write("batch/batch_file.txt", "#;\r\n"), std::ios::binary | std::ios::app);
    const std::string comment = "#" + std::string(998, ' ') + "\r\n";
    for (int i = 0; i < 150000; ++i)
        stream << comment;
    stream << "END;\r\n";
    stream.close();
    const program_result seen = run("batch-view", {folder / "batch", "--png", folder / "a.png", "--size", "8x8"});
    EXPECT_EQ(seen.status, 0);
    EXPECT_LT(seen.most_bytes, 100000000U); // the stream has 150 million
}

TEST(SkpView, a_picture_without_background_is_clear_at_its_corner) {
    const temporary_folder folder;
    const program_result seen =
        run("skp-view", {stages_model(folder), "--png", folder / "a.png", "--size", "60x40", "--clear"});
    EXPECT_EQ(seen.status, 0) << seen.errors;
    const image::picture picture = decoded(folder.read("a.png"));
    EXPECT_EQ(picture.extent(), (image::picture_extent{60, 40, 32}));
    EXPECT_EQ(picture.row(0)[3], 0);
    EXPECT_FALSE(folder.has("a.png.1.png"));
}

TEST(SkpView, a_picture_that_cannot_be_shown_is_told_of) {
    const temporary_folder folder;
    sketchup::model_builder builder;
    builder.face(builder.root().square(10)).material = builder.textured_material("Oak", {1, 2, 3, 4}, "oak.png", 5, 5);
    const auto bytes = skp::write_classic(*builder.finish(), skp::classic_version::v17);
    folder.write("a.skp", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    const program_result seen = run("skp-view", {folder / "a.skp", "--png", folder / "a.png", "--size", "8x8"});
    EXPECT_EQ(seen.status, 0);
    EXPECT_EQ(seen.errors, "skp-view: pictures of the model that cannot be shown: 1\n");
}

TEST(ViewPrograms, the_page_holds_what_it_shows_and_nothing_else_is_left) {
    if (page_text().empty())
        GTEST_SKIP() << "the page was not bundled, for there is no node";
    const temporary_folder folder;
    const std::vector<std::pair<std::string, std::string>> inputs = {{"batch-view", stages_batch},
                                                                     {"skp-view", stages_model(folder)}};
    for (const auto& [program, input] : inputs) {
        const program_result seen = run(program, {input, "-o", folder / "a.html"});
        EXPECT_EQ(seen.status, 0) << seen.errors;
        EXPECT_THAT(folder.read("a.html"), testing::HasSubstr("\"program\":\"" + program + " "));
        EXPECT_THAT(folder.read("a.html"), testing::EndsWith("</html>\n"));
        EXPECT_FALSE(folder.has("a.html.part"));
        EXPECT_FALSE(folder.has("a.html.1.glb"));
    }
}

TEST(ViewPrograms, files_of_others_beside_the_page_stay) {
    if (page_text().empty())
        GTEST_SKIP() << "the page was not bundled, for there is no node";
    const temporary_folder folder;
    const std::vector<std::pair<std::string, std::string>> inputs = {{"batch-view", stages_batch},
                                                                     {"skp-view", stages_model(folder)}};
    folder.write("a.html.glb", "mine");
    folder.write("a.html.1.glb", "mine too");
    for (const auto& [program, input] : inputs) {
        EXPECT_EQ(run(program, {input, "-o", folder / "a.html"}).status, 0);
        EXPECT_EQ(folder.read("a.html.glb"), "mine");
        EXPECT_EQ(folder.read("a.html.1.glb"), "mine too");
        EXPECT_FALSE(folder.has("a.html.2.glb"));
    }
}

TEST(ViewPrograms, what_cannot_be_opened_is_status_1_and_leaves_the_old_page) {
    const temporary_folder folder;
    folder.write("a.html", "old");
    folder.write("a.skp", "no model");
    EXPECT_EQ(run("skp-view", {folder / "a.skp", "-o", folder / "a.html"}).status, 1);
    EXPECT_EQ(run("batch-view", {folder.name(), "-o", folder / "a.html"}).status, 1);
    const program_result seen = run("batch-view", {folder.name(), "--png", folder / "a.png"});
    EXPECT_EQ(seen.status, 1);
    EXPECT_EQ(seen.errors, "batch-view: " + folder.name() + ": there is no stream that can be read\n");
    EXPECT_EQ(folder.read("a.html"), "old");
    EXPECT_FALSE(folder.has("a.png"));
}

TEST(ViewPrograms, what_cannot_be_written_is_status_3) {
    const temporary_folder folder;
    folder.make_folder("a.png");
    EXPECT_EQ(run("batch-view", {stages_batch, "--png", folder / "a.png"}).status, 3);
    EXPECT_EQ(run("skp-view", {stages_model(folder), "--png", folder / "no/a.png"}).status, 3);
    EXPECT_EQ(run("batch-view", {stages_batch, "-o", folder / "no/a.html"}).status, 3);
    EXPECT_FALSE(folder.has("a.png.part"));
}

} // namespace
