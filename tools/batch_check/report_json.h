#pragma once

// Reports as one JSON document: the same keys in the same order in every run, no date, no full name.

#include "tools/batch_check/check_batch.h"

#include <span>
#include <string>

namespace batch_check {

struct named_report {
    std::string folder; // as it was given
    batch_report report;
};

// "sound", "findings", "not a batch".
std::string_view status_of(const batch_report& report, bool is_strict);

// Ends in a line feed. What is no UTF-8 in a name is replaced.
std::string json_of(std::span<const named_report> reports, bool is_strict);

} // namespace batch_check
