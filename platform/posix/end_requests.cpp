// Signals by which this process is asked to end.

#include "platform/child_process.h"

#include "platform/posix/request_signals.h"

#include <array>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace platform {

namespace {

constexpr std::array told_by_failed_writes = {SIGPIPE, SIGXFSZ};

// What a handler may touch is at namespace scope or nowhere.
volatile std::sig_atomic_t noted_signal = 0;
std::array<struct sigaction, request_signals.size()> old_actions;
std::array<struct sigaction, told_by_failed_writes.size()> old_write_actions;

extern "C" void note_request(int number) {
    if (noted_signal == 0)
        noted_signal = number;
}

// The system gives a file the lowest number that is free.
void open_closed_streams() {
    int opened = 0;
    do {
        opened = open("/dev/null", O_RDWR | O_CLOEXEC);
    } while (opened >= 0 && opened <= STDERR_FILENO);
    if (opened >= 0)
        close(opened);
}

} // namespace

end_requests::end_requests() {
    open_closed_streams();
    struct sigaction noting = {};
    noting.sa_handler = note_request;
    sigemptyset(&noting.sa_mask);
    for (std::size_t i = 0; i < request_signals.size(); ++i) {
        sigaction(request_signals[i].number, nullptr, &old_actions[i]);
        if (old_actions[i].sa_handler != SIG_IGN)
            sigaction(request_signals[i].number, &noting, nullptr);
    }
    struct sigaction ignoring = {};
    ignoring.sa_handler = SIG_IGN;
    for (std::size_t i = 0; i < told_by_failed_writes.size(); ++i)
        sigaction(told_by_failed_writes[i], &ignoring, &old_write_actions[i]);
}

end_requests::~end_requests() {
    for (std::size_t i = 0; i < request_signals.size(); ++i)
        sigaction(request_signals[i].number, &old_actions[i], nullptr);
    for (std::size_t i = 0; i < told_by_failed_writes.size(); ++i)
        sigaction(told_by_failed_writes[i], &old_write_actions[i], nullptr);
    noted_signal = 0;
}

std::string end_request() {
    for (const request_signal& one : request_signals)
        if (one.number == noted_signal)
            return one.name;
    return {};
}

} // namespace platform
