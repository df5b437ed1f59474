// Makes a page of a batch folder that shows in a browser what the renderer will get, and a picture of it.

#include "platform/platform.h"
#include "text/path_end.h"
#include "tools/batch-view/checker_findings.h"
#include "tools/batch-view/draw_batch.h"
#include "tools/batch_glb/batch_glb.h"
#include "tools/command_line/answers.h"
#include "tools/command_line/within_memory.h"
#include "tools/page/view_options.h"
#include "tools/page/work_file.h"
#include "tools/page/write_page.h"

#include <cstdio>
#include <string>
#include <string_view>

namespace {

constexpr std::string_view usage =
    "usage: batch-view BATCH_FOLDER [-o PAGE.html] [--png PICTURE.png [--size WxH] [--clear]]\n"
    "Makes a page that shows in a browser, without network, what the renderer will get, and a picture of it.\n"
    "  -o PAGE.html       the page, with what batch-check finds\n"
    "  --png PICTURE.png  the picture, from the view of the batch, or of all from a corner\n"
    "  --size WxH         of the picture, each side 1 to 8192 pixels; 640x480 if not said\n"
    "  --clear            the picture has no background\n"
    "Status 0 if all was written, 1 if there is no batch, 2 for a wrong command line, 3 if something cannot be "
    "written.\n"
    "What of the batch could not be shown is said on standard error.\n";

struct ended {
    int status = 0;
    std::string failure; // in words; empty with status 0
};

void say(const std::string& words) {
    std::fprintf(stderr, "batch-view: %s\n", words.c_str());
}

ended make_page(const view_options& options) {
    const work_file glb(options.page_file, ".glb");
    const batch_glb_result made = write_batch_glb(options.input, glb.name());
    for (const std::string& note : made.notes)
        say(note);
    if (made.outcome != batch_glb_outcome::done)
        return {made.outcome == batch_glb_outcome::no_batch ? 1 : 3, made.failure};
    page_facts facts;
    facts.title = platform::utf8_from_own(last_component(options.input));
    facts.kind = "batch";
    facts.program = "batch-view";
    facts.start = start_of_batch(options.input, made.box);
    add_findings(options.input, facts);
    const std::string failure = write_page(facts, glb.name(), options.page_file);
    return {failure.empty() ? 0 : 3, failure};
}

ended make_picture(const view_options& options) {
    const drawn_batch drawn = draw_batch(options);
    for (const std::string& note : drawn.notes)
        say(note);
    return {drawn.is_batch ? (drawn.failure.empty() ? 0 : 3) : 1, drawn.failure};
}

int show(const view_options& options) {
    ended end;
    if (!options.page_file.empty())
        end = make_page(options);
    if (end.status == 0 && !options.picture_file.empty())
        end = make_picture(options);
    if (end.status != 0)
        say(end.failure);
    return end.status;
}

} // namespace

int main(int argc, char** argv) {
    if (const auto status = answer_at_once(argc, argv, "batch-view", usage, {"-o", "--png", "--size", "--clear"}))
        return *status;
    const auto options = read_view_options(argc, argv);
    if (!options)
        return refuse_command_line(usage);
    return within_memory("batch-view", [&options] { return show(*options); });
}
