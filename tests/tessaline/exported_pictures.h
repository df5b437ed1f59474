#pragma once

// Pictures on their way out of a model into the folders of a batch, on a model that was built in memory.

#include "image/decode_picture.h"
#include "image/encode_picture.h"
#include "tests/image/pictures.h"
#include "tests/tessaline/reader_fixture.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

using picture_bytes = std::vector<std::uint8_t>;

inline picture_bytes encoded(const image::picture& source, image::picture_format format) {
    return image::encode_picture(source, format);
}

// A BMP of one pixel whose header announces another size.
inline picture_bytes bmp_that_announces(std::uint32_t width, std::uint32_t height) {
    constexpr std::size_t width_at = 18; // from the start of the file, little-endian
    constexpr std::size_t height_at = 22;
    picture_bytes file = encoded(gradient(1, 1), image::picture_format::bmp);
    for (std::size_t i = 0; i < 4; ++i) {
        file[width_at + i] = static_cast<std::uint8_t>(width >> 8 * i);
        file[height_at + i] = static_cast<std::uint8_t>(height >> 8 * i);
    }
    return file;
}

// A reader on a batch folder of the test's own.
class exported_pictures_test : public reader_test {
protected:
    exported_pictures_test() {
        theApp.batch_folder = batch.make_folder("batch");
        theApp.textures_folder = "Textures";
        theApp.materials_folder = "Materials";
        theApp.images_folder = "Images";
        batch.make_folder("batch/Images");
        set_global_int("ivl_max_image_resolution", 1);
    }

    // Opens what the builder holds, in place of the model that is open; the builder is as new afterwards.
    void open_next() {
        if (SUIsValid(open_model))
            SUModelRelease(&open_model);
        layers.clear();
        open();
        builder = sketchup::model_builder();
    }

    // The full name of what lies in the folder of pictures under that name.
    std::string picture(const std::string& name) const { return batch / ("batch/Textures/" + name); }
    picture_bytes bytes_of_picture(const std::string& name) const {
        const std::string text = text_of_file(picture(name));
        return {text.begin(), text.end()};
    }
    image::picture decoded_picture(const std::string& name) const {
        return image::decode_picture(bytes_of_picture(name)).value_or(image::picture());
    }
    image::picture_format format_of_picture(const std::string& name) const {
        return image::format_of_bytes(bytes_of_picture(name));
    }
    // The names of all files in and around the batch folder, from the surrounding folder on.
    std::set<std::string> all_files() const {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(batch.name()))
            if (!entry.is_directory())
                names.insert(std::filesystem::relative(entry.path(), batch.name()).generic_string());
        return names;
    }
};
