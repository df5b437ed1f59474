#pragma once

// The pictures of a model as the C interface writes them, each fetched once.

#include "image/picture.h"
#include "sketchup/SketchUpAPI.h"

#include <map>
#include <optional>
#include <string>
#include <utility>

class model_pictures {
public:
    // work_file: a name that no file has; the calls write each picture there, and nothing is left of it in the end.
    explicit model_pictures(std::string work_file) : file(std::move(work_file)) {}
    model_pictures(const model_pictures&) = delete;
    model_pictures& operator=(const model_pictures&) = delete;
    ~model_pictures();

    // The picture of a texture, recoloured as its material wants; null if it cannot be written or read.
    const image::picture* of(SUTextureRef texture);

    // The picture of a number of a texture writer; null as above.
    const image::picture* of(SUTextureWriterRef writer, long number);

    // The pixels of a placed image; null if it has none.
    const image::picture* of(SUImageRef image);

    // How many of those that were asked for cannot be shown.
    std::size_t missing() const;

private:
    const image::picture* written_to(const void* key, SUResult result);

    std::string file;
    std::map<const void*, std::optional<image::picture>> found;
    std::map<long, char> numbers; // gives each number of a texture writer an address of its own
};
