// What skp-dump shows and writes of models built for the purpose.

#include "image/decode_picture.h"
#include "image/encode_picture.h"
#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tests/image/pictures.h"
#include "tests/samples_folder.h"
#include "tests/support/run_program.h"
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

program_result dump(const std::vector<std::string>& arguments) {
    return run_program({SKP_DUMP_PROGRAM, arguments});
}

std::set<std::string> files_below(const std::string& folder) {
    std::set<std::string> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.is_regular_file())
            found.insert(std::filesystem::relative(entry.path(), folder).generic_string());
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
    const program_result result = dump({"--textures", folder / "pictures", model});
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
    EXPECT_NE(dump({"--textures", folder / "pictures", model}).status, 0);
    EXPECT_NE(dump({"--textures", folder / "no/such", model}).status, 0);
    EXPECT_EQ(files_below(folder.name()), (std::set<std::string>{"model.skp"}));
}

namespace {

void expect_lines(const std::string& text, const std::vector<std::string>& lines) {
    for (const std::string& line : lines)
        EXPECT_NE(text.find(line + "\n"), std::string::npos) << line << "\nis missing in\n" << text;
}

std::string summary_of(model_builder& builder) {
    const temporary_folder folder;
    return dump({model_file(folder, builder)}).output;
}

} // namespace

TEST(SkpDumpSummary, tells_materials_layers_images_planes_and_scenes) {
    model_builder builder;
    builder.material("Glass", {0, 128, 255, 255}, 0.25);
    builder.textured_material("Brick", small_png(), "brick.png", 10, 20);
    const sketchup::index tinted = builder.textured_material("Tinted", small_png(), "brick.png", 10, 20);
    builder.model().materials[tinted].type = sketchup::material_type::colorized;
    builder.textured_material("Damaged", {'x'}, "bad.png", 1, 1);
    builder.model().materials[tinted].color = {200, 30, 0, 255};
    builder.layer("Walls", false);
    builder.root().image(builder.image_definition(small_png(), "lake.png", 6, 4), sketchup::scaled(2, 2, 1));
    builder.root().section_plane({0, 0, 1, -3}, true, "cut");
    builder.root().section_plane({1, 0, 0, 5});
    builder.scene("Back");
    builder.scene("Front", true);
    expect_lines(
        summary_of(builder),
        {"  layer Layer0", "  layer Walls (off)", "  material Glass: #0080ff, opacity 0.25",
         "  material Brick: #808080, opacity 1, texture brick.png 6 x 4 pixels, tile 10 x 20 inches",
         "  material Tinted: #c81e00, opacity 1, texture brick.png 6 x 4 pixels, tile 10 x 20 inches, recoloured",
         "  material Damaged: #808080, opacity 1, texture bad.png without a readable picture",
         "  image lake.png: 12 x 8 inches, 6 x 4 pixels", // 6 x 4 pixels, each 2 inches wide
         "  section plane 0 x + 0 y + 1 z + -3 = 0 (active)", "  section plane 1 x + 0 y + 0 z + 5 = 0", "  scene Back",
         "  scene Front (active)"});
}

TEST(SkpDumpSummary, tells_how_the_model_is_looked_at) {
    model_builder builder;
    sketchup::camera& camera = builder.model().camera;
    camera.eye = {1, 2, 3};
    camera.target = {1, 12, 3};
    camera.field_of_view = 50;
    expect_lines(summary_of(builder), {"  camera at (1, 2, 3) to (1, 12, 3) up (0, 0, 1), field of view 50 degrees"});
    model_builder flat;
    flat.model().camera.eye = {0, 0, 9};
    flat.model().camera.up = {0, 1, 0};
    flat.model().camera.perspective = false;
    flat.model().camera.height = 120;
    expect_lines(summary_of(flat), {"  camera at (0, 0, 9) to (0, 0, 0) up (0, 1, 0), parallel, 120 inches high"});
}

