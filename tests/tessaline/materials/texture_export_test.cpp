// The pictures of textured materials: names, forms and what happens when they cannot be written.

#include "tessaline/materials/texture_export.h"

#include "tessaline/materials/material_folders.h"
#include "tessaline/materials/name_escaping.h"
#include "tests/support/trace_capture.h"
#include "tests/tessaline/exported_pictures.h"

#include <gmock/gmock.h>

namespace {

using image::picture_format;
using testing::IsEmpty;

constexpr int number = 7;
constexpr int material_id = 12;

class TextureExport : public exported_pictures_test {
protected:
    TextureExport() { ready_material_folders(); }
    ~TextureExport() override {
        if (SUIsValid(texture_writer))
            SUTextureWriterRelease(&texture_writer);
    }

    // A square with a material that has this texture on a tile of 10 by 20 inches.
    sketchup::entity_place square_with(const picture_bytes& file, const std::string& file_name) {
        const sketchup::entity_place square = builder.root().square(20);
        builder.face(square).material = builder.textured_material("any", file, file_name, 10, 20);
        return square;
    }

    SUTextureRef texture() const {
        SUMaterialRef material = SU_INVALID;
        SUFaceGetFrontMaterial(faces().front(), &material);
        SUTextureRef found = SU_INVALID;
        SUMaterialGetTexture(material, &found);
        return found;
    }

    exported_texture exported(const std::string& encoded_name, bool not_affine = false) {
        open_next();
        return export_material_texture(texture(), faces().front(), true, not_affine, number, material_id, encoded_name);
    }

    exported_texture exported_from(const picture_bytes& file, const std::string& file_name,
                                   const std::string& encoded_name) {
        square_with(file, file_name);
        return exported(encoded_name);
    }

