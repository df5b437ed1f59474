// Moments in the parts of the calendar.

#include "platform/moment.h"

namespace platform {

namespace {

// A zone without summer time that is never apart from universal time goes by many names; one is enough.
std::string zone_name(bool is_summer) {
    const bool is_universal = _timezone == 0 && _daylight == 0;
    return is_universal ? "UTC" : _tzname[is_summer ? 1 : 0];
}

} // namespace

std::optional<moment> universal_moment(std::int64_t seconds) {
    const __time64_t time = seconds;
    moment when;
    if (_gmtime64_s(&when.parts, &time) != 0)
        return std::nullopt;
    when.zone = "GMT";
    return when;
}

std::optional<moment> local_moment(std::int64_t seconds) {
    const __time64_t time = seconds;
    moment when;
    _tzset();
    if (_localtime64_s(&when.parts, &time) != 0)
        return std::nullopt;
    when.zone = zone_name(when.parts.tm_isdst > 0);
    return when;
}

} // namespace platform
