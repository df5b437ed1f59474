#pragma once

// Programs that this one starts and watches to their end, and requests that this one end itself.

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace platform {

// ---- requests to end (end_requests.cpp)

// While it lives, a request that this process end (SIGTERM, SIGINT, SIGHUP, SIGQUIT, SIGXCPU; on Windows Ctrl-C,
// Ctrl-Break, a console that is closed) is noted and obeyed by whoever asks end_request(). Those that were ignored
// before stay ignored. What the system would otherwise tell by a signal, a reader that is gone and a file that may not
// grow, is a failed write. A standard stream that is closed leads nowhere from then on, so that no file that is opened
// later takes its place. At most one at a time; what was noted is forgotten with it.
class end_requests {
public:
    end_requests();
    end_requests(const end_requests&) = delete;
    end_requests& operator=(const end_requests&) = delete;
    ~end_requests();
};

// The name of the request that was noted first, such as "SIGTERM"; empty while there is none.
std::string end_request();

// ---- programs (child_process.cpp)

struct child_start {
    std::string program; // full name
    std::vector<std::string> arguments = {};
    // What differs from the environment of this process; no value takes the variable away.
    std::vector<std::pair<std::string, std::optional<std::string>>> environment = {};
    std::uint64_t memory_limit = 0; // bytes; 0 for none. POSIX: of address space; Windows: of committed memory
    std::optional<std::chrono::steady_clock::time_point> deadline = {};
    // How long the program may take to end by itself when it is called off; it is told so at once (POSIX: by SIGTERM;
    // Windows: it is not told, and ended at once). 0: it is ended at once.
    std::chrono::milliseconds grace = {};
    // Take what the program prints, in pieces as they come; nothing takes a piece that is not wanted.
    std::function<void(std::string_view)> on_output = {};
    std::function<void(std::string_view)> on_errors = {};
};

enum class child_fate {
    not_started, // `words` says why
    ended,       // by itself: `number` is its status
    crashed,     // by a signal, or an exception of Windows: `number` is that, `words` its name
    out_of_time, // ended by this call at the deadline
    called_off,  // ended by this call, as there was an end_request()
};

struct child_end {
    child_fate fate = child_fate::not_started;
    int number = 0;
    std::string words = {};
    std::uint64_t peak_memory_bytes = 0; // the most that it has occupied at a time; 0 if the system does not tell
};

// Runs a program to its end; its standard input is empty. It ends with this process, however this one ends. When it has
// ended, whatever it has started and left in its process group (Windows: in its job) ends too. Nothing waits longer
// than some milliseconds for a deadline or a request to end.
child_end run_child(const child_start& start);

} // namespace platform
