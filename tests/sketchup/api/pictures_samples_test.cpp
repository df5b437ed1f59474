// Pictures of real models: those that the host's maker asserts figures for, and every texture of every model at hand,
// opened by the libraries' own short ways.

#include "tests/sketchup/api/sample_model.h"
#include "tests/sketchup/api/test_model.h"

#include "image/decode_picture.h"
#include "image/picture_format.h"
#include "sketchup/model/colorize.h"
#include "tests/image/pictures.h"
#include "tests/support/temporary_folder.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <map>

#include <jpeglib.h>
#include <png.h>
#include <tiffio.h>

namespace {

using image::picture_extent;
using image::picture_format;

std::map<std::string, SUMaterialRef> materials_by_name(SUModelRef model) {
    std::map<std::string, SUMaterialRef> found;
    for (const SUMaterialRef m : all_of(SUModelGetNumMaterials, SUModelGetMaterials, model))
        found[text_from(SUMaterialGetName, m)] = m;
    return found;
}

SUTextureRef texture_of(SUMaterialRef material) {
    SUTextureRef texture = SU_INVALID;
    SUMaterialGetTexture(material, &texture);
    return texture;
}

// ---- decoders beside ours; width and height, 0 × 0 if the file does not open

using size = std::array<std::uint32_t, 2>;

size opened_as_png(const std::string& path) {
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&png, path.c_str()))
        return {};
    png.format = PNG_FORMAT_RGBA;
    std::vector<std::uint8_t> pixels(PNG_IMAGE_SIZE(png));
    if (!png_image_finish_read(&png, nullptr, pixels.data(), 0, nullptr))
        return {};
    return {png.width, png.height};
}

// Ends the program if the file is damaged.
size opened_as_jpeg(const std::string& path) {
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (!file)
        return {};
    jpeg_decompress_struct info{};
    jpeg_error_mgr errors{};
    info.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&info);
    jpeg_stdio_src(&info, file);
    jpeg_read_header(&info, TRUE);
    jpeg_start_decompress(&info);
    std::vector<std::uint8_t> pixels(info.output_width * static_cast<std::size_t>(info.output_components));
    std::uint8_t* row = pixels.data();
    while (info.output_scanline < info.output_height)
        jpeg_read_scanlines(&info, &row, 1);
    const size found = {info.output_width, info.output_height};
    jpeg_finish_decompress(&info);
    jpeg_destroy_decompress(&info);
    std::fclose(file);
    return found;
}

size opened_as_tiff(const std::string& path) {
    TIFF* tiff = TIFFOpen(path.c_str(), "r");
    size found{};
    if (!tiff)
        return found;
    TIFFGetField(tiff, TIFFTAG_IMAGEWIDTH, &found[0]);
    TIFFGetField(tiff, TIFFTAG_IMAGELENGTH, &found[1]);
    std::vector<std::uint32_t> pixels(std::size_t{found[0]} * found[1]);
    if (!TIFFReadRGBAImage(tiff, found[0], found[1], pixels.data(), 1))
        found = {};
    TIFFClose(tiff);
    return found;
}

// Not packed, and as long as the size and the depth in its header demand. Real models hold the oldest header, too.
size opened_as_bmp(const std::string& path) {
    const std::vector<std::uint8_t> file = file_bytes(path);
    const auto number = [&](std::size_t at) { return std::uint32_t{file[at]} + (std::uint32_t{file[at + 1]} << 8); };
    if (file.size() < 34 || file[0] != 'B' || file[1] != 'M')
        return {};
    const bool is_oldest = number(14) == 12;
    const size found = is_oldest ? size{number(18), number(20)} : size{number(18), number(22)};
    const std::size_t bits = number(is_oldest ? 24 : 28);
    const bool is_packed = !is_oldest && number(30) != 0;
    const std::size_t needed = number(10) + (found[0] * bits + 31) / 32 * 4 * found[1];
    return !is_packed && file.size() >= needed ? found : size{};
}

