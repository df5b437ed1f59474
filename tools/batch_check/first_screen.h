#pragma once

// What a batch holds, in words for who made it: is it all there, why is it black, why is it large.

#include "tools/batch_check/check_batch.h"

#include <string>

namespace batch_check {

// About twenty lines; no name of a folder, a material or a lamp adds one. folder: as it was given.
std::string first_screen(const std::string& folder, const batch_report& report);

// A line for each error and each warning that is kept, and one for each code of which more were found; no
// name of a file adds one.
std::string finding_lines(const findings& found);

// "3 errors, 1 warning, no notes"
std::string sum_of(const findings& found);

} // namespace batch_check
