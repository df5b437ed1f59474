// Draws a converted model as its own camera sees it, from the stream and the materials and pictures beside it:
//     draw_stream MODEL STREAM PICTURE.png [WIDTH HEIGHT]

#include "platform/platform.h"
#include "sketchup/SketchUpAPI.h"
#include "tools/batch_reading/stream_reader.h"
#include "tools/command_line/answers.h"
#include "tools/gltf/numbers.h"
#include "tools/raster/model_camera.h"
#include "tools/raster/rasterizer.h"
#include "tools/raster/stream_painter.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr std::size_t samples_a_pixel_side = 3;

view camera_of_file(const std::string& model_file) {
    view result;
    SUModelRef model = SU_INVALID;
    if (SUModelCreateFromFile(&model, model_file.c_str()) != SU_ERROR_NONE)
        return result;
    result = camera_of(model, gltf::metres_in_an_inch);
    SUModelRelease(&model);
    return result;
}

std::string folder_of(const std::string& file_name) {
    const std::size_t separator = file_name.rfind('/');
    return separator == std::string::npos ? "." : file_name.substr(0, separator);
}

} // namespace

int main(int argc, char** argv) {
    constexpr std::string_view usage = "usage: draw_stream MODEL STREAM PICTURE.png [WIDTH HEIGHT]\n";
    if (const auto status = answer_at_once(argc, argv, "draw_stream", usage))
        return *status;
    if (argc != 4 && argc != 6)
        return refuse_command_line(usage);
    SUInitialize();
    const view seen = camera_of_file(argv[1]);
    SUTerminate();
    const auto bytes = platform::read_file(argv[2], std::uint64_t{1} << 36U);
    if (!bytes) {
        std::fprintf(stderr, "draw_stream: cannot read %s\n", argv[2]);
        return 1;
    }
    const std::size_t width = argc == 6 ? std::strtoul(argv[4], nullptr, 10) : 480;
    const std::size_t height = argc == 6 ? std::strtoul(argv[5], nullptr, 10) : 320;
    rasterizer picture(seen, width, height, samples_a_pixel_side);
    stream_painter with(folder_of(argv[2]), picture);
    read_stream({reinterpret_cast<const char*>(bytes->data()), bytes->size()}, with);
    with.finish();
    for (const std::string& note : with.notes())
        std::fprintf(stderr, "draw_stream: %s\n", note.c_str());
    return picture.write_png(argv[3]) ? 0 : 1;
}
