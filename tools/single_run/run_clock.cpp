#include "tools/single_run/run_clock.h"

#include "platform/child_process.h"

run_clock::run_clock(std::optional<std::int64_t> seconds) : start(std::chrono::steady_clock::now()) {
    if (seconds)
        end = start + std::chrono::seconds(*seconds);
}

stop_reason run_clock::must_stop() const {
    if (!platform::end_request().empty())
        return stop_reason::request;
    return end && std::chrono::steady_clock::now() >= *end ? stop_reason::time : stop_reason::none;
}

double run_clock::seconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}
