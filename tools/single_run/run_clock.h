#pragma once

// How long a run takes, and whether it must end before it is done.

#include <chrono>
#include <cstdint>
#include <optional>

enum class stop_reason { none, request, time };

class run_clock {
public:
    // seconds: how long the run may take from now on; nothing for no limit.
    explicit run_clock(std::optional<std::int64_t> seconds);

    stop_reason must_stop() const; // looks at platform::end_request(), too
    double seconds() const;        // since it was made
    std::optional<std::chrono::steady_clock::time_point> deadline() const { return end; }

private:
    std::chrono::steady_clock::time_point start;
    std::optional<std::chrono::steady_clock::time_point> end;
};
