#pragma once

// What a run is asked to work on, before and while it is put into the folder of the batch.

#include "tools/single_run/run_options.h"

#include <map>
#include <string>
#include <string_view>

inline constexpr std::string_view option_file_name = "option_globals.txt";

// The full name of a batch folder, without "." and ".." and without separators at its end. Links stay as they are
// named, but for those in front of a "..".
std::string settled_folder(const std::string& name);

// Why no run can be made of the options, in a sentence; empty if one can. folder: settled.
std::string complaint_about_request(const run_options& options, const std::string& folder);

// The same for the file of --json alone, which is looked at before anything else: it is neither in the batch folder nor
// a file that the run reads, under whatever name.
std::string complaint_about_report_file(const run_options& options);

// Puts the settings behind what the option file holds, where they count before it; makes the file if there are any. In
// words why that could not be done; empty if it was.
std::string add_settings(const std::string& option_file, const std::map<std::string, std::string>& settings);
