// What time it is, and the one date that a run writes.

#include "platform/moment.h"
#include "platform/platform.h"

#include <array>
#include <charconv>
#include <chrono>
#include <ctime>

namespace platform {

namespace {

std::optional<std::int64_t> fixed_date() {
    const auto value = environment_variable("SOURCE_DATE_EPOCH");
    if (!value)
        return std::nullopt;
    std::int64_t seconds = 0;
    const char* const end = value->data() + value->size();
    const auto [stop, error] = std::from_chars(value->data(), end, seconds);
    return error == std::errc() && stop == end ? std::optional(seconds) : std::nullopt;
}

// The name of the zone is put in here: the library of one system gives its own where another's gives the moment's.
std::string with_zone(std::string strftime_format, const std::string& zone) {
    constexpr std::string_view zone_mark = "%Z";
    for (std::size_t at = strftime_format.find('%'); at < strftime_format.size(); at = strftime_format.find('%', at)) {
        const bool is_zone = strftime_format.compare(at, zone_mark.size(), zone_mark) == 0;
        if (is_zone)
            strftime_format.replace(at, zone_mark.size(), zone);
        at += is_zone ? zone.size() : zone_mark.size(); // a doubled percent sign is passed over as a pair
    }
    return strftime_format;
}

std::string formed(const std::optional<moment>& when, const std::string& strftime_format) {
    if (!when)
        return {};
    const std::string format = with_zone(strftime_format, when->zone);
    std::array<char, 256> buffer; // a date line is far shorter; a format that yields more yields nothing
    return std::string(buffer.data(), std::strftime(buffer.data(), buffer.size(), format.c_str(), &when->parts));
}

} // namespace

double seconds_since_epoch() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return static_cast<double>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count()) / 1000.0;
}

std::int64_t run_date() {
    return fixed_date().value_or(static_cast<std::int64_t>(seconds_since_epoch()));
}

std::string run_date_text(const std::string& strftime_format) {
    const auto fixed = fixed_date();
    return fixed ? formed(universal_moment(*fixed), strftime_format) : local_time_text(run_date(), strftime_format);
}

std::string local_time_text(std::int64_t seconds, const std::string& strftime_format) {
    return formed(local_moment(seconds), strftime_format);
}

} // namespace platform
