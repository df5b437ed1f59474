#include "qlw/folder_refusal.h"

#include <algorithm>
#include <vector>

namespace {

std::string refused(const std::string& name, const char* reason) {
    return "Cannot remove folder: '" + name + "'\n\n" + reason;
}

std::string refused_whole_drive(const std::string& name) {
    return refused(name, "Name must contain a file path name and name cannot be an entire drive.");
}

// Second character ":", third a backslash, and something behind it.
bool is_drive_path(const std::string& name) {
    return name.size() > 3 && name[1] == ':' && name[2] == '\\';
}

// "\\host\share\folder": a folder must stand behind the share.
bool is_network_path(const std::string& name) {
    const std::size_t host_end = name.find('\\', 3);
    if (host_end == std::string::npos)
        return false;
    const std::size_t share_end = name.find('\\', host_end + 2);
    return share_end != std::string::npos && share_end + 1 < name.size() && name[share_end + 1] != '\\';
}

std::string windows_refusal(const std::string& name) {
    if (name[1] == ':' && name.size() <= 3)
        return refused(name, "Name is a drive letter with no path");
    if (name.starts_with("\\\\"))
        return is_network_path(name) ? "" : refused(name, "Network path must have drive name and a folder");
    return is_drive_path(name) ? "" : refused_whole_drive(name);
}

// How many folders deep a full name leads, with "." and ".." taken out by their text alone.
std::size_t depth_of(const std::string& full_name) {
    std::size_t depth = 0;
    for (std::size_t start = 0; start < full_name.size();) {
        const std::size_t end = std::min(full_name.find('/', start), full_name.size());
        const std::string part = full_name.substr(start, end - start);
        if (part == "..")
            depth -= depth > 0 ? 1 : 0;
        else if (!part.empty() && part != ".")
            depth++;
        start = end + 1;
    }
    return depth;
}

bool is_root_or_just_below(const std::string& name) {
    return name.starts_with('/') && depth_of(name) < 2;
}

std::string posix_refusal(const std::string& name, const folder_facts& facts) {
    if (is_root_or_just_below(name) || is_root_or_just_below(facts.real_name))
        return refused_whole_drive(name);
    if (!facts.home.empty() && facts.real_name == facts.home)
        return refused(name, "Name is the home folder");
    if (facts.is_symbolic_link)
        return refused(name, "Name is a symbolic link");
    return {};
}

} // namespace

std::string with_fixed_separators(const std::string& name, path_rules rules) {
    std::string fixed = name;
    if (rules == path_rules::posix) {
        const auto both_separators = [](char a, char b) { return a == '/' && b == '/'; };
        fixed.erase(std::unique(fixed.begin(), fixed.end(), both_separators), fixed.end());
        return fixed;
    }
    std::replace(fixed.begin(), fixed.end(), '/', '\\');
    for (std::size_t at = fixed.find("\\\\", 1); at != std::string::npos; at = fixed.find("\\\\", at + 1))
        fixed.erase(at, 1);
    return fixed;
}

std::string folder_refusal(const std::string& unfixed_name, path_rules rules, const folder_facts& facts) {
    const std::string name = with_fixed_separators(unfixed_name, rules);
    const char separator = rules == path_rules::windows ? '\\' : '/';
    if (name.empty())
        return "Folder to remove not set properly - name is blank";
    if (name.find(separator) == std::string::npos)
        return refused(name, "Name must contain a backslash");
    return rules == path_rules::windows ? windows_refusal(name) : posix_refusal(name, facts);
}
