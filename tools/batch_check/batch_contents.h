#pragma once

// Which files lie in a batch, and which of them something refers to.

#include "tools/batch_check/batch_files.h"
#include "tools/batch_check/findings.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace batch_check {

class batch_contents {
public:
    // Lists the batch folder and the folders in it, and no deeper ones.
    explicit batch_contents(const batch_files& files);

    bool is_readable() const { return could_list; }
    bool has(const std::string& file) const { return sizes.contains(file); } // a plain file of that name
    std::uint64_t file_count() const { return sizes.size(); }
    std::uint64_t bytes() const { return byte_count; }

    // Where a full name of the stream or of a material file leads: its folder and file in the batch. Nothing if its
    // folder is none of `folders`.
    struct place {
        std::string file;        // as "Plants/Oak"
        bool is_in_here = false; // the name leads into this batch folder, not into one of another name
    };
    std::optional<place> place_of(std::string_view full_name, std::initializer_list<std::string_view> folders) const;

    void refer_to(const std::string& file) { referred.insert(file); }
    bool is_referred_to(const std::string& file) const { return referred.contains(file); }
    // Findings about the files that nothing refers to. knows_references: the stream was read whole; else what seems to
    // be without reference may have one.
    void report_rest(bool knows_references, findings& found) const;

private:
    void add_folder(const batch_files& files, const std::string& folder, int depth);

    std::map<std::string, std::uint64_t> sizes; // of plain files, by their names
    std::set<std::string> referred;
    std::vector<std::string> names; // of the batch folder
    std::uint64_t byte_count = 0;
    bool could_list = false;
};

} // namespace batch_check
