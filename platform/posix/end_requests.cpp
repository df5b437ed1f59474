// Signals by which this process is asked to end.

#include "platform/child_process.h"

#include <array>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace platform {

namespace {

struct handled_signal {
    int number;
    const char* name;
};
constexpr std::array requests = {handled_signal{SIGTERM, "SIGTERM"}, handled_signal{SIGINT, "SIGINT"},
                                 handled_signal{SIGHUP, "SIGHUP"}};
constexpr std::array told_by_failed_writes = {SIGPIPE, SIGXFSZ};

// What a handler may touch is at namespace scope or nowhere.
volatile std::sig_atomic_t noted_signal = 0;
std::array<struct sigaction, requests.size()> old_actions;
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
    for (std::size_t i = 0; i < requests.size(); ++i) {
        sigaction(requests[i].number, nullptr, &old_actions[i]);
        if (old_actions[i].sa_handler != SIG_IGN)
            sigaction(requests[i].number, &noting, nullptr);
    }
    struct sigaction ignoring = {};
    ignoring.sa_handler = SIG_IGN;
    for (std::size_t i = 0; i < told_by_failed_writes.size(); ++i)
        sigaction(told_by_failed_writes[i], &ignoring, &old_write_actions[i]);
}

end_requests::~end_requests() {
    for (std::size_t i = 0; i < requests.size(); ++i)
        sigaction(requests[i].number, &old_actions[i], nullptr);
    for (std::size_t i = 0; i < told_by_failed_writes.size(); ++i)
        sigaction(told_by_failed_writes[i], &old_write_actions[i], nullptr);
    noted_signal = 0;
}

std::string end_request() {
    for (const handled_signal& one : requests)
        if (one.number == noted_signal)
            return one.name;
    return {};
}

} // namespace platform