// Blue, green, red from the top row down; alpha is shown on black.
std::vector<std::uint8_t> pixels_of_png(const std::string& path) {
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&png, path.c_str()))
        return {};
    png.format = PNG_FORMAT_BGRA;
    std::vector<std::uint8_t> pixels(PNG_IMAGE_SIZE(png));
    if (!png_image_finish_read(&png, nullptr, pixels.data(), 0, nullptr))
        return {};
    std::vector<std::uint8_t> without_alpha;
    for (std::size_t i = 0; i < pixels.size(); i += 4)
        without_alpha.insert(without_alpha.end(), pixels.begin() + static_cast<std::ptrdiff_t>(i),
                             pixels.begin() + static_cast<std::ptrdiff_t>(i) + 3);
    return without_alpha;
}

// The same of a BMP of 24 bits, or of 8 with a palette, with its rows from the bottom; none for any other.
std::vector<std::uint8_t> pixels_of_bmp(const std::string& path) {
    const std::vector<std::uint8_t> file = file_bytes(path);
    const auto number = [&](std::size_t at) { return std::size_t{file[at]} + (std::size_t{file[at + 1]} << 8); };
    if (file.size() < 34)
        return {};
    const bool is_oldest = number(14) == 12;
    const std::size_t width = number(18), height = number(is_oldest ? 20 : 22), bits = number(is_oldest ? 24 : 28);
    const std::size_t row = (width * bits / 8 + 3) / 4 * 4;
    const std::size_t palette = 14 + number(14), entry = is_oldest ? 3 : 4;
    if ((bits != 24 && bits != 8) || file.size() < number(10) + row * height)
        return {};
    std::vector<std::uint8_t> pixels;
    for (std::size_t y = height; y-- > 0;)
        for (std::size_t x = 0; x < width; ++x) {
            const std::size_t stored = number(10) + y * row + x * bits / 8;
            const std::uint8_t* color = &file[bits == 24 ? stored : palette + file[stored] * entry];
            pixels.insert(pixels.end(), color, color + 3);
        }
    return pixels;
}

size opened_by_itself(const std::string& path) {
    switch (image::format_of_name(path)) {
    case picture_format::png:
        return opened_as_png(path);
    case picture_format::jpeg:
        return opened_as_jpeg(path);
    case picture_format::tiff:
        return opened_as_tiff(path);
    default:
        return opened_as_bmp(path);
    }
}

constexpr std::size_t most_pixels_of_all_formats = 1 << 18; // larger ones are written in their own format alone

constexpr std::size_t most_pixels_compared = 1 << 16;

// Writes every texture of a model, and gives how many there are.
int expect_textures_open_elsewhere(const std::string& name, const temporary_folder& folder) {
    const sample_model opened(name);
    if (opened.result != SU_ERROR_NONE)
        return 0;
    int count = 0;
    for (sketchup::texture& t : sketchup::api::object_of(opened.ref)->textures) {
        const SUTextureRef texture = sketchup::api::handle_of<SUTextureRef>(t);
        size_t width = 0, height = 0;
        double s = 0, v = 0;
        if (SUTextureGetDimensions(texture, &width, &height, &s, &v) != SU_ERROR_NONE) {
            EXPECT_EQ(t.picture, sketchup::no_index) << name << " " << t.file_name;
            continue;
        }
        ++count;
        const std::string stored_name = text_from(SUTextureGetFileName, texture);
        std::vector<std::string> extensions = {".png"};
        if (image::format_of_name(stored_name) != picture_format::unknown)
            extensions = {stored_name.substr(stored_name.rfind('.'))};
        if (width * height <= most_pixels_of_all_formats)
            extensions.insert(extensions.end(), {".png", ".jpg", ".bmp", ".tif"});
        for (const std::string& extension : extensions) {
            const std::string path = folder / ("picture" + extension);
            EXPECT_EQ(SUTextureWriteToFile(texture, path.c_str()), SU_ERROR_NONE) << name << " " << stored_name;
            EXPECT_EQ(opened_by_itself(path),
                      (size{static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height)}))
                << name << " " << stored_name << " as " << extension;
        }
        if (width * height <= most_pixels_compared) {
            EXPECT_TRUE(pixels_of_bmp(folder / "picture.bmp") == pixels_of_png(folder / "picture.png"))
                << name << " " << stored_name;
        }
        for (const auto& file : std::filesystem::directory_iterator(folder.name()))
            std::filesystem::remove(file);
    }
    return count;
}

