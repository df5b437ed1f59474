#include "tools/model_lists/model_list.h"

#include "platform/platform.h"

#include <algorithm>
#include <numeric>
#include <unordered_set>

namespace {

constexpr char separator = platform::path_separator;

bool is_full(std::string_view name) {
    return name.starts_with(separator) || (platform::has_drive_letters && name.size() > 1 && name[1] == ':');
}

// Without "." and "..", doubled separators and one at the end; ".." at the top stays there.
std::string folded(const std::string& name) {
    std::string out;
    std::string_view left = name;
    while (!left.empty()) {
        const std::size_t end = std::min(left.find(separator), left.size());
        const std::string_view part = left.substr(0, end);
        left.remove_prefix(std::min(end + 1, left.size()));
        if (part == "..")
            out.erase(std::min(out.rfind(separator), out.size()));
        else if (!part.empty() && part != ".")
            out.append(is_full(part) ? "" : std::string(1, separator)).append(part);
    }
    return out;
}

std::string full_name(std::string_view name, const std::string& folder) {
    return folded(is_full(name) ? std::string(name) : folder + separator + std::string(name));
}

// The names in the text, as they stand there.
std::vector<std::string_view> split(std::string_view text) {
    const bool ends_by_zero = text.find('\0') != std::string_view::npos;
    std::vector<std::string_view> names;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(ends_by_zero ? '\0' : '\n'), text.size());
        std::string_view name = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (!ends_by_zero && name.ends_with('\r'))
            name.remove_suffix(1);
        if (!name.empty())
            names.push_back(name);
    }
    return names;
}

std::vector<std::string> each_once(const std::vector<std::string_view>& names, const std::string& folder) {
    std::vector<std::string> once;
    std::unordered_set<std::string> seen;
    for (const std::string_view name : names)
        if (std::string full = full_name(name, folder); seen.insert(full).second)
            once.push_back(std::move(full));
    return once;
}

bool lies_in(std::string_view name, std::string_view folder) {
    return name.size() > folder.size() && name.starts_with(folder) && name[folder.size()] == separator;
}

std::string deepest_common_folder(const std::vector<std::string>& models) {
    std::string common = models.front();
    for (const std::string& model : models)
        while (!common.empty() && !lies_in(model, common))
            common.erase(common.rfind(separator));
    return common;
}

// A place inside another, or nothing. Sorted by whole parts, a place follows its folder and what else lies in there.
std::optional<std::pair<std::string, std::string>> nested_pair(const std::vector<std::string>& places) {
    std::vector<std::string_view> sorted(places.begin(), places.end());
    const auto by_parts = [](char a, char b) {
        return (a == separator ? 0 : int(static_cast<unsigned char>(a)) + 1) <
               (b == separator ? 0 : int(static_cast<unsigned char>(b)) + 1);
    };
    std::sort(sorted.begin(), sorted.end(), [&](std::string_view a, std::string_view b) {
        return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), by_parts);
    });
    for (std::size_t i = 1; i < sorted.size(); ++i)
        if (lies_in(sorted[i], sorted[i - 1]))
            return std::pair(std::string(sorted[i - 1]), std::string(sorted[i]));
    return std::nullopt;
}

std::string why_refused(const model_list& list) {
    for (const std::string& place : list.places)
        if (place == list_folder_name || lies_in(place, list_folder_name))
            return "the batch of " + place + " would lie in the folder " + std::string(list_folder_name) +
                   ", which belongs to the list";
    if (const auto nested = nested_pair(list.places))
        return "the batch of " + nested->second + " would lie in the batch of " + nested->first;
    return {};
}

} // namespace

std::string model_list::model(std::size_t number) const {
    return root + separator + places[number];
}

list_reading read_model_list(std::string_view text, const std::string& folder, const std::optional<std::string>& root) {
    const std::vector<std::string> models = each_once(split(text), folder);
    if (models.empty())
        return {{}, "the list names no model"};
    list_reading reading;
    reading.list.root = root ? full_name(*root, folder) : deepest_common_folder(models);
    for (const std::string& model : models) {
        if (!lies_in(model, reading.list.root))
            return {{}, model + " does not lie below " + reading.list.root + separator};
        reading.list.places.push_back(model.substr(reading.list.root.size() + 1));
    }
    reading.refusal = why_refused(reading.list);
    return reading;
}

std::string batch_folder(const std::string& output, const std::string& place) {
    return platform::joined(output, place);
}

std::string report_file(const std::string& output, const std::string& place) {
    return platform::joined(platform::joined(platform::joined(output, list_folder_name), "reports"), place + ".json");
}
