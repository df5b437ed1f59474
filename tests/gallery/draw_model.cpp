// Draws a model as its own camera sees it, with its textures and without light, through the C interface:
//     draw_model [--written] MODEL PICTURE.png [WIDTH HEIGHT]
// --written takes pictures and coordinates from a texture writer, which straightens what is distorted.

#include "tools/command_line/answers.h"
#include "tools/raster/model_camera.h"
#include "tools/raster/model_painter.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

constexpr std::size_t samples_a_pixel_side = 3;

bool draw(const char* model_file, const char* picture_file, texture_source from, std::size_t width,
          std::size_t height) {
    SUModelRef model = SU_INVALID;
    if (SUModelCreateFromFile(&model, model_file) != SU_ERROR_NONE)
        return false;
    rasterizer picture(camera_of(model, 1), width, height, samples_a_pixel_side,
                       model_painter::option_color(model, "BackgroundColor", {1, 1, 1}));
    model_painter(model, from, std::string(picture_file) + ".work.png", picture).draw();
    SUModelRelease(&model);
    return picture.write_png(picture_file);
}

} // namespace

int main(int argc, char** argv) {
    constexpr std::string_view usage = "usage: draw_model [--written] MODEL PICTURE.png [WIDTH HEIGHT]\n";
    if (const auto status = answer_at_once(argc, argv, "draw_model", usage, {"--written"}))
        return *status;
    const bool written = argc > 1 && std::strcmp(argv[1], "--written") == 0;
    const int first = written ? 2 : 1;
    if (argc != first + 2 && argc != first + 4)
        return refuse_command_line(usage);
    const auto size = [&](int at, std::size_t otherwise) {
        return argc > at ? std::strtoul(argv[at], nullptr, 10) : otherwise;
    };
    SUInitialize();
    const bool drawn = draw(argv[first], argv[first + 1], written ? texture_source::writer : texture_source::material,
                            size(first + 2, 480), size(first + 3, 320));
    SUTerminate();
    if (!drawn)
        std::fprintf(stderr, "draw_model: cannot draw %s\n", argv[first]);
    return drawn ? 0 : 1;
}
