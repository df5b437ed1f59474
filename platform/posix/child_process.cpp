// Programs in process groups of their own, what they print through pipes.

#include "platform/child_process.h"

#include "platform/posix/request_signals.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <map>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace platform {

namespace {

using clock = std::chrono::steady_clock;

class descriptor {
public:
    descriptor() = default;
    explicit descriptor(int opened) : number(opened) {}
    descriptor(descriptor&& other) noexcept : number(std::exchange(other.number, -1)) {}
    descriptor& operator=(descriptor&& other) noexcept {
        close();
        number = std::exchange(other.number, -1);
        return *this;
    }
    descriptor(const descriptor&) = delete;
    descriptor& operator=(const descriptor&) = delete;
    ~descriptor() { close(); }

    int get() const { return number; }
    bool is_open() const { return number >= 0; }
    void close() {
        if (is_open())
            ::close(std::exchange(number, -1));
    }

private:
    int number = -1;
};

struct pipe_ends {
    descriptor reading;
    descriptor writing;
};

// Above the three standard streams, which the new program gets in their places.
descriptor above_standard_streams(int opened) {
    const descriptor low(opened);
    return descriptor(fcntl(low.get(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

bool make_pipe(pipe_ends& made) {
    std::array<int, 2> ends;
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return false;
    made.reading = above_standard_streams(ends[0]);
    made.writing = above_standard_streams(ends[1]);
    return made.reading.is_open() && made.writing.is_open();
}

// The pointers that exec takes, closed by a null. They point into `texts`.
std::vector<char*> pointers_to(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<std::string> environment_of(const child_start& start) {
    std::map<std::string, std::string> variables;
    for (char** one = environ; *one != nullptr; ++one) {
        const std::string text = *one;
        const std::size_t equals = std::min(text.find('='), text.size());
        variables[text.substr(0, equals)] = text.substr(std::min(equals + 1, text.size()));
    }
    for (const auto& [name, value] : start.environment)
        if (value)
            variables[name] = *value;
        else
            variables.erase(name);
    std::vector<std::string> texts;
    for (const auto& [name, value] : variables)
        texts.emplace_back(name).append("=").append(value);
    return texts;
}

// The signals that wake a watching process. They are blocked while it does anything but wait, so that none comes
// between a look and the wait.
sigset_t waking_signals() {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGCHLD);
    for (const request_signal& one : request_signals)
        sigaddset(&set, one.number);
    return set;
}

extern "C" void wake_up(int) {}

class woken_by_signals {
public:
    woken_by_signals() {
        struct sigaction waking = {};
        waking.sa_handler = wake_up;
        sigemptyset(&waking.sa_mask);
        sigaction(SIGCHLD, &waking, &old_action);
        const sigset_t waking_set = waking_signals();
        sigprocmask(SIG_BLOCK, &waking_set, &old_mask);
        waiting_mask = old_mask;
        sigdelset(&waiting_mask, SIGCHLD);
        for (const request_signal& one : request_signals)
            sigdelset(&waiting_mask, one.number);
    }
    woken_by_signals(const woken_by_signals&) = delete;
    woken_by_signals& operator=(const woken_by_signals&) = delete;
    ~woken_by_signals() {
        sigprocmask(SIG_SETMASK, &old_mask, nullptr);
        sigaction(SIGCHLD, &old_action, nullptr);
    }

    // Handles the signals that have come by now. A wait leaves them where they are when there is something to read.
    void take_signals() const {
        sigset_t blocked;
        sigprocmask(SIG_SETMASK, &waiting_mask, &blocked);
        sigprocmask(SIG_SETMASK, &blocked, nullptr);
    }

    const sigset_t& mask_of_children() const { return old_mask; }
    const sigset_t& mask_while_waiting() const { return waiting_mask; }

private:
    struct sigaction old_action = {};
    sigset_t old_mask{};
    sigset_t waiting_mask{};
};

// What a new process needs to become the program. Between fork and exec nothing may be allocated.
struct preparation {
    const char* program;
    char* const* arguments;
    char* const* environment;
    std::uint64_t memory_limit;
    const sigset_t* mask;
    pid_t parent;
    int input;
    int output;
    int errors;
    int failure; // takes the number of the error that keeps the program from starting
};

bool set_memory_limit(std::uint64_t bytes) {
    rlimit limit;
    if (getrlimit(RLIMIT_AS, &limit) != 0)
        return false;
    limit.rlim_cur = std::min<rlim_t>(bytes, limit.rlim_max);
    limit.rlim_max = limit.rlim_cur;
    return setrlimit(RLIMIT_AS, &limit) == 0;
}

// False with errno set.
bool prepare(const preparation& wanted) {
    if (setpgid(0, 0) != 0 || prctl(PR_SET_PDEATHSIG, SIGKILL) != 0)
        return false;
    if (getppid() != wanted.parent) // it died before that was asked for
        _exit(127);
    if (dup2(wanted.input, STDIN_FILENO) < 0 || dup2(wanted.output, STDOUT_FILENO) < 0 ||
        dup2(wanted.errors, STDERR_FILENO) < 0)
        return false;
    if (std::signal(SIGPIPE, SIG_DFL) == SIG_ERR || sigprocmask(SIG_SETMASK, wanted.mask, nullptr) != 0)
        return false;
    return wanted.memory_limit == 0 || set_memory_limit(wanted.memory_limit);
}

[[noreturn]] void become(const preparation& wanted) {
    if (prepare(wanted))
        execve(wanted.program, wanted.arguments, wanted.environment);
    const int error = errno;
    static_cast<void>(write(wanted.failure, &error, sizeof error) == sizeof error);
    _exit(127);
}

struct started_child {
    pid_t process = -1;
    descriptor output;
    descriptor errors;
    int error = 0; // why it could not be started
};

// 0 when the program has started, which closes the other end.
int error_told_through(const descriptor& told) {
    int error = 0;
    ssize_t count = 0;
    do {
        count = read(told.get(), &error, sizeof error);
    } while (count < 0 && errno == EINTR);
    return count == sizeof error ? error : 0;
}

started_child start_program(const child_start& start, const sigset_t& mask) {
    started_child child;
    pipe_ends output;
    pipe_ends errors;
    pipe_ends failure;
    const descriptor nothing = above_standard_streams(open("/dev/null", O_RDONLY | O_CLOEXEC));
    if (!make_pipe(output) || !make_pipe(errors) || !make_pipe(failure) || !nothing.is_open()) {
        child.error = errno;
        return child;
    }
    std::vector<std::string> words = {start.program};
    words.insert(words.end(), start.arguments.begin(), start.arguments.end());
    std::vector<std::string> variables = environment_of(start);
    const std::vector<char*> arguments = pointers_to(words);
    const std::vector<char*> environment = pointers_to(variables);
    const preparation wanted = {
        start.program.c_str(), arguments.data(),     environment.data(),   start.memory_limit,   &mask, getpid(),
        nothing.get(),         output.writing.get(), errors.writing.get(), failure.writing.get()};
    child.process = fork();
    if (child.process == 0)
        become(wanted);
    child.error = child.process < 0 ? errno : 0;
    failure.writing.close();
    if (child.process > 0)
        child.error = error_told_through(failure.reading);
    child.output = std::move(output.reading);
    child.errors = std::move(errors.reading);
    return child;
}

// Hands on some of what waits in the pipe; closes it at its end. Gives the number of bytes. Once a call, so that a
// program that never stops printing keeps nobody from looking at the clock.
std::size_t take_from(descriptor& pipe, const std::function<void(std::string_view)>& taker) {
    std::array<char, 65536> buffer;
    ssize_t count = 0;
    do {
        count = pipe.is_open() ? read(pipe.get(), buffer.data(), buffer.size()) : 0;
    } while (count < 0 && errno == EINTR);
    if (count == 0 || (count < 0 && errno != EAGAIN))
        pipe.close();
    if (count <= 0)
        return 0;
    if (taker)
        taker({buffer.data(), static_cast<std::size_t>(count)});
    return static_cast<std::size_t>(count);
}

// What waits in the pipe of a program that has ended: no more than a pipe holds, whoever prints there still.
void take_rest(descriptor& pipe, const std::function<void(std::string_view)>& taker) {
    const int room = pipe.is_open() ? fcntl(pipe.get(), F_GETPIPE_SZ) : 0;
    std::size_t left = room > 0 ? static_cast<std::size_t>(room) : 0;
    while (left > 0) {
        const std::size_t taken = take_from(pipe, taker);
        left = taken == 0 ? 0 : left - std::min(left, taken);
    }
}

class watched_child {
public:
    watched_child(started_child&& started, const child_start& how, const woken_by_signals& woken)
        : child(std::move(started)), start(how), waker(woken), deadline(how.deadline) {
        fcntl(child.output.get(), F_SETFL, O_NONBLOCK);
        fcntl(child.errors.get(), F_SETFL, O_NONBLOCK);
    }

    child_end watch() {
        child_fate fate = child_fate::ended;
        while (fate == child_fate::ended && !has_ended()) {
            waker.take_signals();
            if (!end_request().empty())
                fate = child_fate::called_off;
            else if (deadline && clock::now() >= *deadline)
                fate = child_fate::out_of_time;
            else
                wait_for_news();
        }
        if (fate == child_fate::called_off && start.grace > std::chrono::milliseconds::zero())
            let_end();
        // The number of the group is not given anew while its first process has not been waited for.
        kill(-child.process, SIGKILL);
        int status = 0;
        rusage usage{};
        while (wait4(child.process, &status, 0, &usage) < 0 && errno == EINTR)
            ;
        take_rest(child.output, start.on_output);
        take_rest(child.errors, start.on_errors);
        return end_of(fate, status, usage);
    }

private:
    bool has_ended() const {
        siginfo_t told = {};
        return waitid(P_PID, static_cast<id_t>(child.process), &told, WEXITED | WNOHANG | WNOWAIT) != 0 ||
               told.si_pid != 0;
    }

    // It may clear away what it has begun.
    void let_end() {
        kill(child.process, SIGTERM);
        deadline = clock::now() + start.grace;
        while (!has_ended() && clock::now() < *deadline)
            wait_for_news();
    }

    // Until the program prints, ends, or anything else is to be looked at.
    void wait_for_news() {
        std::array<pollfd, 2> pipes = {pollfd{child.output.get(), POLLIN, 0}, pollfd{child.errors.get(), POLLIN, 0}};
        timespec longest = {3600, 0};
        if (deadline) {
            const auto left = std::max(*deadline - clock::now(), clock::duration::zero());
            const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(left);
            if (seconds.count() < longest.tv_sec)
                longest = {seconds.count(), std::chrono::nanoseconds(left - seconds).count()};
        }
        if (ppoll(pipes.data(), pipes.size(), &longest, &waker.mask_while_waiting()) <= 0)
            return;
        take_from(child.output, start.on_output);
        take_from(child.errors, start.on_errors);
    }

    static child_end end_of(child_fate fate, int status, const rusage& usage) {
        child_end end;
        end.fate = fate;
        end.peak_memory_bytes = static_cast<std::uint64_t>(usage.ru_maxrss) * 1024;
        if (fate != child_fate::ended)
            return end;
        if (WIFSIGNALED(status)) {
            end.fate = child_fate::crashed;
            end.number = WTERMSIG(status);
            const char* const name = sigabbrev_np(end.number);
            end.words = name != nullptr ? std::string("SIG") + name : "signal " + std::to_string(end.number);
        } else
            end.number = WEXITSTATUS(status);
        return end;
    }

    started_child child;
    const child_start& start;
    const woken_by_signals& waker;
    std::optional<clock::time_point> deadline;
};

} // namespace

child_end run_child(const child_start& start) {
    const woken_by_signals waker;
    started_child child = start_program(start, waker.mask_of_children());
    if (child.error != 0) {
        if (child.process > 0)
            waitpid(child.process, nullptr, 0);
        child_end end;
        end.words = std::generic_category().message(child.error);
        return end;
    }
    return watched_child(std::move(child), start, waker).watch();
}

} // namespace platform
