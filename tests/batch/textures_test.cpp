// What becomes of the pictures of textured materials.

#include "image/encode_picture.h"
#include "sketchup/model/straighten_texture.h"
#include "sketchup/skp/read_model.h"
#include "tests/batch/batch_runner.h"
#include "tests/image/pictures.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

using image::picture_format;
using namespace sketchup;

using picture_bytes = std::vector<std::uint8_t>;

constexpr std::string_view pictures = "Batch_SketchUp_Textures/";
constexpr int lost_in_jpeg = 12; // how far a byte of a smooth picture may be off

// A square of 10 inches at that height whose two sides show a new material of that picture, on a tile of 10 x 20.
entity_place add_square(model_builder& m, double z, std::string_view name, const picture_bytes& file,
                        std::string_view file_name) {
    const entity_place square = m.root().face({{0, 0, z}, {10, 0, z}, {10, 10, z}, {0, 10, z}});
    const sketchup::index material = m.textured_material(name, file, file_name, 10, 20);
    m.face(square).material = m.face(square).back_material = material;
    return square;
}

std::unique_ptr<model> as_read(const batch& b) {
    const std::string& file = b.models().at("geometry.qlm");
    return skp::read_model({file.begin(), file.end()});
}

// The id that the material of that name has when the model is read.
std::string id_of_material(const batch& b, std::string_view name) {
    const std::unique_ptr<model> read = as_read(b);
    for (const material& m : read->materials)
        if (m.name == name)
            return std::to_string(10000 + m.id).substr(1); // four digits
    ADD_FAILURE() << "no material " << name;
    return {};
}

std::string text_of(const picture_bytes& bytes) {
    return {bytes.begin(), bytes.end()};
}

const image::picture wall = gradient(10, 5);
const picture_bytes png = image::encode_picture(wall, picture_format::png);
const picture_bytes jpeg = image::encode_picture(wall, picture_format::jpeg);
const picture_bytes bmp = image::encode_picture(wall, picture_format::bmp);
const picture_bytes tiff = image::encode_picture(wall, picture_format::tiff);

TEST(TexturesBatch, each_picture_is_written_in_the_format_of_its_name) {
    batch b;
    model_builder m;
    add_square(m, 0, "One", png, "C:\\x\\wall.png");
    add_square(m, 10, "Two & a half", jpeg, "wall.jpg");
    add_square(m, 20, "Three", bmp, "wall.Bmp");
    add_square(m, 30, "Four", tiff, "C:\\x\\wall.tif");
    add_square(m, 40, "Five", png, "wall.psd");
    add_square(m, 50, "Six", png, "wall.gif");
    b.put_model(m);
    const std::string folder(pictures);
    b.put_mark("@SIX@", id_of_material(b, "Six"));
    b.expect_file(folder + "TX0001_One.PNG", text_of(png));
    b.expect_file(folder + "TX0002_Two %26 a half.JPG", text_of(jpeg));
    b.expect_file(folder + "TX0003_Three.BMP", text_of(bmp));
    b.expect_picture(folder + "TX0004_Four.png", {picture_format::png, wall});
    b.expect_file(folder + "TX0005_Five.png", text_of(png));
    b.expect_picture(folder + "TX" + id_of_material(b, "Six") + ".jpg", {picture_format::jpeg, wall, lost_in_jpeg});
    expect_run(b, "textures");
}

// Both sides of the second square are distorted: each shows a straightened picture of its own that covers it once.
TEST(TexturesBatch, a_distorted_side_has_a_material_and_a_picture_of_its_own) {
    batch b;
    model_builder m;
    const entity_place straight = add_square(m, 0, "One", png, "wall.png");
    const entity_place distorted = m.root().face({{0, 0, 10}, {10, 0, 10}, {10, 10, 10}, {0, 10, 10}});
    m.face(distorted).material = m.face(distorted).back_material = m.face(straight).material;
    for (side_mapping* side : {&m.mapping(distorted).front, &m.mapping(distorted).back}) {
        side->positioned = true;
        side->matrix = {1, 0, 0.01, 0, 1, 0.02, 0, 0, 1};
    }
    b.put_model(m);
    const std::unique_ptr<model> read = as_read(b);
    const face& f = read->faces[read->root.faces[1]];
    const std::string folder(pictures);
    b.expect_file(folder + "TX0001_One.PNG", text_of(png));
    b.expect_picture(folder + "TX0002_One.PNG",
                     {picture_format::png, straighten_texture(wall, *read, f, face_side::front)});
    b.expect_picture(folder + "TX0003_One.PNG",
                     {picture_format::png, straighten_texture(wall, *read, f, face_side::back)});
    expect_run(b, "distorted_texture");
}

