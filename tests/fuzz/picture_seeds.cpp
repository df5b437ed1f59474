#include "tests/fuzz/picture_seeds.h"

#include "image/encode_picture.h"
#include "tests/image/made_files.h"
#include "tests/image/pictures.h"

std::vector<std::pair<std::string, std::vector<std::uint8_t>>> picture_seeds() {
    using enum image::picture_format;
    return {
        {"colour.png", image::encode_picture(noise(5, 4), png)},
        {"alpha.png", image::encode_picture(noise(5, 4, 32), png)},
        {"palette.png", small_palette_png()},
        {"deep.png", made_png({1, 1, 16, 2, false, {}, {}}, {{255, 255, 128, 128, 0, 0}})},
        {"colour.jpg", image::encode_picture(gradient(9, 9), jpeg)},
        {"progressive.jpg", progressive_jpeg(gradient(9, 9))},
        {"grey.jpg", grey_jpeg(8, 8, 77)},
        {"inks.jpg", ink_jpeg({10, 20, 30, 40}, true)},
        {"colour.bmp", image::encode_picture(noise(5, 4), bmp)},
        {"runs.bmp", rle8_bmp()},
        {"colour.tif", image::encode_picture(noise(5, 4), tiff)},
        {"alpha.tif", image::encode_picture(noise(5, 4, 32), tiff)},
        {"runs.tga", packed_tga()},
        {"small.gif", small_gif()},
        {"runs.psd", packed_psd()},
    };
}
