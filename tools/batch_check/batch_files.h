#pragma once

// Where the files of a batch come from: a folder of the disk, or the memory of a test. Names lead from the batch folder
// on, with "/" between.

#include "tools/batch_reading/byte_source.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace batch_check {

struct listed_entry {
    std::string name; // without folder
    bool is_folder = false;
    std::uint64_t size = 0; // bytes
};

class batch_files {
public:
    virtual ~batch_files() = default;
    // The entries of a folder inside, of the batch folder itself for the empty name, sorted by the bytes of their
    // names; nothing if there is no such folder.
    virtual std::optional<std::vector<listed_entry>> list(const std::string& folder) const = 0;
    // Bytes of a plain file, be it behind a link; nothing if there is none of that name.
    virtual std::optional<std::uint64_t> size(const std::string& name) const = 0;
    // Null for what cannot be opened and for what is no plain file.
    virtual std::unique_ptr<byte_source> open(const std::string& name) const = 0;
    // The full names by which the batch folder may be known; none if any will do.
    virtual std::vector<std::string> full_names() const = 0;
};

// The whole file, of the size that it has when this begins. Nothing if it cannot be opened; or if it has more than
// `limit` bytes, when nothing is read and no memory is asked for.
std::optional<std::string> whole_file(const batch_files& files, const std::string& name, std::uint64_t limit);

// A folder of the disk. name: as it was given.
std::unique_ptr<batch_files> folder_on_disk(const std::string& name);

} // namespace batch_check
