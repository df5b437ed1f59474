// Converts damaged copies of every model of a folder with the built program and checks that each run ends quietly:
//     damage_samples PROGRAM SAMPLES_FOLDER COUNT [FIRST_SEED]
// COUNT cuts at random lengths and COUNT sets of random byte flips a model. A run fails if it is ended by a signal, has
// another status than 0, takes longer than two seconds, or leaves a stream that does not read. Each failure is printed
// with its seed and keeps its input, from which it can be repeated.

#include "platform/platform.h"
#include "tests/support/temporary_folder.h"
#include "tools/batch_reading/stream_reader.h"
#include "tools/command_line/answers.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <random>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <vector>

extern char** environ;

namespace {

namespace fs = std::filesystem;
using bytes = std::vector<std::uint8_t>;

constexpr auto time_limit = std::chrono::seconds(2);
constexpr std::uint64_t largest_model = std::uint64_t{1} << 30U;
// What a run may take beside the model: the program itself, and a few times the unpacked bytes of the largest sample.
// Sanitizers multiply memory, so the limit is generous; a lying count would ask for gigabytes.
constexpr long most_kilobytes = 1'500'000;

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

// Waits for a child; empty if it ended well in time.
std::string wait_for(pid_t child) {
    const auto deadline = std::chrono::steady_clock::now() + time_limit;
    int status = 0;
    rusage usage{};
    while (wait4(child, &status, WNOHANG, &usage) == 0) {
        if (std::chrono::steady_clock::now() > deadline) {
            kill(child, SIGKILL);
            wait4(child, &status, 0, &usage);
            return "took longer than two seconds";
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    if (WIFSIGNALED(status))
        return "ended by signal " + std::to_string(WTERMSIG(status));
    if (WEXITSTATUS(status) != 0)
        return "status " + std::to_string(WEXITSTATUS(status));
    if (usage.ru_maxrss > most_kilobytes)
        return "took " + std::to_string(usage.ru_maxrss) + " kB";
    return "";
}

// Runs the program on geometry.qlm of the folder with its messages in the file "messages".
std::string run(const std::string& program, const temporary_folder& folder) {
    const std::string model = folder / "geometry.qlm";
    const std::string messages = folder / "messages";
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, messages.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    posix_spawn_file_actions_adddup2(&actions, 1, 2);
    std::string name = program;
    std::string argument = model;
    char* arguments[] = {name.data(), argument.data(), nullptr};
    pid_t child = 0;
    const int error = posix_spawn(&child, program.c_str(), &actions, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
    return error != 0 ? "cannot be started" : wait_for(child);
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
    std::string fault = run(program, folder);
    if (fault.empty())
        fault = fault_of_stream(folder);
    ++count.runs;
    count.opened += folder.has("batch_file.txt") ? 1 : 0;
    if (!fault.empty()) {
        ++count.failed;
        std::printf("%s: %s; kept as %s\n", what.c_str(), fault.c_str(), kept_copy(model).c_str());
        std::ifstream messages(folder / "messages");
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
