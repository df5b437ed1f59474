#include "tools/batch-view/draw_batch.h"

#include "platform/platform.h"
#include "tools/batch_glb/batch_view.h"
#include "tools/batch_reading/stream_reader.h"
#include "tools/page/draw_into_place.h"
#include "tools/raster/rasterizer.h"
#include "tools/raster/stream_painter.h"

#include <algorithm>
#include <limits>
#include <numbers>
#include <string_view>
#include <utility>

namespace {

constexpr std::uint64_t largest_stream = std::uint64_t{1} << 36U; // 64 GiB: anything larger is no stream of ours
constexpr double infinite = std::numeric_limits<double>::infinity();

struct box_finder : public stream_visitor {
    void triangle(const stream_triangle& found) override {
        for (const stream_vertex* corner : found.corners)
            for (std::size_t i = 0; i < low.size(); ++i) {
                low[i] = std::min(low[i], corner->position[i]);
                high[i] = std::max(high[i], corner->position[i]);
            }
    }
    vec low{infinite, infinite, infinite};
    vec high{-infinite, -infinite, -infinite};
};

std::pair<vec, vec> box_of(std::string_view stream) {
    box_finder box;
    read_stream(stream, box);
    if (box.low[0] > box.high[0])
        return {{-1, -1, -1}, {1, 1, 1}};
    return {box.low, box.high};
}

std::optional<view> view_within(const std::string& batch_folder, const vec& low, const vec& high) {
    gltf::float_range box;
    for (const vec& corner : {low, high})
        box.include(
            gltf::float3{static_cast<float>(corner[0]), static_cast<float>(corner[1]), static_cast<float>(corner[2])});
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

std::optional<std::vector<std::byte>> stream_of(const std::string& batch_folder) {
    return platform::read_file(batch_folder + platform::path_separator + "batch_file.txt", largest_stream);
}

std::string_view text_of(const std::vector<std::byte>& bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

} // namespace

std::optional<view> start_of_batch(const std::string& batch_folder) {
    const auto bytes = stream_of(batch_folder);
    if (!bytes)
        return std::nullopt;
    const auto [low, high] = box_of(text_of(*bytes));
    return view_within(batch_folder, low, high);
}

drawn_batch draw_batch(const view_options& options) {
    drawn_batch result;
    const auto bytes = stream_of(options.input);
    if (!bytes) {
        result.failure = options.input + ": there is no stream that can be read";
        return result;
    }
    result.is_batch = true;
    const auto [low, high] = box_of(text_of(*bytes));
    const double aspect = static_cast<double>(options.width) / static_cast<double>(options.height);
    const view seen = view_within(options.input, low, high).value_or(view_of_box(low, high, aspect));
    const std::optional<color> background = color{0.92, 0.92, 0.92};
    rasterizer picture(seen, options.width, options.height, samples_for(options),
                       options.is_clear ? std::nullopt : background);
    stream_painter painter(options.input, picture);
    read_stream(text_of(*bytes), painter);
    painter.finish();
    result.notes = painter.notes();
    result.failure = put_in_place(picture, options.picture_file);
    return result;
}
