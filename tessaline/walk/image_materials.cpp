// Which material carries a picture that is placed in the model, and how the picture comes into the batch folder. Reads
// and fills the material records and folders of the run.

#include "image/picture.h"
#include "qlw/fast_image.h"
#include "qlw/qlw_trace.h"
#include "tessaline/files/paths.h"
#include "tessaline/materials/material_file.h"
#include "tessaline/materials/material_folders.h"
#include "tessaline/materials/name_escaping.h"
#include "tessaline/model/model_text.h"
#include "tessaline/state/run_state.h"
#include "tessaline/walk/SketchUpReader.h"
#include "text/letter_case.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

namespace {

constexpr std::size_t bits_without_alpha = 24;

// What an image becomes in the batch folder.
struct image_material {
    std::string name;         // of the picture, "Tree_88.jpg", in UTF-8
    std::string file;         // by which the stream refers to the material, "IMAGE_TX_Tree_88.jpg.OrnMaterial"
    std::string object_path;  // full name of the material file
    std::string texture_name; // of the picture as it is written, in UTF-8
    std::string texture_path; // full name of the picture that the renderer is told of
    std::string folder_copy;  // full name of the picture that whoever prepared the batch may have put there
    std::string test_word;    // the last four characters of the name, in capitals
};

std::string path_of_picture(const std::string& name) {
    return joined(texture_folder_path, platform::own_from_utf8(name));
}

image_material described(SUImageRef image) {
    constexpr std::size_t length_of_test_word = 4;
    constexpr std::size_t length_of_prefix = std::string_view("IMAGE_").size();
    const std::string stored_name = name_by(SUImageGetFileName, image);
    const std::string_view bare_name = bare_name_of(stored_name);
    const std::string_view extension = extension_of(bare_name);
    std::int32_t id = 0;
    SUEntityGetID(SUImageToEntity(image), &id);

    image_material made;
    made.name = bare_name.substr(0, bare_name.size() - extension.size());
    made.name.append("_").append(std::to_string(id)).append(extension);
    const std::string base = "IMAGE_TX_" + made.name;
    const std::string encoded = url_encode_name(base);
    made.file = encoded + ".OrnMaterial";
    made.object_path = joined_inside(material_folder_path, encoded + ".qlobj");
    made.texture_name = base.substr(length_of_prefix);
    made.texture_path = path_of_picture(made.texture_name);
    made.folder_copy = joined(joined(theApp.batch_folder, theApp.images_folder), platform::own_from_utf8(made.name));
    made.test_word = in_capitals(made.name.substr(made.name.size() - std::min(made.name.size(), length_of_test_word)));
    return made;
}

// ---- the picture from the image's own pixels

struct raw_pixels {
    std::size_t width = 0;
    std::size_t height = 0;
    std::size_t bits_per_pixel = 0;
    std::vector<SUByte> bytes; // rows from the top, each filled up to a multiple of 4 bytes; empty if there are none

    std::size_t bytes_per_row() const {
        constexpr std::size_t bits_of_filled_part = 32;
        constexpr std::size_t bytes_of_filled_part = 4;
        return (width * bits_per_pixel + bits_of_filled_part - 1) / bits_of_filled_part * bytes_of_filled_part;
    }
    bool is_none() const { return width == 0 || height == 0; }
    // More than a picture in memory may have, or wider or higher than a texture may be made from pixels.
    bool are_too_many() const {
        constexpr std::size_t longest_side = 65535;
        return !is_none() && (width > image::most_pixels / height || std::max(width, height) > longest_side);
    }
};

// Without bytes as yet.
raw_pixels announced_pixels(SUImageRef image, std::size_t bits_per_pixel) {
    raw_pixels pixels;
    pixels.bits_per_pixel = bits_per_pixel;
    SUImageGetPixelDimensions(image, &pixels.width, &pixels.height);
    return pixels;
}

// Without bytes if the image has no pixels, and if they cannot be read.
raw_pixels pixels_of(SUImageRef image, raw_pixels pixels, std::size_t data_size) {
    constexpr std::uint64_t most_bytes = image::most_pixels * 4;
    // Less than all rows would be read past its end.
    if (pixels.is_none() || data_size < pixels.bytes_per_row() * pixels.height || data_size > most_bytes)
        return pixels;
    pixels.bytes.resize(data_size);
    if (SUImageGetData(image, data_size, pixels.bytes.data()) != SU_ERROR_NONE)
        pixels.bytes.clear();
    return pixels;
}

// A texture of the interface from those pixels, given back with its scope: the pictures of a model may together be more
// than memory holds.
class made_texture {
public:
    explicit made_texture(const raw_pixels& pixels) {
        if (!pixels.bytes.empty())
            SUTextureCreateFromImageData(&handle, pixels.width, pixels.height, pixels.bits_per_pixel,
                                         pixels.bytes.data());
    }
    made_texture(const made_texture&) = delete;
    made_texture& operator=(const made_texture&) = delete;
    ~made_texture() {
        if (is_valid())
            SUTextureRelease(&handle);
    }

