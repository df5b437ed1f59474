// Moments in the parts of the calendar.

#include "platform/moment.h"

namespace platform {

std::optional<moment> universal_moment(std::int64_t seconds) {
    const std::time_t time = seconds;
    moment when;
    if (!gmtime_r(&time, &when.parts))
        return std::nullopt;
    when.zone = when.parts.tm_zone;
    return when;
}

std::optional<moment> local_moment(std::int64_t seconds) {
    const std::time_t time = seconds;
    moment when;
    tzset(); // localtime_r need not look at TZ by itself
    if (!localtime_r(&time, &when.parts))
        return std::nullopt;
    when.zone = when.parts.tm_zone;
    return when;
}

} // namespace platform