// Every number of a distorted side that a model has; written and opened. Gives how many there are.
int expect_straightened_pictures_open_elsewhere(const std::string& name, const temporary_folder& folder) {
    const sample_model opened(name);
    if (opened.result != SU_ERROR_NONE)
        return 0;
    SUTextureWriterRef writer = SU_INVALID;
    SUTextureWriterCreate(&writer);
    for (sketchup::face& f : sketchup::api::object_of(opened.ref)->faces) {
        long front = 0, back = 0;
        SUTextureWriterLoadFace(writer, sketchup::api::handle_of<SUFaceRef>(f), &front, &back);
    }
    size_t numbers = 0;
    SUTextureWriterGetNumTextures(writer, &numbers);
    int count = 0;
    constexpr int most = 10; // of one model
    for (long id = 1; id <= static_cast<long>(numbers) && count < most; ++id) {
        bool affine = true;
        SUTextureWriterIsTextureAffine(writer, id, &affine);
        if (affine)
            continue;
        ++count;
        const std::string path = folder / "straight.png";
        EXPECT_EQ(SUTextureWriterWriteTexture(writer, id, path.c_str(), false), SU_ERROR_NONE) << name << " " << id;
        const size found = opened_as_png(path);
        EXPECT_GT(found[0], 0u) << name << " " << id;
        EXPECT_LE(std::max(found[0], found[1]), 2048u) << name << " " << id;
    }
    SUTextureWriterRelease(&writer);
    return count;
}

std::vector<std::string> all_samples() {
    std::vector<std::string> names;
    if (samples_folder().empty())
        return names;
    for (const auto& entry : std::filesystem::directory_iterator(samples_folder()))
        if (entry.path().extension() == ".skp")
            names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

sketchup::rgba color_of(SUMaterialRef material) {
    return sketchup::api::object_of(material)->color;
}

// The average that the host counts from in this file: up to two steps below the exact one, by its own way of averaging.
constexpr sketchup::rgba hosts_average = {142, 143, 144, 255};

} // namespace

TEST(SamplePictures, all_open_in_other_decoders_and_have_the_announced_size) {
    const std::vector<std::string> names = all_samples();
    if (names.empty())
        GTEST_SKIP() << "no samples";
    const temporary_folder folder;
    int count = 0;
    for (const std::string& name : names)
        count += expect_textures_open_elsewhere(name, folder);
    EXPECT_GT(count, 100);
    std::printf("%d textures\n", count);
}

TEST(SamplePictures, of_distorted_sides_open_in_other_decoders) {
    const std::vector<std::string> names = all_samples();
    if (names.empty())
        GTEST_SKIP() << "no samples";
    const temporary_folder folder;
    int count = 0;
    for (const std::string& name : names)
        count += expect_straightened_pictures_open_elsewhere(name, folder);
    EXPECT_GT(count, 0);
    std::printf("%d straightened pictures\n", count);
}

TEST(SampleColours, change_by_the_amounts_that_the_host_tells) {
    if (!has_sample("testup-MaterialTests.skp"))
        GTEST_SKIP() << "not at hand";
    const sample_model opened("testup-MaterialTests.skp");
    const auto materials = materials_by_name(opened.ref);
    const auto shifted = sketchup::change_between(hosts_average, color_of(materials.at("TexturedShifted")), false);
    EXPECT_NEAR(shifted.hue, -124.15384917569565, 1e-6);
    EXPECT_NEAR(shifted.lightness, -0.0019607990980148315, 1e-8);
    EXPECT_NEAR(shifted.saturation, 0.27996034147878235, 1e-7);
    const auto tinted = sketchup::change_between(hosts_average, color_of(materials.at("TexturedTinted")), true);
    EXPECT_NEAR(tinted.hue, 38.04878252219892, 1e-6);
    EXPECT_NEAR(tinted.lightness, 0.0039215534925460815, 1e-8);
    EXPECT_NEAR(tinted.saturation, 0.3604408195287968, 1e-7);
}

