// The materials that carry the pictures of placed images: names, files, records and what happens when they cannot be
// written.

#include "tests/support/trace_capture.h"
#include "tests/tessaline/exported_pictures.h"

#include <gmock/gmock.h>

namespace {

using image::picture_format;
using testing::IsEmpty;

class ImageMaterials : public exported_pictures_test {
protected:
    // Places an image with this picture as the entity of that id.
    void place(const picture_bytes& file, const std::string& file_name, std::int32_t id = 88) {
        const sketchup::entity_place placed = builder.root().image(builder.image_definition(file, file_name, 16, 8));
        builder.placement(placed).id = id;
    }

    std::vector<SUImageRef> images() const {
        SUEntitiesRef entities = SU_INVALID;
        SUModelGetEntities(open_model, &entities);
        return all_handles(SUEntitiesGetNumImages, SUEntitiesGetImages, entities);
    }

    // The number of the only image's material.
    int number_of(const picture_bytes& file, const std::string& file_name) {
        place(file, file_name);
        open_next();
        return reader.get_image_material_number(images().front());
    }

    void put_folder_copy(const std::string& name) const { batch.write("batch/Images/" + name, "put there"); }
    std::string folder_copy(const std::string& name) const { return batch / ("batch/Images/" + name); }
    std::string material_file(const std::string& name) const { return batch.read("batch/Materials/" + name); }
    // A line of a material file.
    std::string line_of(const std::string& file_name, const std::string& key) const {
        std::istringstream all(material_file(file_name));
        for (std::string line; std::getline(all, line);)
            if (line.starts_with(key + ": "))
                return line.substr(key.size() + 2, line.find('\r') - key.size() - 2);
        return "no such line";
    }
    const std::string& picture_of(std::size_t record) const { return material_records.at(record).image_path; }
};

const image::picture plain = gradient(16, 8);
const image::picture with_alpha = gradient(16, 8, 32);
const picture_bytes plain_png = encoded(plain, picture_format::png);
const picture_bytes plain_jpeg = encoded(plain, picture_format::jpeg);
const picture_bytes alpha_png = encoded(with_alpha, picture_format::png);

TEST_F(ImageMaterials, the_first_gets_the_number_10_and_its_lines_in_the_stream) {
    EXPECT_EQ(number_of(plain_jpeg, "C:\\pictures\\Tree.jpg"), 10);
    EXPECT_EQ(stream_text(), lines({"MATF;IMAGE_TX_Tree_88.jpg.OrnMaterial", "MTX2;1", "MATI;10"}));
}

TEST_F(ImageMaterials, the_record_names_the_picture_and_nothing_else) {
    number_of(plain_jpeg, "C:\\pictures\\Tree.jpg");
    ASSERT_EQ(material_records.size(), 1u);
    const cl_tsl_material& record = material_records[0];
    EXPECT_EQ(record.material_id, -1);
    EXPECT_EQ(record.name, "Tree_88.jpg");
    EXPECT_EQ(record.image_path, picture("TX_Tree_88.jpg"));
    EXPECT_EQ(record.tile_x, 1.0);
    EXPECT_EQ(record.tile_y, 1.0);
    EXPECT_EQ(record.values.color, 0xffffffu);
    EXPECT_FALSE(record.has_glow);
    EXPECT_EQ(material_name_map, (std::unordered_map<std::string, int>{{"Tree_88.jpg", 0}}));
    EXPECT_TRUE(material_id_map.empty());
}

TEST_F(ImageMaterials, the_material_file_has_the_lines_of_a_white_textured_material) {
    number_of(plain_jpeg, "C:\\pictures\\Tree.jpg");
    EXPECT_EQ(material_file("IMAGE_TX_Tree_88.jpg.qlobj"), lines({"Matl: IMAGE_TX_Tree_88.jpg.OrnMaterial",
                                                                  "Disp: Tree_88.jpg",
                                                                  "Orig: Tree_88.jpg",
                                                                  "#",
                                                                  "OrnMaterial Type: ",
                                                                  "Base_Material: ",
                                                                  "Use_Entity_Color: 0",
                                                                  "Color: 16777215",
                                                                  "#;Color: RGB(255,255,255)",
                                                                  "IconColor: 16777215",
                                                                  "Trans: 0",
                                                                  "Translucency: 0",
                                                                  "Refl: 0",
                                                                  "Refr: 0",
                                                                  "IrayInitialOpacity: 1",
                                                                  "#",
                                                                  "# Glow is a pct = 1.0 = 100 watts",
                                                                  "Glow: 0",
                                                                  "Glow_Lumens: 0",
                                                                  "SelfGlow: 0",
                                                                  "#",
                                                                  "Blurry: 0",
                                                                  "Glossy: 0",
                                                                  "#;For Select Material dialog and 3D PDF",
                                                                  "Filter: ",
                                                                  "Category: ",
                                                                  "Image_Path: " + picture("TX_Tree_88.jpg"),
                                                                  "ImageWidth: 0",
                                                                  "TileX: 1",
                                                                  "TileY: 1",
                                                                  "AutoBump: 0",
                                                                  "ColorStrength: 1",
                                                                  "BumpStrength: 0",
                                                                  "Marbled: 0",
                                                                  "MarbleScale: 0",
                                                                  "MarbleStrength: 0",
                                                                  "TopiaryOrientation: 0",
                                                                  "#"}));
}

TEST_F(ImageMaterials, a_second_look_at_an_image_gives_its_number_and_writes_nothing) {
    place(plain_png, "Tree.png");
    open_next();
    EXPECT_EQ(reader.get_image_material_number(images()[0]), 10);
    std::filesystem::remove(picture("TX_Tree_88.png"));
    EXPECT_EQ(reader.get_image_material_number(images()[0]), 10);
    EXPECT_EQ(material_records.size(), 1u);
    EXPECT_FALSE(batch.has("batch/Textures/TX_Tree_88.png"));
    EXPECT_EQ(stream_text(), lines({"MATF;IMAGE_TX_Tree_88.png.OrnMaterial", "MTX2;1", "MATI;10"}));
}

TEST_F(ImageMaterials, two_images_of_one_file_have_two_pictures_and_two_materials) {
    place(plain_png, "Tree.png", 88);
    place(plain_png, "Tree.png", 99);
    open_next();
    EXPECT_EQ(reader.get_image_material_number(images()[0]), 10);
    EXPECT_EQ(reader.get_image_material_number(images()[1]), 11);
    EXPECT_EQ(all_files(), (std::set<std::string>{"batch/Materials/IMAGE_TX_Tree_88.png.qlobj",
                                                  "batch/Materials/IMAGE_TX_Tree_99.png.qlobj",
                                                  "batch/Textures/TX_Tree_88.png", "batch/Textures/TX_Tree_99.png"}));
}

TEST_F(ImageMaterials, numbers_go_on_behind_those_of_other_materials) {
    material_records.resize(3);
    EXPECT_EQ(number_of(plain_png, "Tree.png"), 13);
}

TEST_F(ImageMaterials, a_record_of_any_kind_with_that_picture_is_taken) {
    cl_tsl_material record;
    record.image_path = picture("TX_Tree_88.png");
    material_records = {{}, record, record};
    EXPECT_EQ(number_of(plain_png, "Tree.png"), 11);
    EXPECT_EQ(stream_text(), "");
    EXPECT_THAT(all_files(), IsEmpty());
}

TEST_F(ImageMaterials, the_name_may_lack_an_extension_or_be_nothing_but_one) {
    struct named {
        std::string stored, image;
    };
    for (const named& n : {named{"Tree", "Tree_88"}, named{"", "_88"}, named{".png", "_88.png"},
                           named{"C:\\a.b\\Tree", "Tree_88"}, named{"/a.b/Tree.x.png", "Tree.x_88.png"}}) {
        material_records.clear();
        number_of(plain_png, n.stored);
        EXPECT_EQ(material_records.at(0).name, n.image);
    }
}

// ---- pictures without alpha

TEST_F(ImageMaterials, a_picture_of_24_bits_is_saved_in_the_format_of_its_name) {
    struct saved {
        std::string stored, written;
        picture_format format;
    };
    for (const saved& s : {saved{"Tree.png", "TX_Tree_88.png", picture_format::png},
                           saved{"Tree.JPG", "TX_Tree_88.JPG", picture_format::jpeg},
                           saved{"Tree.bmp", "TX_Tree_88.bmp", picture_format::bmp},
                           saved{"Tree.Tif", "TX_Tree_88.Tif", picture_format::tiff}}) {
        SCOPED_TRACE(s.stored);
        material_records.clear();
        EXPECT_EQ(number_of(plain_png, s.stored), 10);
        EXPECT_EQ(picture_of(0), picture(s.written));
        EXPECT_EQ(format_of_picture(s.written), s.format);
        if (s.format == picture_format::jpeg) {
            EXPECT_LE(greatest_difference(decoded_picture(s.written), plain), 12);
        } else {
            EXPECT_EQ(decoded_picture(s.written), plain);
        }
    }
}

// Rows of 5 pixels take 15 bytes and one of filling.
TEST_F(ImageMaterials, rows_that_are_filled_up_come_out_straight) {
    const image::picture odd = noise(5, 7);
    number_of(encoded(odd, picture_format::png), "Tree.png");
    EXPECT_EQ(decoded_picture("TX_Tree_88.png"), odd);
}

TEST_F(ImageMaterials, a_jpeg_with_five_characters_gets_a_second_extension) {
    EXPECT_EQ(number_of(plain_jpeg, "Tree.jpeg"), 10);
    EXPECT_EQ(picture_of(0), picture("TX_Tree_88.jpeg.PNG"));
    EXPECT_EQ(format_of_picture("TX_Tree_88.jpeg.PNG"), picture_format::png);
    EXPECT_EQ(line_of("IMAGE_TX_Tree_88.jpeg.qlobj", "Image_Path"), picture("TX_Tree_88.jpeg.PNG"));
    EXPECT_EQ(line_of("IMAGE_TX_Tree_88.jpeg.qlobj", "Disp"), "Tree_88.jpeg");
}

TEST_F(ImageMaterials, so_does_every_extension_that_is_not_among_the_known_ones) {
    for (const std::string name : {"tiff", "gif", "tga", "x", "PNG "}) {
        material_records.clear();
        number_of(plain_png, "Tree." + name);
        EXPECT_EQ(picture_of(0), picture("TX_Tree_88." + name + ".PNG"));
        EXPECT_EQ(decoded_picture("TX_Tree_88." + name + ".PNG"), plain);
    }
}

// The look-up is made by the name without the second extension.
TEST_F(ImageMaterials, a_picture_with_a_second_extension_is_not_found_again) {
    place(plain_jpeg, "Tree.jpeg");
    open_next();
    EXPECT_EQ(reader.get_image_material_number(images()[0]), 10);
    EXPECT_EQ(reader.get_image_material_number(images()[0]), 11);
}

TEST_F(ImageMaterials, a_psd_of_24_bits_has_a_material_without_a_file) {
    const trace_capture trace;
    EXPECT_EQ(number_of(plain_png, "Tree.psd"), 10);
    EXPECT_EQ(picture_of(0), picture("TX_Tree_88.psd"));
    EXPECT_EQ(line_of("IMAGE_TX_Tree_88.psd.qlobj", "Image_Path"), picture("TX_Tree_88.psd"));
    EXPECT_EQ(all_files(), (std::set<std::string>{"batch/Materials/IMAGE_TX_Tree_88.psd.qlobj"}));
    EXPECT_EQ(trace.text(), "");
}

// ---- pictures with alpha

TEST_F(ImageMaterials, a_picture_of_32_bits_is_written_in_the_format_of_its_name) {
    struct written {
        std::string stored, name;
        picture_format format;
        int bits;
    };
    for (const written& w : {written{"Tree.png", "TX_Tree_88.png", picture_format::png, 32},
                             written{"Tree.jpg", "TX_Tree_88.jpg", picture_format::jpeg, 24},
                             written{"Tree.BMP", "TX_Tree_88.BMP", picture_format::bmp, 24},
                             written{"Tree.tif", "TX_Tree_88.tif", picture_format::tiff, 32},
                             written{"Tree.jpeg", "TX_Tree_88.jpeg.PNG", picture_format::png, 32},
                             written{"Tree.gif", "TX_Tree_88.gif.PNG", picture_format::png, 32}}) {
        SCOPED_TRACE(w.stored);
        material_records.clear();
        EXPECT_EQ(number_of(alpha_png, w.stored), 10);
        EXPECT_EQ(picture_of(0), picture(w.name));
        EXPECT_EQ(format_of_picture(w.name), w.format);
        if (w.format != picture_format::jpeg) {
            EXPECT_EQ(decoded_picture(w.name), w.bits == 32 ? with_alpha : without_alpha(with_alpha));
        }
    }
}

TEST_F(ImageMaterials, a_psd_of_32_bits_has_a_material_without_a_file) {
    EXPECT_EQ(number_of(alpha_png, "Tree.psd"), 10);
    EXPECT_EQ(picture_of(0), picture("TX_Tree_88.psd"));
    EXPECT_EQ(material_records[0].name, "Tree_88.psd");
    EXPECT_EQ(all_files(), (std::set<std::string>{"batch/Materials/IMAGE_TX_Tree_88.psd.qlobj"}));
}

// 260 letters, in one byte each or in two, are more than the system takes; the filter drops them all.
TEST_F(ImageMaterials, a_name_that_the_system_refuses_is_written_filtered) {
    std::string letters;
    for (int i = 0; i < 260; ++i)
        letters += "\xC3\xA9";
    EXPECT_EQ(number_of(alpha_png, letters + "Tree.png"), 10);
    EXPECT_EQ(picture_of(0), picture("TX_Tree_88.png"));
    EXPECT_EQ(material_records[0].name, "TX_Tree_88.png");
    EXPECT_EQ(decoded_picture("TX_Tree_88.png"), with_alpha);
    EXPECT_EQ(material_name_map, (std::unordered_map<std::string, int>{{"TX_Tree_88.png", 0}}));
    EXPECT_EQ(all_files(), (std::set<std::string>{"batch/Textures/TX_Tree_88.png"}))
        << "the name of the material file is too long as well";
}

TEST_F(ImageMaterials, a_filtered_picture_that_lies_there_is_taken_as_it_is) {
    batch.write("batch/Textures/TX_Tree_88.png", "put there");
    std::string letters;
    for (int i = 0; i < 260; ++i)
        letters += "\xC3\xA9";
    EXPECT_EQ(number_of(alpha_png, letters + "Tree.png"), 10);
    EXPECT_EQ(picture_of(0), picture("TX_Tree_88.png"));
    EXPECT_EQ(text_of_file(picture("TX_Tree_88.png")), "put there");
    EXPECT_EQ(material_records[0].name, "TX_Tree_88.png");
}

TEST_F(ImageMaterials, a_name_of_which_nothing_helps_leaves_the_last_path) {
    const trace_capture trace;
    const std::string name(300, 'a');
    EXPECT_EQ(number_of(alpha_png, name + ".png"), 10);
    EXPECT_EQ(picture_of(0), picture("TX_" + name + "_88.png"));
    EXPECT_THAT(all_files(), IsEmpty());
    EXPECT_EQ(stream_text(), lines({"MATF;IMAGE_TX_" + name + "_88.png.OrnMaterial", "MTX2;1", "MATI;10"}));
    EXPECT_EQ(trace.text(), "");
}

// ---- the copy in the folder of images

TEST_F(ImageMaterials, a_copy_in_the_folder_of_images_is_taken_and_nothing_is_written) {
    put_folder_copy("Tree_88.jpg");
    EXPECT_EQ(number_of(plain_jpeg, "Tree.jpg"), 10);
    EXPECT_EQ(picture_of(0), folder_copy("Tree_88.jpg"));
    EXPECT_EQ(line_of("IMAGE_TX_Tree_88.jpg.qlobj", "Image_Path"), folder_copy("Tree_88.jpg"));
    EXPECT_EQ(all_files(),
              (std::set<std::string>{"batch/Images/Tree_88.jpg", "batch/Materials/IMAGE_TX_Tree_88.jpg.qlobj"}));
    EXPECT_EQ(text_of_file(folder_copy("Tree_88.jpg")), "put there");
}

TEST_F(ImageMaterials, a_copy_of_a_png_of_24_bits_is_taken) {
    put_folder_copy("Tree_88.png");
    number_of(plain_png, "Tree.png");
    EXPECT_EQ(picture_of(0), folder_copy("Tree_88.png"));
}

TEST_F(ImageMaterials, a_copy_of_a_jpg_of_32_bits_is_taken) {
    put_folder_copy("Tree_88.jpg");
    number_of(alpha_png, "Tree.jpg");
    EXPECT_EQ(picture_of(0), folder_copy("Tree_88.jpg"));
}

TEST_F(ImageMaterials, a_copy_of_a_png_of_32_bits_is_left_alone) {
    put_folder_copy("Tree_88.png");
    number_of(alpha_png, "Tree.png");
    EXPECT_EQ(picture_of(0), picture("TX_Tree_88.png"));
    EXPECT_EQ(decoded_picture("TX_Tree_88.png"), with_alpha);
}

TEST_F(ImageMaterials, a_copy_of_a_png_of_32_bits_is_taken_if_the_picture_cannot_be_written) {
    put_folder_copy("Tree_88.png");
    std::filesystem::create_directories(picture("TX_Tree_88.png")); // in the way
    number_of(alpha_png, "Tree.png");
    EXPECT_EQ(picture_of(0), folder_copy("Tree_88.png"));
    EXPECT_EQ(material_records[0].name, "Tree_88.png");
}

TEST_F(ImageMaterials, a_folder_of_the_copys_name_is_no_copy) {
    std::filesystem::create_directories(folder_copy("Tree_88.jpg"));
    number_of(plain_jpeg, "Tree.jpg");
    EXPECT_EQ(picture_of(0), picture("TX_Tree_88.jpg"));
}

TEST_F(ImageMaterials, a_copy_stands_for_an_image_that_cannot_be_read) {
    put_folder_copy("Tree_88.jpg");
    EXPECT_EQ(number_of({'x'}, "Tree.jpg"), 10);
    EXPECT_EQ(picture_of(0), folder_copy("Tree_88.jpg"));
}

// ---- images that cannot be read

TEST_F(ImageMaterials, an_image_without_a_picture_has_no_material) {
    place({}, "Tree.png");
    for (sketchup::face& f : builder.model().faces)
        f.material = f.back_material = sketchup::no_index;
    open_next();
    EXPECT_EQ(reader.get_image_material_number(images()[0]), 0);
    EXPECT_EQ(stream_text(), "");
    EXPECT_TRUE(material_records.empty());
    EXPECT_TRUE(material_name_map.empty());
    EXPECT_THAT(all_files(), IsEmpty());
}

TEST_F(ImageMaterials, a_damaged_picture_has_no_material) {
    picture_bytes cut = encoded(noise(40, 40), picture_format::png);
    cut.resize(cut.size() / 2);
    for (const picture_bytes& damaged : {cut, picture_bytes{}, picture_bytes{'x'}}) {
        EXPECT_EQ(number_of(damaged, "Tree.png"), 0);
    }
    EXPECT_EQ(stream_text(), "");
    EXPECT_TRUE(material_records.empty());
    EXPECT_THAT(all_files(), IsEmpty());
}

// One pixel more than fits, 8321 x 8065 = 67108865; sides that no texture may have.
TEST_F(ImageMaterials, a_picture_of_too_many_pixels_is_copied_as_the_model_holds_it) {
    const trace_capture trace;
    int number = 10;
    for (const picture_bytes& large :
         {bmp_that_announces(8321, 8065), bmp_that_announces(65536, 2), bmp_that_announces(2, 65536)}) {
        ASSERT_EQ(number_of(large, "Tree.bmp"), number++);
        EXPECT_EQ(bytes_of_picture("TX_Tree_88.bmp"), large);
        EXPECT_EQ(line_of("IMAGE_TX_Tree_88.bmp.qlobj", "Image_Path"), picture("TX_Tree_88.bmp"));
        std::filesystem::remove(picture("TX_Tree_88.bmp"));
        material_records.back().image_path.clear(); // the next one is another picture
    }
    EXPECT_EQ(trace.text(), "");
}

TEST_F(ImageMaterials, a_large_picture_whose_name_the_system_refuses_is_copied_under_a_filtered_one) {
    const picture_bytes large = bmp_that_announces(8321, 8065);
    batch.make_folder("batch/Textures/TX_Tree+_88.bmp");
    EXPECT_EQ(number_of(large, "Tree+.bmp"), 10);
    EXPECT_EQ(bytes_of_picture("TX_Tree_88.bmp"), large);
}

TEST_F(ImageMaterials, a_large_picture_that_has_to_change_and_cannot_has_no_material_and_the_trace_says_so) {
    const trace_capture trace;
    EXPECT_EQ(number_of(bmp_that_announces(8321, 8065), "Tree.png"), 0);
    EXPECT_EQ(trace.text_without_line_numbers(), "image_materials(#): SketchUpReader::get_image_material_number():: "
                                                 "REPORT: Image of 8321 by 8065 pixels cannot be written: " +
                                                     picture("TX_Tree_88.png") + "\n");
    EXPECT_EQ(stream_text(), "");
    EXPECT_TRUE(material_records.empty());
    EXPECT_THAT(all_files(), IsEmpty());
}

TEST_F(ImageMaterials, sizes_that_no_memory_holds_have_no_material_if_the_picture_has_to_change) {
    struct announced {
        std::uint32_t width, height;
    };
    for (const announced& a : {announced{0x7fffffff, 0x7fffffff}, announced{0x7fffffff, 1}, announced{1, 0x7fffffff},
                               announced{8193, 8192}, announced{0x10000, 0x10000}, announced{8192, 8192}}) {
        EXPECT_EQ(number_of(bmp_that_announces(a.width, a.height), "Tree.png"), 0) << a.width << " x " << a.height;
    }
    EXPECT_THAT(all_files(), IsEmpty());
}

// Its pixels would all fit, so they are read, and are not there.
TEST_F(ImageMaterials, a_picture_of_as_many_pixels_as_fit_is_read) {
    EXPECT_EQ(number_of(bmp_that_announces(8192, 8192), "Tree.bmp"), 0);
    EXPECT_THAT(all_files(), IsEmpty());
}

// ---- names

TEST_F(ImageMaterials, a_name_is_escaped_for_the_material_and_not_for_the_picture) {
    number_of(plain_png, "R&D.png");
    EXPECT_EQ(all_files(),
              (std::set<std::string>{"batch/Materials/IMAGE_TX_R%26D_88.png.qlobj", "batch/Textures/TX_R&D_88.png"}));
    EXPECT_EQ(stream_text(), lines({"MATF;IMAGE_TX_R%26D_88.png.OrnMaterial", "MTX2;1", "MATI;10"}));
}

TEST_F(ImageMaterials, a_name_never_leaves_the_folders) {
    const std::vector<std::string> names = {"../../away.png",
                                            "..\\..\\away.png",
                                            "%2/../../away.png",
                                            "%2f..%2faway.png",
                                            "/away.png",
                                            "..",
                                            ".",
                                            "away.png/../..",
                                            "away.",
                                            "a/..",
                                            "C:away.png",
                                            std::string("away\0/../x.png", 14),
                                            std::string("%2\0x.png", 8)};
    for (const std::string& name : names) {
        for (const picture_bytes* file : {&plain_png, &alpha_png}) {
            material_records.clear();
            number_of(*file, name);
        }
    }
    for (const std::string& file : all_files())
        EXPECT_TRUE(file.starts_with("batch/Textures/TX_") || file.starts_with("batch/Materials/IMAGE_TX_")) << file;
}

} // namespace
