// Writes a model as one GLB file.

#include "platform/platform.h"
#include "text/path_end.h"
#include "tools/command_line/answers.h"
#include "tools/command_line/within_memory.h"
#include "tools/model_opening/opened_model.h"
#include "tools/skp_glb/skp_glb.h"

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::string_view usage = "usage: skp-to-glb [--hidden] [--attributes] MODEL.skp OUT.glb\n"
                                   "Writes a model with its own structure as a GLB file (glTF 2.0).\n"
                                   "  --hidden      keeps what is hidden, or on a layer that is off\n"
                                   "  --attributes  writes attributes into the extras of what they belong to\n"
                                   "Status 0 if the file was written, 1 if the model cannot be opened, 2 for a wrong "
                                   "command line, 3 if the file cannot\n"
                                   "be written. What of the model could not be shown is said on standard error.\n";

int convert(const std::string& model_file, const std::string& glb_file, const skp_glb_options& options) {
    const opened_model opened(model_file);
    if (!opened.is_open()) {
        std::fprintf(stderr, "skp-to-glb: %s: %s\n", model_file.c_str(), opened.failure().c_str());
        return 1;
    }
    const std::string name = platform::utf8_from_own(last_component(model_file));
    const skp_glb_result result = write_skp_glb(opened.model(), name, glb_file, options);
    for (const std::string& note : result.notes)
        std::fprintf(stderr, "skp-to-glb: %s\n", note.c_str());
    if (result.failure.empty())
        return 0;
    std::fprintf(stderr, "skp-to-glb: %s\n", result.failure.c_str());
    return 3;
}

} // namespace

int main(int argc, char** argv) {
    if (const auto status = answer_at_once(argc, argv, "skp-to-glb", usage, {"--hidden", "--attributes"}))
        return *status;
    skp_glb_options options;
    std::vector<std::string> files;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--hidden")
            options.keep_hidden = true;
        else if (argument == "--attributes")
            options.with_attributes = true;
        else
            files.emplace_back(argument);
    }
    if (files.size() != 2)
        return refuse_command_line(usage);
    SUInitialize();
    const int status = within_memory("skp-to-glb", [&] { return convert(files[0], files[1], options); });
    SUTerminate();
    return status;
}
