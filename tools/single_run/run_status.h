#pragma once

// How a run ends, as its status says it.

#include <span>
#include <string_view>

enum class run_status {
    done = 0,
    usage = 2,
    model_not_opened = 3,
    not_written = 4,
    not_sound = 5,
    ended_by_signal = 6,
    beyond_limits = 7,
};

struct status_row {
    run_status status;
    std::string_view meaning;
};

// Every status with its meaning, ascending by number; docs/tessaline-run.md has the same table.
std::span<const status_row> status_table();
