#pragma once

// Runs the converter, and finds out what became of it.

#include "tools/single_run/run_clock.h"
#include "tools/single_run/run_status.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// A folder in the batch folder while the converter runs.
inline constexpr std::string_view private_settings_name = "tessaline-run.settings";

struct converted_model {
    run_status status = run_status::done; // whether there is a stream to be checked, or why there is none
    // For any other status than `done`: for a model that cannot be opened the reason, in words; else a sentence.
    std::string words;
    std::string refused_write; // what the disk refused, in words; empty if it took everything
    std::vector<std::string> messages;
    std::uint64_t peak_memory_bytes = 0;
};

// Converts the model of the batch folder; the settings that the user's profile has do not count, and those that the
// converter would keep there are forgotten (Windows: those of the registry count). memory: the most that the converter
// may take, in bytes; 0 for no limit. on_progress: gets each percentage. What the converter traces goes where
// TESSALINE_TRACE says. When the clock says that the run must stop, the result says nothing.
converted_model convert_model(const std::string& converter, const std::string& folder, std::uint64_t memory,
                              const run_clock& clock, const std::function<void(int)>& on_progress);
