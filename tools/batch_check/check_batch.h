#pragma once

// Whether a batch folder is whole and well-formed. This is the manual of the library: give it a folder, take the
// report, print it.

#include "tools/batch_check/batch_files.h"
#include "tools/batch_check/findings.h"
#include "tools/batch_check/stream_facts.h"

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace batch_check {

struct picture_statistics {
    std::uint64_t count = 0; // that materials name
    std::uint64_t bytes = 0;
    std::uint64_t repeated_bytes = 0; // of those whose bytes another has too
};

struct batch_report {
    bool is_batch = false;
    stream_facts stream;
    std::uint64_t bytes = 0; // of all files in the folder and the folders in it
    std::uint64_t files = 0; // their number
    picture_statistics pictures;
    std::uint64_t equal_materials = 0; // files that say what another says
    // A type of more than 80 bytes as these and "..."; the lamps of types beyond the hundredth as "...".
    std::map<std::string, std::uint64_t> lamps_by_type;
    std::uint64_t lamps_without_power = 0;
    findings found;

    // Warnings count if is_strict.
    bool is_sound(bool is_strict) const {
        return is_batch && found.count(severity::error) == 0 && !(is_strict && found.count(severity::warning) > 0);
    }
};

// Checks all files of a batch. ignored: codes that count as not found. Never throws but for lack of memory; that of a
// check is bounded by the largest picture that is decoded (512 MiB of file, 256 MiB of pixels, up to three times that
// within the libraries), the longest line of the stream (64 MiB), what is kept of the stream (most_kept_of_a_stream),
// and the names in the folders.
batch_report check_batch(const batch_files& files, const std::set<code>& ignored = {});

} // namespace batch_check
