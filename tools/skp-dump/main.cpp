// Prints what the provider sees in model files.

#include "tools/command_line/answers.h"
#include "tools/model_opening/opened_model.h"
#include "tools/skp-dump/prints.h"
#include "tools/skp-dump/write_textures.h"

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace {

enum class form { summary, json, tree };

struct request {
    form wanted = form::summary;
    bool writes_textures = false;
    std::string texture_folder;
    std::vector<std::string> models;
};

constexpr std::string_view usage = "usage: skp-dump [--summary | --json | --tree] [--textures FOLDER] MODEL...\n"
                                   "  --summary  counts, sizes, layers and materials as text (the default)\n"
                                   "  --json     one object a file, on one line\n"
                                   "  --tree     the hierarchy with names, layers, transforms and attributes\n"
                                   "  --textures FOLDER  the pictures of all materials as files\n"
                                   "Status 0 if every model opened and every picture was written, 1 otherwise.\n";

// True if the model opened and, if asked for, its pictures could be written.
bool dump(const std::string& file_name, const request& asked) {
    const opened_model opened(file_name);
    if (!opened.is_open()) {
        if (asked.wanted == form::json)
            print_json_failure(opened.failure());
        std::fprintf(stderr, "skp-dump: %s: %s\n", file_name.c_str(), opened.failure().c_str());
        return false;
    }
    switch (asked.wanted) {
    case form::summary:
        print_summary(file_name, opened.model());
        break;
    case form::json:
        print_json(file_name, opened.model());
        break;
    case form::tree:
        print_tree(opened.model());
        break;
    }
    return !asked.writes_textures || write_textures(opened.model(), asked.texture_folder);
}

// False if the arguments make no sense.
bool read_arguments(int argc, char** argv, request& asked) {
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--summary")
            asked.wanted = form::summary;
        else if (argument == "--json")
            asked.wanted = form::json;
        else if (argument == "--tree")
            asked.wanted = form::tree;
        else if (argument == "--textures") {
            if (++i == argc)
                return false;
            asked.writes_textures = true;
            asked.texture_folder = argv[i];
        } else
            asked.models.emplace_back(argument);
    }
    return !asked.models.empty();
}

} // namespace

int main(int argc, char** argv) {
    if (const auto status =
            answer_at_once(argc, argv, "skp-dump", usage, {"--summary", "--json", "--tree", "--textures"}))
        return *status;
    request asked;
    if (!read_arguments(argc, argv, asked))
        return refuse_command_line(usage);
    SUInitialize();
    bool all_done = true;
    for (const std::string& model : asked.models)
        all_done = dump(model, asked) && all_done;
    SUTerminate();
    return all_done ? 0 : 1;
}
