#pragma once

// Which folders may never be emptied. Pure rules over names and facts, the same code on every platform.

#include <string>

enum class path_rules { windows, posix };

// What the file system knows about a folder; not looked at under the Windows rules.
struct folder_facts {
    std::string real_name; // without links, "." and ".."; empty if the folder does not exist
    std::string home;      // real name of the user's home folder; empty if there is none
    bool is_symbolic_link = false;
};

// The name with its separators as fix_path_separators leaves them under these rules.
std::string with_fixed_separators(const std::string& name, path_rules rules);

// Why a folder must not be emptied, as the text for the user; empty if it may be.
// Windows: refused are the empty name, a bare word, a drive, a network share without a folder, and a name that is
// neither a drive's nor a network path. POSIX: the empty name, a bare word, the root and what lies directly in it (by
// the name or by the real name), the home folder, and a folder that is itself a link.
std::string folder_refusal(const std::string& name, path_rules rules, const folder_facts& facts);
