#pragma once

// Folders: makes a path exist, finds the well-known folders, completes a file name, and empties a folder safely.

#include "platform/platform.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Folder that holds the product's "appl" folder. Empty unless someone fills it; get_application_folder may move it to
// the "(x86)" form of its name.
extern std::string application_folder;

// Windows: each "/" becomes a backslash, then each pair of backslashes behind the first character becomes one, so that
// the pair in front of a network name stays. POSIX: doubled "/" are folded; a backslash is a letter.
void fix_path_separators(std::string& path);

// Whether a file or a folder of that name exists. One separator at the end does not matter. kind: not looked at.
bool path_exists(const std::string& path, const std::string& kind = {});

// Makes a folder and all that stands above it, tracing each step. 1, or 0 if a folder above could not be made; a
// failure at the folder itself is traced and still gives 1: the caller's next file open reports the trouble.
int qlw_make_sure_directory_exists(std::string path);

// The quiet form: non-zero if the folder exists afterwards.
int make_directory_tree(std::string path);

std::string get_temporary_directory();     // made if missing; ends in a separator
std::string get_application_data_folder(); // the user's settings; made if missing
std::string get_documents_folder();
std::string get_user_data_folder(); // the program's folder inside the documents folder; made if missing
// application_folder, or its "(x86)" form if "appl" lies there; empty if application_folder is empty. An "appl" that is
// in neither place is reported.
std::string get_application_folder();

// The complete name of a file. A name that starts with a separator or holds ":" is complete. Otherwise `folder`, if not
// empty, goes in front, and in front of that the application folder, with "appl" and `subfolder` if that is not
// empty. With no application folder the result is relative to the current folder.
std::string resolve_file_path(const std::string& folder, const std::string& subfolder, const std::string& name);

// Deletes the files of a folder; with `recursive` also those of the folders inside. Folders stay. extension: only files
// whose name ends so, case ignored; all if empty. Links inside are deleted and never followed. A name that could be a
// drive, a share, a root or the home folder is refused with a report, and nothing is touched then (folder_refusal.h).
void clear_folder(const std::string& folder, bool recursive, const std::string& extension);

// The same without the folders inside; files whose name contains one of `keep` stay as well.
void clear_folder_except(const std::string& folder, const std::string& extension, const std::vector<std::string>& keep);

// The version of the operating system in words.
std::string get_windows_version_text();
// The words for given numbers; the description as it is if there is one.
std::string windows_version_text(const platform::os_version& version);

// Goes through the entries of one folder in the order of their names; "." and ".." are left out.
class DIR {
public:
    bool open(const std::string& folder); // false if the folder cannot be read
    bool next();                          // steps to the next entry, the first one included; false when none is left

    // Of the entry that next() stepped to.
    const std::string& name() const { return entries[current].name; } // without folder
    std::string full_name() const;                                    // with the folder in front
    bool is_folder() const { return entries[current].is_folder; }     // false for a link
    std::uint64_t size() const { return entries[current].size; }      // bytes

private:
    std::string folder_name;
    std::vector<platform::folder_entry> entries;
    std::size_t upcoming = 0; // index of the entry that next() gives
    std::size_t current = 0;
};
