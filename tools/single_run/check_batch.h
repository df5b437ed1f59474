#pragma once

// Has the checker look at a batch.

#include "tools/single_run/run_clock.h"
#include "tools/single_run/run_report.h"

#include "platform/child_process.h"

#include <string>

struct checked_batch {
    platform::child_end end;  // of the checker
    bool is_answered = false; // false: it did not say anything that can be read
    batch_verdict verdict;
    std::string first_error; // in words, with its file and line; empty if there is none
};

// checker: full name of batch-check. folder: of a batch whose mark still stands, which does not count. memory: the most
// that the checker may take, in bytes; 0 for no limit.
checked_batch check_batch(const std::string& checker, const std::string& folder, std::uint64_t memory,
                          const run_clock& clock);
