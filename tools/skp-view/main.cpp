// Makes a page of a model that shows it in a browser, and a picture of it.

#include "platform/platform.h"
#include "text/path_end.h"
#include "tools/command_line/answers.h"
#include "tools/command_line/within_memory.h"
#include "tools/gltf/numbers.h"
#include "tools/model_opening/opened_model.h"
#include "tools/page/draw_into_place.h"
#include "tools/page/view_options.h"
#include "tools/page/work_file.h"
#include "tools/page/write_page.h"
#include "tools/raster/model_box.h"
#include "tools/raster/model_camera.h"
#include "tools/raster/model_painter.h"
#include "tools/skp_glb/skp_glb.h"

#include <cstdio>
#include <string>
#include <string_view>

namespace {

constexpr std::string_view usage =
    "usage: skp-view MODEL.skp [-o PAGE.html] [--png PICTURE.png [--size WxH] [--clear]]\n"
    "Makes a page that shows the model in a browser, without network, and a picture of it.\n"
    "  -o PAGE.html       the page\n"
    "  --png PICTURE.png  the picture, as the model's own camera sees it\n"
    "  --size WxH         of the picture, each side 1 to 8192 pixels; 640x480 if not said\n"
    "  --clear            the picture has no background\n"
    "Status 0 if all was written, 1 if the model cannot be opened, 2 for a wrong command line, 3 if something cannot "
    "be\n"
    "written. What of the model could not be shown is said on standard error.\n";

using gltf::metres_in_an_inch;

void say(const std::string& words) {
    std::fprintf(stderr, "skp-view: %s\n", words.c_str());
}

std::string make_page(SUModelRef model, const view_options& options) {
    const work_file glb(options.page_file, ".glb");
    const std::string name = platform::utf8_from_own(last_component(options.input));
    const skp_glb_result made = write_skp_glb(model, name, glb.name());
    for (const std::string& note : made.notes)
        say(note);
    std::string failure = made.failure;
    if (failure.empty()) {
        page_facts facts;
        facts.title = name;
        facts.kind = "model";
        facts.program = "skp-view";
        const view seen = camera_of(model, metres_in_an_inch);
        if (looks_somewhere(seen))
            facts.start = seen;
        failure = write_page(facts, glb.name(), options.page_file);
    }
    return failure;
}

std::string draw_picture(SUModelRef model, const view_options& options) {
    const double aspect = static_cast<double>(options.width) / static_cast<double>(options.height);
    view seen = camera_of(model, 1);
    if (!looks_somewhere(seen)) {
        const auto [low, high] = box_of(model);
        seen = view_of_box(low, high, aspect);
    }
    std::optional<color> background;
    if (!options.is_clear)
        background = model_painter::option_color(model, "BackgroundColor", {1, 1, 1});
    rasterizer picture(seen, options.width, options.height, samples_for(options), background);
    const work_file fetched(options.picture_file, ".png");
    model_painter painter(model, texture_source::material, fetched.name(), picture);
    painter.draw();
    if (painter.missing_pictures() > 0)
        say("pictures of the model that cannot be shown: " + std::to_string(painter.missing_pictures()));
    if (picture.is_cut_short())
        say("the picture would take too long: not everything is drawn");
    return put_in_place(picture, options.picture_file);
}

int show(const view_options& options) {
    const opened_model opened(options.input);
    if (!opened.is_open()) {
        say(options.input + ": " + opened.failure());
        return 1;
    }
    std::string failure;
    if (!options.page_file.empty())
        failure = make_page(opened.model(), options);
    if (failure.empty() && !options.picture_file.empty())
        failure = draw_picture(opened.model(), options);
    if (failure.empty())
        return 0;
    say(failure);
    return 3;
}

} // namespace

int main(int argc, char** argv) {
    if (const auto status = answer_at_once(argc, argv, "skp-view", usage, {"-o", "--png", "--size", "--clear"}))
        return *status;
    const auto options = read_view_options(argc, argv);
    if (!options)
        return refuse_command_line(usage);
    SUInitialize();
    const int status = within_memory("skp-view", [&options] { return show(*options); });
    SUTerminate();
    return status;
}
