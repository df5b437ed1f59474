// What skp-dump shows and writes of models built for the purpose.

#include "image/decode_picture.h"
#include "image/encode_picture.h"
#include "sketchup/model/model_builder.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tests/image/pictures.h"
#include "tests/run_program.h"
#include "tests/samples_folder.h"
#include "tests/support/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace {

using sketchup::model_builder;

std::vector<std::uint8_t> small_png() {
    return image::encode_picture(noise(6, 4), image::picture_format::png);
}

std::string model_file(const temporary_folder& folder, model_builder& builder) {
    const std::vector<std::uint8_t> bytes = skp::write_classic(*builder.finish(), skp::classic_version::v17);
    return folder.write("model.skp", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

program_result dump(const std::string& arguments) {
    return run_program(std::string(SKP_DUMP_PROGRAM) + " " + arguments);
}

std::set<std::string> files_below(const std::string& folder) {
    std::set<std::string> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.is_regular_file())
            found.insert(std::filesystem::relative(entry.path(), folder).string());
    return found;
}

} // namespace

TEST(SkpDumpTextures, never_leave_the_folder_whatever_the_materials_are_called) {
    const temporary_folder folder;
    model_builder builder;
    builder.textured_material("../../outside", small_png(), "a.png", 1, 1);
    builder.textured_material("/etc/passwd", small_png(), "b.tga", 1, 1);
    builder.textured_material("..\\up:*?\"<>|", small_png(), "..\\c.BMP", 1, 1);
    builder.textured_material("..", small_png(), "d.png", 1, 1);
    builder.material("Plain", {1, 2, 3, 255});
    const std::string model = model_file(folder, builder);
    const program_result result = dump("--textures " + shell_quoted(folder / "pictures") + " " + shell_quoted(model));
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(files_below(folder.name()),
              (std::set<std::string>{"model.skp", "pictures/0001__._.._outside.png", "pictures/0002__etc_passwd.png",
                                     "pictures/0003__._up_______.BMP", "pictures/0004__..png"}));
    EXPECT_EQ(file_bytes(folder / "pictures/0001__._.._outside.png"), small_png());
    EXPECT_TRUE(image::decode_picture(file_bytes(folder / "pictures/0003__._up_______.BMP")));
}

TEST(SkpDumpTextures, that_cannot_be_written_are_told_by_the_status) {
    const temporary_folder folder;
    model_builder builder;
    builder.textured_material("Damaged", {'x'}, "a.png", 1, 1);
    const std::string model = model_file(folder, builder);
    EXPECT_NE(dump("--textures " + shell_quoted(folder / "pictures") + " " + shell_quoted(model) + " 2>&1").status, 0);
    EXPECT_NE(dump("--textures " + shell_quoted(folder / "no/such") + " " + shell_quoted(model) + " 2>&1").status, 0);
    EXPECT_EQ(files_below(folder.name()), (std::set<std::string>{"model.skp"}));
}

TEST(SkpDumpSummary, tells_pixels_planes_scenes_camera_behaviours_and_options) {
    const temporary_folder folder;
    model_builder builder;
    builder.textured_material("Brick", small_png(), "brick.png", 10, 20);
    builder.root().image(builder.image_definition(small_png(), "lake.png", 6, 4), sketchup::scaled(2, 2, 1));
    builder.root().section_plane({0, 0, 1, -3}, true, "cut");
    builder.scene("Front", true);
    auto tree = builder.component("Tree");
    tree.square(1);
    builder.definition(tree).behavior.always_faces_camera = true;
    builder.root().instance(tree);
    const std::string model = model_file(folder, builder);
    const std::string text = dump(shell_quoted(model)).output;
    for (const char* line :
         {"texture brick.png 6 x 4 pixels, tile 10 x 20 inches", "image lake.png: 12 x 8 inches, 6 x 4 pixels\n",
          "section plane 0 x + 0 y + 1 z + -3 = 0 (active)\n", "scene Front (active)\n", "  camera at (",
          "component Tree: always faces the camera\n", "  rendering options:"})
        EXPECT_NE(text.find(line), std::string::npos) << line << "\nis missing in\n" << text;
}
