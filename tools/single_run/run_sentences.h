#pragma once

// What the last line of a run says.

#include "tools/single_run/check_batch.h"
#include "tools/single_run/run_options.h"

#include <string>

// Each is one sentence with its full stop.

std::string sentence_of_success(const run_options& options, const std::string& folder, const batch_verdict& verdict,
                                double seconds);
std::string sentence_of_skip(const run_options& options, const std::string& folder);
// Of a model that cannot be opened; reason: in words.
std::string sentence_of_model(const run_options& options, const std::string& reason);
// What the disk refused, as the trace has it: the name and the reason.
std::string sentence_of_refusal(const std::string& refused);
std::string sentence_of_findings(const checked_batch& checked);
std::string sentence_of_request(); // to end
std::string sentence_of_time(const run_options& options);
