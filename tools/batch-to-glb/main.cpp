// Writes what a batch folder holds as one GLB file.

#include "tools/batch_glb/batch_glb.h"
#include "tools/command_line/answers.h"
#include "tools/command_line/within_memory.h"

#include <cstdio>
#include <string>
#include <string_view>

namespace {

constexpr std::string_view usage =
    "usage: batch-to-glb BATCH_FOLDER OUT.glb\n"
    "Writes what the renderer will get of a batch folder as a GLB file (glTF 2.0).\n"
    "Status 0 if the file was written, 1 if there is no batch, 2 for a wrong command line, 3 if the file cannot be\n"
    "written. What of the batch could not be shown is said on standard error.\n";

int status_of(batch_glb_outcome outcome) {
    switch (outcome) {
    case batch_glb_outcome::done:
        return 0;
    case batch_glb_outcome::no_batch:
        return 1;
    case batch_glb_outcome::not_written:
        break;
    }
    return 3;
}

int convert(const std::string& batch_folder, const std::string& glb_file) {
    const batch_glb_result result = write_batch_glb(batch_folder, glb_file);
    for (const std::string& note : result.notes)
        std::fprintf(stderr, "batch-to-glb: %s\n", note.c_str());
    if (!result.failure.empty())
        std::fprintf(stderr, "batch-to-glb: %s\n", result.failure.c_str());
    return status_of(result.outcome);
}

} // namespace

int main(int argc, char** argv) {
    if (const auto status = answer_at_once(argc, argv, "batch-to-glb", usage))
        return *status;
    if (argc != 3)
        return refuse_command_line(usage);
    return within_memory("batch-to-glb", [argv] { return convert(argv[1], argv[2]); });
}
