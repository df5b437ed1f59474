// The pictures that the texture writer writes, and the coordinates that go with them.

#include "tests/sketchup/api/painted_faces.h"
#include "tests/sketchup/api/test_model.h"

#include "image/decode_picture.h"
#include "image/encode_picture.h"
#include "sketchup/model/vector_math.h"
#include "tests/image/pictures.h"
#include "tests/samples_folder.h"
#include "tests/support/temporary_folder.h"

#include <cmath>
#include <gtest/gtest.h>

using sketchup::model_builder;
using sketchup::texture_mapping;

namespace {

constexpr std::array<double, 9> perspective = {1.1, 0.2, 0.004, -0.1, 0.9, 0.006, 3, -2, 1};

// A writer into which one face was loaded; released at the end of its scope.
struct loaded_face {
    explicit loaded_face(SUFaceRef face) {
        SUTextureWriterCreate(&writer);
        EXPECT_EQ(SUTextureWriterLoadFace(writer, face, &front, &back), SU_ERROR_NONE);
    }
    loaded_face(const loaded_face&) = delete;
    loaded_face& operator=(const loaded_face&) = delete;
    ~loaded_face() { SUTextureWriterRelease(&writer); }
    SUTextureWriterRef writer = SU_INVALID;
    long front = 0;
    long back = 0;
};

SUUVQ front_coordinates(SUFaceRef face, SUTextureWriterRef writer, const SUPoint3D& point) {
    SUUVHelperRef helper = SU_INVALID;
    EXPECT_EQ(SUFaceGetUVHelper(face, true, false, writer, &helper), SU_ERROR_NONE);
    SUUVQ result{};
    EXPECT_EQ(SUUVHelperGetFrontUVQ(helper, &point, &result), SU_ERROR_NONE);
    SUUVHelperRelease(&helper);
    return result;
}

// The green of a gradient that runs from the top of its tile to the bottom, 0 to 255.
double green_at(double v) {
    return 255 * (1 - (v - std::floor(v)));
}

} // namespace

TEST(TextureWriterPictures, of_an_affine_number_is_the_stored_file) {
    const temporary_folder folder;
    const std::vector<std::uint8_t> stored = image::encode_picture(noise(6, 6), image::picture_format::png);
    model_builder builder;
    const sketchup::index paint = builder.textured_material("Brick", stored, "brick.png", 10, 20);
    builder.face(builder.root().square(20)).material = paint;
    test_model opened(builder);
    const loaded_face loaded(opened.face());
    EXPECT_EQ(SUTextureWriterWriteTexture(loaded.writer, loaded.front, (folder / "a.png").c_str(), false),
              SU_ERROR_NONE);
    EXPECT_EQ(file_bytes(folder / "a.png"), stored);
    EXPECT_EQ(SUTextureWriterWriteTexture(loaded.writer, loaded.front, (folder / "a.gif").c_str(), false),
              SU_ERROR_SERIALIZATION);
    EXPECT_FALSE(folder.has("a.gif"));
}

TEST(TextureWriterPictures, of_a_distorted_side_fits_the_coordinates_of_a_helper_made_with_the_writer) {
    const temporary_folder folder;
    model_builder builder;
    const sketchup::index paint = builder.textured_material(
        "Brick", image::encode_picture(gradient(256, 256), image::picture_format::png), "brick.png", 100, 100);
    const auto made = builder.root().face({{5, 7, -3}, {25, 7, -3}, {25, 7, 30}, {5, 7, 30}});
    builder.face(made).material = paint;
    position(builder, made, &texture_mapping::front, perspective);
    test_model opened(builder);
    const loaded_face loaded(opened.face());
    const std::string path = folder / "a.png";
    ASSERT_EQ(SUTextureWriterWriteTexture(loaded.writer, loaded.front, path.c_str(), false), SU_ERROR_NONE);
    const auto straight = image::decode_picture(file_bytes(path));
    ASSERT_TRUE(straight);
    std::minstd_rand random(7);
    int compared = 0;
    for (int i = 0; i < 500; ++i) {
        const double along = static_cast<double>(random() % 1000) / 1000;
        const double up = static_cast<double>(random() % 1000) / 1000;
        const SUPoint3D point = {5 + 20 * along, 7, -3 + 33 * up};
        const SUUVQ original = front_coordinates(opened.face(), SU_INVALID, point);
        const SUUVQ rewritten = front_coordinates(opened.face(), loaded.writer, point);
        ASSERT_EQ(rewritten.q, 1);
        const double v = original.v / original.q;
        if (std::abs(v - std::round(v)) < 0.02)
            continue; // at the seam of two tiles the gradient jumps
        const auto x = static_cast<std::uint32_t>(rewritten.u * (straight->width() - 1) + 0.5);
        const auto y = static_cast<std::uint32_t>((1 - rewritten.v) * (straight->height() - 1) + 0.5);
        ASSERT_LT(x, straight->width());
        ASSERT_LT(y, straight->height());
        ASSERT_NEAR(straight->row(y)[3 * x + 1], green_at(v), 3) << point.x << " " << point.z;
        ++compared;
    }
    EXPECT_GT(compared, 400);
}

TEST(TextureWriterPictures, leave_the_true_coordinates_to_a_helper_without_the_writer) {
    model_builder builder;
    const auto made = builder.root().square(20);
    builder.face(made).material = brick(builder);
    position(builder, made, &texture_mapping::front, perspective);
    test_model opened(builder);
    SUTextureWriterRef empty = SU_INVALID;
    SUTextureWriterCreate(&empty);
    EXPECT_NE(front_coordinates(opened.face(), SU_INVALID, {10, 10, 0}).q, 1);
    EXPECT_NE(front_coordinates(opened.face(), empty, {10, 10, 0}).q, 1) << "nothing was loaded";
    const loaded_face loaded(opened.face());
    const SUUVQ middle = front_coordinates(opened.face(), loaded.writer, {10, 10, 0});
    EXPECT_NEAR(middle.u, 0.5, 1e-12);
    EXPECT_NEAR(middle.v, 0.5, 1e-12);
    EXPECT_EQ(middle.q, 1);
    SUTextureWriterRelease(&empty);
}

TEST(TextureWriterPictures, of_a_damaged_picture_fail_and_leave_no_file) {
    const temporary_folder folder;
    model_builder builder;
    const sketchup::index paint = builder.textured_material("Brick", {'x'}, "brick.png", 10, 20);
    const auto made = builder.root().square(20);
    builder.face(made).material = builder.face(made).back_material = paint;
    position(builder, made, &texture_mapping::front, perspective);
    test_model opened(builder);
    const loaded_face loaded(opened.face());
    ASSERT_NE(loaded.front, loaded.back);
    for (const long id : {loaded.front, loaded.back})
        EXPECT_EQ(SUTextureWriterWriteTexture(loaded.writer, id, (folder / "a.png").c_str(), false),
                  SU_ERROR_SERIALIZATION);
    EXPECT_FALSE(folder.has("a.png"));
}
