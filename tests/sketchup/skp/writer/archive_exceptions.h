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

// Whether it is up to the values of a model whether the exception is needed. Those of the random models depend on the
// compiler, which draws a call's arguments in an order of its own.
bool is_up_to_the_model(const archive_exception& exception);

// Whether the exception speaks of that finding.
bool excuses(const archive_exception& exception, const finding& found);
