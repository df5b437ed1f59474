#pragma once

// The programs that a run needs; they stand beside the one that runs.

#include <optional>
#include <string>

// Full name of a program of the project in the folder of the running one. name: such as "batch-check", without the
// ending that programs have on this system. Nothing if there is no such file.
std::optional<std::string> program_beside(const std::string& name);
