#include "tools/batch-view/draw_batch.h"

#include "platform/platform.h"
#include "tools/batch_glb/batch_view.h"
#include "tools/batch_reading/file_lines.h"
#include "tools/batch_reading/stream_reader.h"
#include "tools/page/draw_into_place.h"
#include "tools/raster/rasterizer.h"
#include "tools/raster/stream_painter.h"

#include <numbers>
#include <string_view>

namespace {

struct box_finder : public stream_visitor {
    void triangle(const stream_triangle& found) override {
        if (found.unseen || !lies_somewhere(found))
            return;
        for (const stream_vertex* corner : found.corners) {
            const auto& [x, y, z] = corner->position;
            box.include(gltf::float3{static_cast<float>(x), static_cast<float>(y), static_cast<float>(z)});
        }
    }
    gltf::float_range box;
};

// False if there is no stream that can be read.
bool read_batch(const std::string& batch_folder, stream_visitor& visitor) {
    file_lines lines;
    if (!lines.open(batch_folder + platform::path_separator + "batch_file.txt"))
        return false;
    stream_line_reader reader(visitor);
    std::string_view line;
    while (lines.next(line))
        reader.add(line);
    reader.finish();
    return true;
}

view view_of_all(const gltf::float_range& box, double aspect) {
    if (box.is_empty)
        return view_of_box({-1, -1, -1}, {1, 1, 1}, aspect);
    const auto corner = [](const gltf::float3& p) { return vec{double{p[0]}, double{p[1]}, double{p[2]}}; };
    return view_of_box(corner(box.low), corner(box.high), aspect);
}

} // namespace

std::optional<view> start_of_batch(const std::string& batch_folder, const gltf::float_range& box) {
    const auto found = view_of_batch(batch_folder, box);
    if (!found)
        return std::nullopt;
    view result;
    result.eye = found->eye;
    result.target = found->target;
    result.perspective = !found->is_parallel;
    result.field_of_view = found->field_of_view * 180 / std::numbers::pi;
    result.height = found->height;
    return looks_somewhere(result) ? std::optional(result) : std::nullopt;
}

drawn_batch draw_batch(const view_options& options) {
    drawn_batch result;
    box_finder found;
    result.is_batch = read_batch(options.input, found);
    if (!result.is_batch) {
        result.failure = options.input + ": there is no stream that can be read";
        return result;
    }
    const double aspect = static_cast<double>(options.width) / static_cast<double>(options.height);
    const view seen = start_of_batch(options.input, found.box).value_or(view_of_all(found.box, aspect));
    const std::optional<color> background = color{0.92, 0.92, 0.92};
    rasterizer picture(seen, options.width, options.height, samples_for(options),
                       options.is_clear ? std::nullopt : background);
    stream_painter painter(options.input, picture);
    read_batch(options.input, painter);
    painter.finish();
    result.notes = painter.notes();
    result.failure = put_in_place(picture, options.picture_file);
    return result;
}
