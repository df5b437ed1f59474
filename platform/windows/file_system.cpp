// Names on the disk: what stands behind them, making and removing them.

#include "platform/platform.h"

#include "platform/windows/refused_write.h"
#include "platform/windows/system_handle.h"

#include <algorithm>
#include <array>
#include <memory>

namespace platform {

namespace {

constexpr DWORD share_all = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

bool has(DWORD attributes, DWORD attribute) {
    return (attributes & attribute) != 0;
}

// Only to look at what stands behind a name; folders are opened as well, and links are followed.
system_handle opened_to_look(const std::string& name) {
    return owned(CreateFileA(name.c_str(), FILE_READ_ATTRIBUTES, share_all, nullptr, OPEN_EXISTING,
                             FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

struct name_facts {
    DWORD attributes = 0;
    std::uint64_t size = 0;
};

std::optional<name_facts> facts_behind_link(const std::string& name) {
    const system_handle opened = opened_to_look(name);
    BY_HANDLE_FILE_INFORMATION told;
    if (!opened || !GetFileInformationByHandle(opened.get(), &told))
        return std::nullopt;
    return name_facts{told.dwFileAttributes, std::uint64_t{told.nFileSizeHigh} << 32U | told.nFileSizeLow};
}

std::optional<name_facts> facts_about(const std::string& name) {
    WIN32_FILE_ATTRIBUTE_DATA told;
    if (name.size() > longest_name || !GetFileAttributesExA(name.c_str(), GetFileExInfoStandard, &told))
        return std::nullopt;
    if (has(told.dwFileAttributes, FILE_ATTRIBUTE_REPARSE_POINT))
        return facts_behind_link(name);
    return name_facts{told.dwFileAttributes, std::uint64_t{told.nFileSizeHigh} << 32U | told.nFileSizeLow};
}

struct close_search {
    using pointer = HANDLE;
    void operator()(HANDLE search) const { FindClose(search); }
};
using folder_search = std::unique_ptr<HANDLE, close_search>;

// A search for names, at its first; null if there is none.
folder_search first_of(const std::string& pattern, WIN32_FIND_DATAA& found) {
    if (pattern.size() > longest_name)
        return nullptr;
    const HANDLE search = FindFirstFileA(pattern.c_str(), &found);
    return folder_search(search == INVALID_HANDLE_VALUE ? nullptr : search);
}

// Whether the entry is only a name for something elsewhere. A file that is kept away from the disk is a reparse point
// too, but the only name that its contents have.
bool is_link(const WIN32_FIND_DATAA& found) {
    return has(found.dwFileAttributes, FILE_ATTRIBUTE_REPARSE_POINT) && IsReparseTagNameSurrogate(found.dwReserved0);
}

// What is reparsed may lead anywhere, so it is no folder to whoever goes through one.
folder_entry entry_of(const WIN32_FIND_DATAA& found) {
    const bool is_named_folder = has(found.dwFileAttributes, FILE_ATTRIBUTE_DIRECTORY);
    folder_entry entry;
    entry.name = found.cFileName;
    entry.is_folder = is_named_folder && !has(found.dwFileAttributes, FILE_ATTRIBUTE_REPARSE_POINT);
    entry.is_symbolic_link = is_link(found);
    if (!is_named_folder && !entry.is_symbolic_link)
        entry.size = std::uint64_t{found.nFileSizeHigh} << 32U | found.nFileSizeLow;
    return entry;
}

// A file that somebody holds is flushed by its holder.
bool flush_file(const std::string& name) {
    const system_handle opened =
        owned(CreateFileA(name.c_str(), GENERIC_WRITE, share_all, nullptr, OPEN_EXISTING, 0, nullptr));
    return opened ? FlushFileBuffers(opened.get()) : GetLastError() == ERROR_SHARING_VIOLATION;
}

bool has_wildcard(const std::string& name) {
    return name.find_first_of("*?") != std::string::npos;
}

// "\\?\C:\a" is the system's own form of "C:\a", and "\\?\UNC\host\share" of "\\host\share".
std::string without_own_form(const std::string& name) {
    constexpr std::string_view own_form = "\\\\?\\";
    constexpr std::string_view own_form_of_share = "\\\\?\\UNC\\";
    if (name.starts_with(own_form_of_share))
        return "\\\\" + name.substr(own_form_of_share.size());
    return name.starts_with(own_form) ? name.substr(own_form.size()) : name;
}

} // namespace

bool exists(const std::string& name) {
    return facts_about(name).has_value();
}

bool is_folder(const std::string& name) {
    const auto facts = facts_about(name);
    return facts && has(facts->attributes, FILE_ATTRIBUTE_DIRECTORY);
}

bool is_symbolic_link(const std::string& name) {
    WIN32_FIND_DATAA found;
    return !has_wildcard(name) && first_of(name, found) && is_link(found);
}

std::optional<std::uint64_t> file_size(const std::string& name) {
    const auto facts = facts_about(name);
    if (!facts || has(facts->attributes, FILE_ATTRIBUTE_DIRECTORY))
        return std::nullopt;
    return facts->size;
}

std::optional<std::string> real_name(const std::string& name) {
    const system_handle opened = opened_to_look(name);
    std::array<char, MAX_PATH + 8> buffer; // the system's own form is longer
    if (!opened)
        return std::nullopt;
    const DWORD size = GetFinalPathNameByHandleA(opened.get(), buffer.data(), static_cast<DWORD>(buffer.size()), 0);
    if (size == 0 || size >= buffer.size())
        return std::nullopt;
    return without_own_form(std::string(buffer.data(), size));
}

std::string absolute_name(const std::string& name) {
    if (name.empty())
        return name;
    const DWORD room = GetFullPathNameA(name.c_str(), 0, nullptr, nullptr);
    std::string full(room, '\0');
    const DWORD size = room == 0 ? 0 : GetFullPathNameA(name.c_str(), room, full.data(), nullptr);
    full.resize(size < room ? size : 0);
    if (full.empty())
        return name;
    // A pair at the start marks a share; behind it the call may leave pairs as they are.
    const auto both_separators = [](char a, char b) { return a == path_separator && b == path_separator; };
    full.erase(std::unique(full.begin() + 1, full.end(), both_separators), full.end());
    return full;
}

bool make_folder(const std::string& name) {
    if (CreateDirectoryA(name.c_str(), nullptr))
        return true;
    trace_if_refused(name, GetLastError());
    return false;
}

bool delete_file(const std::string& name) {
    if (DeleteFileA(name.c_str()))
        return true;
    // A link to a folder goes as a folder does; what it leads to stays.
    const DWORD attributes = GetFileAttributesA(name.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && has(attributes, FILE_ATTRIBUTE_DIRECTORY) &&
           is_symbolic_link(name) && RemoveDirectoryA(name.c_str());
}

bool delete_empty_folder(const std::string& name) {
    return RemoveDirectoryA(name.c_str());
}

bool clear_folder(const std::string& name, std::string_view kept) {
    const auto entries = list_folder(name);
    bool is_clear = entries.has_value();
    for (const folder_entry& entry : entries.value_or(std::vector<folder_entry>())) {
        const std::string found = joined(name, entry.name);
        if (entry.is_folder)
            is_clear = clear_folder(found) && delete_empty_folder(found) && is_clear;
        else if (entry.name != kept)
            is_clear = delete_file(found) && is_clear;
    }
    return is_clear;
}

bool flush_file_system(const std::string& folder) {
    bool is_flushed = true;
    for (const folder_entry& entry : list_folder(folder).value_or(std::vector<folder_entry>())) {
        const std::string name = joined(folder, entry.name);
        if (entry.is_folder)
            is_flushed = flush_file_system(name) && is_flushed;
        else if (!entry.is_symbolic_link)
            is_flushed = flush_file(name) && is_flushed;
    }
    return is_flushed;
}

bool rename_replacing(const std::string& from, const std::string& to) {
    return MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING);
}

std::optional<std::vector<folder_entry>> list_folder(const std::string& name) {
    if (!is_folder(name))
        return std::nullopt;
    WIN32_FIND_DATAA found;
    const folder_search search = first_of(name + "\\*", found);
    std::vector<folder_entry> entries;
    if (!search) // the root of a drive may hold nothing at all
        return GetLastError() == ERROR_FILE_NOT_FOUND ? std::optional(entries) : std::nullopt;
    do {
        folder_entry entry = entry_of(found);
        if (entry.name != "." && entry.name != "..")
            entries.push_back(std::move(entry));
    } while (FindNextFileA(search.get(), &found));
    std::sort(entries.begin(), entries.end(),
              [](const folder_entry& a, const folder_entry& b) { return a.name < b.name; });
    return entries;
}

} // namespace platform
