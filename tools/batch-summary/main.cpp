// Says what a conversion left in a batch folder: files by kind, blocks, triangles, bounding box.

#include "platform/platform.h"
#include "tools/batch_reading/stream_reader.h"
#include "tools/command_line/answers.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>
#include <string_view>

namespace {

constexpr std::string_view usage = "usage: batch-summary BATCH_FOLDER\n"
                                   "Status 0 if the folder holds a stream without faults, 1 otherwise.\n";

constexpr std::uint64_t largest_stream = std::uint64_t{1} << 36U; // 64 GiB: anything larger is no stream of ours

constexpr double infinite = std::numeric_limits<double>::infinity();

class counter : public stream_visitor {
public:
    void block_begins() override { ++blocks; }
    void triangle(const stream_triangle& found) override {
        ++triangles;
        for (const stream_vertex* corner : found.corners)
            for (std::size_t i = 0; i < 3; ++i) {
                low[i] = std::min(low[i], corner->position[i]);
                high[i] = std::max(high[i], corner->position[i]);
            }
    }
    void record(std::string_view tag, std::string_view) override {
        materials += tag == "MATI" ? 1 : 0;
        lamps += tag == "LITE" || tag == "LGHT" ? 1 : 0;
    }

    std::size_t blocks = 0;
    std::size_t triangles = 0;
    std::size_t materials = 0;
    std::size_t lamps = 0;
    std::array<double, 3> low{infinite, infinite, infinite};
    std::array<double, 3> high{-infinite, -infinite, -infinite};
};

void print_count(const char* what, std::size_t count) {
    std::printf("%-16s %zu\n", what, count);
}

// One line for each sub-folder that holds files, one for each file of the folder itself.
void print_files(const std::string& folder) {
    for (const platform::folder_entry& entry :
         platform::list_folder(folder).value_or(std::vector<platform::folder_entry>())) {
        if (!entry.is_folder) {
            std::printf("%-16s %llu bytes\n", entry.name.c_str(), static_cast<unsigned long long>(entry.size));
            continue;
        }
        const auto inside = platform::list_folder(folder + platform::path_separator + entry.name);
        if (inside && !inside->empty())
            std::printf("%s%c: %zu files\n", entry.name.c_str(), platform::path_separator, inside->size());
    }
}

int summarise(const std::string& folder) {
    const std::string name = folder + platform::path_separator + "batch_file.txt";
    const auto bytes = platform::read_file(name, largest_stream);
    if (!bytes) {
        std::fprintf(stderr, "batch-summary: there is no readable stream %s\n", name.c_str());
        return 1;
    }
    counter seen;
    const auto faults = read_stream({reinterpret_cast<const char*>(bytes->data()), bytes->size()}, seen);
    std::printf("%-16s %s\n", "batch folder", folder.c_str());
    print_files(folder);
    print_count("materials", seen.materials);
    print_count("lamps", seen.lamps);
    print_count("blocks", seen.blocks);
    print_count("triangles", seen.triangles);
    if (seen.triangles > 0)
        std::printf("%-16s (%.3f, %.3f, %.3f) to (%.3f, %.3f, %.3f) metres\n", "bounding box", seen.low[0], seen.low[1],
                    seen.low[2], seen.high[0], seen.high[1], seen.high[2]);
    for (const stream_fault& fault : faults)
        std::fprintf(stderr, "%s, line %zu: %s\n", name.c_str(), fault.line, fault.reason.c_str());
    return faults.empty() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    if (const auto status = answer_at_once(argc, argv, "batch-summary", usage))
        return *status;
    if (argc != 2)
        return refuse_command_line(usage);
    return summarise(argv[1]);
}
