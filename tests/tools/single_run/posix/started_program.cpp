#include "tests/tools/single_run/posix/started_program.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

started_program::started_program(const program_start& start, uid_t user, how_watched how) {
    errors_file = start.arguments.back() + ".errors"; // beside the batch
    std::vector<std::string> words = {start.program};
    words.insert(words.end(), start.arguments.begin(), start.arguments.end());
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const int errors = open(errors_file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
    process = fork();
    if (process == 0) {
        for (const int number : {SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGXCPU})
            signal(number, SIG_DFL); // whoever runs the tests may ignore them
        for (const auto& [name, value] : start.environment)
            value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
        dup2(nothing, STDIN_FILENO);
        dup2(nothing, STDOUT_FILENO);
        dup2(errors, STDERR_FILENO);
        if ((user == 0 || setuid(user) == 0) &&
            (how == how_watched::freely || ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == 0))
            execv(start.program.c_str(), arguments.data());
        _exit(127);
    }
    close(errors);
    close(nothing);
    if (process < 0)
        throw std::runtime_error("no process can be made");
}

started_program::~started_program() {
    if (process > 0) {
        send(SIGKILL);
        waitpid(process, nullptr, 0);
    }
    unlink(errors_file.c_str());
}

std::vector<pid_t> started_program::children() const {
    std::ifstream list("/proc/" + std::to_string(process) + "/task/" + std::to_string(process) + "/children");
    std::vector<pid_t> all;
    for (pid_t child = 0; list >> child;)
        all.push_back(child);
    return all;
}

int started_program::wait(std::chrono::milliseconds longest) {
    int status = 0;
    if (!comes_true([&] { return waitpid(process, &status, WNOHANG) != 0; }, longest)) {
        send(SIGKILL);
        waitpid(process, &status, 0);
    }
    process = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::size_t started_program::run_for_calls(std::size_t most) {
    constexpr int call_stop = SIGTRAP | 0x80; // what PTRACE_O_TRACESYSGOOD makes of the stops at calls
    int status = 0;
    if (waitpid(process, &status, 0) != process || !WIFSTOPPED(status) ||
        ptrace(PTRACE_SETOPTIONS, process, nullptr, static_cast<long>(PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL)) != 0)
        throw std::runtime_error("the program cannot be traced");
    std::size_t calls = 0;
    bool is_in_call = false;
    for (long passed_on = 0; !(calls == most && !is_in_call);) {
        if (ptrace(PTRACE_SYSCALL, process, nullptr, passed_on) != 0 || waitpid(process, &status, 0) != process ||
            !WIFSTOPPED(status))
            break;
        const bool is_at_call = WSTOPSIG(status) == call_stop;
        passed_on = is_at_call ? 0 : WSTOPSIG(status);
        is_in_call = is_in_call != is_at_call;
        calls += is_at_call && is_in_call ? 1U : 0U;
    }
    if (WIFSTOPPED(status)) {
        send(SIGKILL);
        waitpid(process, &status, 0);
    }
    process = -1;
    return calls;
}

std::string started_program::errors() const {
    std::ostringstream text;
    text << std::ifstream(errors_file).rdbuf();
    return text.str();
}

bool comes_true(const std::function<bool()>& condition, std::chrono::milliseconds longest) {
    const auto deadline = std::chrono::steady_clock::now() + longest;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}

// One that has ended and that nobody has asked about yet counts as ended.
bool is_running(pid_t process) {
    std::string text;
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::getline(file, text);
    const std::size_t name_end = text.rfind(") ");
    return name_end != std::string::npos && text[name_end + 2] != 'Z';
}