    bool is_valid() const { return SUIsValid(handle); }
    void write(const std::string& path) const { SUTextureWriteToFile(handle, platform::utf8_from_own(path).c_str()); }

private:
    SUTextureRef handle = SU_INVALID;
};

// A picture without alpha is rebuilt and encoded here.
void write_rebuilt(const raw_pixels& pixels, const std::string& path) {
    cl_fast_image rebuilt;
    const int width = static_cast<int>(pixels.width);
    const int height = static_cast<int>(pixels.height);
    if (!rebuilt.create(width, height, static_cast<int>(bits_without_alpha)))
        return;
    constexpr std::size_t bytes_of_pixel = bits_without_alpha / 8;
    for (int y = 0; y < height; ++y)
        std::memcpy(rebuilt.row(y), pixels.bytes.data() + static_cast<std::size_t>(y) * pixels.bytes_per_row(),
                    pixels.width * bytes_of_pixel);
    rebuilt.save(path);
}

// The image's picture in the hands of the host, which need not unpack it where the file that the model holds will do.
class stored_picture {
public:
    explicit stored_picture(SUImageRef image) {
        SUTextureWriterCreate(&writer);
        SUTextureWriterLoadEntity(writer, SUImageToEntity(image), &id);
    }
    stored_picture(const stored_picture&) = delete;
    stored_picture& operator=(const stored_picture&) = delete;
    ~stored_picture() { SUTextureWriterRelease(&writer); }

    void write(const std::string& path) const {
        constexpr bool reorient = false;
        SUTextureWriterWriteTexture(writer, id, platform::utf8_from_own(path).c_str(), reorient);
    }

private:
    SUTextureWriterRef writer = SU_INVALID; // not that of the run, whose numbers stand in file names
    long id = 0;
};

// Any other is written by the host: under its name, or else under what remains of it when all that a file name might
// not bear is dropped. Picture: made_texture or stored_picture.
template<class Picture>
void write_by_host(image_material& made, const Picture& texture) {
    texture.write(made.texture_path);
    if (is_file(made.texture_path))
        return;
    if (is_file(made.folder_copy)) {
        made.texture_path = made.folder_copy;
        return;
    }
    const std::string& name = made.texture_name;
    const std::string_view extension = extension_of(name);
    const std::string safe_name = filter_file_name(name.substr(0, name.size() - extension.size())).append(extension);
    const std::string safe_path = path_of_picture(safe_name);
    if (!is_file(safe_path))
        texture.write(safe_path);
    if (is_file(safe_path)) {
        made.texture_path = safe_path;
        made.name = safe_name;
    }
}

// Four characters are compared, so a picture named .jpeg or .tiff gets the second extension as well.
void settle_extension(image_material& made) {
    static constexpr std::string_view kept[] = {".PNG", ".JPG", ".BMP", ".PSD", ".TIF"};
    if (std::find(std::begin(kept), std::end(kept), made.test_word) == std::end(kept))
        made.texture_path = path_of_picture(made.texture_name += ".PNG");
}

// A picture whose pixels are too many to be passed on. False, with a word in the trace, if there is no way to write it.
bool export_large_picture(image_material& made, SUImageRef image, const raw_pixels& size) {
    settle_extension(made);
    write_by_host(made, stored_picture(image));
    if (is_file(made.texture_path))
        return true;
    cl_trace::here("SketchUpReader::get_image_material_number", trace_level::report)
        .report("Image of %d by %d pixels cannot be written: %s", size.width, size.height, made.texture_path);
    return false;
}

// False if the image has no pixels or they cannot be read. What cannot be written is not noticed.
bool export_picture(image_material& made, SUImageRef image, std::size_t data_size, std::size_t bits_per_pixel) {
    const raw_pixels size = announced_pixels(image, bits_per_pixel);
    if (size.are_too_many())
        return export_large_picture(made, image, size);
    const raw_pixels pixels = pixels_of(image, size, data_size);
    const made_texture texture(pixels);
    if (!texture.is_valid())
        return false;
    settle_extension(made);
    if (bits_per_pixel == bits_without_alpha)
        write_rebuilt(pixels, made.texture_path);
    else
        write_by_host(made, texture);
    return true;
}

// ---- the material

void write_object_file(const image_material& made) {
    cl_material_params params;
    params.display_name = params.orig_name = made.name;
    params.image_path = made.texture_path;
    params.tile_x = params.tile_y = 1;
    params.values.bump_intensity = 0;
    write_material_file(params, made.file, made.object_path);
}

int add_record(const image_material& made) {
    cl_tsl_material record;
    record.material_id = -1;
    record.name = made.name;
    record.image_path = made.texture_path;
    const int index = static_cast<int>(material_records.size());
    material_records.push_back(std::move(record));
    material_name_map[made.name] = index;
    return index;
}

} // namespace

int SketchUpReader::get_image_material_number(SUImageRef image) {
    ready_material_folders();
    image_material made = described(image);
    std::size_t data_size = 0;
    std::size_t bits_per_pixel = 0;
    SUImageGetDataSize(image, &data_size, &bits_per_pixel);
    const bool takes_copy =
        (made.test_word != ".PNG" || bits_per_pixel == bits_without_alpha) && is_file(made.folder_copy);
    if (takes_copy)
        made.texture_path = made.folder_copy;
    const int known = materials.record_with_picture(made.texture_path, material_records);
    if (known >= 0)
        return known + first_material_number;
    if (!takes_copy && !export_picture(made, image, data_size, bits_per_pixel))
        return 0;
    write_object_file(made);
    const int number = add_record(made) + first_material_number;
    stream.write_material_declaration(made.file, number);
    return number;
}
