// Draws a geometry stream as the camera of its model sees it:
//     draw_stream MODEL STREAM PICTURE.png
// Faces are shaded by their vertex normals; front sides are light, back sides bluish. Edge lines are dark.

#include "platform/platform.h"
#include "sketchup/api/inspect.h"
#include "sketchup/model/model.h"
#include "sketchup/SketchUpAPI.h"
#include "tests/gallery/rasterizer.h"
#include "tools/batch_reading/stream_reader.h"

#include <cmath>
#include <cstdio>

namespace {

constexpr double metres_in_an_inch = 0.0254;
constexpr std::size_t picture_width = 480;
constexpr std::size_t picture_height = 320;

vec in_metres(const sketchup::vec3& p) {
    return {p.x * metres_in_an_inch, p.y * metres_in_an_inch, p.z * metres_in_an_inch};
}

view camera_of(const std::string& model_file) {
    view result;
    SUModelRef model = SU_INVALID;
    if (SUModelCreateFromFile(&model, model_file.c_str()) != SU_ERROR_NONE)
        return result;
    const sketchup::camera& camera = sketchup::model_behind(model)->camera;
    result.eye = in_metres(camera.eye);
    result.target = in_metres(camera.target);
    result.up = {camera.up.x, camera.up.y, camera.up.z};
    result.perspective = camera.perspective;
    result.field_of_view = camera.field_of_view;
    result.height = camera.height * metres_in_an_inch;
    SUModelRelease(&model);
    return result;
}

class painter : public stream_visitor {
public:
    painter(rasterizer& into, const vec& seen_from) : picture(into), eye(seen_from) {}

    void triangle(const stream_triangle& found) override {
        std::array<vec, 3> corners{};
        vec normal{};
        for (std::size_t i = 0; i < 3; ++i) {
            corners[i] = found.corners[i]->position;
            for (std::size_t k = 0; k < 3; ++k)
                normal[k] += found.corners[i]->normal[k] / 3;
        }
        constexpr int edge_material = 1;
        if (found.material == edge_material) {
            picture.draw(corners, {0.1, 0.1, 0.12});
            return;
        }
        const double towards = normal[0] * (eye[0] - corners[0][0]) + normal[1] * (eye[1] - corners[0][1]) +
                               normal[2] * (eye[2] - corners[0][2]);
        const double light = 0.55 + 0.25 * normal[2] + 0.2 * normal[0] - 0.1 * normal[1];
        const double shade = towards >= 0 ? light : 0.55 - (light - 0.55);
        if (towards >= 0)
            picture.draw(corners, {shade, shade, shade * 0.95});
        else
            picture.draw(corners, {shade * 0.8, shade * 0.85, shade});
    }

private:
    rasterizer& picture;
    vec eye;
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fputs("usage: draw_stream MODEL STREAM PICTURE.png\n", stderr);
        return 2;
    }
    SUInitialize();
    const view seen = camera_of(argv[1]);
    SUTerminate();
    const auto bytes = platform::read_file(argv[2], std::uint64_t{1} << 36U);
    if (!bytes) {
        std::fprintf(stderr, "draw_stream: cannot read %s\n", argv[2]);
        return 1;
    }
    rasterizer picture(seen, picture_width, picture_height);
    painter with(picture, seen.eye);
    read_stream({reinterpret_cast<const char*>(bytes->data()), bytes->size()}, with);
    return picture.write_png(argv[3]) ? 0 : 1;
}
