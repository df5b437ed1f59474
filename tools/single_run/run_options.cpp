#include "tools/single_run/run_options.h"

#include "tools/single_run/setting_line.h"

#include <charconv>
#include <limits>

namespace {

constexpr std::int64_t most_seconds = 1'000'000'000; // 31 years

template<class Number>
std::optional<Number> number_of(std::string_view text) {
    Number number = 0;
    const auto answer = std::from_chars(text.data(), text.data() + text.size(), number);
    if (answer.ec != std::errc() || answer.ptr != text.data() + text.size() || number <= 0)
        return std::nullopt;
    return number;
}

// Each gives a complaint, or nothing.

std::string take_setting(run_options& options, const std::string& text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos)
        return "--option takes NAME=VALUE, not " + text;
    const std::string name = text.substr(0, equals);
    const std::string value = text.substr(equals + 1);
    if (std::string complaint = complaint_about_setting(name, value); !complaint.empty())
        return complaint;
    options.settings[name] = value;
    return {};
}

std::string take_seconds(run_options& options, const std::string& text) {
    const auto number = number_of<std::int64_t>(text);
    if (!number || *number > most_seconds)
        return "--seconds takes a whole number above 0, not " + text;
    options.seconds = number;
    return {};
}

std::string take_memory(run_options& options, const std::string& text) {
    const auto bytes = size_of_text(text);
    if (!bytes)
        return "--memory takes a size such as 512M or 2G, not " + text;
    options.memory = *bytes;
    return {};
}

std::string take_progress(run_options& options, const std::string& text) {
    options.tells_openjd = text == "openjd";
    return options.tells_openjd ? std::string() : "--progress knows openjd alone, not " + text;
}

bool takes_value(std::string_view option) {
    return option == "--with" || option == "--option" || option == "--seconds" || option == "--memory" ||
           option == "--json" || option == "--progress";
}

std::string take_option(run_options& options, std::string_view option, const std::string& value) {
    if (option == "--option")
        return take_setting(options, value);
    if (option == "--seconds")
        return take_seconds(options, value);
    if (option == "--memory")
        return take_memory(options, value);
    if (option == "--progress")
        return take_progress(options, value);
    if (option == "--json")
        options.json = value;
    else
        options.files.push_back(value);
    return {};
}

} // namespace

std::optional<std::uint64_t> size_of_text(std::string_view text) {
    constexpr std::string_view units = "KMGT";
    unsigned shift = 0;
    if (!text.empty())
        if (const std::size_t unit = units.find(text.back()); unit != std::string_view::npos) {
            shift = 10 * (static_cast<unsigned>(unit) + 1);
            text.remove_suffix(1);
        }
    const auto number = number_of<std::uint64_t>(text);
    if (!number || *number > std::numeric_limits<std::uint64_t>::max() >> shift)
        return std::nullopt;
    return *number << shift;
}

read_options read_run_options(const std::vector<std::string>& arguments) {
    read_options read;
    std::vector<std::string> names;
    for (std::size_t i = 0; i < arguments.size() && read.complaint.empty(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--force")
            read.options.is_forced = true;
        else if (!takes_value(argument))
            names.push_back(argument);
        else if (i + 1 == arguments.size())
            read.complaint = argument + " lacks its value";
        else
            read.complaint = take_option(read.options, argument, arguments[++i]);
    }
    if (read.complaint.empty() && names.size() != 2)
        read.complaint = "a model and a batch folder are needed, and nothing else";
    if (names.size() == 2) {
        read.options.model = names[0];
        read.options.folder = names[1];
    }
    return read;
}
