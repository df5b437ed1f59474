// What time it is, and the one date that a run writes.

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

std::string formed(const std::tm& moment, const std::string& strftime_format) {
    std::array<char, 256> buffer; // a date line is far shorter; a format that yields more yields nothing
    return std::string(buffer.data(), std::strftime(buffer.data(), buffer.size(), strftime_format.c_str(), &moment));
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
    if (!fixed)
        return local_time_text(run_date(), strftime_format);
    const std::time_t seconds = *fixed;
    std::tm moment;
    return gmtime_r(&seconds, &moment) ? formed(moment, strftime_format) : std::string();
}

std::string local_time_text(std::int64_t seconds, const std::string& strftime_format) {
    const std::time_t time = seconds;
    std::tm moment;
    tzset(); // localtime_r need not look at TZ by itself
    return localtime_r(&time, &moment) ? formed(moment, strftime_format) : std::string();
}

} // namespace platform
