// What becomes of pictures that are placed in the model.

#include "image/decode_picture.h"
#include "image/encode_picture.h"
#include "image/picture_rows.h"
#include "sketchup/skp/read_model.h"
#include "tests/batch/batch_runner.h"
#include "tests/image/pictures.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using image::picture_format;
using namespace sketchup;

using picture_bytes = std::vector<std::uint8_t>;

constexpr std::string_view pictures = "Batch_SketchUp_Textures/";

// Places an image of these pixels that casts shadows.
entity_place add_image(model_builder& m, const picture_bytes& file, std::string_view name, const vec3& at = {},
                       double pixels_wide = 10, double pixels_high = 5) {
    const entity_place placed = m.root().image(m.image_definition(file, name, pixels_wide, pixels_high), moved(at));
    m.placement(placed).casts_shadows = true;
    return placed;
}

// Writes the model and puts the ids that its images have when it is read, in their order, in place of these marks.
void put_model_with_ids(batch& b, model_builder& m, const std::vector<std::string>& marks) {
    b.put_model(m);
    const std::string& file = b.models().at("geometry.qlm");
    const auto read = skp::read_model({file.begin(), file.end()});
    ASSERT_EQ(read->root.images.size(), marks.size());
    for (std::size_t i = 0; i < marks.size(); ++i)
        b.put_mark(marks[i], std::to_string(read->placements[read->root.images[i]].id));
}

std::string picture_name(const batch& b, const std::string& marked) {
    return std::string(pictures) + without_marks(marked, b.marks());
}

const image::picture plain = gradient(10, 5);
const image::picture with_alpha = gradient(10, 5, 32);
const picture_bytes plain_png = image::encode_picture(plain, picture_format::png);
const picture_bytes alpha_png = image::encode_picture(with_alpha, picture_format::png);
const picture_bytes plain_jpeg = image::encode_picture(plain, picture_format::jpeg);

TEST(ImagesBatch, each_has_a_quad_a_material_and_its_picture_in_the_format_of_its_name) {
    batch b;
    model_builder m;
    add_image(m, plain_png, "C:\\pictures\\Tree.png");
    m.placement(add_image(m, alpha_png, "Sign.png", {100, 0, 0})).casts_shadows = false;
    add_image(m, plain_jpeg, "Photo.jpeg", {200, 0, 0});
    add_image(m, alpha_png, "Logo.bmp", {300, 0, 0});
    add_image(m, plain_png, "Lake.jpg", {400, 0, 0});
    put_model_with_ids(b, m, {"@TREE@", "@SIGN@", "@PHOTO@", "@LOGO@", "@LAKE@"});
    b.expect_picture(picture_name(b, "TX_Tree_@TREE@.png"), {picture_format::png, plain});
    b.expect_picture(picture_name(b, "TX_Sign_@SIGN@.png"), {picture_format::png, with_alpha});
    b.expect_picture(picture_name(b, "TX_Photo_@PHOTO@.jpeg.PNG"),
                     {picture_format::png, *image::decode_picture(plain_jpeg)});
    b.expect_picture(picture_name(b, "TX_Logo_@LOGO@.bmp"), {picture_format::bmp, without_alpha(with_alpha)});
    constexpr int lost_in_jpeg = 12;
    b.expect_picture(picture_name(b, "TX_Lake_@LAKE@.jpg"), {picture_format::jpeg, plain, lost_in_jpeg});
    expect_run(b, "images");
}

TEST(ImagesBatch, those_that_are_hidden_leave_nothing) {
    batch b;
    model_builder m;
    const sketchup::index off = m.layer("Off", false);
    m.placement(add_image(m, plain_png, "Tree.png")).hidden = true;
    m.placement(add_image(m, plain_png, "Sign.png")).layer = off;
    b.put_model(m);
    expect_run(b, "empty_model");
}

TEST(ImagesBatch, a_copy_that_lies_ready_is_taken_but_for_a_png_with_alpha) {
    batch b;
    b.expect_finding(batch_check::code::picture_damaged);
    model_builder m;
    add_image(m, plain_jpeg, "Tree.jpg");
    add_image(m, alpha_png, "Sign.png", {100, 0, 0});
    put_model_with_ids(b, m, {"@TREE@", "@SIGN@"});
    for (const std::string marked : {"ZynBatch_Images/Tree_@TREE@.jpg", "ZynBatch_Images/Sign_@SIGN@.png"}) {
        const std::string name = without_marks(marked, b.marks());
        b.put(name, "put there");
        b.expect_file(name, "put there");
    }
    b.expect_picture(picture_name(b, "TX_Sign_@SIGN@.png"), {picture_format::png, with_alpha});
    expect_run(b, "image_copies");
}

TEST(ImagesBatch, a_name_from_a_model_never_leaves_the_folders) {
    batch b;
    model_builder m;
    add_image(m, plain_png, "R&D.png");
    add_image(m, plain_png, "../../away.png", {100, 0, 0});
    add_image(m, plain_png, "..\\..\\%2f..%5caway.png", {200, 0, 0});
    put_model_with_ids(b, m, {"@RD@", "@UP@", "@BACK@"});
    b.expect_picture(picture_name(b, "TX_R&D_@RD@.png"), {picture_format::png, plain});
    b.expect_picture(picture_name(b, "TX_away_@UP@.png"), {picture_format::png, plain});
    b.expect_picture(picture_name(b, "TX_%2f..%5caway_@BACK@.png"), {picture_format::png, plain});
    expect_run(b, "image_names");
}

// 81 million pixels, about a fifth more than a picture in memory may have.
picture_bytes png_too_large_for_memory(std::uint32_t side) {
    picture_bytes file;
    const image::byte_sink append = image::appending_to(file);
    const auto png = image::png_file({side, side, 24}, append);
    picture_bytes row(std::size_t{3} * side);
    for (std::uint32_t y = 0; y < side; ++y) {
        std::fill(row.begin(), row.end(), static_cast<std::uint8_t>(y / 40));
        EXPECT_TRUE(png->put_row(row.data()));
    }
    EXPECT_TRUE(png->end());
    return file;
}

TEST(ImagesBatch, one_that_is_too_large_for_memory_is_the_very_file_that_the_model_holds) {
    batch b;
    model_builder m;
    const picture_bytes large = png_too_large_for_memory(9000);
    add_image(m, large, "Plan.png", {}, 9000, 9000);
    put_model_with_ids(b, m, {"@PLAN@"});
    b.expect_file(picture_name(b, "TX_Plan_@PLAN@.png"), {reinterpret_cast<const char*>(large.data()), large.size()});
    expect_run(b, "image_too_large_for_memory");
}

TEST(ImagesBatch, a_picture_that_cannot_be_read_has_no_material_and_keeps_its_quad) {
    batch b;
    model_builder m;
    picture_bytes cut = plain_png;
    cut.resize(cut.size() / 2);
    add_image(m, cut, "Cut.png");
    add_image(m, {'x'}, "Wrong.png", {100, 0, 0});
    b.put_model(m);
    expect_run(b, "damaged_images");
}

} // namespace