    // The same for a square whose texture is distorted, by way of the writer of the run.
    exported_texture exported_distorted(const picture_bytes& file, const std::string& file_name) {
        const sketchup::entity_place square = square_with(file, file_name);
        sketchup::side_mapping& mapping = builder.mapping(square).front;
        mapping.positioned = true;
        mapping.matrix = {1, 0, 0.01, 0, 1, 0, 0, 0, 1};
        open_next();
        SUTextureWriterCreate(&texture_writer);
        long front_id = 0;
        long back_id = 0;
        SUTextureWriterLoadFace(texture_writer, faces().front(), &front_id, &back_id);
        return export_material_texture(texture(), faces().front(), true, true, number, material_id, "Brick");
    }
};

const picture_bytes png = encoded(gradient(16, 8), picture_format::png);
const picture_bytes jpeg = encoded(gradient(16, 8), picture_format::jpeg);

TEST_F(TextureExport, a_picture_is_named_by_number_and_material_with_its_extension_in_capitals) {
    const exported_texture made = exported_from(jpeg, "C:\\textures\\wall.jpg", "Brick");
    EXPECT_EQ(made.image_path, picture("TX0007_Brick.JPG"));
    EXPECT_EQ(bytes_of_picture("TX0007_Brick.JPG"), jpeg);
}

TEST_F(TextureExport, a_tif_becomes_a_png) {
    const picture_bytes tiff = encoded(gradient(16, 8), picture_format::tiff);
    EXPECT_EQ(exported_from(tiff, "C:\\x\\wall.tif", "Brick Wall").image_path, picture("TX0007_Brick Wall.png"));
    EXPECT_EQ(format_of_picture("TX0007_Brick Wall.png"), picture_format::png);
    EXPECT_EQ(decoded_picture("TX0007_Brick Wall.png"), gradient(16, 8));
}

TEST_F(TextureExport, a_psd_becomes_a_png) {
    EXPECT_EQ(exported_from(png, "wall.Psd", "Brick").image_path, picture("TX0007_Brick.png"));
    EXPECT_EQ(bytes_of_picture("TX0007_Brick.png"), png);
}

TEST_F(TextureExport, a_tiff_with_two_f_keeps_its_extension) {
    const picture_bytes tiff = encoded(gradient(16, 8), picture_format::tiff);
    EXPECT_EQ(exported_from(tiff, "wall.tiff", "Brick").image_path, picture("TX0007_Brick.TIFF"));
    EXPECT_EQ(bytes_of_picture("TX0007_Brick.TIFF"), tiff);
}

TEST_F(TextureExport, the_extension_and_not_the_stored_form_decides_the_format) {
    EXPECT_EQ(exported_from(png, "wall.bmp", "Brick").image_path, picture("TX0007_Brick.BMP"));
    EXPECT_EQ(format_of_picture("TX0007_Brick.BMP"), picture_format::bmp);
    EXPECT_EQ(decoded_picture("TX0007_Brick.BMP"), gradient(16, 8));
}

TEST_F(TextureExport, an_ampersand_in_the_name_of_the_material_is_escaped_in_that_of_the_picture) {
    EXPECT_EQ(exported_from(jpeg, "wall.jpg", url_encode_name("R&D")).image_path, picture("TX0007_R%26D.JPG"));
    EXPECT_EQ(bytes_of_picture("TX0007_R%26D.JPG"), jpeg);
}

TEST_F(TextureExport, the_tile_factors_are_repetitions_in_an_inch) {
    const exported_texture made = exported_from(png, "wall.png", "Brick");
    EXPECT_EQ(made.tile_x, 0.1);  // 1 / 10
    EXPECT_EQ(made.tile_y, 0.05); // 1 / 20
}

TEST_F(TextureExport, a_format_that_is_not_written_falls_back_to_a_jpeg_named_by_the_material) {
    for (const char* name : {"wall.gif", "wall.tga", "wall.xyz", "wall.", "a.b/wall.c d"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(exported_from(png, name, "Brick").image_path, picture("TX0012.jpg"));
        EXPECT_EQ(all_files(), (std::set<std::string>{"batch/Textures/TX0012.jpg"}));
        EXPECT_EQ(format_of_picture("TX0012.jpg"), picture_format::jpeg);
        EXPECT_EQ(decoded_picture("TX0012.jpg").extent(), (image::picture_extent{16, 8, 24}));
        std::filesystem::remove(picture("TX0012.jpg"));
    }
}

TEST_F(TextureExport, a_picture_of_8192_by_8192_pixels_is_written_and_one_pixel_more_is_not) {
    const picture_bytes largest = bmp_that_announces(8192, 8192);
    EXPECT_EQ(exported_from(largest, "wall.bmp", "Large").image_path, picture("TX0007_Large.BMP"));
    EXPECT_EQ(bytes_of_picture("TX0007_Large.BMP"), largest);
    // 8321 x 8065 = 67108865
    const exported_texture made = exported_from(bmp_that_announces(8321, 8065), "wall.bmp", "Larger");
    EXPECT_EQ(made.image_path, "");
    EXPECT_EQ(made.tile_x, 0.1) << "the factors are kept";
    EXPECT_EQ(made.tile_y, 0.05);
    EXPECT_EQ(all_files(), (std::set<std::string>{"batch/Textures/TX0007_Large.BMP"}));
}

TEST_F(TextureExport, sizes_whose_product_is_0_in_32_bits_are_left_out) {
    EXPECT_EQ(exported_from(bmp_that_announces(0x10000, 0x10000), "wall.bmp", "Brick").image_path, "");
    EXPECT_EQ(exported_from(bmp_that_announces(0x7fffffff, 0x7fffffff), "wall.png", "Brick").image_path,
              picture("TX0012.jpg"))
        << "0x7fffffff squared ends in 1: tried, and refused by the writer";
    EXPECT_THAT(all_files(), IsEmpty());
}

TEST_F(TextureExport, a_damaged_header_gives_no_picture_and_no_factors) {
    const exported_texture made = exported_from({'x'}, "wall.png", "Brick");
    EXPECT_EQ(made.image_path, "");
    EXPECT_EQ(made.tile_x, 0);
    EXPECT_EQ(made.tile_y, 0);
    EXPECT_THAT(all_files(), IsEmpty());
}

TEST_F(TextureExport, a_write_that_fails_twice_leaves_the_last_path_and_no_message) {
    picture_bytes cut = encoded(gradient(64, 64), picture_format::png);
    cut.resize(cut.size() / 2);
    const trace_capture trace;
    EXPECT_EQ(exported_from(cut, "wall.bmp", "Brick").image_path, picture("TX0012.jpg"));
    EXPECT_THAT(all_files(), IsEmpty());
    EXPECT_EQ(trace.text(), "");
}

TEST_F(TextureExport, a_folder_that_is_missing_is_such_a_failure) {
    std::filesystem::remove_all(batch / "batch/Textures");
    EXPECT_EQ(exported_from(png, "wall.png", "Brick").image_path, picture("TX0012.jpg"));
    EXPECT_THAT(all_files(), IsEmpty());
}

TEST_F(TextureExport, a_folder_of_the_pictures_name_is_no_picture) {
    std::filesystem::create_directory(picture("TX0007_Brick.PNG"));
    EXPECT_EQ(exported_from(png, "wall.png", "Brick").image_path, picture("TX0012.jpg"));
}

// A name that counts as escaped already may hold separators.
TEST_F(TextureExport, a_name_that_would_leave_the_folder_falls_back) {
    batch.make_folder("batch/Textures/TX0007_%2");
    for (const std::string name : {"%2/../../../away", "%2/inside", "%2\\..\\away", "%2/../../Images/away"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(url_encode_name(name), name);
        EXPECT_EQ(exported_from(png, "wall.png", name).image_path, picture("TX0012.jpg"));
        EXPECT_EQ(all_files(), (std::set<std::string>{"batch/Textures/TX0012.jpg"}));
    }
}

TEST_F(TextureExport, a_name_that_is_too_long_falls_back_without_a_message) {
    const trace_capture trace;
    EXPECT_EQ(exported_from(png, "wall.png", std::string(5000, 'a')).image_path, picture("TX0012.jpg"));
    EXPECT_EQ(all_files(), (std::set<std::string>{"batch/Textures/TX0012.jpg"}));
    EXPECT_EQ(trace.text(), "");
}

// What stands behind the last separator is the name: "x", which gets the extension of the stored picture.
TEST_F(TextureExport, a_stored_path_may_be_anything_without_leading_out_of_the_folder) {
    const std::vector<std::string> names = {"wall./../../x", "wall.\\..\\x", "wall.. ", std::string("wall.p\0x", 8)};
    for (const std::string& name : names) {
        exported_from(png, name, "Brick");
    }
    EXPECT_EQ(all_files(), (std::set<std::string>{"batch/Textures/TX0007_Brick.PNG", "batch/Textures/TX0012.jpg"}));
}

TEST_F(TextureExport, the_picture_of_a_distorted_side_is_the_straightened_one) {
    const exported_texture made = exported_distorted(png, "wall.png");
    EXPECT_EQ(made.image_path, picture("TX0007_Brick.PNG"));
    const image::picture straightened = decoded_picture("TX0007_Brick.PNG");
    EXPECT_FALSE(straightened.is_empty());
    EXPECT_NE(straightened, gradient(16, 8));
    const std::string wanted = (batch / "wanted.png");
    SUTextureWriterWriteTexture(texture_writer, 1, wanted.c_str(), false);
    EXPECT_EQ(text_of_file(wanted), text_of_file(picture("TX0007_Brick.PNG")));
}

TEST_F(TextureExport, the_straightening_is_traced) {
    const trace_capture trace;
    exported_distorted(png, "wall.png");
    EXPECT_EQ(trace.text_without_line_numbers(),
              "texture_export(#): SketchUpReader::get_material_number():: txtr id: 1, is_front: 1\n"
              "texture_export(#): SketchUpReader::get_material_number():: after SUTextureWriterLoadFace\n"
              "texture_export(#): SketchUpReader::get_material_number():: before SUTextureWriterWriteTexture\n");
}

TEST_F(TextureExport, a_straightened_picture_falls_back_to_a_straightened_jpeg) {
    EXPECT_EQ(exported_distorted(png, "wall.gif").image_path, picture("TX0012.jpg"));
    EXPECT_EQ(format_of_picture("TX0012.jpg"), picture_format::jpeg);
    const std::string wanted = (batch / "wanted.jpg");
    SUTextureWriterWriteTexture(texture_writer, 1, wanted.c_str(), false);
    EXPECT_EQ(text_of_file(wanted), text_of_file(picture("TX0012.jpg")));
}

TEST_F(TextureExport, a_distorted_side_without_a_writer_leaves_the_last_path) {
    square_with(png, "wall.png");
    EXPECT_EQ(exported("Brick", true).image_path, picture("TX0012.jpg"));
    EXPECT_THAT(all_files(), IsEmpty());
}

} // namespace
