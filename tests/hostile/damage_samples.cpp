// Converts damaged copies of every model of a folder with the built program and checks that each run ends quietly:
//     damage_samples PROGRAM SAMPLES_FOLDER COUNT [FIRST_SEED]
// COUNT cuts at random lengths and COUNT sets of random byte flips a model. A run fails if it is ended by a signal, has
// another status than 0, takes longer than two seconds, or leaves a stream that does not read. Each failure is printed
// with its seed and keeps its input, from which it can be repeated.

#include "platform/platform.h"
#include "tests/support/run_program.h"
#include "tests/support/temporary_folder.h"
#include "tools/batch_reading/stream_reader.h"
#include "tools/command_line/answers.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using bytes = std::vector<std::uint8_t>;

constexpr int time_limit = 2; // seconds
constexpr std::uint64_t largest_model = std::uint64_t{1} << 30U;
// What a run may take beside the model: the program itself, and a few times the unpacked bytes of the largest sample.
// Sanitizers multiply memory, so the limit is generous; a lying count would ask for gigabytes.
constexpr std::uint64_t most_bytes = 1'536'000'000;

bytes cut(const bytes& whole, std::mt19937_64& random) {
    const std::size_t length = random() % (whole.size() + 1);
    return {whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)};
}

bytes flipped(bytes whole, std::mt19937_64& random) {
    const std::size_t flips = 1 + random() % 16;
    for (std::size_t i = 0; i < flips && !whole.empty(); ++i)
        whole[random() % whole.size()] ^= static_cast<std::uint8_t>(1U << (random() % 8));
    return whole;
}

// Empty if a run ended well.
std::string fault_of(const program_result& run) {
    if (!run.end.empty())
        return run.end;
    if (run.status != 0)
        return "status " + std::to_string(run.status);
    return run.most_bytes > most_bytes ? "took " + std::to_string(run.most_bytes) + " bytes" : "";
}

std::string fault_of_stream(const temporary_folder& folder) {
    const auto stream = platform::read_file(folder / "batch_file.txt", largest_model * 8);
    if (!stream)
        return "";
    stream_visitor nothing;
    const auto faults = read_stream({reinterpret_cast<const char*>(stream->data()), stream->size()}, nothing);
    return faults.empty() ? "" : "stream, line " + std::to_string(faults.front().line) + ": " + faults.front().reason;
}

struct tally {
    std::size_t runs = 0;
    std::size_t opened = 0;
    std::size_t failed = 0;
};

// Keeps a file whose conversion failed; gives its new name.
std::string kept_copy(const std::string& file) {
    const std::string beginning = platform::absolute_name(platform::temporary_folder()) + "/damaged_model_";
    const auto made = platform::make_unique_folder(beginning);
    if (!made)
        return "nothing: no folder can be made: " + beginning;
    const std::string kept = *made + "/geometry.qlm";
    fs::copy_file(file, kept);
    return kept;
}

void try_one(const std::string& program, const std::string& what, const bytes& damaged, tally& count) {
    const temporary_folder folder;
    const std::string model =
        folder.write("geometry.qlm", {reinterpret_cast<const char*>(damaged.data()), damaged.size()});
    const program_result run = run_program({program, {model}, {}, settings_in(folder.name()), time_limit});
    std::string fault = fault_of(run);
    if (fault.empty())
        fault = fault_of_stream(folder);
    ++count.runs;
    count.opened += folder.has("batch_file.txt") ? 1 : 0;
    if (!fault.empty()) {
        ++count.failed;
        std::printf("%s: %s; kept as %s\n", what.c_str(), fault.c_str(), kept_copy(model).c_str());
        std::istringstream messages(run.output + run.errors);
        std::string line;
        for (int i = 0; i < 12 && std::getline(messages, line); ++i)
            std::printf("    %s\n", line.c_str());
        std::fflush(stdout);
    }
}

} // namespace

int main(int argc, char** argv) {
    constexpr std::string_view usage = "usage: damage_samples PROGRAM SAMPLES_FOLDER COUNT [FIRST_SEED]\n";
    if (const auto status = answer_at_once(argc, argv, "damage_samples", usage))
        return *status;
    if (argc < 4)
        return refuse_command_line(usage);
    const int times = std::atoi(argv[3]);
    const std::uint64_t first_seed = argc > 4 ? std::strtoull(argv[4], nullptr, 10) : 1;
    std::vector<fs::path> samples;
    for (const auto& entry : fs::directory_iterator(argv[2]))
        if (entry.path().extension() == ".skp")
            samples.push_back(entry.path());
    std::sort(samples.begin(), samples.end());
    tally count;
    for (const fs::path& sample : samples) {
        const auto read = platform::read_file(sample.string(), largest_model).value_or(std::vector<std::byte>());
        const auto* first = reinterpret_cast<const std::uint8_t*>(read.data());
        const bytes whole(first, first + read.size());
        for (int i = 0; i < times; ++i) {
            const std::uint64_t seed = first_seed + static_cast<std::uint64_t>(i);
            std::mt19937_64 random(seed);
            const std::string name = sample.filename().string() + ", seed " + std::to_string(seed);
            try_one(argv[1], name + ", cut", cut(whole, random), count);
            try_one(argv[1], name + ", flipped", flipped(whole, random), count);
        }
    }
    std::printf("%zu damaged models converted, %zu of them opened, %zu failures\n", count.runs, count.opened,
                count.failed);
    return count.failed == 0 && count.runs > 0 ? 0 : 1;
}
