#include "tools/single_run/run_status.h"

#include <array>

namespace {

constexpr std::array rows = {
    status_row{run_status::done, "the batch is finished, or was already (skipped)"},
    status_row{run_status::usage, "the command line makes no sense, or a program that is needed is missing"},
    status_row{run_status::model_not_opened, "the model cannot be opened"},
    status_row{run_status::not_written, "the batch cannot be written, or its folder is not free"},
    status_row{run_status::not_sound, "what the converter left is no sound batch"},
    status_row{run_status::ended_by_signal, "ended by a signal, or a program that it started was"},
    status_row{run_status::beyond_limits, "out of memory or out of time"},
};

} // namespace

std::span<const status_row> status_table() {
    return rows;
}
