// Empties folders, and goes through their entries.

#include "qlw/folder_refusal.h"
#include "qlw/qlw_std.h"
#include "qlw/qlw_trace.h"
#include "text/letter_case.h"

#include <algorithm>
#include <utility>

namespace {

constexpr path_rules own_rules = platform::has_drive_letters ? path_rules::windows : path_rules::posix;

// The name without separators and "/." at its end: behind a link these would lead to what it points at.
std::string name_itself(std::string name) {
    const char separator = platform::path_separator;
    const std::string same_folder = std::string(1, separator) + ".";
    while (name.size() > 1 && (name.ends_with(separator) || name.ends_with(same_folder)))
        name.pop_back();
    return name;
}

folder_facts facts_about(const std::string& name) {
    folder_facts facts;
    facts.real_name = platform::real_name(name).value_or(std::string());
    facts.home = platform::real_name(platform::home_folder()).value_or(std::string());
    facts.is_symbolic_link = platform::is_symbolic_link(name_itself(name));
    return facts;
}

// Whether the folder may be emptied; reports under `function` if not.
bool may_be_cleared(const std::string& folder, const char* function) {
    const std::string refusal = folder_refusal(folder, own_rules, facts_about(folder));
    if (refusal.empty())
        return true;
    cl_trace("qlw_std", __LINE__, function, trace_level::user_error, 0).report("%s", refusal);
    return false;
}

bool ends_with_ignoring_case(const std::string& name, const std::string& ending) {
    return name.size() >= ending.size() && std::equal(ending.rbegin(), ending.rend(), name.rbegin(),
                                                      [](char a, char b) { return lower_case(a) == lower_case(b); });
}

bool contains_any(const std::string& name, const std::vector<std::string>& texts) {
    return std::any_of(texts.begin(), texts.end(),
                       [&](const std::string& text) { return name.find(text) != std::string::npos; });
}

} // namespace

void clear_folder(const std::string& folder, bool recursive, const std::string& extension) {
    std::string name = folder;
    fix_path_separators(name);
    if (!may_be_cleared(name, "clear_folder"))
        return;
    DIR entries;
    entries.open(name);
    while (entries.next()) {
        if (entries.is_folder() && !recursive)
            continue;
        if (entries.is_folder()) {
            clear_folder(entries.full_name(), recursive, extension);
        } else if (ends_with_ignoring_case(entries.name(), extension)) {
            platform::delete_file(entries.full_name());
        }
    }
}

void clear_folder_except(const std::string& folder, const std::string& extension,
                         const std::vector<std::string>& keep) {
    std::string name = folder;
    fix_path_separators(name);
    if (!may_be_cleared(name, "clear_folder_except"))
        return;
    DIR entries;
    entries.open(name);
    while (entries.next())
        if (!entries.is_folder() && ends_with_ignoring_case(entries.name(), extension) &&
            !contains_any(entries.name(), keep))
            platform::delete_file(entries.full_name());
}

bool DIR::open(const std::string& folder) {
    auto found = platform::list_folder(folder);
    folder_name = folder;
    entries = found ? std::move(*found) : std::vector<platform::folder_entry>();
    upcoming = 0;
    current = 0;
    return found.has_value();
}

bool DIR::next() {
    if (upcoming == entries.size())
        return false;
    current = upcoming++;
    return true;
}

std::string DIR::full_name() const {
    return folder_name + platform::path_separator + name();
}
