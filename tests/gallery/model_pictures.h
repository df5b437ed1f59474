#pragma once

// The pictures of a model as the C interface writes them, each fetched once.

#include "image/picture.h"
#include "sketchup/SketchUpAPI.h"
#include "tests/support/temporary_folder.h"

#include <map>
#include <optional>

class model_pictures {
public:
    // The picture of a texture, recoloured as its material wants; null if it cannot be written or read.
    const image::picture* of(SUTextureRef texture);

    // The picture of a number of a texture writer; null as above.
    const image::picture* of(SUTextureWriterRef writer, long number);

    // The pixels of a placed image; null if it has none.
    const image::picture* of(SUImageRef image);

private:
    const image::picture* written_to(const void* key, SUResult result);

    temporary_folder folder;
    std::string file = folder / "picture.png";
    std::map<const void*, std::optional<image::picture>> found;
    std::map<long, char> numbers; // gives each number of a texture writer an address of its own
};
