#pragma once

// Has the checker look at a batch.

#include "tools/single_run/run_clock.h"
#include "tools/single_run/run_report.h"

#include "platform/child_process.h"

#include <string>
#include <string_view>

struct checked_batch {
    platform::child_end end;  // of the checker
    bool is_answered = false; // false: it did not say anything that can be read
    batch_verdict verdict;
    std::string first_error; // in words, with its file and line; empty if there is none
};

// Takes what the checker has printed about one batch into verdict and first_error. False, and nothing is taken, if the
// text is no such answer.
bool take_answer(std::string_view text, checked_batch& checked);

// checker: full name of batch-check. folder: of a batch whose mark still stands, which does not count. memory: the most
// that the checker may take, in bytes; 0 for no limit.
checked_batch check_batch(const std::string& checker, const std::string& folder, std::uint64_t memory,
                          const run_clock& clock);
