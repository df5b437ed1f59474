#pragma once

// A moment in the parts of the calendar.

#include <cstdint>
#include <ctime>
#include <optional>
#include <string>

namespace platform {

struct moment {
    std::tm parts = {};
    std::string zone; // as the system calls it, "CET"; "UTC" where the clock is never set apart from it
};

// seconds: since the epoch. Nothing for a moment that the calendar cannot hold.
std::optional<moment> universal_moment(std::int64_t seconds); // its zone is "GMT"
std::optional<moment> local_moment(std::int64_t seconds);

} // namespace platform
