#include "tools/single_run/converter_words.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <optional>

namespace {

constexpr std::size_t most_messages = 100;

// What stands behind the first place where the text holds the phrase; nothing if it does not.
std::optional<std::string> behind(std::string_view text, std::string_view phrase) {
    const std::size_t at = text.find(phrase);
    if (at == std::string_view::npos)
        return std::nullopt;
    return std::string(text.substr(at + phrase.size()));
}

std::optional<int> percentage(std::string_view line) {
    constexpr std::string_view beginning = "progress ";
    if (!line.starts_with(beginning))
        return std::nullopt;
    int percent = 0;
    const auto answer = std::from_chars(line.data() + beginning.size(), line.data() + line.size(), percent);
    return answer.ec == std::errc() && answer.ptr == line.data() + line.size() ? std::optional(percent) : std::nullopt;
}

// "stem(123):: text" or "stem:: text".
bool is_trace(std::string_view line) {
    const std::size_t colons = line.find("::");
    if (colons == std::string_view::npos || colons == 0)
        return false;
    const std::string_view place = line.substr(0, colons);
    const auto belongs = [](unsigned char c) { return std::isalnum(c) != 0 || c == '_' || c == '(' || c == ')'; };
    return std::all_of(place.begin(), place.end(), belongs) && line.substr(colons).starts_with(":: ");
}

} // namespace

converter_words::converter_words(std::function<void(int)> on_progress, std::function<void(std::string_view)> on_trace)
    : progress(std::move(on_progress)), trace(std::move(on_trace)),
      lines([this](std::string_view line) { take(line); }) {}

void converter_words::take(std::string_view line) {
    if (const auto percent = percentage(line)) {
        has_begun = true;
        progress(*percent);
        return;
    }
    out_of_memory = out_of_memory || line.find("std::bad_alloc") != std::string_view::npos;
    if (is_trace(line))
        take_trace(line);
    else if (!line.empty() && messages.size() < most_messages)
        messages.emplace_back(line);
}

void converter_words::take_trace(std::string_view line) {
    trace(std::string(line) + '\n');
    if (const auto refused = behind(line, ":: Cannot open model "))
        refused_model = *refused;
    if (const auto refused = behind(line, "file:: REPORT: Cannot write "); refused && refused_write.empty())
        refused_write = *refused;
    lost_options = lost_options || line.find("REPORT: Options not rewritten") != std::string_view::npos;
}
