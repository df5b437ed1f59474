#pragma once

// What files of the program always have and ours may lack.

#include "tests/sketchup/skp/writer/archive_census.h"

#include <span>

struct archive_exception {
    const char* path; // the end of a census path; with "/*" at its end, all places below such a path
    lack what;
    const char* reason;
};

std::span<const archive_exception> archive_exceptions();

// Whether the exception speaks of that finding.
bool excuses(const archive_exception& exception, const finding& found);
