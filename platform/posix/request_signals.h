#pragma once

// The signals by which this process is asked to end.

#include <array>
#include <csignal>

namespace platform {

struct request_signal {
    int number;
    const char* name;
};

// SIGXCPU: the user's limit on the time of the processor; the system kills only some seconds later.
inline constexpr std::array request_signals = {request_signal{SIGTERM, "SIGTERM"}, request_signal{SIGINT, "SIGINT"},
                                               request_signal{SIGHUP, "SIGHUP"}, request_signal{SIGQUIT, "SIGQUIT"},
                                               request_signal{SIGXCPU, "SIGXCPU"}};

} // namespace platform
