#include "tests/support/run_program.h"

#include "tests/support/temporary_folder.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>

extern char** environ;

namespace {

// The pointers that exec takes, closed by a null. They point into `texts`.
std::vector<char*> pointers_to(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<std::string> changed_environment(const std::vector<environment_change>& changes) {
    std::map<std::string, std::string> variables;
    for (char** one = environ; *one != nullptr; ++one) {
        const std::string text = *one;
        const std::size_t equals = text.find('=');
        variables[text.substr(0, equals)] = equals == std::string::npos ? "" : text.substr(equals + 1);
    }
    for (const auto& [name, value] : changes)
        if (value)
            variables[name] = *value;
        else
            variables.erase(name);
    std::vector<std::string> texts;
    for (const auto& [name, value] : variables)
        texts.emplace_back(name).append("=").append(value);
    return texts;
}

// Waits for a child and puts down how it has ended.
void wait_for(pid_t child, int seconds, program_result& result) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    int status = 0;
    rusage usage{};
    while (wait4(child, &status, WNOHANG, &usage) == 0) {
        if (std::chrono::steady_clock::now() > deadline) {
            kill(child, SIGKILL);
            wait4(child, &status, 0, &usage);
            result.end = "took longer than " + std::to_string(seconds) + " seconds";
            return;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    result.most_bytes = static_cast<std::uint64_t>(usage.ru_maxrss) * 1024;
    if (WIFSIGNALED(status))
        result.end = "ended by signal " + std::to_string(WTERMSIG(status));
    else
        result.status = WEXITSTATUS(status);
}

} // namespace

program_result run_program(const program_start& start) {
    const temporary_folder printed;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, (printed / "output").c_str(), O_WRONLY | O_CREAT, 0644);
    posix_spawn_file_actions_addopen(&actions, 2, (printed / "errors").c_str(), O_WRONLY | O_CREAT, 0644);
    if (!start.folder.empty())
        posix_spawn_file_actions_addchdir_np(&actions, start.folder.c_str());
    std::vector<std::string> command = {start.program};
    command.insert(command.end(), start.arguments.begin(), start.arguments.end());
    std::vector<std::string> environment = changed_environment(start.environment);
    pid_t child = 0;
    const int error = posix_spawn(&child, start.program.c_str(), &actions, nullptr, pointers_to(command).data(),
                                  pointers_to(environment).data());
    posix_spawn_file_actions_destroy(&actions);
    program_result result;
    if (error != 0) {
        result.end = start.program + " cannot be started: " + std::strerror(error);
        return result;
    }
    wait_for(child, start.seconds, result);
    result.output = printed.read("output");
    result.errors = printed.read("errors");
    return result;
}