// As above, but each side leans another way.
TEST(TexturesBatch, two_sides_that_are_distorted_differently_have_different_pictures) {
    batch b;
    model_builder m;
    const entity_place straight = add_square(m, 0, "One", png, "wall.png");
    const entity_place distorted = m.root().face({{0, 0, 10}, {10, 0, 10}, {10, 10, 10}, {0, 10, 10}});
    m.face(distorted).material = m.face(distorted).back_material = m.face(straight).material;
    m.mapping(distorted).front.positioned = true;
    m.mapping(distorted).front.matrix = {1, 0, 0.01, 0, 1, 0.02, 0, 0, 1};
    m.mapping(distorted).back.positioned = true;
    m.mapping(distorted).back.matrix = {1, 0, 0.02, 0, 1, 0.01, 0, 0, 1};
    b.put_model(m);
    const std::unique_ptr<model> read = as_read(b);
    const face& f = read->faces[read->root.faces[1]];
    const image::picture in_front = straighten_texture(wall, *read, f, face_side::front);
    const image::picture behind = straighten_texture(wall, *read, f, face_side::back);
    ASSERT_NE(in_front, behind);
    b.run();
    const std::string folder(pictures);
    EXPECT_EQ(difference_from({picture_format::png, in_front}, b.read(folder + "TX0002_One.PNG")), "");
    EXPECT_EQ(difference_from({picture_format::png, behind}, b.read(folder + "TX0003_One.PNG")), "");
}

// The back is as straight as the first square, and shares its material.
TEST(TexturesBatch, a_face_that_is_distorted_on_one_side_shows_two_materials) {
    batch b;
    model_builder m;
    const entity_place straight = add_square(m, 0, "One", png, "wall.png");
    const entity_place distorted = m.root().face({{0, 0, 10}, {10, 0, 10}, {10, 10, 10}, {0, 10, 10}});
    m.face(distorted).material = m.face(distorted).back_material = m.face(straight).material;
    side_mapping& front = m.mapping(distorted).front;
    front.positioned = true;
    front.matrix = {1, 0, 0.01, 0, 1, 0.02, 0, 0, 1};
    b.put_model(m);
    const std::unique_ptr<model> read = as_read(b);
    const std::string folder(pictures);
    b.expect_file(folder + "TX0001_One.PNG", text_of(png));
    b.expect_picture(
        folder + "TX0002_One.PNG",
        {picture_format::png, straighten_texture(wall, *read, read->faces[read->root.faces[1]], face_side::front)});
    expect_run(b, "one_side_distorted");
}

// Two of the names are read as escaped once and then count as escaped already; the first is too long.
TEST(TexturesBatch, a_name_that_no_file_can_have_costs_the_files_alone) {
    batch b;
    b.expect_finding(batch_check::code::material_missing);
    b.expect_finding(batch_check::code::orphan);
    model_builder m;
    const std::string long_name(500, 'x');
    add_square(m, 0, long_name, png, "wall.png");
    add_square(m, 10, "../../up%255", png, "wall.png");
    add_square(m, 20, "..\\up%255", png, "wall.png");
    b.put_model(m);
    b.put_mark("@LONG@", long_name);
    for (const std::string& name : {long_name, std::string("../../up%255"), std::string("..\\up%255")})
        b.expect_picture(std::string(pictures) + "TX" + id_of_material(b, name) + ".jpg",
                         {picture_format::jpeg, wall, lost_in_jpeg});
    expect_run(b, "names_that_make_no_file");
    std::set<std::string> around;
    for (const auto& entry : std::filesystem::directory_iterator(b.surrounding().name()))
        around.insert(entry.path().filename().string());
    EXPECT_EQ(around, (std::set<std::string>{"batch", "home", "tmp"}));
}

// The names are read as escaped once and then count as escaped already, so they still hold separators: the stream names
// the materials, and neither has a file outside the folders.
TEST(TexturesBatch, a_name_from_a_model_never_leaves_the_folders) {
    batch b;
    b.expect_finding(batch_check::code::material_missing);
    b.expect_finding(batch_check::code::orphan);
    model_builder m;
    add_square(m, 0, "%252/../../../away", png, "../../wall.png");
    add_square(m, 10, "%252\\..\\away", png, "..\\..\\wall.png");
    b.put_model(m);
    b.put_mark("@UP@", id_of_material(b, "%252/../../../away"));
    b.put_mark("@BACK@", id_of_material(b, "%252\\..\\away"));
    for (const std::string marked : {"TX@UP@.jpg", "TX@BACK@.jpg"})
        b.expect_picture(std::string(pictures) + without_marks(marked, b.marks()),
                         {picture_format::jpeg, wall, lost_in_jpeg});
    expect_run(b, "texture_names");
    EXPECT_FALSE(b.surrounding().has("away.PNG"));
}

TEST(TexturesBatch, a_picture_that_cannot_be_written_leaves_the_material_textured) {
    batch b;
    b.expect_finding(batch_check::code::picture_missing);
    model_builder m;
    add_square(m, 0, "Header", {'x'}, "wall.png");
    picture_bytes cut = png;
    cut.resize(cut.size() / 2);
    add_square(m, 10, "Cut", cut, "wall.bmp");
    b.put_model(m);
    b.put_mark("@CUT@", id_of_material(b, "Cut"));
    expect_run(b, "damaged_textures");
}

} // namespace
