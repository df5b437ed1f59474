#pragma once

// The process-wide state of reporting: one object. Only trace_enabled is changed by a normal run; a developer's build
// switches the rest on.

#include "qlw/desktop.h"
#include "qlw/qlw_text_files.h"
#include "qlw/suppression_list.h"

#include <string>
#include <vector>

struct error_list_state {
    std::string file_name; // empty while no list has been opened
    cl_output_file file;
    bool has_file = false; // the list was started in this run; its file is closed after every line, so none is lost
    bool was_written = false;
    bool is_writing = false; // a report about the list itself must not be written to it
};

// What the support report says beside the facts that it finds by itself.
struct support_notes {
    std::string sketchup_version; // of the model that was read last; empty before
    std::string first;            // two texts behind the lines
    std::string second;
};

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
    bool writing_log = false;  // a report about the log file itself must not be written to it
    double time_base = 0;      // seconds since the epoch at the last trace line; 0 before the first
    int live_count = 0;        // cl_trace objects alive
    std::string log_file_name; // fixed when first used

    error_list_state error_list;
    std::vector<cl_trace_source> suppressed_sources; // see suppression_list.h
    support_notes notes;

    cl_desktop system_desktop;
    cl_desktop* desktop = &system_desktop; // never null

    // The extraction log: a line for each group, instance and image that is walked. Nothing opens it; a build that does
    // gets the lines.
    cl_output_file extraction_log;
};

cl_trace_state& trace_state();
