#pragma once

// Files that a run reads, and what tells whether they have changed since.

#include "tools/single_run/run_clock.h"

#include <cstdint>
#include <string>

struct file_facts {
    std::string name; // without folder
    std::uint64_t bytes = 0;
    std::string xxh128; // 32 hexadecimal digits (content_hash.h)
};

enum class file_fault { none, not_read, not_written, stopped };

struct hashed_file {
    file_facts facts;
    file_fault fault = file_fault::none;
    std::string words; // of the system, for a fault; may be empty
};

// Reads the whole file. Ends early, with the fault `stopped`, when the clock says so.
hashed_file hash_file(const std::string& name, const run_clock& clock);

// The same, and writes the bytes to another file, which must not be there, not even as a link.
hashed_file copy_file(const std::string& from, const std::string& to, const run_clock& clock);
