#pragma once

// Programs whose standard output is a disk that is full.

#include "tests/support/run_program.h"

// name: of a program of the build.
inline program_result run_into_full_disk(const std::string& name, const std::vector<std::string>& arguments) {
    std::vector<std::string> words = {"-c", "exec \"$0\" \"$@\" >/dev/full", std::string(PROGRAMS) + "/" + name};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return run_program({"/bin/sh", words});
}