TEST(SampleColours, are_changed_when_a_texture_is_written_and_left_alone_in_its_original) {
    if (!has_sample("testup-MaterialTests.skp"))
        GTEST_SKIP() << "not at hand";
    const temporary_folder folder;
    const sample_model opened("testup-MaterialTests.skp");
    const auto materials = materials_by_name(opened.ref);
    for (const char* name : {"TexturedShifted", "TexturedTinted"}) {
        const SUTextureRef texture = texture_of(materials.at(name));
        ASSERT_EQ(SUTextureWriteToFile(texture, (folder / "shown.png").c_str()), SU_ERROR_NONE);
        ASSERT_EQ(SUTextureWriteOriginalToFile(texture, (folder / "original").c_str()), SU_ERROR_NONE);
        const auto shown = image::decode_picture(file_bytes(folder / "shown.png"));
        const auto original = image::decode_picture(file_bytes(folder / "original"));
        ASSERT_TRUE(shown && original);
        EXPECT_EQ(shown->extent(), original->extent()) << name;
        EXPECT_NE(*shown, *original) << name;
        const sketchup::rgba average = sketchup::average_color(*original);
        EXPECT_NEAR(average.red, hosts_average.red, 3);
        EXPECT_NEAR(average.green, hosts_average.green, 3);
        EXPECT_NEAR(average.blue, hosts_average.blue, 3);
    }
}

TEST(SampleColours, of_a_tinted_texture_have_one_hue) {
    if (!has_sample("testup-MaterialTests.skp"))
        GTEST_SKIP() << "not at hand";
    const temporary_folder folder;
    const sample_model opened("testup-MaterialTests.skp");
    const auto materials = materials_by_name(opened.ref);
    ASSERT_EQ(SUTextureWriteToFile(texture_of(materials.at("TexturedTinted")), (folder / "a.png").c_str()),
              SU_ERROR_NONE);
    const auto shown = image::decode_picture(file_bytes(folder / "a.png"));
    ASSERT_TRUE(shown);
    int strong = 0;
    for (std::size_t at = 0; at < shown->bytes().size(); at += shown->bytes_per_pixel()) {
        const std::uint8_t* pixel = shown->bytes().data() + at;
        if (std::max({pixel[0], pixel[1], pixel[2]}) - std::min({pixel[0], pixel[1], pixel[2]}) < 60)
            continue; // too pale to tell its hue from three bytes
        ++strong;
        // One step of a byte turns the hue by at most 60 / 60 degrees.
        ASSERT_NEAR(sketchup::hue_colour_of(pixel[2] / 255.0, pixel[1] / 255.0, pixel[0] / 255.0).hue, 38.0488, 2);
    }
    EXPECT_GT(strong, 100);
}

TEST(SampleImages, without_their_picture_fail_and_do_not_crash) {
    if (!has_sample("testup-missing_material.skp"))
        GTEST_SKIP() << "not at hand";
    const sample_model opened("testup-missing_material.skp");
    ASSERT_EQ(opened.result, SU_ERROR_NONE);
    SUEntitiesRef root = SU_INVALID;
    SUModelGetEntities(opened.ref, &root);
    const auto images = all_of(SUEntitiesGetNumImages, SUEntitiesGetImages, root);
    ASSERT_EQ(images.size(), 1u);
    size_t width = 7, height = 7, bytes = 7, bits = 7;
    SUByte data[4] = {};
    EXPECT_NE(SUImageGetPixelDimensions(images[0], &width, &height), SU_ERROR_NONE);
    EXPECT_NE(SUImageGetDataSize(images[0], &bytes, &bits), SU_ERROR_NONE);
    EXPECT_NE(SUImageGetData(images[0], sizeof data, data), SU_ERROR_NONE);
    EXPECT_EQ(width + height + bytes + bits, 28u);
}

TEST(SampleImages, that_are_glued_have_the_pixels_and_the_sizes_of_the_host) {
    if (!has_sample("testup-glued_images.skp"))
        GTEST_SKIP() << "not at hand";
    const sample_model opened("testup-glued_images.skp");
    SUEntitiesRef root = SU_INVALID;
    SUModelGetEntities(opened.ref, &root);
    const auto images = all_of(SUEntitiesGetNumImages, SUEntitiesGetImages, root);
    EXPECT_GE(images.size(), 5u);
    int large = 0;
    for (const SUImageRef image : images) {
        size_t width = 0, height = 0;
        EXPECT_EQ(SUImageGetPixelDimensions(image, &width, &height), SU_ERROR_NONE);
        large += width == 800 && height == 450;
    }
    EXPECT_GE(large, 1);
}
