// Reads any bytes as a batch, writes it as a GLB file, which must hold what its text says, and draws it. Files of the
// batch follow one another, each behind a line "== NAME"; what stands in front of the first is the stream.

#include "tests/gltf/sound_glb.h"
#include "tests/support/temporary_folder.h"
#include "tools/batch_glb/batch_glb.h"
#include "tools/batch_reading/stream_reader.h"
#include "tools/raster/rasterizer.h"
#include "tools/raster/stream_painter.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

namespace {

constexpr std::string_view others[] = {"ZynBatch_Materials/a.qlobj", "ZynBatch_Lights/light_0.txt", "zyn_view.txt",
                                       "option_globals.txt", "Batch_SketchUp_Textures/a.png"};

void write_batch(const temporary_folder& folder, std::string_view bytes) {
    std::string name = "batch_file.txt";
    for (const std::string_view other : others)
        platform::delete_file(folder / ("in/" + std::string(other)));
    while (true) {
        const std::size_t next = bytes.find("\n== ");
        folder.write("in/" + name, bytes.substr(0, next));
        if (next == std::string_view::npos)
            return;
        bytes.remove_prefix(next + 4);
        const std::string_view wanted = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(std::min(bytes.size(), wanted.size() + 1));
        name = "nothing";
        for (const std::string_view other : others)
            if (other == wanted)
                name = other;
    }
}

void draw(const std::string& batch_folder, const std::string& stream) {
    view seen;
    seen.eye = {3, -4, 5};
    constexpr std::uint64_t most_work = 100000; // points, so that an input takes no longer than the others
    rasterizer picture(seen, 8, 8, 1, std::nullopt, most_work);
    stream_painter painter(batch_folder, picture);
    read_stream(stream, painter);
    painter.finish();
    painter.notes();
    picture.drawn();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const temporary_folder folder;
    write_batch(folder, {reinterpret_cast<const char*>(data), size});
    // So little memory that the file beside is used too.
    const batch_glb_result result = write_batch_glb(folder / "in", folder / "out.glb", 256);
    const std::string fault = result.failure.empty() ? sound_glb::fault_in(folder.read("out.glb")) : result.failure;
    if (!fault.empty()) {
        std::fprintf(stderr, "%s\n", fault.c_str());
        std::abort();
    }
    draw(folder / "in", folder.read("in/batch_file.txt"));
    return 0;
}