TEST(SkpDumpSummary, tells_place_time_and_the_direction_to_the_sun) {
    model_builder builder;
    sketchup::shadow_info& shadow = builder.model().shadow_info;
    shadow.city = "Golden";
    shadow.country = "USA";
    shadow.latitude = 39.742476;
    shadow.longitude = -105.1786;
    shadow.time_zone = -7;
    shadow.time = 1066393830; // (12053 + 289 days) x 86400 + 45030 seconds: 2003-10-17 12:30:30
    shadow.display_shadows = true;
    const std::string text = summary_of(builder);
    expect_lines(text, {"  place Golden, USA: latitude 39.7425, longitude -105.179, -7 hours from Greenwich, north 0 "
                        "degrees from y",
                        "  time 2003-10-17 12:30:30, shadows on"});
    double x = 0, y = 0, z = 0;
    const std::size_t sun = text.find("  sun towards (");
    ASSERT_NE(sun, std::string::npos) << text;
    ASSERT_EQ(std::sscanf(text.c_str() + sun, "  sun towards (%lf, %lf, %lf)", &x, &y, &z), 3);
    // The published example of the place: 50.11 degrees from the zenith, 194.34 degrees from north to the east.
    EXPECT_NEAR(x, -0.1901, 1e-3); // sin 50.11 x sin 194.34
    EXPECT_NEAR(y, -0.7434, 1e-3); // sin 50.11 x cos 194.34
    EXPECT_NEAR(z, 0.6413, 1e-3);  // cos 50.11
}

TEST(SkpDumpSummary, tells_what_components_do) {
    model_builder builder;
    auto tree = builder.component("Tree");
    tree.square(1);
    builder.definition(tree).behavior.always_faces_camera = true;
    builder.definition(tree).behavior.shadow_faces_sun = true;
    auto window = builder.component("Window");
    window.square(1);
    builder.definition(window).behavior = {.glues = true, .cuts_opening = true, .snap_to = 2, .no_scale_mask = 4};
    auto plain = builder.component("Plain");
    plain.square(1);
    for (const auto& component : {tree, window, plain})
        builder.root().instance(component);
    const std::string text = summary_of(builder);
    expect_lines(text, {"  component Tree: always faces the camera, its shadow faces the sun",
                        "  component Window: glues to upright faces, cuts openings, hides scale handles"});
    EXPECT_EQ(text.find("component Plain"), std::string::npos);
}

TEST(SkpDumpSummary, tells_the_rendering_options) {
    model_builder builder;
    builder.set_option("DrawGround", sketchup::truth(true));
    builder.set_option("EdgeColorMode", sketchup::whole_number(2));
    builder.set_option("FaceFrontColor", {sketchup::value_code::color, sketchup::rgba{1, 2, 3, 255}});
    const std::string text = summary_of(builder);
    for (const char* option : {" DrawGround=true ", " EdgeColorMode=2 ", " FaceFrontColor=(1, 2, 3, 255) "})
        EXPECT_NE(text.find(option), std::string::npos) << option << "\nis missing in\n" << text;
}

namespace {

// A wall with a window that is glued to it and cuts, and a second wall without.
void add_walls(model_builder& builder) {
    builder.root().face({{0, 0, 9}, {1, 0, 9}, {0, 1, 9}});
    const auto wall = builder.root().square(10);
    auto window = builder.component("window");
    window.square(2);
    builder.definition(window).behavior.cuts_opening = true;
    builder.root().glue(builder.root().instance(window, sketchup::moved({4, 5, 0})), wall);
}

std::string dump_of(model_builder& builder, const std::string& how) {
    const temporary_folder folder;
    return dump({how, model_file(folder, builder)}).output;
}

} // namespace

TEST(SkpDumpOpenings, are_counted_with_the_faces_that_have_them) {
    model_builder builder;
    add_walls(builder);
    const std::string json = dump_of(builder, "--json");
    EXPECT_NE(json.find(R"("glued":1,"openings":{"all":1,"faces":1})"), std::string::npos) << json;
}

TEST(SkpDumpOpenings, stand_in_the_tree_below_their_list) {
    model_builder builder;
    add_walls(builder);
    expect_lines(dump_of(builder, "--tree"), {"  2 faces, 7 edges, 0 section planes\n  opening of 4 points in face 1"});
}
