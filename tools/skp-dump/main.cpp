// Prints what the provider sees in model files.

#include "tools/skp-dump/opened_model.h"
#include "tools/skp-dump/prints.h"

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace {

enum class form { summary, json, tree };

constexpr const char* usage = "usage: skp-dump [--summary | --json | --tree] MODEL...\n"
                              "  --summary  counts, sizes, layers and materials as text (the default)\n"
                              "  --json     one object a file, on one line\n"
                              "  --tree     the hierarchy with names, layers, transforms and attributes\n"
                              "Status 0 if every model opened, 1 if one did not.\n";

// True if the model opened.
bool dump(const std::string& file_name, form wanted) {
    const opened_model opened(file_name);
    if (!opened.is_open()) {
        if (wanted == form::json)
            print_json_failure(opened.failure());
        std::fprintf(stderr, "skp-dump: %s: %s\n", file_name.c_str(), opened.failure().c_str());
        return false;
    }
    switch (wanted) {
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
    return true;
}

} // namespace

int main(int argc, char** argv) {
    form wanted = form::summary;
    std::vector<std::string> models;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--summary")
            wanted = form::summary;
        else if (argument == "--json")
            wanted = form::json;
        else if (argument == "--tree")
            wanted = form::tree;
        else if (argument == "--help") {
            std::fputs(usage, stdout);
            return 0;
        } else
            models.emplace_back(argument);
    }
    if (models.empty()) {
        std::fputs(usage, stderr);
        return 2;
    }
    SUInitialize();
    bool all_opened = true;
    for (const std::string& model : models)
        all_opened = dump(model, wanted) && all_opened;
    SUTerminate();
    return all_opened ? 0 : 1;
}
