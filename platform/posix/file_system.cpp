// Names on the disk: what stands behind them, making and removing them.

#include "platform/platform.h"

#include "platform/posix/refused_write.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

std::optional<struct stat> status_of(const std::string& name) {
    struct stat status;
    return stat(name.c_str(), &status) == 0 ? std::optional(status) : std::nullopt;
}

std::optional<struct stat> status_of_name_itself(const std::string& name) {
    struct stat status;
    return lstat(name.c_str(), &status) == 0 ? std::optional(status) : std::nullopt;
}

struct close_folder {
    void operator()(DIR* folder) const { closedir(folder); }
};

constexpr int to_clear = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

} // namespace

bool exists(const std::string& name) {
    return status_of(name).has_value();
}

bool is_folder(const std::string& name) {
    const auto status = status_of(name);
    return status && S_ISDIR(status->st_mode);
}

bool is_symbolic_link(const std::string& name) {
    const auto status = status_of_name_itself(name);
    return status && S_ISLNK(status->st_mode);
}

std::optional<std::uint64_t> file_size(const std::string& name) {
    const auto status = status_of(name);
    if (!status || !S_ISREG(status->st_mode))
        return std::nullopt;
    return static_cast<std::uint64_t>(status->st_size);
}

std::optional<std::string> real_name(const std::string& name) {
    std::array<char, PATH_MAX> buffer; // the size that the call itself keeps to
    const char* const resolved = realpath(name.c_str(), buffer.data());
    return resolved ? std::optional<std::string>(resolved) : std::nullopt;
}

std::string absolute_name(const std::string& name) {
    if (name.empty())
        return name;
    std::string full = name.front() == path_separator ? name : joined(current_folder(), name);
    const auto both_separators = [](char a, char b) { return a == path_separator && b == path_separator; };
    full.erase(std::unique(full.begin(), full.end(), both_separators), full.end());
    return full;
}

bool make_folder(const std::string& name) {
    if (mkdir(name.c_str(), 0777) == 0) // the user's mask takes its share
        return true;
    trace_if_refused(name, errno);
    return false;
}

std::optional<std::string> make_unique_folder(const std::string& beginning) {
    std::string name = beginning + "XXXXXX"; // the call puts its own characters there
    return mkdtemp(name.data()) ? std::optional(name) : std::nullopt;
}

bool delete_file(const std::string& name) {
    return unlink(name.c_str()) == 0;
}

bool delete_empty_folder(const std::string& name) {
    return rmdir(name.c_str()) == 0;
}

namespace {

// Takes the descriptor of an open folder, or -1.
bool clear_opened(int descriptor, std::string_view kept) {
    const std::unique_ptr<DIR, close_folder> folder(descriptor < 0 ? nullptr : fdopendir(descriptor));
    if (!folder)
        return false;
    std::vector<std::string> names; // all of them first: removing what is listed may make the list miss others
    while (const dirent* const item = readdir(folder.get()))
        if (const std::string_view name = item->d_name; name != "." && name != ".." && name != kept)
            names.emplace_back(name);
    bool is_clear = true;
    for (const std::string& name : names) {
        if (unlinkat(descriptor, name.c_str(), 0) == 0)
            continue;
        is_clear = clear_opened(openat(descriptor, name.c_str(), to_clear), {}) &&
                   unlinkat(descriptor, name.c_str(), AT_REMOVEDIR) == 0 && is_clear;
    }
    return is_clear;
}

} // namespace

bool clear_folder(const std::string& name, std::string_view kept) {
    return clear_opened(open(name.c_str(), to_clear), kept);
}

bool flush_file_system(const std::string& folder) {
    const int opened = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened < 0)
        return false;
    const bool is_done = syncfs(opened) == 0;
    close(opened);
    return is_done;
}

bool rename_replacing(const std::string& from, const std::string& to) {
    return std::rename(from.c_str(), to.c_str()) == 0;
}

std::optional<std::vector<folder_entry>> list_folder(const std::string& name) {
    const std::unique_ptr<DIR, close_folder> folder(opendir(name.c_str()));
    if (!folder)
        return std::nullopt;
    std::vector<folder_entry> entries;
    while (const dirent* const item = readdir(folder.get())) {
        folder_entry entry;
        entry.name = item->d_name;
        if (entry.name == "." || entry.name == "..")
            continue;
        if (const auto status = status_of_name_itself(joined(name, entry.name))) {
            entry.is_folder = S_ISDIR(status->st_mode);
            entry.is_symbolic_link = S_ISLNK(status->st_mode);
            entry.size = S_ISREG(status->st_mode) ? static_cast<std::uint64_t>(status->st_size) : 0;
        }
        entries.push_back(std::move(entry));
    }
    std::sort(entries.begin(), entries.end(),
              [](const folder_entry& a, const folder_entry& b) { return a.name < b.name; });
    return entries;
}

} // namespace platform
