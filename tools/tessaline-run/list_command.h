#pragma once

// The command lines that are about a list of models, and what stands in the usage about them.

#include "platform/platform.h"

#include <optional>
#include <string_view>

// GNU parallel is not to be had on Windows.
inline constexpr bool has_lists = !platform::has_drive_letters;

inline constexpr std::string_view list_usage =
    "Many models:\n"
    "  tessaline-run --list FILE [LIST OPTION]... [OPTION]... OUTPUT_FOLDER\n"
    "  tessaline-run --table FILE [--root FOLDER] OUTPUT_FOLDER\n"
    "  tessaline-run --count FILE [--root FOLDER]\n"
    "FILE names a model on each line, or ends each name with a zero byte. --list runs them all with GNU parallel, "
    "each\n"
    "to its place in OUTPUT_FOLDER, and prints a table; --table gathers the table alone, --count counts the models.\n"
    "The status is the highest of the models' statuses.\n"
    "  --root FOLDER        below which the models have their places; the deepest common folder if not given\n"
    "  --models A-B         these of the list alone, from 1; the table is printed and not written\n"
    "  --jobs N             so many at a time, or N% of the processors (100%)\n"
    "  --tries N            so often each, if it fails (1)\n"
    "  --resume             go on with the job log of an interrupted run: what it calls done is not looked at\n";

// The status of a command line that has --list, --table or --count anywhere; nothing for any other, and without
// has_lists for all. One that makes no sense is answered with the usage or a sentence, and 2.
std::optional<int> run_list_command(int argc, const char* const* argv, std::string_view usage);
