#pragma once

// One run: a model becomes a finished batch, or nothing is left of it.

#include "tools/single_run/run_options.h"
#include "tools/single_run/run_report.h"

// Makes the batch that the options ask for, or finds it finished. platform::end_requests must be noted meanwhile. Gives
// the whole report: status, sentence and what goes with them. Nothing is thrown but for lack of memory, and then
// nothing is left behind either.
run_report run_once(const run_options& options);
