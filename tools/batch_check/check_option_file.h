#pragma once

// Whether the option file is as the end of a run writes it.

#include "tools/batch_check/batch_files.h"
#include "tools/batch_check/findings.h"

#include <string>

namespace batch_check {

inline constexpr const char* option_file_name = "option_globals.txt";

// Nothing is wrong with a file that is not there: a run without one makes none.
void check_option_file(const batch_files& files, findings& found);

} // namespace batch_check
