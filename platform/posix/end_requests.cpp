// Signals by which this process is asked to end.

#include "platform/child_process.h"

#include <array>
#include <csignal>

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

} // namespace

end_requests::end_requests() {
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
