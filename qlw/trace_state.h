#pragma once

// The process-wide state of reporting: one object. Only trace_enabled is changed by a normal run; a developer's build
// switches the rest on.

#include "qlw/qlw_text_files.h"

#include <string>

struct cl_trace_state {
    bool trace_enabled = false; // false: every message vanishes
    bool show_function = false; // the location names the function
    bool show_time = false;
    bool show_memory = false;
    bool log_to_file = false;       // lines also go to the log file
    bool log_always = false;        // as log_to_file, without the one-time notice
    bool error_list_active = false; // messages also go to the error list
    bool log_file_is_new = true;    // nothing has been written to the log file in this run
    bool log_notice_shown = false;
    bool writing_log = false;    // a report about the log file itself must not be written to it
    double time_base = 0;        // seconds since the epoch at the last trace line; 0 before the first
    int live_count = 0;          // cl_trace objects alive
    std::string log_file_name;   // fixed when first used
    std::string error_list_name; // empty while no error list has been opened

    // The extraction log: a line for each group, instance and image that is walked. Nothing opens it; a build that does
    // gets the lines.
    cl_output_file extraction_log;
};

cl_trace_state& trace_state();
