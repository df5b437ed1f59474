#include "tools/json_reading/json_reading.h"

namespace json_reading {

json parsed(std::string_view text) {
    json value = json::parse(
        text, [](int depth, json::parse_event_t, const json&) { return depth < deepest_value; }, false);
    return value.is_discarded() ? json() : value;
}

std::string written(const json& value, int indentation) {
    return value.dump(indentation, ' ', false, json::error_handler_t::replace);
}

const json& value_in(const json& object, const char* key) {
    static const json null;
    const auto found = object.is_object() ? object.find(key) : object.end();
    return found != object.end() ? *found : null;
}

std::string text_in(const json& object, const char* key) {
    const json& value = value_in(object, key);
    return value.is_string() ? value.get<std::string>() : std::string();
}

std::optional<std::uint64_t> count_in(const json& object, const char* key) {
    const json& value = value_in(object, key);
    return value.is_number_unsigned() ? std::optional(value.get<std::uint64_t>()) : std::nullopt;
}

} // namespace json_reading
